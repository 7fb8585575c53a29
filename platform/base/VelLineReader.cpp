// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelLineReader.cpp Splits lines into words.
#include "platform/base/VelLineReader.h"

#include <algorithm>

namespace {

void Split(std::string_view iLine, VelWords& oWords) {
  constexpr std::string_view blanks = " \t\r\f\v";
  oWords.clear();
  for (std::size_t begin = iLine.find_first_not_of(blanks); begin != std::string_view::npos && iLine[begin] != '#';) {
    const std::size_t end = std::min(iLine.find_first_of(blanks, begin), iLine.size());
    oWords.push_back(iLine.substr(begin, end - begin));
    begin = iLine.find_first_not_of(blanks, end);
  }
}

}  // namespace

bool VelLineReader::Next() {
  while (!rest_.empty()) {
    const std::size_t end = std::min(rest_.find('\n'), rest_.size());
    Split(rest_.substr(0, end), words_);
    rest_.remove_prefix(std::min(end + 1, rest_.size()));
    ++line_;
    if (!words_.empty()) return true;
  }
  return false;
}

bool VelIsName(std::string_view iWord) noexcept {
  return std::all_of(iWord.begin(), iWord.end(), [](char iByte) {
    return (iByte >= 'A' && iByte <= 'Z') || (iByte >= 'a' && iByte <= 'z') || (iByte >= '0' && iByte <= '9') ||
           iByte == '_';
  });
}
