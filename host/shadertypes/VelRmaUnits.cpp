// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaUnits.cpp The table of units, and how numbers are read with them.
#include "host/shadertypes/VelRmaUnits.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <numbers>
#include <system_error>

#include "host/shadertypes/VelRmaFaults.h"
#include "host/shadertypes/VelRmaNearestWord.h"

namespace {

using Dimension = VelRmaUnits::Dimension;

struct Row {
  std::string_view word;
  Dimension dimension;
  double factor;  ///< To the unit of the system.
};

constexpr std::array rows{
    Row{"deg", Dimension::Angle, std::numbers::pi / 180.0},
    Row{"rad", Dimension::Angle, 1.0},
    Row{"um", Dimension::Length, 0.001},
    Row{"mm", Dimension::Length, 1.0},
    Row{"cm", Dimension::Length, 10.0},
    Row{"m", Dimension::Length, 1000.0},
    Row{"in", Dimension::Length, 25.4},
};

constexpr auto words = [] {
  std::array<std::string_view, rows.size()> all;
  std::transform(rows.begin(), rows.end(), all.begin(), [](const Row& iRow) { return iRow.word; });
  return all;
}();

/// @return "deg or rad" for angles
std::string WordsOf(Dimension iDimension) {
  std::vector<std::string_view> suitable;
  for (const Row& row : rows) {
    if (iDimension == Dimension::Any || row.dimension == iDimension) suitable.push_back(row.word);
  }
  return VelRmaFaults::Choice(suitable);
}

}  // namespace

std::span<const std::string_view> VelRmaUnits::Words() noexcept { return words; }

std::string VelRmaUnits::Read(std::string_view iText, Dimension iDimension, double& oNumber) {
  double number = 0.0;
  const char* const end = iText.data() + iText.size();
  const auto [stop, error] = std::from_chars(iText.data(), end, number);
  if (error != std::errc()) {
    return "expected a number, or a text of a number and a unit such as \"45 deg\", found " +
           VelRmaFaults::Quote(iText);
  }
  std::string_view unit = iText.substr(static_cast<std::size_t>(stop - iText.data()));
  unit.remove_prefix(std::min(unit.find_first_not_of(' '), unit.size()));
  const auto row = std::find_if(rows.begin(), rows.end(), [&](const Row& iRow) { return iRow.word == unit; });
  const std::string expected = "; expected " + WordsOf(iDimension);
  if (unit.empty()) return "no unit stands behind the number in " + VelRmaFaults::Quote(iText) + expected;
  if (row == rows.end()) {
    return "unknown unit " + VelRmaFaults::Quote(unit) + expected +
           VelRmaNearestWord::Question(VelRmaNearestWord::Find(unit, words));
  }
  if (iDimension != Dimension::Any && row->dimension != iDimension) {
    return "the unit " + VelRmaFaults::Quote(unit) + " does not measure what is given here" + expected;
  }
  oNumber = number * row->factor;
  return {};
}
