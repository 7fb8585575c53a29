// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelExifOrientation_test.cpp Exif data, whole and damaged.
#include "platform/images/decoders/VelExifOrientation.h"

#include <gtest/gtest.h>

#include "tests/platform/images/decoders/ExifBytes.h"

namespace {

int Read(const std::string& iExif) { return VelExifOrientation::Read(std::as_bytes(std::span<const char>(iExif))); }

std::string Changed(std::size_t iPlace, char iByte) {
  std::string exif = ExifBytes(6, false);
  exif[iPlace] = iByte;
  return exif;
}

TEST(VelExifOrientation, TheOrientation_IsReadInBothByteOrders) {
  for (int orientation = 1; orientation <= 8; ++orientation) {
    EXPECT_EQ(Read(ExifBytes(orientation, false)), orientation);
    EXPECT_EQ(Read(ExifBytes(orientation, true)), orientation);
  }
}

TEST(VelExifOrientation, WithoutOneThatIsValid_TheImageIsUpright) {
  struct Case {
    const char* name;
    std::string exif;
  };
  const Case cases[] = {
      {"nothing", ""},
      {"value 0", ExifBytes(0, false)},
      {"value 9", ExifBytes(9, true)},
      {"a value beyond a byte", ExifBytes(0x0106, true)},
      {"no byte order", Changed(0, 'X')},
      {"two byte orders", Changed(1, 'M')},
      {"another mark", Changed(2, 43)},
      {"a directory behind the end", Changed(4, 120)},
      {"a directory far behind the end", Changed(7, '\xFF')},
      {"no entries", Changed(8, 0)},
      {"one entry, of something else", Changed(8, 1)},
      {"a value of another type", Changed(24, 4)},
  };
  for (const Case& example : cases) EXPECT_EQ(Read(example.exif), 1) << example.name;
}

TEST(VelExifOrientation, DataThatEndsTooEarly_IsReadAsFarAsItGoes) {
  const std::string exif = ExifBytes(6, true);
  for (std::size_t length = 0; length < exif.size(); ++length) {
    EXPECT_EQ(Read(exif.substr(0, length)), length < 32 ? 1 : 6) << length;
  }
}

TEST(VelExifOrientation, MoreEntriesThanThereAre_EndTheSearch) {
  std::string exif = ExifBytes(6, false);
  exif[8] = '\xFF';
  exif[9] = '\xFF';
  EXPECT_EQ(Read(exif), 6);
  exif[22] = 0;
  EXPECT_EQ(Read(exif), 1);
}

}  // namespace
