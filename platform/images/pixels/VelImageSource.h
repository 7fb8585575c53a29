// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageSource.h The bytes of an image file, wherever they lie.
#ifndef PLATFORM_IMAGES_PIXELS_VELIMAGESOURCE_H
#define PLATFORM_IMAGES_PIXELS_VELIMAGESOURCE_H

#include <cstddef>
#include <cstdint>
#include <span>

class VelSystemInputFile;

/// What a decoder reads from. Bytes are untrusted, and a file may shrink while it is read.
class VelImageSource {
 public:
  virtual ~VelImageSource() = default;

  /// @return the bytes of the file when it was opened
  virtual std::uint64_t Size() const noexcept = 0;

  /// Reads from a place, without moving anything.
  /// @param[in] iOffset bytes from the beginning
  /// @param[out] oBytes its first bytes are overwritten, as many as are returned
  /// @return how many bytes were read: fewer than there is room for only at the end of the file or after a failure
  virtual std::size_t ReadAt(std::uint64_t iOffset, std::span<std::byte> oBytes) noexcept = 0;
};

/// Bytes in memory, which outlive the source.
class VelMemoryImageSource final : public VelImageSource {
 public:
  explicit VelMemoryImageSource(std::span<const std::byte> iBytes) noexcept : bytes_(iBytes) {}

  std::uint64_t Size() const noexcept override { return bytes_.size(); }
  std::size_t ReadAt(std::uint64_t iOffset, std::span<std::byte> oBytes) noexcept override;

 private:
  std::span<const std::byte> bytes_;
};

/// An open file, which outlives the source.
class VelFileImageSource final : public VelImageSource {
 public:
  explicit VelFileImageSource(const VelSystemInputFile& iFile) noexcept : file_(iFile) {}

  std::uint64_t Size() const noexcept override;
  std::size_t ReadAt(std::uint64_t iOffset, std::span<std::byte> oBytes) noexcept override;

 private:
  const VelSystemInputFile& file_;
};

#endif  // PLATFORM_IMAGES_PIXELS_VELIMAGESOURCE_H
