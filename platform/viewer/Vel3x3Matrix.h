// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file Vel3x3Matrix.h A transformation of the plane, in single precision.
#ifndef PLATFORM_VIEWER_VEL3X3MATRIX_H
#define PLATFORM_VIEWER_VEL3X3MATRIX_H

#include <array>
#include <cstddef>

#include "platform/viewer/VelMathPoint2Df.h"

/// Nine 32-bit floats, row by row. It transforms columns (u, v, 1), and so its translation stands in the last column:
///
///     m00 m01 tx
///     m10 m11 ty
///     0   0   1
///
/// Compared figure by figure, so a matrix with a NaN equals no matrix.
class Vel3x3Matrix {
 public:
  /// The identity.
  constexpr Vel3x3Matrix() noexcept : Vel3x3Matrix({1.0F, 0.0F, 0.0F, 1.0F}, {}) {}

  /// @param[in] iLinear the four figures m00, m01, m10, m11
  /// @param[in] iTranslation the point that the origin goes to
  constexpr Vel3x3Matrix(const std::array<float, 4>& iLinear, VelMathPoint2Df iTranslation) noexcept
      : values_{iLinear[0], iLinear[1], iTranslation.x, iLinear[2], iLinear[3], iTranslation.y, 0.0F, 0.0F, 1.0F} {}

  /// @param[in] iRow 0 to 2
  /// @param[in] iColumn 0 to 2
  constexpr float Get(std::size_t iRow, std::size_t iColumn) const { return values_.at(3 * iRow + iColumn); }

  /// @return the nine figures, row by row
  constexpr const std::array<float, 9>& GetValues() const noexcept { return values_; }

  friend bool operator==(const Vel3x3Matrix&, const Vel3x3Matrix&) = default;

 private:
  std::array<float, 9> values_;
};

#endif  // PLATFORM_VIEWER_VEL3X3MATRIX_H
