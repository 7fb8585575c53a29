// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTiePool.h The pool of the forwarders' blocks.
#ifndef PLATFORM_OBJECTMODELER_VELTIEPOOL_H
#define PLATFORM_OBJECTMODELER_VELTIEPOOL_H

#if defined(__SANITIZE_ADDRESS__)
#define VEL_TIE_POOL_BYPASSED
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define VEL_TIE_POOL_BYPASSED
#endif
#endif

/// A free list of blocks of VelTieService::blockSize bytes. Blocks come in slabs that are never given back, so that a
/// query allocates only while the number of forwarders grows. Under the address sanitizer each block is allocated by
/// itself, so that the use of a forwarder after its end is seen. Not exported.
class VelTiePool {
 public:
  static void* Take() {
    if (free == nullptr) return Refill();
    Block* const block = free;
    free = block->next;
    return block;
  }

  static void Give(void* iBlock) noexcept {
#if defined(VEL_TIE_POOL_BYPASSED)
    Discard(iBlock);
#else
    auto* const block = static_cast<Block*>(iBlock);
    block->next = free;
    free = block;
#endif
  }

  /// @return the forwarders that are alive; it walks the free list, so that taking and giving need not count
  static int CountTaken() noexcept;

 private:
  struct Block {
    Block* next;
  };

  static void* Refill();
  static void Discard(void* iBlock) noexcept;

  static Block* free;
  static int made;  ///< The blocks that exist, taken or free.
};

#endif  // PLATFORM_OBJECTMODELER_VELTIEPOOL_H
