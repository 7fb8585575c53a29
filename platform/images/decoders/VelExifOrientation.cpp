// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelExifOrientation.cpp Looks for one entry in the first directory of Exif data.
#include "platform/images/decoders/VelExifOrientation.h"

#include <cstdint>

namespace {

constexpr std::size_t entrySize = 12;
constexpr std::uint32_t orientationTag = 0x0112;
constexpr std::uint32_t shortType = 3;

/// Numbers at places of the data, 0 where the data ends before.
class Numbers {
 public:
  Numbers(std::span<const std::byte> iBytes, bool iBigEndian) noexcept : bytes_(iBytes), bigEndian_(iBigEndian) {}

  std::uint32_t Short(std::size_t iOffset) const noexcept { return Number(iOffset, 2); }
  std::uint32_t Long(std::size_t iOffset) const noexcept { return Number(iOffset, 4); }

 private:
  std::uint32_t Number(std::size_t iOffset, std::size_t iLength) const noexcept {
    if (iOffset > bytes_.size() || bytes_.size() - iOffset < iLength) return 0;
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < iLength; ++i) {
      const std::size_t place = bigEndian_ ? i : iLength - 1 - i;
      number = number << 8 | std::to_integer<std::uint32_t>(bytes_[iOffset + place]);
    }
    return number;
  }

  std::span<const std::byte> bytes_;
  bool bigEndian_;
};

}  // namespace

int VelExifOrientation::Read(std::span<const std::byte> iExif) noexcept {
  if (iExif.empty()) return upright;
  const Numbers numbers(iExif, iExif[0] == std::byte{'M'});
  const std::uint32_t mark = numbers.Short(0);
  if ((mark != 0x4D4D && mark != 0x4949) || numbers.Short(2) != 42) return upright;
  const std::size_t directory = numbers.Long(4);
  const std::size_t entries = numbers.Short(directory);
  for (std::size_t i = 0; i < entries; ++i) {
    const std::size_t entry = directory + 2 + i * entrySize;
    if (numbers.Short(entry) != orientationTag) continue;
    const std::uint32_t value = numbers.Short(entry + 8);
    const bool isValid = numbers.Short(entry + 2) == shortType && 1 <= value && value <= 8;
    return isValid ? static_cast<int>(value) : upright;
  }
  return upright;
}
