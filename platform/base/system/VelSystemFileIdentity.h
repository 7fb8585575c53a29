// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemFileIdentity.h What a file is, whatever path leads to it.
#ifndef PLATFORM_BASE_SYSTEM_VELSYSTEMFILEIDENTITY_H
#define PLATFORM_BASE_SYSTEM_VELSYSTEMFILEIDENTITY_H

#include <cstdint>

/// Two paths lead to the same file when their identities are equal. An identity may come back once its file is deleted.
struct VelSystemFileIdentity {
  std::uint64_t device = 0;
  std::uint64_t inode = 0;

  friend bool operator==(const VelSystemFileIdentity&, const VelSystemFileIdentity&) = default;
};

#endif  // PLATFORM_BASE_SYSTEM_VELSYSTEMFILEIDENTITY_H
