// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelAllocationCounter.cpp The operator new of test programs that count.
#include "tests/support/VelAllocationCounter.h"

#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

constinit long allocations = 0;

#if defined(__SANITIZE_ADDRESS__)
constexpr bool underAddressSanitizer = true;
#elif defined(__has_feature)
constexpr bool underAddressSanitizer = __has_feature(address_sanitizer);
#else
constexpr bool underAddressSanitizer = false;
#endif

}  // namespace

void* operator new(std::size_t iSize) {
  ++allocations;
  if (void* const memory = std::malloc(iSize != 0 ? iSize : 1)) return memory;
  throw std::bad_alloc();
}
void operator delete(void* iMemory) noexcept { std::free(iMemory); }
void operator delete(void* iMemory, std::size_t) noexcept { std::free(iMemory); }

bool VelAllocationCounter::CountsForwarders() { return !underAddressSanitizer; }

long VelAllocationCounter::Total() { return allocations; }
