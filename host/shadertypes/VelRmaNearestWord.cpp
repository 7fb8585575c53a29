// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaNearestWord.cpp Counts what two words differ in.
#include "host/shadertypes/VelRmaNearestWord.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <utility>
#include <vector>

namespace {

constexpr std::string_view systemPrefix = "velrma";

/// Nobody means a known word by one that is longer.
constexpr std::size_t longest = 64;

std::string InLowerCase(std::string_view iWord) {
  std::string word(iWord);
  for (char& letter : word) {
    if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
  }
  return word.starts_with(systemPrefix) ? word.substr(systemPrefix.size()) : word;
}

/// @return the number of letters put in, left out, replaced or exchanged with their neighbours
std::size_t Distance(const std::string& iLeft, const std::string& iRight) {
  std::vector<std::size_t> before(iRight.size() + 1);
  std::vector<std::size_t> above(iRight.size() + 1);
  std::vector<std::size_t> row(iRight.size() + 1);
  for (std::size_t j = 0; j <= iRight.size(); ++j) above[j] = j;
  for (std::size_t i = 1; i <= iLeft.size(); ++i) {
    row[0] = i;
    for (std::size_t j = 1; j <= iRight.size(); ++j) {
      const std::size_t replaced = above[j - 1] + (iLeft[i - 1] == iRight[j - 1] ? 0 : 1);
      row[j] = std::min({above[j] + 1, row[j - 1] + 1, replaced});
      const bool areExchanged = i > 1 && j > 1 && iLeft[i - 1] == iRight[j - 2] && iLeft[i - 2] == iRight[j - 1];
      if (areExchanged) row[j] = std::min(row[j], before[j - 2] + 1);
    }
    std::swap(before, above);
    std::swap(above, row);
  }
  return above[iRight.size()];
}

}  // namespace

std::string_view VelRmaNearestWord::Find(std::string_view iFound, std::span<const std::string_view> iWords) {
  if (iFound.empty() || iFound.size() > longest) return {};
  const std::string found = InLowerCase(iFound);
  std::size_t least = found.size() / 3 + 2;
  std::string_view nearest;
  for (const std::string_view word : iWords) {
    if (word.size() > longest) continue;
    const std::size_t distance = Distance(found, InLowerCase(word));
    if (distance >= least) continue;
    // A word of which nothing is left is another one.
    if (distance >= std::max<std::size_t>(1, std::min(found.size(), word.size()))) continue;
    least = distance;
    nearest = word;
  }
  return nearest;
}

std::string VelRmaNearestWord::Question(std::string_view iNearest) {
  return iNearest.empty() ? std::string() : "; did you mean '" + std::string(iNearest) + "'?";
}
