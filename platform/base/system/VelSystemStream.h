// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemStream.h The standard error stream of the process.
#ifndef PLATFORM_BASE_SYSTEM_VELSYSTEMSTREAM_H
#define PLATFORM_BASE_SYSTEM_VELSYSTEMSTREAM_H

#include <string_view>

#include "platform/base/VelPlatformApi.h"

/// Writes past every buffer of the program, so that the last line before an abort is seen.
class VelSystemStream {
 public:
  /// Writes all of the text, nothing added.
  /// @return false when the stream is closed or refused a part of it
  VEL_PLATFORM_API static bool WriteToStandardError(std::string_view iText) noexcept;
};

#endif  // PLATFORM_BASE_SYSTEM_VELSYSTEMSTREAM_H
