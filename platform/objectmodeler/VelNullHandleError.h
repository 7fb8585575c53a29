// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelNullHandleError.h What an empty handle throws when it is used.
#ifndef PLATFORM_OBJECTMODELER_VELNULLHANDLEERROR_H
#define PLATFORM_OBJECTMODELER_VELNULLHANDLEERROR_H

#include <array>
#include <exception>

#include "platform/base/VelPlatformApi.h"

/// The null-handle error, the only exception of the system. It never crosses an interface: forwarders and deliveries
/// catch it and report a check.
class VEL_PLATFORM_API VelNullHandleError : public std::exception {
 public:
  /// @param[in] iInterface the name of the handle's interface; must live as long as the process
  explicit VelNullHandleError(const char* iInterface) noexcept;
  ~VelNullHandleError() override;

  /// @return what was used, by its interface
  const char* what() const noexcept override;

  /// @return the name of the interface of the empty handle
  const char* Interface() const noexcept { return interface_; }

  /// Throws the error; out of line so that a handle's `->` stays small.
  [[noreturn]] static void Throw(const char* iInterface);

 private:
  const char* interface_;
  std::array<char, 160> text_;  ///< A longer name is cut.
};

#endif  // PLATFORM_OBJECTMODELER_VELNULLHANDLEERROR_H
