// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaImageBudget.h How many bytes of images the appearance caches of all materials hold together.
#ifndef PLATFORM_MATERIALS_VELRMAIMAGEBUDGET_H
#define PLATFORM_MATERIALS_VELRMAIMAGEBUDGET_H

#include <cstddef>
#include <cstdint>

#include "platform/base/VelPlatformApi.h"

struct VelRmaImageEntry;

/// Keeps a thousand open materials from holding a thousand decoded textures: where the images that the caches hold are
/// more than the budget, those that were used longest ago are dropped to their path, from which they are loaded again
/// when they are asked for. An image without a path is never dropped, nor is one whose path
/// is that of a vector image, nor the one that was used last.
/// Thread: the application thread.
class VEL_PLATFORM_API VelRmaImageBudget {
 public:
  static constexpr std::size_t defaultBytes = std::size_t{256} << 20U;

  /// Sets the budget, for the rest of the process, and drops what is more.
  static void Set(std::size_t iBytes) noexcept;

  /// @return the bytes of the images that are held
  static std::size_t HeldBytes() noexcept;

  /// Counts an entry whose image was set or used: it is the last one used now. For the caches.
  static void Use(VelRmaImageEntry& ioEntry) noexcept;

  /// Forgets an entry, before its image goes. For the caches.
  static void Forget(VelRmaImageEntry& ioEntry) noexcept;

 private:
  static void DropDownToBudget() noexcept;
};

#endif  // PLATFORM_MATERIALS_VELRMAIMAGEBUDGET_H
