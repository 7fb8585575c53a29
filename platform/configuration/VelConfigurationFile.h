// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelConfigurationFile.h Reads configuration and message files through the library that can.
#ifndef PLATFORM_CONFIGURATION_VELCONFIGURATIONFILE_H
#define PLATFORM_CONFIGURATION_VELCONFIGURATIONFILE_H

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/base/HResult.h"
#include "platform/configuration/VelConfigurationContent.h"

class VelIConfigurationReader;

/// A file is read into memory here and its text handed to the reader that the dictionary names for the late type
/// "VelPlatformFiles". Whatever goes wrong is an error on the caller's channel, "<file>:<line>:<column>: <cause>", but
/// for a missing reader, which is one warning per process. Not exported.
class VelConfigurationFile {
 public:
  static constexpr std::size_t byteLimit = 4U << 20U;
  static constexpr const char* nameEnd = ".toml";

  /// @param[in] iChannel the trace channel of who asks
  explicit VelConfigurationFile(const char* iChannel) noexcept : channel_(iChannel) {}

  /// @param[out] oContent untouched on failure
  /// @return S_OK; E_FAIL when the file cannot be read, is faulty, or no library reads such files
  HRESULT ReadConfigurations(const std::string& iPath, VelConfigurationContent& oContent) const;
  HRESULT ReadMessages(const std::string& iPath, VelConfigurationContent& oContent) const;

  /// Sends an error to the channel.
  void Report(const std::string& iPath, const VelConfigurationFault& iFault) const;

 private:
  using Operation = HRESULT (VelIConfigurationReader::*)(std::string_view, VelConfigurationContent&,
                                                         VelConfigurationFault&);

  HRESULT Read(const std::string& iPath, Operation iOperation, VelConfigurationContent& oContent) const;
  void WarnOfMissingReader(const std::string& iPath) const;

  const char* channel_;
};

#endif  // PLATFORM_CONFIGURATION_VELCONFIGURATIONFILE_H
