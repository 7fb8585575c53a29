// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelMissingProvider.h Says once per process that a service has nobody behind it.
#ifndef PLATFORM_DOCUMENTS_VELMISSINGPROVIDER_H
#define PLATFORM_DOCUMENTS_VELMISSINGPROVIDER_H

/// The one warning of a service without provider. Once, since a host that goes without the service would hear it with
/// every edit. One static of each service. Not exported.
class VelMissingProvider {
 public:
  /// @param[in] iChannel the trace channel, named after the service; must live as long as the process
  /// @param[in] iLibrary the library that brings the provider, which is also its late type; must live as long
  constexpr VelMissingProvider(const char* iChannel, const char* iLibrary) noexcept
      : channel_(iChannel), library_(iLibrary) {}

  /// Sends the warning, unless it was sent already.
  void Warn() noexcept;

  /// Lets the warning be sent once more.
  void Reset() noexcept { isSaid_ = false; }

 private:
  const char* channel_;
  const char* library_;
  bool isSaid_ = false;
};

#endif  // PLATFORM_DOCUMENTS_VELMISSINGPROVIDER_H
