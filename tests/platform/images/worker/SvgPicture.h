// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file SvgPicture.h Draws texts in the process of the test.
#ifndef TESTS_PLATFORM_IMAGES_WORKER_SVGPICTURE_H
#define TESTS_PLATFORM_IMAGES_WORKER_SVGPICTURE_H

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/images/pixels/VelImageSource.h"
#include "platform/images/worker/VelSvgDrawing.h"
#include "platform/images/worker/VelWorkerPicture.h"
#include "tests/platform/images/worker/Painting.h"

/// A text as it is drawn, or why it is not.
struct SvgPicture {
  HRESULT code = E_FAIL;
  Painting picture;
  std::vector<std::string> unknown;
  std::string cause;

  explicit SvgPicture(std::string_view iText, int iDpi = 96, const std::vector<std::string>& iGroups = {}) {
    VelMemoryImageSource source(std::as_bytes(std::span(iText)));
    VelWorkerPicture drawn;
    code = VelSvgDrawing::Draw(source, iDpi, iGroups, drawn, unknown, cause);
    if (SUCCEEDED(code)) picture = Painting(drawn.GetWidth(), drawn.GetHeight(), drawn.Bytes());
  }

  std::string Size() const { return std::to_string(picture.Width()) + "x" + std::to_string(picture.Height()); }

  /// @return a text of 16 x 16 with these elements
  static std::string TextOf(std::string_view iElements) { return TextOf("width='16' height='16'", iElements); }

  /// @return a text of 256 x 256 in which 16 x 16 units are what TextOf draws in 16 x 16 pixels
  static std::string LargeTextOf(std::string_view iElements) {
    return TextOf("width='256' height='256' viewBox='0 0 16 16'", iElements);
  }

 private:
  static std::string TextOf(std::string_view iSize, std::string_view iElements) {
    return "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' "
           "xmlns:inkscape='http://www.inkscape.org/namespaces/inkscape' " +
           std::string(iSize) + ">" + std::string(iElements) + "</svg>";
  }
};

/// A resolution, and the pixels that each unit of SvgPicture::LargeTextOf has then a side: whole ones.
struct Resolution {
  int dpi;
  int pixels;
};

inline constexpr std::array resolutionsOfWholePixels{Resolution{72, 12}, Resolution{96, 16}, Resolution{150, 25},
                                                     Resolution{300, 50}};

#endif  // TESTS_PLATFORM_IMAGES_WORKER_SVGPICTURE_H
