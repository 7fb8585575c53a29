// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file ExifBytes.h Exif data that tells an orientation.
#ifndef TESTS_PLATFORM_IMAGES_DECODERS_EXIFBYTES_H
#define TESTS_PLATFORM_IMAGES_DECODERS_EXIFBYTES_H

#include <string>

#include "tests/platform/images/decoders/FileBytes.h"

/// A directory of two entries, the resolution's unit and the orientation.
inline std::string ExifBytes(int iOrientation, bool iIsBigEndian) {
  const auto number = [=](int iNumber, int iBytes) {
    const auto value = static_cast<std::uint64_t>(iNumber);
    return iIsBigEndian ? BigEndian(value, iBytes) : LittleEndian(value, iBytes);
  };
  const auto entry = [&](int iTag, int iValue) {
    return number(iTag, 2) + number(3, 2) + number(1, 4) + number(iValue, 2) + number(0, 2);
  };
  return (iIsBigEndian ? "MM" : "II") + number(42, 2) + number(8, 4) + number(2, 2) + entry(0x0106, 2) +
         entry(0x0112, iOrientation) + number(0, 4);
}

#endif  // TESTS_PLATFORM_IMAGES_DECODERS_EXIFBYTES_H
