// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemDescriptor.cpp Owns one file descriptor of the process.
#include "platform/base/system/VelSystemDescriptor.h"

#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <utility>

VelSystemDescriptor::~VelSystemDescriptor() {
  if (IsOpen()) ::close(descriptor_);
}

int VelSystemDescriptor::Release() noexcept { return std::exchange(descriptor_, -1); }

int VelSystemDescriptor::WriteWhole(int iDescriptor, std::string_view iBytes) noexcept {
  while (!iBytes.empty()) {
    const ssize_t written = ::write(iDescriptor, iBytes.data(), iBytes.size());
    if (written >= 0) {
      iBytes.remove_prefix(static_cast<std::size_t>(written));
      continue;
    }
    if (errno == EINTR) continue;
    if (errno != EAGAIN) return errno;
    pollfd full{iDescriptor, POLLOUT, 0};
    if (::poll(&full, 1, -1) < 0 && errno != EINTR) return errno;
  }
  return 0;
}
