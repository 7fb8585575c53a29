// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file configuration_fuzz.cpp Fuzzes the reader of configuration and message files with arbitrary bytes.
#include <cstddef>
#include <cstdint>
#include <set>
#include <string_view>
#include <utility>

#include "platform/files/VelConfigurationText.h"
#include "tests/fuzz/ConfigurationFault.h"

namespace {

using Form = VelConfigurationText::Form;

/// What was accepted can be entered: names are given, no key has two values, no configuration two parents.
void CheckAccepted(Form iForm, const VelConfigurationContent& iContent) {
  std::set<VelString> below;
  for (const VelConfigurationParent& known : iContent.parents) {
    Require(iForm == Form::Configurations);
    Require(!known.configuration.IsEmpty() && !(known.configuration == "Default"));
    Require(below.insert(known.configuration).second);
  }
  std::set<std::pair<VelString, VelString>> keys;
  for (const VelConfigurationEntry& entry : iContent.entries) {
    Require(entry.configuration.IsEmpty() == (iForm == Form::Messages));
    Require(!entry.key.IsEmpty());
    Require(keys.insert({entry.configuration, entry.key}).second);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* iData, std::size_t iSize) {
  const std::string_view text(reinterpret_cast<const char*>(iData), iSize);
  for (const Form form : {Form::Configurations, Form::Messages}) {
    VelConfigurationContent content;
    VelConfigurationFault fault;
    if (VelConfigurationText::Read(text, form, content, fault)) {
      CheckAccepted(form, content);
    } else {
      CheckFault(text, fault);
    }
  }
  return 0;
}
