// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaShaderType.cpp Turns what a file says into keys of the configuration.
#include "host/shadertypes/VelRmaShaderType.h"

#include <algorithm>
#include <string_view>

#include "host/layout/VelRmaParameterSettings.h"

namespace {

const VelString* Find(const std::vector<VelRmaLabel>& iLabels, std::string_view iLanguage) {
  const auto label = std::find_if(iLabels.begin(), iLabels.end(),
                                  [&](const VelRmaLabel& iLabel) { return iLabel.language.View() == iLanguage; });
  return label != iLabels.end() ? &label->text : nullptr;
}

void AddLabels(const std::vector<VelRmaLabel>& iLabels, const VelString& iKey, VelSourcedConfiguration& ioContent) {
  for (const VelRmaLabel& label : iLabels) ioContent.messages.push_back({label.language, iKey, label.text});
}

void AddParameter(const VelRmaShaderParameter& iParameter, VelSourcedConfiguration& ioContent) {
  const auto add = [&](const char* iWord, const VelString& iValue) {
    ioContent.entries.push_back({VelString(), iParameter.name + "." + iWord, iValue});
  };
  if (!iParameter.tags.IsEmpty()) add("Tag", iParameter.tags);
  if (!iParameter.slot.IsEmpty()) add("SlotIdentifier", iParameter.slot);
  if (iParameter.value) add(VelRmaParameterSettings::defaultValueWord, iParameter.value->Text());
  if (const auto& layout = iParameter.layout; layout) {
    add(VelRmaParameterSettings::layoutWord, layout->kind);
    add(VelRmaParameterSettings::shownWord, layout->isShown ? "Yes" : "No");
    if (layout->text) add(VelRmaParameterSettings::layoutValueWord, *layout->text);
  }
  AddLabels(iParameter.labels, iParameter.name + ".Label", ioContent);
}

}  // namespace

VelString VelRmaShaderType::LabelIn(const VelString& iLanguage) const {
  std::string_view language = iLanguage.View();
  while (!language.empty()) {
    if (const VelString* text = Find(labels, language); text != nullptr) return *text;
    const auto region = language.rfind('_');
    language = region == std::string_view::npos ? std::string_view() : language.substr(0, region);
  }
  const VelString* const text = Find(labels, "en");
  return text != nullptr ? *text : name;
}

VelSourcedConfiguration VelRmaShaderType::Configuration() const {
  VelSourcedConfiguration content;
  content.parent = parent;
  AddLabels(labels, "Label", content);
  for (const VelRmaShaderParameter& parameter : parameters) AddParameter(parameter, content);
  for (const VelRmaMappingKey& one : mapping) content.entries.push_back({VelString(), one.key, one.value});
  return content;
}
