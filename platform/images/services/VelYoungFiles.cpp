// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelYoungFiles.cpp Remembers the content of files that were young when they were first told.
#include "platform/images/services/VelYoungFiles.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <map>
#include <span>
#include <tuple>

#include "platform/base/system/VelSystemInputFile.h"
#include "platform/images/services/VelImageKey.h"

namespace {

/// Up to this size the content of a file is worth reading to tell it from others.
constexpr std::uint64_t mostHashedBytes = std::uint64_t{64} << 20U;
constexpr std::size_t mostRemembered = 4096;

struct Remembered {
  std::string content;
  bool isSettled;  ///< It was read again when its times told it apart, so that no later version can bear them.
};

/// Any order will do.
struct Before {
  bool operator()(const VelSystemFileStatus& iOne, const VelSystemFileStatus& iOther) const noexcept {
    const auto fields = [](const VelSystemFileStatus& iStatus) {
      return std::tie(iStatus.device, iStatus.number, iStatus.size, iStatus.modifiedAt, iStatus.statusChangedAt);
    };
    return fields(iOne) < fields(iOther);
  }
};
using Memories = std::map<VelSystemFileStatus, Remembered, Before>;

Memories& Memory() {
  static auto& memory = *new Memories;
  return memory;
}

bool WasJustWritten(const VelSystemFileStatus& iStatus) {
  using std::chrono::nanoseconds;
  constexpr std::chrono::seconds longestTick(2);
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  return nanoseconds(iStatus.statusChangedAt) > now - longestTick ||
         nanoseconds(iStatus.modifiedAt) > now - longestTick;
}

std::string HashOf(const VelSystemInputFile& iFile) {
  std::string content(static_cast<std::size_t>(iFile.GetStatus().size), '\0');
  content.resize(iFile.ReadAt(0, std::as_writable_bytes(std::span(content))));
  return VelImageKey().Add(content).Finish();
}

}  // namespace

std::string VelYoungFiles::ContentOf(const VelSystemInputFile& iFile) {
  const bool isYoung = WasJustWritten(iFile.GetStatus());
  const auto remembered = Memory().find(iFile.GetStatus());
  const bool isRemembered = remembered != Memory().end();
  if (!isYoung && !isRemembered) return {};
  if (!isYoung && remembered->second.isSettled) return remembered->second.content;
  if (iFile.GetStatus().size > mostHashedBytes) {
    return std::to_string(std::chrono::steady_clock::now().time_since_epoch().count());
  }
  const std::string content = HashOf(iFile);
  if (!isYoung && remembered->second.content != content) {
    Memory().erase(remembered);
    return {};
  }
  if (Memory().size() >= mostRemembered) Memory().clear();
  Memory()[iFile.GetStatus()] = {content, !isYoung};
  return content;
}
