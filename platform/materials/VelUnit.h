// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelUnit.h A unit of length.
#ifndef PLATFORM_MATERIALS_VELUNIT_H
#define PLATFORM_MATERIALS_VELUNIT_H

#include <string_view>

/// A unit of length, as VelParmDictionary gives it.
struct VelUnit {
  std::string_view symbol;     ///< For instance "MM"; lives as long as the process.
  double metersPerUnit = 1.0;  ///< How many metres one of it is.
};

#endif  // PLATFORM_MATERIALS_VELUNIT_H
