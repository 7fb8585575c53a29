// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageSource.cpp Reads from memory and from files.
#include "platform/images/pixels/VelImageSource.h"

#include <algorithm>

#include "platform/base/system/VelSystemInputFile.h"

std::size_t VelMemoryImageSource::ReadAt(std::uint64_t iOffset, std::span<std::byte> oBytes) noexcept {
  if (iOffset >= bytes_.size()) return 0;
  const auto rest = bytes_.subspan(static_cast<std::size_t>(iOffset));
  const std::size_t count = std::min(rest.size(), oBytes.size());
  std::copy_n(rest.begin(), count, oBytes.begin());
  return count;
}

std::uint64_t VelFileImageSource::Size() const noexcept { return file_.GetStatus().size; }

std::size_t VelFileImageSource::ReadAt(std::uint64_t iOffset, std::span<std::byte> oBytes) noexcept {
  return file_.ReadAt(iOffset, oBytes);
}
