// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTiffLayout.h How a page of a TIFF file keeps its pixels.
#ifndef PLATFORM_IMAGES_DECODERS_VELTIFFLAYOUT_H
#define PLATFORM_IMAGES_DECODERS_VELTIFFLAYOUT_H

#include <array>
#include <cstdint>
#include <string>

#include "platform/base/HResult.h"

struct tiff;

/// The tags of a page that its pixels depend on, each of a value that is read.
struct VelTiffLayout {
  /// What the samples of a pixel mean. Others are colours that the library itself turns into red, green and blue.
  enum class Colors : std::uint8_t { Grey, InvertedGrey, Rgb, Palette, Inks, Others };

  /// What a sample is: whole numbers from 0 to the largest of their bits, or floats of 16 or 32 bits.
  enum class Sample : std::uint8_t { Integer, Float };

  static constexpr int noSample = -1;

  std::uint32_t width = 0;
  std::uint32_t height = 0;
  Colors colors = Colors::Grey;
  Sample sample = Sample::Integer;
  std::uint32_t bits = 0;     ///< Of a sample: 1, 2, 4, 8, 16 or 32.
  std::uint32_t samples = 0;  ///< Of a pixel.
  int alpha = noSample;       ///< Which of them is alpha.
  bool isAssociated = false;  ///< The colours are multiplied by alpha.
  bool isPlanar = false;      ///< Each sample of all pixels is kept for itself.
  bool isTiled = false;
  std::uint32_t unitWidth = 0;   ///< Of a tile or strip.
  std::uint32_t unitHeight = 0;  ///< Of a tile or strip, not of the last strip.
  int orientation = 1;           ///< As VelPixelOrientation takes it.
  bool hasColorProfile = false;
  std::uint64_t ratio = 1;                                 ///< The most bytes that the compression packs into one.
  std::array<std::array<std::uint8_t, 3>, 256> palette{};  ///< Red, green and blue; black where there is no entry.

  /// Reads the tags of the current page.
  /// @param[out] oCause the reason of a failure, made to follow the path in a message; untouched otherwise
  /// @return S_OK; E_FAIL when a tag is missing or of a value that is not read
  HRESULT Read(tiff* ioFile, std::string& oCause);

  /// @return how many samples of a pixel are colours
  std::uint32_t ColorCount() const noexcept;

  /// @return the bytes of a row of a strip or tile, of one plane where there are several
  std::uint64_t UnitRowLength() const noexcept;

  /// @return the bytes of all strips or tiles; the sides are at most VelPixelImage::largestSide
  std::uint64_t UnpackedLength() const noexcept;

 private:
  HRESULT ReadCompression(tiff* ioFile, std::string& oCause);
  HRESULT ReadSamples(tiff* ioFile, std::string& oCause);
  HRESULT ReadColors(tiff* ioFile, std::string& oCause);
  HRESULT ReadPalette(tiff* ioFile, std::string& oCause);
  void ReadAlpha(tiff* ioFile);
  HRESULT ReadUnits(tiff* ioFile, std::string& oCause);
};

#endif  // PLATFORM_IMAGES_DECODERS_VELTIFFLAYOUT_H
