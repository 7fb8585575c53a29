// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelPixelOrientation.cpp Mirrors rows and columns, and exchanges them.
#include "platform/images/decoders/VelPixelOrientation.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <span>
#include <utility>

#include "platform/images/pixels/VelPixelBuffer.h"

namespace {

/// Rows that are turned together, so that a line of the cache that is written is written in full.
constexpr int rowsAtOnce = 16;

template <std::size_t Size>
void ReversePixels(std::span<std::byte> ioPixels) {
  std::byte* left = ioPixels.data();
  std::byte* right = left + ioPixels.size();
  while (right - left >= static_cast<std::ptrdiff_t>(2 * Size)) {
    right -= Size;
    std::swap_ranges(left, left + Size, right);
    left += Size;
  }
}

void ReverseRows(VelPixelBuffer& ioImage) {
  for (int top = 0, bottom = ioImage.GetHeight() - 1; top < bottom; ++top, --bottom) {
    const std::span<std::byte> upper = ioImage.Row(top);
    std::swap_ranges(upper.begin(), upper.end(), ioImage.Row(bottom).begin());
  }
}

/// Writes rows as columns: the first row as the right one when iToRight, each from below when iFromBottom.
template <std::size_t Size>
void ExchangeSides(const VelPixelBuffer& iImage, bool iToRight, bool iFromBottom, VelPixelBuffer& oTurned) {
  const int width = iImage.GetWidth();
  const int height = iImage.GetHeight();
  for (int first = 0; first < height; first += rowsAtOnce) {
    const int last = std::min(first + rowsAtOnce, height);
    for (int column = 0; column < width; ++column) {
      std::byte* target = oTurned.Row(iFromBottom ? width - 1 - column : column).data();
      const std::byte* source = iImage.Row(first).data() + static_cast<std::size_t>(column) * Size;
      for (int row = first; row < last; ++row, source += static_cast<std::size_t>(width) * Size) {
        const int place = iToRight ? height - 1 - row : row;
        std::memcpy(target + static_cast<std::size_t>(place) * Size, source, Size);
      }
    }
  }
}

template <std::size_t Size>
HRESULT Turn(int iOrientation, VelPixelBuffer& ioImage, std::string& oCause) {
  VelPixelBuffer turned;
  VEL_RETURN_IF_FAILED(turned.Allocate(ioImage.GetHeight(), ioImage.GetWidth(), ioImage.GetFormat(), oCause));
  turned.SetColorSpace(ioImage.GetColorSpace());
  ExchangeSides<Size>(ioImage, iOrientation == 6 || iOrientation == 7, iOrientation == 7 || iOrientation == 8, turned);
  ioImage = std::move(turned);
  return S_OK;
}

template <std::size_t Size>
HRESULT ApplyTo(int iOrientation, VelPixelBuffer& ioImage, std::string& oCause) {
  if (iOrientation >= 5) return Turn<Size>(iOrientation, ioImage, oCause);
  if (iOrientation == 2) {
    for (int row = 0; row < ioImage.GetHeight(); ++row) ReversePixels<Size>(ioImage.Row(row));
  } else if (iOrientation == 3) {
    ReversePixels<Size>(ioImage.Bytes());
  } else {
    ReverseRows(ioImage);
  }
  return S_OK;
}

}  // namespace

HRESULT VelPixelOrientation::Apply(int iOrientation, VelPixelBuffer& ioImage, std::string& oCause) {
  if (iOrientation < 2 || iOrientation > 8) return S_OK;
  const bool isFloat = ioImage.GetFormat() == VelPixelImage::Format::Rgba32F;
  return isFloat ? ApplyTo<16>(iOrientation, ioImage, oCause) : ApplyTo<4>(iOrientation, ioImage, oCause);
}
