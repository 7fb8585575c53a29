// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIRmaEditionMode.h The modes in which rendering materials are edited.
#ifndef PLATFORM_MATERIALS_VELIRMAEDITIONMODE_H
#define PLATFORM_MATERIALS_VELIRMAEDITIONMODE_H

#include <cstdint>

#include "platform/base/VelPlatformApi.h"

/// The switches of the process by which an editor says how it is editing rendering materials. All are off at start.
/// Despite its name no interface that objects answer: nothing is asked for it.
/// Thread: the application thread.
class VEL_PLATFORM_API VelIRmaEditionMode {
 public:
  /// The number of each mode is fixed: hosts name modes by number. The system itself reads the first one only.
  enum class Mode : std::uint8_t {
    SilentPropagation = 0,  ///< A change stays where it was made: no sub-shader takes it over, no appearance follows.
    BatchEdition = 1,       ///< Many changes follow one another, and the editor says itself when they are complete.
    Preview = 2,            ///< What is changed is shown and will be taken back.
  };

  /// @return true when the mode is on; false for a number that names no mode
  static bool GetActivation(Mode iMode) noexcept;

  /// Switches a mode; a number that names no mode changes nothing.
  static void SetActivation(Mode iMode, bool iIsActive) noexcept;
};

#endif  // PLATFORM_MATERIALS_VELIRMAEDITIONMODE_H
