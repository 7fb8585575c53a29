// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file RareFiles.h Small files of the rarer formats, byte by byte.
#ifndef TESTS_PLATFORM_IMAGES_WORKER_RAREFILES_H
#define TESTS_PLATFORM_IMAGES_WORKER_RAREFILES_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace RareFiles {

using namespace std::string_literals;
using namespace std::string_view_literals;

/// The lowest byte first.
inline std::string Number(std::uint64_t iNumber, int iBytes) {
  std::string bytes;
  for (int i = 0; i < iBytes; ++i) bytes.push_back(static_cast<char>(iNumber >> (8 * i) & 0xFF));
  return bytes;
}
inline std::string Word(std::uint64_t iNumber) { return Number(iNumber, 2); }
inline std::string Long(std::uint64_t iNumber) { return Number(iNumber, 4); }

/// The header of BMP files, and of the pictures in icons.
inline std::string BitmapHeader(std::int32_t iWidth, std::int32_t iHeight, int iBits, int iCompression = 0) {
  return Long(40) + Long(static_cast<std::uint32_t>(iWidth)) + Long(static_cast<std::uint32_t>(iHeight)) + Word(1) +
         Word(static_cast<std::uint64_t>(iBits)) + Long(static_cast<std::uint64_t>(iCompression)) + Long(0) +
         Long(2835) + Long(2835) + Long(0) + Long(0);
}

inline std::string Bmp(std::int32_t iWidth, std::int32_t iHeight, int iBits, std::string_view iColors,
                       std::string_view iPixels, int iCompression = 0) {
  const std::size_t begin = 54 + iColors.size();
  return "BM"s + Long(begin + iPixels.size()) + Long(0) + Long(begin) +
         BitmapHeader(iWidth, iHeight, iBits, iCompression) + std::string(iColors) + std::string(iPixels);
}

/// @param[in] iType 1, 2, 3, or 9, 10, 11 for runs
inline std::string Tga(int iType, int iWidth, int iHeight, int iBits, int iFlags, std::string_view iMap,
                       std::string_view iPixels) {
  const bool hasMap = !iMap.empty();
  return Number(0, 1) + Number(hasMap ? 1 : 0, 1) + Number(static_cast<std::uint64_t>(iType), 1) + Word(0) +
         Word(iMap.size() / 3) + Number(hasMap ? 24 : 0, 1) + Word(0) + Word(0) +
         Word(static_cast<std::uint64_t>(iWidth)) + Word(static_cast<std::uint64_t>(iHeight)) +
         Number(static_cast<std::uint64_t>(iBits), 1) + Number(static_cast<std::uint64_t>(iFlags), 1) +
         std::string(iMap) + std::string(iPixels);
}

/// Pixels of four colours as codes of three bits. A clear code before every second pixel keeps the codes so short.
inline std::string GifCodes(const std::vector<int>& iPixels) {
  constexpr int clear = 4;
  constexpr int end = 5;
  std::vector<int> codes;
  for (std::size_t i = 0; i < iPixels.size(); ++i) {
    if (i % 2 == 0) codes.push_back(clear);
    codes.push_back(iPixels[i]);
  }
  codes.push_back(end);
  std::string bytes;
  std::size_t bit = 0;
  for (const int code : codes) {
    for (int i = 0; i < 3; ++i, ++bit) {
      if (bit % 8 == 0) bytes.push_back('\0');
      if ((code >> i & 1) != 0) bytes.back() = static_cast<char>(bytes.back() | 1 << bit % 8);
    }
  }
  return Number(2, 1) + Number(bytes.size(), 1) + bytes + Number(0, 1);
}

inline std::string GifFrame(int iX, int iY, int iWidth, int iHeight, const std::vector<int>& iPixels) {
  return "\x2C" + Word(static_cast<std::uint64_t>(iX)) + Word(static_cast<std::uint64_t>(iY)) +
         Word(static_cast<std::uint64_t>(iWidth)) + Word(static_cast<std::uint64_t>(iHeight)) + Number(0, 1) +
         GifCodes(iPixels);
}

/// The colour of this number is transparent in the frame that follows.
inline std::string GifTransparency(int iColor) {
  return "\x21\xF9\x04\x01"s + Word(10) + Number(static_cast<std::uint64_t>(iColor), 1) + Number(0, 1);
}

/// With the colours black, red, lime and blue.
inline std::string Gif(int iWidth, int iHeight, std::string_view iFrames) {
  return "GIF89a"s + Word(static_cast<std::uint64_t>(iWidth)) + Word(static_cast<std::uint64_t>(iHeight)) +
         "\x81\0\0"s + "\0\0\0\xFF\0\0\0\xFF\0\0\0\xFF"s + std::string(iFrames) + "\x3B";
}

struct IconPicture {
  int width;
  int height;
  int bits;
  std::string bytes;
};

/// A picture in an icon, of 32 bits: blue, green, red, alpha of the lowest row first, and a mask that says nothing.
inline IconPicture Icon32(int iWidth, int iHeight, std::string_view iPixels) {
  const std::size_t maskLength = static_cast<std::size_t>((iWidth + 31) / 32 * 4 * iHeight);
  return {iWidth, iHeight, 32,
          BitmapHeader(iWidth, 2 * iHeight, 32) + std::string(iPixels) + std::string(maskLength, '\0')};
}

inline std::string Ico(const std::vector<IconPicture>& iPictures) {
  std::string list = "\0\0\1\0"s + Word(iPictures.size());
  std::string bytes;
  const std::size_t begin = 6 + 16 * iPictures.size();
  for (const IconPicture& picture : iPictures) {
    list += Number(static_cast<std::uint64_t>(picture.width), 1) +
            Number(static_cast<std::uint64_t>(picture.height), 1) + Word(0) + Word(1) +
            Word(static_cast<std::uint64_t>(picture.bits)) + Long(picture.bytes.size()) + Long(begin + bytes.size());
    bytes += picture.bytes;
  }
  return list + bytes;
}

inline std::string Hdr(int iWidth, int iHeight, std::string_view iPixels) {
  return "#?RADIANCE\n# made by hand\nFORMAT=32-bit_rle_rgbe\n\n-Y " + std::to_string(iHeight) + " +X " +
         std::to_string(iWidth) + "\n" + std::string(iPixels);
}

/// A part of a WebP file.
inline std::string Chunk(std::string_view iName, std::string_view iBytes) {
  return std::string(iName) + Long(iBytes.size()) + std::string(iBytes) + (iBytes.size() % 2 == 0 ? "" : "\0"s);
}

/// A WebP file of parts.
inline std::string WebP(std::string_view iChunks) {
  return "RIFF" + Long(4 + iChunks.size()) + "WEBP" + std::string(iChunks);
}

}  // namespace RareFiles

#endif  // TESTS_PLATFORM_IMAGES_WORKER_RAREFILES_H
