// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIConfigurationReader.h Reads the text of configuration and message files.
#ifndef PLATFORM_CONFIGURATION_VELICONFIGURATIONREADER_H
#define PLATFORM_CONFIGURATION_VELICONFIGURATIONREADER_H

#include <string_view>

#include "platform/base/VelPlatformApi.h"
#include "platform/configuration/VelConfigurationContent.h"
#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"

VEL_PLATFORM_API extern const VelInterfaceId IID_VelIConfigurationReader;

/// Turns the text of a file into what it says; the tables are filled by who asks. docs/configuration.md describes the
/// files.
///
/// Implemented by: VelConfigurationReader, for late type "VelPlatformFiles".
/// Thread: the application thread. Re-entrancy: none.
class VEL_PLATFORM_API VelIConfigurationReader : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelIConfigurationReader);

  /// Reads a file of configurations: a table each, whose key "parent" names the one above.
  /// @param[in] iText the whole file, UTF-8, untrusted
  /// @param[out] oContent replaced by what the file says; untouched on failure
  /// @param[out] oFault the first thing that is wrong with the text; untouched on success
  /// @return S_OK; E_FAIL when something is wrong
  virtual HRESULT ReadConfigurations(std::string_view iText, VelConfigurationContent& oContent,
                                     VelConfigurationFault& oFault) = 0;

  /// Reads a file of messages: keys without a configuration, among which "parent" is one like any other.
  /// @param[in] iText the whole file, UTF-8, untrusted
  /// @param[out] oContent replaced by what the file says, without parents; untouched on failure
  /// @param[out] oFault the first thing that is wrong with the text; untouched on success
  /// @return S_OK; E_FAIL when something is wrong
  virtual HRESULT ReadMessages(std::string_view iText, VelConfigurationContent& oContent,
                               VelConfigurationFault& oFault) = 0;

 protected:
  ~VelIConfigurationReader() = default;
};

using VelIConfigurationReader_var = VelVar<VelIConfigurationReader>;

#endif  // PLATFORM_CONFIGURATION_VELICONFIGURATIONREADER_H
