// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageSourceCursor.cpp Reads a source through a buffer, and past it where much is asked for.
#include "platform/images/decoders/VelImageSourceCursor.h"

#include <algorithm>

namespace {

constexpr std::size_t bufferSize = std::size_t{64} * 1024;

}  // namespace

VelImageSourceCursor::VelImageSourceCursor(VelImageSource& ioSource)
    : source_(ioSource), buffer_(new std::byte[bufferSize]) {}

std::size_t VelImageSourceCursor::Read(std::span<std::byte> oBytes) noexcept {
  std::size_t done = 0;
  while (done < oBytes.size()) {
    const std::span<std::byte> rest = oBytes.subspan(done);
    const std::span<const std::byte> buffered = Buffered();
    std::size_t count = std::min(buffered.size(), rest.size());
    if (count != 0) {
      std::copy_n(buffered.begin(), count, rest.begin());
    } else if (rest.size() >= bufferSize) {
      count = source_.ReadAt(position_, rest);
      if (count == 0) break;
    } else if (!Fill()) {
      break;
    }
    position_ += count;
    done += count;
  }
  return done;
}

std::span<const std::byte> VelImageSourceCursor::Buffered() const noexcept {
  if (position_ < bufferBegin_ || position_ - bufferBegin_ >= bufferLength_) return {};
  const auto offset = static_cast<std::size_t>(position_ - bufferBegin_);
  return std::span<const std::byte>(buffer_.get(), bufferLength_).subspan(offset);
}

bool VelImageSourceCursor::Fill() noexcept {
  bufferBegin_ = position_;
  bufferLength_ = source_.ReadAt(position_, {buffer_.get(), bufferSize});
  return bufferLength_ != 0;
}
