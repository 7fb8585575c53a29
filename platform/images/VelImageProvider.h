// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageProvider.h Finds who works on images.
#ifndef PLATFORM_IMAGES_VELIMAGEPROVIDER_H
#define PLATFORM_IMAGES_VELIMAGEPROVIDER_H

#include "platform/images/VelIImageServices.h"

/// The provider that everything of this folder forwards to, and the one warning when there is none. Not exported.
class VelImageProvider {
 public:
  /// @return the provider that the dictionary names; empty when there is none, which is then said
  static VelIImageServices_var Find();

  /// Lets the warning of the missing provider be sent once more.
  static void ResetWarning() noexcept;
};

#endif  // PLATFORM_IMAGES_VELIMAGEPROVIDER_H
