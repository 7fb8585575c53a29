// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file FlatJson.cpp Reads a JSON object of texts and numbers, strictly, with means of its own.
#include "tests/platform/trace/FlatJson.h"

#include <algorithm>
#include <charconv>
#include <cstddef>

namespace {

/// Takes a character from the front if it is the expected one.
bool Take(std::string_view& ioText, char iExpected) {
  if (ioText.empty() || ioText.front() != iExpected) return false;
  ioText.remove_prefix(1);
  return true;
}

/// Takes what follows a backslash.
bool TakeEscape(std::string_view& ioText, std::string& ioValue) {
  if (ioText.empty()) return false;
  const char letter = ioText.front();
  ioText.remove_prefix(1);
  constexpr std::string_view letters = "\"\\/bfnrt";
  constexpr std::string_view values = "\"\\/\b\f\n\r\t";
  if (const std::size_t index = letters.find(letter); index != std::string_view::npos) {
    ioValue += values[index];
    return true;
  }
  unsigned code = 0;
  if (letter != 'u' || ioText.size() < 4) return false;
  const auto result = std::from_chars(ioText.data(), ioText.data() + 4, code, 16);
  if (result.ptr != ioText.data() + 4 || code > 0x7F) return false;
  ioText.remove_prefix(4);
  ioValue += static_cast<char>(code);
  return true;
}

bool TakeText(std::string_view& ioText, std::string& oValue) {
  if (!Take(ioText, '"')) return false;
  while (!Take(ioText, '"')) {
    if (Take(ioText, '\\')) {
      if (!TakeEscape(ioText, oValue)) return false;
      continue;
    }
    if (ioText.empty() || static_cast<unsigned char>(ioText.front()) < 0x20) return false;
    oValue += ioText.front();
    ioText.remove_prefix(1);
  }
  return true;
}

bool TakeValue(std::string_view& ioText, std::string& oValue) {
  if (ioText.starts_with('"')) return TakeText(ioText, oValue);
  const std::size_t length = std::min(ioText.find_first_not_of("-0123456789"), ioText.size());
  oValue = ioText.substr(0, length);
  ioText.remove_prefix(length);
  return length > 0;
}

}  // namespace

std::map<std::string, std::string> FlatJson::Read(std::string_view iLine) {
  std::map<std::string, std::string> members;
  if (!Take(iLine, '{')) return {};
  do {
    std::string key;
    std::string value;
    if (!TakeText(iLine, key) || !Take(iLine, ':') || !TakeValue(iLine, value)) return {};
    if (!members.emplace(key, value).second) return {};
  } while (Take(iLine, ','));
  return Take(iLine, '}') && iLine.empty() ? members : std::map<std::string, std::string>();
}
