// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelMsgCatalog.cpp Keeps messages and falls back from language to language.
#include "platform/configuration/VelMsgCatalog.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>

#include "platform/base/VelEnvironment.h"
#include "platform/configuration/VelConfigurationFile.h"
#include "platform/configuration/VelConfigurationSources.h"

namespace {

constexpr const char* channel = "VelMsgCatalog";
constexpr const char* english = "en";

using Messages = std::unordered_map<VelString, VelUnicodeString>;

struct State {
  VelString language;  ///< As it was set, empty for that of the environment.
  std::unordered_map<VelString, std::unordered_map<VelString, Messages>> catalogs;  ///< By catalog, then by language.
};

State& TheState() {
  static auto& state = *new State;
  return state;
}

/// @return the language and region of a locale's name
VelString LanguageOf(std::string_view iLocale) {
  std::string name(iLocale.substr(0, iLocale.find_first_of(".@")));
  std::replace(name.begin(), name.end(), '-', '_');
  if (name.empty() || name == "C" || name == "POSIX") return english;
  return VelString(name);
}

/// @return the language without its last part, empty when it has one part only
VelString WithoutRegion(const VelString& iLanguage) {
  const auto region = iLanguage.View().rfind('_');
  return region == std::string_view::npos ? VelString() : iLanguage.SubString(0, region);
}

const VelUnicodeString* Find(const std::unordered_map<VelString, Messages>& iCatalog, const VelString& iLanguage,
                             const VelString& iKey) {
  const auto messages = iCatalog.find(iLanguage);
  if (messages == iCatalog.end()) return nullptr;
  const auto message = messages->second.find(iKey);
  return message != messages->second.end() ? &message->second : nullptr;
}

/// A catalog as it was filled, and beneath it what the source of configurations says of the same name.
class Catalog {
 public:
  explicit Catalog(const VelString& iName) {
    const auto found = TheState().catalogs.find(iName);
    if (found != TheState().catalogs.end()) own_ = &found->second;
    const auto* sourced = VelConfigurationSources::Instance().Find(iName);
    if (sourced != nullptr) sourced_ = &sourced->messages;
  }

  const VelUnicodeString* Find(const VelString& iLanguage, const VelString& iKey) const {
    for (const auto* messages : {own_, sourced_}) {
      const VelUnicodeString* message = messages != nullptr ? ::Find(*messages, iLanguage, iKey) : nullptr;
      if (message != nullptr) return message;
    }
    return nullptr;
  }

 private:
  const std::unordered_map<VelString, Messages>* own_ = nullptr;
  const std::unordered_map<VelString, Messages>* sourced_ = nullptr;
};

/// Splits "<catalog>.<language>.toml".
/// @return false when the file is not named so
bool SplitName(std::string_view iPath, VelString& oCatalog, VelString& oLanguage) {
  std::string_view name = iPath.substr(iPath.rfind('/') + 1);
  if (!name.ends_with(VelConfigurationFile::nameEnd)) return false;
  name.remove_suffix(std::string_view(VelConfigurationFile::nameEnd).size());
  const auto dot = name.rfind('.');
  if (dot == std::string_view::npos || dot == 0 || dot + 1 == name.size()) return false;
  oCatalog = VelString(name.substr(0, dot));
  oLanguage = LanguageOf(name.substr(dot + 1));
  return true;
}

}  // namespace

VelUnicodeString VelMsgCatalog::BuildMessage(const VelString& iCatalog, const VelString& iKey) {
  const Catalog catalog(iCatalog);
  for (VelString language = Language(); !language.IsEmpty(); language = WithoutRegion(language)) {
    if (const auto* message = catalog.Find(language, iKey); message != nullptr) return *message;
  }
  const VelUnicodeString* message = catalog.Find(english, iKey);
  return message != nullptr ? *message : VelUnicodeString();
}

void VelMsgCatalog::SetLanguage(const VelString& iLanguage) { TheState().language = iLanguage; }

VelString VelMsgCatalog::Language() {
  VelString language = TheState().language;
  if (language.IsEmpty()) VelEnvironment::Get("VEL_LANGUAGE", language);
  return LanguageOf(language);
}

HRESULT VelMsgCatalog::SetMessage(const VelString& iLanguage, const VelString& iCatalog, const VelString& iKey,
                                  const VelUnicodeString& iText) {
  if (iCatalog.IsEmpty() || iKey.IsEmpty()) return E_INVALIDARG;
  const auto [message, isNew] = TheState().catalogs[iCatalog][LanguageOf(iLanguage)].try_emplace(iKey, iText);
  if (isNew) return S_OK;
  if (message->second == iText) return S_FALSE;
  message->second = iText;
  return S_OK;
}

HRESULT VelMsgCatalog::LoadFile(const std::string& iPath) {
  const VelConfigurationFile file(channel);
  VelString catalog;
  VelString language;
  if (!SplitName(iPath, catalog, language)) {
    file.Report(iPath, {0, 0, "a message file is named <catalog>.<language>.toml"});
    return E_FAIL;
  }
  VelConfigurationContent content;
  VEL_RETURN_IF_FAILED(file.ReadMessages(iPath, content));
  Messages& messages = TheState().catalogs[catalog][language];
  for (const VelConfigurationEntry& entry : content.entries) messages[entry.key] = VelUnicodeString(entry.value);
  return S_OK;
}

void VelMsgCatalog::Clear() { TheState() = {}; }
