// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelFeatureSlab.cpp Aligned slabs with a free list each.
#include "platform/featuremodeler/VelFeatureSlab.h"

#include <new>

namespace {

constinit int slabCount = 0;

constexpr std::size_t headerBytes = 64;

}  // namespace

const std::size_t VelFeatureSlab::largestBlock = size - headerBytes;

VelFeatureSlab::VelFeatureSlab(VelContainer& iContainer, std::size_t iBlockBytes) noexcept
    : container_(&iContainer), blockBytes_(iBlockBytes), bump_(headerBytes) {
  static_assert(sizeof(VelFeatureSlab) <= headerBytes);
}

VelFeatureSlab* VelFeatureSlab::Make(VelContainer& iContainer, std::size_t iBlockBytes) {
  void* memory = ::operator new (size, std::align_val_t{size});
  ++slabCount;
  return new (memory) VelFeatureSlab(iContainer, iBlockBytes);
}

void VelFeatureSlab::Destroy() noexcept {
  --slabCount;
  ::operator delete (static_cast<void*>(this), std::align_val_t{size});
}

int VelFeatureSlab::Count() noexcept { return slabCount; }

std::byte* VelFeatureSlab::At(std::size_t iOffset) const noexcept {
  return reinterpret_cast<std::byte*>(const_cast<VelFeatureSlab*>(this)) + iOffset;
}

void* VelFeatureSlab::Take() noexcept {
  void* block = nullptr;
  if (free_ != nullptr) {
    block = free_;
    free_ = free_->next;
  } else if (bump_ + blockBytes_ <= size) {
    block = At(bump_);
    bump_ += blockBytes_;
  }
  if (block != nullptr) ++used_;
  return block;
}

void VelFeatureSlab::Give(void* iBlock) noexcept {
  free_ = new (iBlock) FreeBlock{nullptr, free_};
  --used_;
  if (used_ == 0 && container_ == nullptr) Destroy();
}

void VelFeatureSlab::Abandon() noexcept {
  container_ = nullptr;
  if (used_ == 0) Destroy();
}

void VelFeatureSlab::ListUsed(std::vector<void*>& ioBlocks) const {
  for (std::size_t offset = headerBytes; offset + blockBytes_ <= bump_; offset += blockBytes_) {
    std::byte* const block = At(offset);
    if (*reinterpret_cast<void**>(block) != nullptr) ioBlocks.push_back(block);
  }
}
