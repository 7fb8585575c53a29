// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file Painting.h Pictures painted by hand, which drawn ones are compared with.
#ifndef TESTS_PLATFORM_IMAGES_WORKER_PAINTING_H
#define TESTS_PLATFORM_IMAGES_WORKER_PAINTING_H

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <string>
#include <vector>

/// A colour whose parts are 0 to 1, not multiplied by alpha.
struct Paint {
  double red = 0;
  double green = 0;
  double blue = 0;
  double alpha = 1;
};

inline constexpr Paint red{1, 0, 0};
inline constexpr Paint green{0, 1, 0};  // "lime" in SVG.
inline constexpr Paint blue{0, 0, 1};
inline constexpr Paint black{0, 0, 0};
inline constexpr Paint white{1, 1, 1};

/// A picture of whole pixels, transparent at first.
class Painting {
 public:
  Painting() = default;
  Painting(int iWidth, int iHeight)
      : width_(iWidth),
        height_(iHeight),
        pixels_(static_cast<std::size_t>(iWidth) * static_cast<std::size_t>(iHeight), Paint{0, 0, 0, 0}) {}

  /// @param[in] iBytes red, green, blue, alpha of each pixel, 0 to 255
  Painting(int iWidth, int iHeight, std::span<const std::byte> iBytes) : Painting(iWidth, iHeight) {
    const auto part = [&](std::size_t iIndex) { return std::to_integer<int>(iBytes[iIndex]) / 255.0; };
    for (std::size_t i = 0; i < pixels_.size(); ++i) {
      pixels_[i] = {part(4 * i), part(4 * i + 1), part(4 * i + 2), part(4 * i + 3)};
    }
  }

  int Width() const { return width_; }
  int Height() const { return height_; }

  Paint& At(int iX, int iY) {
    return pixels_[static_cast<std::size_t>(iY) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(iX)];
  }
  const Paint& At(int iX, int iY) const {
    return pixels_[static_cast<std::size_t>(iY) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(iX)];
  }

  /// Lays a colour over what is there.
  Painting& Rectangle(int iX, int iY, int iWidth, int iHeight, const Paint& iPaint) {
    for (int y = std::max(0, iY); y < std::min(height_, iY + iHeight); ++y) {
      for (int x = std::max(0, iX); x < std::min(width_, iX + iWidth); ++x) Lay(At(x, y), iPaint);
    }
    return *this;
  }

  /// Lays a picture of the same size over what is there, as a group with an opacity of its own.
  Painting& Group(const Painting& iGroup, double iOpacity) {
    for (std::size_t i = 0; i < pixels_.size(); ++i) {
      Paint paint = iGroup.pixels_[i];
      paint.alpha *= iOpacity;
      Lay(pixels_[i], paint);
    }
    return *this;
  }

  /// Takes away what is outside.
  Painting& Keep(int iX, int iY, int iWidth, int iHeight) {
    for (int y = 0; y < height_; ++y) {
      for (int x = 0; x < width_; ++x) {
        if (x < iX || x >= iX + iWidth || y < iY || y >= iY + iHeight) At(x, y) = {0, 0, 0, 0};
      }
    }
    return *this;
  }

  /// @return the picture with a square of so many pixels a side in the place of each pixel
  Painting Enlarged(int iTimes) const {
    Painting enlarged(width_ * iTimes, height_ * iTimes);
    for (int y = 0; y < enlarged.height_; ++y) {
      for (int x = 0; x < enlarged.width_; ++x) enlarged.At(x, y) = At(x / iTimes, y / iTimes);
    }
    return enlarged;
  }

  /// @return "" when each part of each pixel is within so many steps of 255; else where and how they differ first
  static std::string Difference(const Painting& iExpected, const Painting& iActual, int iSteps = 1) {
    if (iExpected.width_ != iActual.width_ || iExpected.height_ != iActual.height_) {
      return "is " + std::to_string(iActual.width_) + " x " + std::to_string(iActual.height_) + " instead of " +
             std::to_string(iExpected.width_) + " x " + std::to_string(iExpected.height_);
    }
    for (int y = 0; y < iExpected.height_; ++y) {
      for (int x = 0; x < iExpected.width_; ++x) {
        if (!IsNear(iExpected.At(x, y), iActual.At(x, y), iSteps)) {
          return "at " + std::to_string(x) + ", " + std::to_string(y) + ": " + TextOf(iActual.At(x, y)) +
                 " instead of " + TextOf(iExpected.At(x, y));
        }
      }
    }
    return "";
  }

 private:
  static void Lay(Paint& ioBelow, const Paint& iAbove) {
    const double alpha = iAbove.alpha + ioBelow.alpha * (1 - iAbove.alpha);
    if (alpha == 0) return;
    const auto mix = [&](double iUpper, double iLower) {
      return (iUpper * iAbove.alpha + iLower * ioBelow.alpha * (1 - iAbove.alpha)) / alpha;
    };
    ioBelow = {mix(iAbove.red, ioBelow.red), mix(iAbove.green, ioBelow.green), mix(iAbove.blue, ioBelow.blue), alpha};
  }

  static std::array<int, 4> Steps(const Paint& iPaint) {
    const auto step = [](double iPart) { return static_cast<int>(std::lround(iPart * 255)); };
    return {step(iPaint.red), step(iPaint.green), step(iPaint.blue), step(iPaint.alpha)};
  }

  /// The less a colour covers, the coarser it is kept while it is drawn; one that covers nothing is black.
  static bool IsNear(const Paint& iExpected, const Paint& iActual, int iSteps) {
    const std::array<int, 4> expected = Steps(iExpected);
    const std::array<int, 4> actual = Steps(iActual);
    if (std::abs(expected[3] - actual[3]) > iSteps) return false;
    if (expected[3] == 0) return actual[3] != 0 || (actual[0] == 0 && actual[1] == 0 && actual[2] == 0);
    const int steps = iSteps * static_cast<int>(std::ceil(255.0 / expected[3]));
    for (std::size_t i = 0; i < 3; ++i) {
      if (std::abs(expected[i] - actual[i]) > steps) return false;
    }
    return true;
  }

  static std::string TextOf(const Paint& iPaint) {
    const std::array<int, 4> steps = Steps(iPaint);
    std::string text = "(";
    for (const int step : steps) text += std::to_string(step) + (text.size() > 1 && &step == &steps.back() ? ")" : " ");
    return text;
  }

  int width_ = 0;
  int height_ = 0;
  std::vector<Paint> pixels_;
};

#endif  // TESTS_PLATFORM_IMAGES_WORKER_PAINTING_H
