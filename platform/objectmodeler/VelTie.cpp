// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTie.cpp The pool of forwarders and what ends them.
#include "platform/objectmodeler/VelTie.h"

#include <cstddef>
#include <new>

#include "platform/base/VelCheck.h"
#include "platform/objectmodeler/VelTiePool.h"

constinit VelTiePool::Block* VelTiePool::free = nullptr;

void* VelTiePool::Refill() {
#if defined(VEL_TIE_POOL_BYPASSED)
  return ::operator new(VelTieService::blockSize);
#else
  constexpr std::size_t blocksPerSlab = 128;
  auto* const slab = static_cast<std::byte*>(::operator new(blocksPerSlab* VelTieService::blockSize));
  for (std::size_t i = 1; i < blocksPerSlab; ++i) {
    auto* const block = new (slab + i * VelTieService::blockSize) Block{free};
    free = block;
  }
  return slab;
#endif
}

void VelTiePool::Discard(void* iBlock) noexcept { ::operator delete(iBlock); }

void VelTieService::End(void* iBlock, VelComponent& iComponent, VelImplementation* iOwned) noexcept {
  VelTiePool::Give(iBlock);
  delete iOwned;
  iComponent.Release();
}

void VelTieService::ReportException(const char* iInterface, const VelImplementation& iImplementation) noexcept {
  VelCheck::Failed(VEL_HERE("platform/objectmodeler/VelTie"), iInterface,
                   "An operation of an interface threw an exception", iImplementation.ClassName());
}
