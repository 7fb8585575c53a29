// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file Vel3x3Matrix_test.cpp The transformation of the plane: where each figure stands.
#include "platform/viewer/Vel3x3Matrix.h"

#include <array>
#include <limits>

#include <gtest/gtest.h>

namespace {

TEST(Vel3x3MatrixTest, OfALinearPartAndAPoint_HasThePointInTheLastColumn) {
  const Vel3x3Matrix matrix({1.0F, 2.0F, 3.0F, 4.0F}, {5.0F, 6.0F});
  EXPECT_EQ(matrix.GetValues(), (std::array{1.0F, 2.0F, 5.0F, 3.0F, 4.0F, 6.0F, 0.0F, 0.0F, 1.0F}));
}

TEST(Vel3x3MatrixTest, Get_CountsRowsBeforeColumns) {
  constexpr Vel3x3Matrix matrix({1.0F, 2.0F, 3.0F, 4.0F}, {5.0F, 6.0F});
  constexpr float expected[3][3] = {{1.0F, 2.0F, 5.0F}, {3.0F, 4.0F, 6.0F}, {0.0F, 0.0F, 1.0F}};
  for (std::size_t row = 0; row < 3; ++row) {
    for (std::size_t column = 0; column < 3; ++column) {
      EXPECT_EQ(matrix.Get(row, column), expected[row][column]) << row << ", " << column;
    }
  }
}

TEST(Vel3x3MatrixTest, ANewMatrix_IsTheIdentity) {
  EXPECT_EQ(Vel3x3Matrix().GetValues(), (std::array{1.0F, 0.0F, 0.0F, 0.0F, 1.0F, 0.0F, 0.0F, 0.0F, 1.0F}));
}

TEST(Vel3x3MatrixTest, TwoMatrices_AreEqualFigureByFigure) {
  const Vel3x3Matrix matrix({1.0F, 2.0F, 3.0F, 4.0F}, {5.0F, 6.0F});
  EXPECT_EQ(matrix, Vel3x3Matrix({1.0F, 2.0F, 3.0F, 4.0F}, {5.0F, 6.0F}));
  EXPECT_NE(matrix, Vel3x3Matrix({1.0F, 2.0F, 3.0F, 4.0F}, {5.0F, 7.0F}));
  EXPECT_NE(matrix, Vel3x3Matrix({1.0F, 3.0F, 2.0F, 4.0F}, {5.0F, 6.0F}));
  const Vel3x3Matrix odd({std::numeric_limits<float>::quiet_NaN(), 0.0F, 0.0F, 1.0F}, {});
  const Vel3x3Matrix copy = odd;
  EXPECT_NE(odd, copy) << "a NaN equals nothing";
}

TEST(Vel3x3MatrixTest, InfiniteFigures_AreKept) {
  constexpr float infinity = std::numeric_limits<float>::infinity();
  EXPECT_EQ(Vel3x3Matrix({infinity, 0.0F, 0.0F, -infinity}, {}).Get(1, 1), -infinity);
}

TEST(VelMathPoint2DfTest, TwoPoints_AreEqualByBothFigures) {
  EXPECT_EQ(VelMathPoint2Df(), (VelMathPoint2Df{0.0F, 0.0F}));
  EXPECT_EQ((VelMathPoint2Df{1.0F, 2.0F}), (VelMathPoint2Df{1.0F, 2.0F}));
  EXPECT_NE((VelMathPoint2Df{1.0F, 2.0F}), (VelMathPoint2Df{2.0F, 1.0F}));
}

}  // namespace
