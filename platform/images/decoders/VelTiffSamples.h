// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTiffSamples.h Makes pixels of the samples of a TIFF file.
#ifndef PLATFORM_IMAGES_DECODERS_VELTIFFSAMPLES_H
#define PLATFORM_IMAGES_DECODERS_VELTIFFSAMPLES_H

#include <array>
#include <cstddef>
#include <span>
#include <vector>

#include "platform/images/decoders/VelTiffLayout.h"

/// Converts pieces of rows, of the layout that it was made for, which outlives it.
class VelTiffSamples {
 public:
  /// The most samples of a pixel that count: four inks and alpha.
  static constexpr std::size_t mostUsed = 5;

  /// Where a piece of a row begins: the bytes of each used plane, or all samples in the first.
  using Planes = std::array<const std::byte*, mostUsed>;

  /// @param[in] iLayout any but of other colours
  explicit VelTiffSamples(const VelTiffLayout& iLayout);

  /// @return the planes to read, in the order in which Convert takes them; 0 alone where the samples are not in planes
  std::span<const std::uint16_t> UsedPlanes() const noexcept { return used_; }

  /// @return true when the bytes of a row are those of Rgba8
  bool IsCopy() const noexcept;

  /// Converts pixels from the beginning of a row of a strip or tile.
  /// @param[in] iPlanes the bytes, aligned as the samples are
  /// @param[in] iCount pixels, not more than the row has
  /// @param[out] oPixels room for as many pixels, of Rgba8 for whole numbers and of Rgba32F for floats
  void Convert(const Planes& iPlanes, std::size_t iCount, std::byte* oPixels);

 private:
  template <typename Sample>
  struct Row;
  template <typename Sample>
  Row<Sample> RowOf(const Planes& iPlanes) const;
  Planes Unpack(const Planes& iPlanes, std::size_t iCount);
  void ConvertPalette(const Row<std::uint8_t>& iRow, std::size_t iCount, std::byte* oPixels) const;
  template <typename Sample>
  void ConvertWhole(const Row<Sample>& iRow, std::size_t iCount, std::byte* oPixels) const;
  void ConvertFloats(const Row<float>& iRow, std::size_t iCount, std::byte* oPixels) const;

  const VelTiffLayout& layout_;
  std::vector<std::uint16_t> used_;
  std::array<std::vector<std::uint8_t>, mostUsed> unpacked_;
  std::array<std::vector<float>, mostUsed> widened_;
};

#endif  // PLATFORM_IMAGES_DECODERS_VELTIFFSAMPLES_H
