// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file ExrBytes.h Writes OpenEXR files without compression.
#ifndef TESTS_PLATFORM_IMAGES_DECODERS_EXRBYTES_H
#define TESTS_PLATFORM_IMAGES_DECODERS_EXRBYTES_H

#include <cstdint>
#include <string>
#include <vector>

/// One part of an OpenEXR file as it is put together: its header and its rows or tiles.
struct ExrBytes {
  /// A channel; the list is in the order of the alphabet, as the format wants it.
  struct Channel {
    std::string name;
    int type = 2;  ///< 0 whole numbers of 32 bits, 1 halves, 2 floats.
    int sampling = 1;
  };

  int left = 0;
  int top = 0;
  int right = 0;   ///< The last column.
  int bottom = 0;  ///< The last row.
  std::vector<Channel> channels;
  std::vector<std::string> chunks;  ///< Rows, or tiles of the one level; in each the channels one after another.
  int tileSize = 0;                 ///< 0: rows.
  int compression = 0;
  std::string type = "scanlineimage";  ///< Written where a file has several parts.

  /// The whole file.
  /// @param[in] iNext further parts
  std::string File(const std::vector<ExrBytes>& iNext = {}) const;

  /// The beginning of a file up to its table of chunks.
  std::string Head() const;

 private:
  std::string Header(int iPart, bool iHasParts) const;
  std::string Chunk(std::size_t iIndex, int iPart, bool iHasParts) const;
};

#endif  // TESTS_PLATFORM_IMAGES_DECODERS_EXRBYTES_H
