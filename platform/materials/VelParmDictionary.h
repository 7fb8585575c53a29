// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelParmDictionary.h The units in which figures are asked for.
#ifndef PLATFORM_MATERIALS_VELPARMDICTIONARY_H
#define PLATFORM_MATERIALS_VELPARMDICTIONARY_H

#include "platform/base/VelPlatformApi.h"
#include "platform/base/VelString.h"
#include "platform/materials/VelUnit.h"

/// The units that the system knows. Thread: any.
class VEL_PLATFORM_API VelParmDictionary {
 public:
  /// @param[in] iSymbol "MM", "CM", "M", "IN" or "KM"; case counts
  /// @return the unit, which lives as long as the process; null for any other symbol
  static const VelUnit* FindUnit(const VelString& iSymbol) noexcept;
};

#endif  // PLATFORM_MATERIALS_VELPARMDICTIONARY_H
