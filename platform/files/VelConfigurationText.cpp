// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelConfigurationText.cpp Turns the values of a TOML text into entries.
#include "platform/files/VelConfigurationText.h"

#include <cstddef>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/configuration/VelRbaConfiguration.h"
#include "platform/files/VelTomlText.h"

namespace {

constexpr const char* parentKey = "parent";

/// @return a name for a message, cut where it is long, between two characters
std::string Quote(const std::string& iName) {
  constexpr std::size_t longest = 200;
  if (iName.size() <= longest) return '\'' + iName + '\'';
  std::size_t end = longest;
  while (end > 0 && (static_cast<unsigned char>(iName[end]) & 0xC0U) == 0x80U) --end;
  return '\'' + iName.substr(0, end) + "...'";
}

/// One file on its way from values to entries.
class Conversion {
 public:
  /// Adds a value.
  /// @return what is wrong with it, an empty cause for nothing
  VelConfigurationFault Add(const VelTomlValue& iValue, VelConfigurationText::Form iForm) {
    if (iValue.kind == VelTomlValue::Kind::Foreign) {
      return At(iValue.position, "a value is a text, a number, true or false, found " + iValue.text);
    }
    if (iForm == VelConfigurationText::Form::Messages) return AddEntry(iValue, 0);
    if (iValue.path.size() == 1) {
      return At(iValue.key, "the key " + Quote(iValue.path[0]) + " stands in no configuration, such as [Default]");
    }
    if (iValue.path[0].empty()) return At(iValue.key, "the name of a configuration is empty");
    if (iValue.path.size() == 2 && iValue.path[1] == parentKey) return AddParent(iValue);
    return AddEntry(iValue, 1);
  }

  VelConfigurationContent content;

 private:
  static VelConfigurationFault At(VelConfigurationPosition iPosition, std::string iCause) {
    return {iPosition.line, iPosition.column, std::move(iCause)};
  }

  VelConfigurationFault AddParent(const VelTomlValue& iValue) {
    if (iValue.kind != VelTomlValue::Kind::Text) {
      return At(iValue.position, "'parent' is the name of a configuration, found " + iValue.text);
    }
    if (iValue.path[0] == VelRbaConfiguration::defaultName) {
      return At(iValue.key, "'Default' has no parent, since it is the last of all");
    }
    content.parents.push_back({VelString(iValue.path[0]), VelString(iValue.text)});
    return {};
  }

  /// @param[in] iBegin the first part of the path that belongs to the key
  VelConfigurationFault AddEntry(const VelTomlValue& iValue, std::size_t iBegin) {
    std::string configuration = iBegin == 0 ? std::string() : iValue.path[0];
    std::string key = iValue.path[iBegin];
    for (std::size_t i = iBegin + 1; i < iValue.path.size(); ++i) key += '.' + iValue.path[i];
    if (key.empty()) return At(iValue.key, "a key is empty");
    const auto [known, isNew] = lines_.try_emplace({configuration, key}, iValue.key.line);
    // a.b and "a.b" are two keys of the file and one of the configuration.
    if (!isNew) {
      return At(iValue.key, "the key " + Quote(key) + " has a value already in line " + std::to_string(known->second));
    }
    content.entries.push_back({VelString(configuration), VelString(key), VelString(iValue.text)});
    return {};
  }

  std::map<std::pair<std::string, std::string>, unsigned> lines_;  ///< Where each key of each configuration stands.
};

}  // namespace

bool VelConfigurationText::Read(std::string_view iText, Form iForm, VelConfigurationContent& oContent,
                                VelConfigurationFault& oFault) {
  std::vector<VelTomlValue> values;
  if (!VelTomlText::Read(iText, values, oFault)) return false;
  Conversion conversion;
  for (const VelTomlValue& value : values) {
    if (VelConfigurationFault fault = conversion.Add(value, iForm); !fault.cause.empty()) {
      oFault = std::move(fault);
      return false;
    }
  }
  oContent = std::move(conversion.content);
  return true;
}
