// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTraceSwitches.cpp Reads the switches item by item and finds the level of a channel.
#include "platform/trace/VelTraceSwitches.h"

#include <cstddef>
#include <optional>

#include "platform/base/VelFormat.h"

namespace {

struct NamedLevel {
  std::string_view word;
  int level;
};

constexpr NamedLevel namedLevels[] = {
    {"off", VelTraceLevel::off},
    {"error", VelTraceLevel::error},
    {"warning", VelTraceLevel::warning},
    {"info", VelTraceLevel::info},
};

std::string_view Trimmed(std::string_view iText) {
  constexpr std::string_view blanks = " \t\r\n";
  const std::size_t first = iText.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  return iText.substr(first, iText.find_last_not_of(blanks) - first + 1);
}

std::optional<int> ReadLevel(std::string_view iWord) {
  for (const NamedLevel& named : namedLevels) {
    if (named.word == iWord) return named.level;
  }
  if (iWord.size() != 1 || iWord[0] < '1' || iWord[0] > '9') return std::nullopt;
  return VelTraceLevel::info + (iWord[0] - '0');
}

/// A star is allowed at the end only.
bool IsPattern(std::string_view iText) { return !iText.empty() && iText.find('*') >= iText.size() - 1; }

}  // namespace

VelTraceSwitches VelTraceSwitches::Parse(std::string_view iText, std::vector<std::string>& oComplaints) {
  VelTraceSwitches switches;
  while (!iText.empty()) {
    const std::size_t comma = iText.find(',');
    const std::string_view item = Trimmed(iText.substr(0, comma));
    iText = comma == std::string_view::npos ? std::string_view() : iText.substr(comma + 1);
    if (item.empty()) continue;
    const std::size_t equals = item.find('=');
    const std::string_view pattern = Trimmed(item.substr(0, equals));
    if (!IsPattern(pattern)) {
      oComplaints.push_back(VelFormat::ToText(
          "Trace switch \"%s\" left out: expected a channel name, a prefix followed by * or * before the level", item));
      continue;
    }
    const std::optional<int> level =
        equals == std::string_view::npos ? VelTraceLevel::info : ReadLevel(Trimmed(item.substr(equals + 1)));
    if (!level) {
      oComplaints.push_back(VelFormat::ToText(
          "Trace switch \"%s\" left out: expected off, error, warning, info or a digit from 1 to 9 after the =", item));
      continue;
    }
    const bool isPrefix = pattern.back() == '*';
    switches.items_.push_back({std::string(pattern.substr(0, pattern.size() - (isPrefix ? 1 : 0))), isPrefix, *level});
  }
  return switches;
}

int VelTraceSwitches::LevelOf(std::string_view iChannel) const noexcept {
  for (auto item = items_.rbegin(); item != items_.rend(); ++item) {
    if (item->isPrefix ? iChannel.starts_with(item->name) : iChannel == item->name) return item->level;
  }
  return VelTraceLevel::warning;
}
