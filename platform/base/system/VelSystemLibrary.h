// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemLibrary.h Opens shared libraries and finds symbols in them.
#ifndef PLATFORM_BASE_SYSTEM_VELSYSTEMLIBRARY_H
#define PLATFORM_BASE_SYSTEM_VELSYSTEMLIBRARY_H

#include <string>

#include "platform/base/VelPlatformApi.h"

/// A shared library of the process. Libraries are opened with all symbols bound, none of them visible to other
/// libraries, and are never closed: objects whose code they hold may live to the end of the process.
class VEL_PLATFORM_API VelSystemLibrary {
 public:
  /// Opens a library, or finds it again where it is open already.
  /// @param[in] iPath a path, or a bare file name that the system's loader searches for
  /// @param[out] oCause why it could not be opened, in the system's words; untouched on success
  /// @return the library, null when it cannot be opened
  static void* Open(const std::string& iPath, std::string& oCause);

  /// @return the address of a symbol that the library (or one that it depends on) defines, null when there is none
  static void* FindSymbol(void* iLibrary, const std::string& iName) noexcept;

  /// @return the path of the library or program that holds the address, empty when none does
  static std::string PathOf(const void* iAddress);
};

#endif  // PLATFORM_BASE_SYSTEM_VELSYSTEMLIBRARY_H
