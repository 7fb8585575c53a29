// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TiffBytes.h Writes TIFF files.
#ifndef TESTS_PLATFORM_IMAGES_DECODERS_TIFFBYTES_H
#define TESTS_PLATFORM_IMAGES_DECODERS_TIFFBYTES_H

#include <cstdint>
#include <map>
#include <string>
#include <vector>

/// One page of a TIFF file as it is put together: its tags and its strips or tiles.
struct TiffBytes {
  std::uint32_t width = 1;
  std::uint32_t height = 1;
  int bits = 8;                     ///< Of each sample.
  int samples = 1;                  ///< Of each pixel.
  int photometric = 1;              ///< 0 white is 0, 1 black is 0, 2 RGB, 3 palette, 5 inks, 6 YCbCr, 8 Lab.
  std::vector<std::string> pieces;  ///< The strips, or with tile tags the tiles.

  /// Further tags of 16 bits, or other values for those that follow from the fields above.
  std::map<int, std::vector<std::uint32_t>> tags;
  bool isBigEndian = false;

  /// The whole file.
  /// @param[in] iNext other pages, which follow
  std::string File(const std::vector<TiffBytes>& iNext = {}) const;

  /// A number in the byte order of the file.
  std::string Number(std::uint64_t iNumber, int iBytes) const;

 private:
  std::map<int, std::vector<std::uint32_t>> AllTags(std::uint64_t iFirstPiece) const;
  std::string Page(std::uint64_t iOffset, bool iIsLast) const;
};

#endif  // TESTS_PLATFORM_IMAGES_DECODERS_TIFFBYTES_H
