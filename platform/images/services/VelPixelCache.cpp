// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelPixelCache.cpp A list in the order of use, and an index into it.
#include "platform/images/services/VelPixelCache.h"

#include "platform/base/VelCallOnExit.h"

namespace {

constexpr int exitPriority = 5;
bool isHookSet = false;

/// A hook runs once; a process may go on and begin anew.
int ClearAtExit(int) {
  VelPixelCache::OfProcess().Clear();
  isHookSet = false;
  return 0;
}

}  // namespace

VelPixelCache& VelPixelCache::OfProcess() {
  static VelPixelCache& cache = *new VelPixelCache;
  if (!isHookSet) VelCallOnExit(&ClearAtExit, exitPriority);
  isHookSet = true;
  return cache;
}

VelPixelImage* VelPixelCache::Find(std::string_view iKey) {
  const auto found = byKey_.find(iKey);
  if (found == byKey_.end()) return nullptr;
  entries_.splice(entries_.begin(), entries_, found->second);
  found->second->image->AddRef();
  return found->second->image;
}

void VelPixelCache::Keep(const std::string& iKey, VelPixelImage& iImage) {
  const std::size_t bytes = iImage.GetPixels().size();
  if (bytes > mostBytes_ || byKey_.contains(iKey)) return;
  while (heldBytes_ + bytes > mostBytes_) DropOldest();
  iImage.AddRef();
  entries_.push_front({iKey, &iImage});
  byKey_.emplace(entries_.front().key, entries_.begin());
  heldBytes_ += bytes;
}

void VelPixelCache::Clear() noexcept {
  while (!entries_.empty()) DropOldest();
}

void VelPixelCache::DropOldest() noexcept {
  const Entry& entry = entries_.back();
  byKey_.erase(entry.key);
  heldBytes_ -= entry.image->GetPixels().size();
  entry.image->Release();
  entries_.pop_back();
}
