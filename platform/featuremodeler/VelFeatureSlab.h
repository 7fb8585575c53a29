// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelFeatureSlab.h The memory of features.
#ifndef PLATFORM_FEATUREMODELER_VELFEATURESLAB_H
#define PLATFORM_FEATUREMODELER_VELFEATURESLAB_H

#include <cstddef>
#include <cstdint>
#include <vector>

#include "platform/base/VelPlatformApi.h"

class VelContainer;

/// A slab of blocks of one size, aligned so that a block finds its slab, and through it its container, from its own
/// address. A slab outlives its container as long as a block of it is in use. Not exported.
class VelFeatureSlab {
 public:
  static constexpr std::size_t size = 65536;  ///< Bytes of a slab, and its alignment.

  /// @param[in] iBlockBytes a multiple of 8, at most largestBlock
  static VelFeatureSlab* Make(VelContainer& iContainer, std::size_t iBlockBytes);
  static const std::size_t largestBlock;

  /// @return the slab that a block lies in
  static VelFeatureSlab& Of(const void* iBlock) noexcept {
    return *reinterpret_cast<VelFeatureSlab*>(reinterpret_cast<std::uintptr_t>(iBlock) & ~(size - 1));
  }

  /// @return a block whose first word is not yet written, null when the slab is full
  void* Take() noexcept;

  /// Gives a block back; the slab itself goes with the last one when its container is gone.
  void Give(void* iBlock) noexcept;

  /// The container is gone. The slab goes, now or with its last block.
  void Abandon() noexcept;

  bool IsFull() const noexcept { return free_ == nullptr && bump_ + blockBytes_ > size; }
  std::size_t BlockBytes() const noexcept { return blockBytes_; }
  VelContainer* Container() const noexcept { return container_; }

  /// Whether the container has the slab among those with room.
  bool IsListed() const noexcept { return listed_; }
  void SetListed(bool iListed) noexcept { listed_ = iListed; }

  /// Appends the blocks that are in use, in the order of storage.
  void ListUsed(std::vector<void*>& ioBlocks) const;

  /// @return the slabs of the process
  VEL_PLATFORM_API static int Count() noexcept;

 private:
  /// A block that is not in use: its first word, where a feature has its table of functions, is null.
  struct FreeBlock {
    void* mark;
    FreeBlock* next;
  };

  VelFeatureSlab(VelContainer& iContainer, std::size_t iBlockBytes) noexcept;
  void Destroy() noexcept;
  std::byte* At(std::size_t iOffset) const noexcept;

  VelContainer* container_;
  std::size_t blockBytes_;
  std::size_t bump_;  ///< Where the blocks begin that were never taken.
  std::size_t used_ = 0;
  FreeBlock* free_ = nullptr;
  bool listed_ = false;
};

#endif  // PLATFORM_FEATUREMODELER_VELFEATURESLAB_H
