// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaFaults.cpp Words causes and puts them in order.
#include "host/shadertypes/VelRmaFaults.h"

#include <algorithm>
#include <utility>

#include "host/shadertypes/VelRmaNearestWord.h"

namespace {

/// @return true for the text of a real that reads like an integer
bool IsWhole(std::string_view iText) { return iText.find_first_not_of("-0123456789") == std::string_view::npos; }

}  // namespace

void VelRmaFaults::Add(VelConfigurationPosition iPosition, std::string iCause) {
  if (faults_.size() < capacity) {
    faults_.push_back({iPosition.line, iPosition.column, std::move(iCause)});
  } else {
    ++more_;
  }
}

std::string_view VelRmaFaults::AddUnknown(VelConfigurationPosition iPosition, std::string iCause,
                                          std::string_view iFound, std::span<const std::string_view> iWords) {
  // To look for a near word is worth it only for what is told, and among words that somebody can know.
  const bool isWorthIt = faults_.size() < capacity && iWords.size() < capacity;
  const std::string_view nearest = isWorthIt ? VelRmaNearestWord::Find(iFound, iWords) : std::string_view();
  Add(iPosition, std::move(iCause) + VelRmaNearestWord::Question(nearest));
  return nearest;
}

std::vector<VelConfigurationFault> VelRmaFaults::Take() {
  std::stable_sort(faults_.begin(), faults_.end(),
                   [](const VelConfigurationFault& iLeft, const VelConfigurationFault& iRight) {
                     return std::pair(iLeft.line, iLeft.column) < std::pair(iRight.line, iRight.column);
                   });
  if (faults_.size() > limit) {
    const std::size_t more = faults_.size() - limit + std::exchange(more_, 0);
    faults_.resize(limit);
    faults_.push_back({0, 0, "there are " + std::to_string(more) + " more faults in the file"});
  }
  return std::exchange(faults_, {});
}

std::string VelRmaFaults::Quote(std::string_view iText) {
  constexpr std::size_t longest = 80;
  std::size_t end = std::min(iText.size(), longest);
  while (end < iText.size() && end > 0 && (static_cast<unsigned char>(iText[end]) & 0xC0U) == 0x80U) --end;
  std::string text(iText.substr(0, end));
  for (char& byte : text) {
    if (static_cast<unsigned char>(byte) < 0x20U || byte == 0x7F) byte = '?';
  }
  return '\'' + text + (end < iText.size() ? "...'" : "'");
}

std::string VelRmaFaults::Describe(const VelConfigurationNode& iNode) {
  switch (iNode.kind) {
    case VelConfigurationNode::Kind::Table:
      return "a table";
    case VelConfigurationNode::Kind::Array:
      return "an array";
    case VelConfigurationNode::Kind::Text:
      return "the text " + Quote(iNode.text);
    case VelConfigurationNode::Kind::Integer:
      return "the number " + iNode.text;
    case VelConfigurationNode::Kind::Real:
      return "the number " + iNode.text + (IsWhole(iNode.text) ? ".0" : "");
    case VelConfigurationNode::Kind::Boolean:
    case VelConfigurationNode::Kind::Moment:
      break;
  }
  return iNode.text;
}

std::string VelRmaFaults::Choice(std::span<const std::string_view> iWords) {
  std::string text;
  for (std::size_t i = 0; i < iWords.size(); ++i) {
    if (i > 0) text += i + 1 == iWords.size() ? " or " : ", ";
    text += iWords[i];
  }
  return text;
}
