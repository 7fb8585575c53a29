// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaUnits.h The units in which files of shader types give numbers.
#ifndef HOST_SHADERTYPES_VELRMAUNITS_H
#define HOST_SHADERTYPES_VELRMAUNITS_H

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

/// A number with its unit, such as "45 deg", becomes a plain one: angles in radians, lengths in millimetres.
class VelRmaUnits {
 public:
  enum class Dimension : std::uint8_t {
    None,  ///< A plain number, which has no unit.
    Any,
    Angle,
    Length,
  };

  /// @param[in] iText a number, and after it, with or without a blank, a unit
  /// @param[in] iDimension what is measured; Any takes every unit, None has nothing to be read
  /// @param[out] oNumber the number in the unit of the system; untouched on failure
  /// @return what is wrong, such as "unknown unit 'grad'; ..."; empty where nothing is
  static std::string Read(std::string_view iText, Dimension iDimension, double& oNumber);

  /// @return the words of all units
  static std::span<const std::string_view> Words() noexcept;
};

#endif  // HOST_SHADERTYPES_VELRMAUNITS_H
