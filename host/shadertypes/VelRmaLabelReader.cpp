// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaLabelReader.cpp Checks languages and texts.
#include "host/shadertypes/VelRmaLabelReader.h"

#include <algorithm>
#include <string>

namespace {

using Kind = VelConfigurationNode::Kind;

constexpr std::string_view english = "en";

bool IsAll(std::string_view iText, char iFirst, char iLast) {
  return std::all_of(iText.begin(), iText.end(), [=](char iByte) { return iByte >= iFirst && iByte <= iLast; });
}

/// @return true for "de", "gsw" and "de_AT"
bool IsLanguage(std::string_view iName) {
  const std::size_t end = std::min(iName.find('_'), iName.size());
  if (end < 2 || end > 3 || !IsAll(iName.substr(0, end), 'a', 'z')) return false;
  return end == iName.size() || (iName.size() == end + 3 && IsAll(iName.substr(end + 1), 'A', 'Z'));
}

}  // namespace

std::vector<VelRmaLabel> VelRmaLabelReader::Read() const {
  const auto label = table_.Find(key);
  if (!label) return {};
  const VelConfigurationNode& node = table_.Nodes()[*label];
  if (node.kind == Kind::Table) return ReadLanguages(*label);
  if (node.kind != Kind::Text) {
    table_.Refuse(key, *label);
    return {};
  }
  if (!IsSound(node)) return {};
  return {{VelString(english), VelString(node.text)}};
}

std::vector<VelRmaLabel> VelRmaLabelReader::ReadLanguages(std::size_t iTable) const {
  const VelRmaNodes& nodes = table_.Nodes();
  std::vector<VelRmaLabel> labels;
  bool hasEnglish = false;
  for (const std::size_t inner : nodes.Inner(iTable)) {
    const VelConfigurationNode& node = nodes[inner];
    hasEnglish = hasEnglish || node.name == english;
    if (!IsLanguage(node.name)) {
      const std::string hint = VelRmaTable::HintOfMisplaced(nodes, iTable, inner, table_.Faults());
      table_.Faults().Add(node.key,
                          "expected a language such as en or de_AT, found " + VelRmaFaults::Quote(node.name) + hint);
    } else if (IsSound(node)) {
      labels.push_back({VelString(node.name), VelString(node.text)});
    }
  }
  if (!hasEnglish) {
    table_.Faults().Add(nodes[iTable].position,
                        "the label has no English text; expected the key 'en' beside the others");
  }
  return labels;
}

bool VelRmaLabelReader::IsSound(const VelConfigurationNode& iText) const {
  if (iText.kind == Kind::Text && !iText.text.empty()) return true;
  table_.Faults().Add(iText.position,
                      "expected a text that is not empty for a label, found " + VelRmaFaults::Describe(iText));
  return false;
}
