// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTie.cpp The pool of forwarders and what ends them.
#include "platform/objectmodeler/VelTie.h"

#include <cstddef>
#include <new>

#include "platform/base/VelCheck.h"
#include "platform/base/VelExceptionText.h"
#include "platform/objectmodeler/VelComponentAccess.h"
#include "platform/objectmodeler/VelTiePool.h"

constinit VelTiePool::Block* VelTiePool::free = nullptr;
constinit int VelTiePool::made = 0;

void* VelTiePool::Refill() {
#if defined(VEL_TIE_POOL_BYPASSED)
  ++made;
  return ::operator new(VelTieService::blockSize);
#else
  constexpr int blocksPerSlab = 128;
  auto* const slab = static_cast<std::byte*>(::operator new(blocksPerSlab* VelTieService::blockSize));
  made += blocksPerSlab;
  for (int i = 1; i < blocksPerSlab; ++i) {
    auto* const block = new (slab + static_cast<std::size_t>(i) * VelTieService::blockSize) Block{free};
    free = block;
  }
  return slab;
#endif
}

void VelTiePool::Discard(void* iBlock) noexcept {
  --made;
  ::operator delete(iBlock);
}

int VelTiePool::CountTaken() noexcept {
  int taken = made;
  for (const Block* block = free; block != nullptr; block = block->next) --taken;
  return taken;
}

void VelTieService::End(void* iBlock, VelComponent& iComponent, VelImplementation* iOwned) noexcept {
  VelTiePool::Give(iBlock);
  delete iOwned;
  VelComponentAccess::Release(iComponent);
}

void VelTieService::ReportException(const char* iInterface, const VelImplementation& iImplementation) noexcept {
  VelCheck::Failed(VEL_HERE("platform/objectmodeler/VelTie"), iInterface,
                   "An operation of an interface threw an exception", VelExceptionText(iImplementation.ClassName()));
}
