// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelPixelOrientation_test.cpp Images of both formats in all eight orientations.
#include "platform/images/decoders/VelPixelOrientation.h"

#include <cstring>

#include <gtest/gtest.h>

#include "platform/images/pixels/VelPixelBuffer.h"

namespace {

using Format = VelPixelImage::Format;

/// Every component of every pixel has a number of its own, which tells where it was.
float NumberOf(int iColumn, int iRow, int iComponent) {
  return static_cast<float>(iRow * 1024 + iColumn * 4 + iComponent);
}

void FillPixel(int iColumn, int iRow, VelPixelBuffer& ioImage) {
  std::byte* pixel = ioImage.Row(iRow).data() + static_cast<std::size_t>(iColumn) * ioImage.PixelSize();
  for (int component = 0; component < 4; ++component) {
    const float number = NumberOf(iColumn, iRow, component);
    if (ioImage.GetFormat() == Format::Rgba8) {
      pixel[component] = static_cast<std::byte>(iRow * 37 + iColumn * 5 + component);
    } else {
      std::memcpy(pixel + 4 * component, &number, 4);
    }
  }
}

void Fill(VelPixelBuffer& ioImage) {
  for (int row = 0; row < ioImage.GetHeight(); ++row) {
    for (int column = 0; column < ioImage.GetWidth(); ++column) FillPixel(column, row, ioImage);
  }
}

/// Where the pixel that is stored in a column and row is to be seen, by the table of the format.
void PlaceOf(int iOrientation, int iWidth, int iHeight, int& ioColumn, int& ioRow) {
  const int left = iOrientation <= 4 ? ioColumn : ioRow;
  const int top = iOrientation <= 4 ? ioRow : ioColumn;
  const int width = iOrientation <= 4 ? iWidth : iHeight;
  const int height = iOrientation <= 4 ? iHeight : iWidth;
  const bool isFromRight = iOrientation == 2 || iOrientation == 3 || iOrientation == 6 || iOrientation == 7;
  const bool isFromBottom = iOrientation == 3 || iOrientation == 4 || iOrientation == 7 || iOrientation == 8;
  ioColumn = isFromRight ? width - 1 - left : left;
  ioRow = isFromBottom ? height - 1 - top : top;
}

void ExpectTurned(int iOrientation, int iWidth, int iHeight, Format iFormat) {
  SCOPED_TRACE(testing::Message() << iOrientation << ": " << iWidth << " x " << iHeight);
  VelPixelBuffer stored;
  VelPixelBuffer turned;
  std::string cause;
  ASSERT_EQ(stored.Allocate(iWidth, iHeight, iFormat, cause), S_OK);
  ASSERT_EQ(turned.Allocate(iWidth, iHeight, iFormat, cause), S_OK);
  Fill(stored);
  Fill(turned);
  turned.SetColorSpace(VelPixelImage::ColorSpace::Linear);
  ASSERT_EQ(VelPixelOrientation::Apply(iOrientation, turned, cause), S_OK);
  EXPECT_EQ(turned.GetColorSpace(), VelPixelImage::ColorSpace::Linear);
  ASSERT_EQ(turned.GetWidth(), iOrientation <= 4 ? iWidth : iHeight);
  ASSERT_EQ(turned.GetHeight(), iOrientation <= 4 ? iHeight : iWidth);
  const std::size_t size = stored.PixelSize();
  int wrong = 0;
  for (int y = 0; y < iHeight; ++y) {
    for (int x = 0; x < iWidth; ++x) {
      int column = x;
      int row = y;
      PlaceOf(iOrientation, iWidth, iHeight, column, row);
      const std::byte* expected = stored.Row(y).data() + static_cast<std::size_t>(x) * size;
      const std::byte* found = turned.Row(row).data() + static_cast<std::size_t>(column) * size;
      if (std::memcmp(expected, found, size) != 0) ++wrong;
    }
  }
  EXPECT_EQ(wrong, 0);
}

TEST(VelPixelOrientation, EveryPixel_IsWhereItsOrientationPutsIt) {
  const int sides[][2] = {{1, 1}, {1, 5}, {5, 1}, {2, 2}, {3, 2}, {17, 33}, {40, 16}};
  for (int orientation = 1; orientation <= 8; ++orientation) {
    for (const auto& [width, height] : sides) {
      ExpectTurned(orientation, width, height, Format::Rgba8);
      ExpectTurned(orientation, width, height, Format::Rgba32F);
    }
  }
}

TEST(VelPixelOrientation, WhatIsNoOrientation_LeavesTheImageAsItIs) {
  for (const int orientation : {-1, 0, 9, 65535}) {
    VelPixelBuffer image;
    std::string cause;
    ASSERT_EQ(image.Allocate(2, 1, Format::Rgba8, cause), S_OK);
    Fill(image);
    EXPECT_EQ(VelPixelOrientation::Apply(orientation, image, cause), S_OK);
    EXPECT_EQ(image.GetWidth(), 2);
    EXPECT_EQ(image.Row(0)[4], std::byte{5});
  }
}

}  // namespace
