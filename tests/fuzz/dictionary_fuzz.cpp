// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file dictionary_fuzz.cpp Fuzzes the reader of dictionary files with arbitrary bytes.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/objectmodeler/VelDictionaryReader.h"
#include "tests/fuzz/Require.h"

namespace {

/// @return the number of lines, at least 1
std::size_t LineCount(std::string_view iText) {
  const auto newlines = static_cast<std::size_t>(std::count(iText.begin(), iText.end(), '\n'));
  return std::max<std::size_t>(1, iText.empty() || iText.back() == '\n' ? newlines : newlines + 1);
}

void CheckFault(std::string_view iText, const VelDictionaryFault& iFault) {
  Require(iFault.line >= 1 && iFault.line <= LineCount(iText));
  Require(!iFault.cause.empty());
}

/// The dictionary as the reader understood it, with a line for each line that says something.
std::string Write(const std::vector<VelDictionaryModule>& iModules) {
  std::string text = "velrsh-dictionary 1\n";
  for (const VelDictionaryModule& module : iModules) {
    text += "module " + module.name + "\nframework " + module.framework + "\nlibrary " + module.library + '\n';
    for (const auto& type : module.types) text += "type " + type.lateType + ' ' + type.base + '\n';
    for (const auto& owner : module.classes) {
      const bool direct = owner.kind == VelTypeOfClass::DelegatingExtension;
      const char* other = owner.kind == VelTypeOfClass::Extension ? " Extension\n" : " Implementation\n";
      text += "class " + owner.name + (direct ? " DelegatingExtension\n" : other);
    }
    for (const auto& row : module.rows) {
      text += "bind " + row.lateType + ' ' + row.interfaceName +
              (row.mechanism == VelMechanism::TIE ? " TIE " : " BOA ") +
              (row.lifetime == VelLifetime::Component ? "Component " : "Reference ") + row.className + '\n';
    }
  }
  return text;
}

/// What was accepted is complete, is accepted again, and written out means the same.
void CheckAccepted(std::string_view iText, const std::vector<VelDictionaryModule>& iModules) {
  for (const VelDictionaryModule& module : iModules) {
    Require(!module.name.empty() && !module.framework.empty() && !module.library.empty());
    Require(module.line >= 1 && module.line <= LineCount(iText));
  }
  std::vector<VelDictionaryModule> again;
  VelDictionaryFault fault{};
  Require(VelDictionaryReader::Read(iText, again, fault));
  const std::string written = Write(iModules);
  Require(Write(again) == written);
  Require(VelDictionaryReader::Read(written, again, fault));
  Require(Write(again) == written);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* iData, std::size_t iSize) {
  const std::string_view text(reinterpret_cast<const char*>(iData), iSize);
  std::vector<VelDictionaryModule> modules;
  VelDictionaryFault fault{};
  if (VelDictionaryReader::Read(text, modules, fault)) {
    CheckAccepted(text, modules);
  } else {
    CheckFault(text, fault);
  }
  return 0;
}
