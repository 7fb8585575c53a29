// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelFileHeader.h Reads numbers out of the heads of image files.
#ifndef PLATFORM_IMAGES_WORKER_VELFILEHEADER_H
#define PLATFORM_IMAGES_WORKER_VELFILEHEADER_H

#include <cstddef>
#include <cstdint>
#include <string_view>

/// The bytes of a file. What is read beyond its end is 0, so that checks of a size catch it.
class VelFileHeader {
 public:
  explicit VelFileHeader(std::string_view iBytes) noexcept : bytes_(iBytes) {}

  std::uint64_t Size() const noexcept { return bytes_.size(); }

  /// @return true when so many bytes are there from a place on
  bool Has(std::uint64_t iOffset, std::uint64_t iLength) const noexcept {
    return iOffset <= bytes_.size() && iLength <= bytes_.size() - iOffset;
  }

  std::uint32_t Byte(std::uint64_t iOffset) const noexcept {
    return iOffset < bytes_.size() ? static_cast<unsigned char>(bytes_[static_cast<std::size_t>(iOffset)]) : 0;
  }

  /// The lower byte first.
  std::uint32_t Word(std::uint64_t iOffset) const noexcept { return Byte(iOffset) | Byte(iOffset + 1) << 8; }

  /// The lowest byte first.
  std::uint32_t Long(std::uint64_t iOffset) const noexcept { return Word(iOffset) | Word(iOffset + 2) << 16; }

  /// The highest byte first.
  std::uint32_t BigLong(std::uint64_t iOffset) const noexcept {
    return Byte(iOffset) << 24 | Byte(iOffset + 1) << 16 | Byte(iOffset + 2) << 8 | Byte(iOffset + 3);
  }

 private:
  std::string_view bytes_;
};

#endif  // PLATFORM_IMAGES_WORKER_VELFILEHEADER_H
