// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file PngBytes.cpp Chunks with their checksums, and stored blocks of deflate.
#include "tests/platform/images/decoders/PngBytes.h"

#include <algorithm>
#include <cstddef>

#include "tests/platform/images/decoders/FileBytes.h"

namespace {

std::uint32_t Crc32(const std::string& iData) {
  std::uint32_t crc = 0xFFFFFFFFU;
  for (const char byte : iData) {
    crc ^= static_cast<unsigned char>(byte);
    for (int bit = 0; bit < 8; ++bit) crc = (crc & 1U) != 0 ? crc >> 1 ^ 0xEDB88320U : crc >> 1;
  }
  return ~crc;
}

std::uint32_t Adler32(const std::string& iData) {
  std::uint32_t low = 1;
  std::uint32_t high = 0;
  for (const char byte : iData) {
    low = (low + static_cast<unsigned char>(byte)) % 65521;
    high = (high + low) % 65521;
  }
  return high << 16 | low;
}

}  // namespace

std::string PngBytes::File() const {
  const std::string header =
      BigEndian(width, 4) + BigEndian(height, 4) + BytesOf({depth, colorType, 0, 0, isInterlaced ? 1 : 0});
  return Signature() + Chunk("IHDR", header) + chunks + Chunk("IDAT", Stored(rows)) + Chunk("IEND", "");
}

std::string PngBytes::Signature() { return BytesOf({0x89, 'P', 'N', 'G', 13, 10, 26, 10}); }

std::string PngBytes::Chunk(const std::string& iName, const std::string& iData) {
  return BigEndian(iData.size(), 4) + iName + iData + BigEndian(Crc32(iName + iData), 4);
}

std::string PngBytes::Stored(const std::string& iData) {
  constexpr std::size_t largestBlock = 65535;
  std::string stream = BytesOf({0x78, 0x01});
  std::size_t begin = 0;
  do {
    const std::size_t length = std::min(largestBlock, iData.size() - begin);
    const bool isLast = begin + length == iData.size();
    stream += BytesOf({isLast ? 1 : 0}) + LittleEndian(length, 2) + LittleEndian(~length, 2);
    stream += iData.substr(begin, length);
    begin += length;
  } while (begin < iData.size());
  return stream + BigEndian(Adler32(iData), 4);
}
