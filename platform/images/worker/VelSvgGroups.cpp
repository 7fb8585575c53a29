// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSvgGroups.cpp Copies the text and writes tags in between.
#include "platform/images/worker/VelSvgGroups.h"

#include <cstddef>
#include <vector>

namespace {

using namespace std::string_view_literals;

/// What becomes of an element, by its index.
struct Choice {
  std::vector<bool> isNamed;
  std::vector<bool> isAround;  ///< Named, or with something named inside.
  bool isEmpty = true;
};

void Name(const std::vector<VelSvgElement>& iElements, std::size_t iIndex, Choice& ioChoice) {
  ioChoice.isNamed[iIndex] = true;
  ioChoice.isEmpty = false;
  for (std::size_t i = iIndex; !ioChoice.isAround[i]; i = iElements[i].parent) ioChoice.isAround[i] = true;
}

Choice Choose(const std::vector<VelSvgElement>& iElements, std::size_t iNameCount) {
  std::vector<bool> isIdentifier(iNameCount);
  for (const VelSvgElement& element : iElements) {
    if (element.name) isIdentifier[*element.name] = true;
  }
  Choice choice{std::vector<bool>(iElements.size()), std::vector<bool>(iElements.size())};
  for (std::size_t i = 0; i < iElements.size(); ++i) {
    const VelSvgElement& element = iElements[i];
    const bool isLayer = element.layerName && !isIdentifier[*element.layerName];
    if (element.name || isLayer) Name(iElements, i, choice);
  }
  return choice;
}

/// @return where the value of an attribute begins in a start tag, behind the quote; 0 when it has none
std::size_t FindValue(std::string_view iTag, std::string_view iName) {
  constexpr std::string_view blanks = " \t\r\n";
  std::size_t place = iTag.find_first_of(" \t\r\n/>");
  while (place != std::string_view::npos) {
    place = iTag.find_first_not_of(blanks, place);
    const std::size_t nameEnd = iTag.find_first_of(" \t\r\n=", place);
    const std::size_t quote = iTag.find_first_of("\"'", place);
    if (nameEnd == std::string_view::npos || quote == std::string_view::npos) return 0;
    if (iTag.substr(place, nameEnd - place) == iName) return quote + 1;
    const std::size_t end = iTag.find(iTag[quote], quote + 1);
    place = end == std::string_view::npos ? end : end + 1;
  }
  return 0;
}

/// Writes a start tag so that the element is shown whatever its author has it be. The words stand before and behind the
/// author's: those behind win, and those before hold where the author's have no proper end.
std::string ShowElement(std::string_view iTag) {
  constexpr std::string_view shown = "display:inline!important;visibility:visible!important;";
  std::string tag(iTag);
  const std::size_t value = FindValue(iTag, "style");
  if (value == 0) {
    const std::size_t end = iTag.size() - (iTag.ends_with("/>"sv) ? 2 : 1);
    return tag.insert(end, " style=\"" + std::string(shown) + "\"");
  }
  const std::size_t valueEnd = tag.find(tag[value - 1], value);
  return tag.insert(valueEnd, ";" + std::string(shown)).insert(value, shown);
}

class Writer {
 public:
  Writer(std::string_view iText, const VelSvgOutline& iOutline, const Choice& iChoice)
      : text_(iText), outline_(iOutline), choice_(iChoice), isShown_(iOutline.Elements().size()) {}

  std::string Write() {
    for (std::size_t i = 0; i < outline_.Elements().size(); ++i) {
      if (outline_.Elements()[i].begin >= copied_) WriteElement(i);
    }
    CopyUpTo(text_.size());
    return std::move(written_);
  }

 private:
  void CopyUpTo(std::size_t iPlace) {
    written_.append(text_.substr(copied_, iPlace - copied_));
    copied_ = iPlace;
  }

  void WriteElement(std::size_t iIndex) {
    const VelSvgElement& element = outline_.Elements()[iIndex];
    isShown_[iIndex] = choice_.isNamed[iIndex] || isShown_[element.parent];
    if (choice_.isNamed[iIndex]) {
      CopyUpTo(element.begin);
      written_.append(ShowElement(text_.substr(element.begin, element.tagEnd - element.begin)));
      copied_ = element.tagEnd;
    } else if (!isShown_[iIndex] && !choice_.isAround[iIndex]) {
      PutAway(element);
    }
  }

  /// A switch would take definitions for its first child that fits. There a group with the child's conditions stands
  /// for the child, and draws nothing.
  void PutAway(const VelSvgElement& iElement) {
    const bool isInSwitch = outline_.Elements()[iElement.parent].isSwitch;
    const std::string& prefix = outline_.Prefix();
    CopyUpTo(iElement.begin);
    if (isInSwitch) written_.append("<" + prefix + "g" + iElement.conditions + ">");
    written_.append("<" + prefix + "defs>");
    CopyUpTo(iElement.end);
    written_.append("</" + prefix + "defs>");
    if (isInSwitch) written_.append("</" + prefix + "g>");
  }

  std::string_view text_;
  const VelSvgOutline& outline_;
  const Choice& choice_;
  std::vector<bool> isShown_;
  std::size_t copied_ = 0;
  std::string written_;
};

bool HasWideLetters(std::string_view iText) {
  return iText.starts_with("\xFF\xFE"sv) || iText.starts_with("\xFE\xFF"sv) || iText.starts_with("<\0"sv) ||
         iText.starts_with("\0<"sv);
}

}  // namespace

HRESULT VelSvgGroups::Cut(std::string_view iText, const VelSvgOutline& iOutline, std::span<const std::string> iWanted,
                          std::string& oText, std::string& oCause) {
  const Choice choice = Choose(iOutline.Elements(), iWanted.size());
  if (choice.isEmpty) return S_FALSE;
  if (HasWideLetters(iText)) {
    oCause = "is in UTF-16, of which no groups are drawn by themselves; expected UTF-8";
    return E_FAIL;
  }
  if (!iOutline.IsWritten()) {
    oCause = "has elements in entities, of which no groups are drawn by themselves; expected elements as they are";
    return E_FAIL;
  }
  oText = Writer(iText, iOutline, choice).Write();
  return S_OK;
}
