// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelPixelView.cpp The two things that pixels are kept in.
#include "platform/images/encoders/VelPixelView.h"

#include "platform/images/pixels/VelPixelBuffer.h"

VelPixelView VelPixelView::Of(const VelPixelImage& iImage) noexcept {
  return {iImage.GetWidth(), iImage.GetHeight(), iImage.GetFormat(), iImage.GetColorSpace(), iImage.GetPixels()};
}

VelPixelView VelPixelView::Of(const VelPixelBuffer& iBuffer) noexcept {
  return {iBuffer.GetWidth(), iBuffer.GetHeight(), iBuffer.GetFormat(), iBuffer.GetColorSpace(), iBuffer.Bytes()};
}
