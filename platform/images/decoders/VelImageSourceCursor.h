// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageSourceCursor.h Reads an image source onward from a place.
#ifndef PLATFORM_IMAGES_DECODERS_VELIMAGESOURCECURSOR_H
#define PLATFORM_IMAGES_DECODERS_VELIMAGESOURCECURSOR_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

#include "platform/images/pixels/VelImageSource.h"

/// A place in a source, with a buffer, since the libraries read a few bytes at a time. It refers to the source.
class VelImageSourceCursor {
 public:
  explicit VelImageSourceCursor(VelImageSource& ioSource);

  /// Reads onward from the place.
  /// @param[out] oBytes its first bytes are overwritten, as many as are returned
  /// @return how many bytes were read: fewer than there is room for only where the source ends
  std::size_t Read(std::span<std::byte> oBytes) noexcept;

  /// @param[in] iPosition bytes from the beginning; a place behind the end is one where nothing is read
  void MoveTo(std::uint64_t iPosition) noexcept { position_ = iPosition; }

  /// @return bytes from the beginning
  std::uint64_t Position() const noexcept { return position_; }

  std::uint64_t Size() const noexcept { return source_.Size(); }

 private:
  std::span<const std::byte> Buffered() const noexcept;
  bool Fill() noexcept;

  VelImageSource& source_;
  std::uint64_t position_ = 0;
  std::uint64_t bufferBegin_ = 0;
  std::size_t bufferLength_ = 0;
  std::unique_ptr<std::byte[]> buffer_;
};

#endif  // PLATFORM_IMAGES_DECODERS_VELIMAGESOURCECURSOR_H
