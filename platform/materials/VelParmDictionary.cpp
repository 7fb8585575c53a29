// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelParmDictionary.cpp The table of units.
#include "platform/materials/VelParmDictionary.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::array<VelUnit, 5> units{{
    {"MM", 0.001},
    {"CM", 0.01},
    {"M", 1.0},
    {"IN", 0.0254},
    {"KM", 1000.0},
}};

}  // namespace

const VelUnit* VelParmDictionary::FindUnit(const VelString& iSymbol) noexcept {
  const auto* const found =
      std::find_if(units.begin(), units.end(), [&](const VelUnit& iUnit) { return iUnit.symbol == iSymbol.View(); });
  return found != units.end() ? found : nullptr;
}
