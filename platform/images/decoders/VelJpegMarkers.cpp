// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelJpegMarkers.cpp Walks from segment to segment up to the image.
#include "platform/images/decoders/VelJpegMarkers.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "platform/images/decoders/VelExifOrientation.h"
#include "platform/images/decoders/VelImageSourceCursor.h"

namespace {

using namespace std::string_view_literals;

constexpr int temporary = 0x01;
constexpr int firstRestart = 0xD0;
constexpr int endOfImage = 0xD9;
constexpr int startOfScan = 0xDA;
constexpr int exifSegment = 0xE1;
constexpr int profileSegment = 0xE2;
constexpr auto exifName = "Exif\0\0"sv;
constexpr auto profileName = "ICC_PROFILE\0"sv;

/// More segments than any program writes; a file of nothing else is not walked to its end.
constexpr int mostSegments = 4096;

int ReadByte(VelImageSourceCursor& ioCursor) {
  std::byte byte{};
  return ioCursor.Read({&byte, 1}) == 1 ? std::to_integer<int>(byte) : -1;
}

/// @return the marker at the cursor, which may have fill bytes before it; -1 when there is none
int ReadMarker(VelImageSourceCursor& ioCursor) {
  if (ReadByte(ioCursor) != 0xFF) return -1;
  int marker = 0xFF;
  while (marker == 0xFF) marker = ReadByte(ioCursor);
  return marker;
}

std::vector<std::byte> ReadPayload(VelImageSourceCursor& ioCursor, std::size_t iLength) {
  std::vector<std::byte> payload(iLength);
  payload.resize(ioCursor.Read(payload));
  return payload;
}

bool StartsWith(std::span<const std::byte> iBytes, std::string_view iText) {
  return std::string_view(reinterpret_cast<const char*>(iBytes.data()), iBytes.size()).starts_with(iText);
}

void Take(int iMarker, std::span<const std::byte> iPayload, bool& ioHasExif, VelJpegMarkers& ioMarkers) {
  if (iMarker == profileSegment && StartsWith(iPayload, profileName)) ioMarkers.hasColorProfile = true;
  if (iMarker != exifSegment || ioHasExif || !StartsWith(iPayload, exifName)) return;
  ioHasExif = true;
  ioMarkers.orientation = VelExifOrientation::Read(iPayload.subspan(exifName.size()));
}

}  // namespace

VelJpegMarkers VelJpegMarkers::Read(VelImageSource& ioSource) {
  VelImageSourceCursor cursor(ioSource);
  VelJpegMarkers markers;
  bool hasExif = false;
  for (int i = 0; i < mostSegments; ++i) {
    const int marker = ReadMarker(cursor);
    if (marker < 0 || marker == endOfImage || marker == startOfScan) break;
    if (marker == temporary || (firstRestart <= marker && marker < endOfImage)) continue;
    const int high = ReadByte(cursor);
    const int low = ReadByte(cursor);
    const int length = high * 256 + low - 2;
    if (high < 0 || low < 0 || length < 0) break;
    const std::uint64_t next = cursor.Position() + static_cast<std::uint64_t>(length);
    if (marker == exifSegment || marker == profileSegment) {
      Take(marker, ReadPayload(cursor, static_cast<std::size_t>(length)), hasExif, markers);
    }
    cursor.MoveTo(next);
  }
  return markers;
}
