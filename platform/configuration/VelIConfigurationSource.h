// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIConfigurationSource.h Brings configurations when they are first looked into.
#ifndef PLATFORM_CONFIGURATION_VELICONFIGURATIONSOURCE_H
#define PLATFORM_CONFIGURATION_VELICONFIGURATIONSOURCE_H

#include <string>
#include <vector>

#include "platform/base/VelPlatformApi.h"
#include "platform/configuration/VelConfigurationContent.h"
#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"

VEL_PLATFORM_API extern const VelInterfaceId IID_VelIConfigurationSource;

/// A text of a configuration in one language. It is a message of the catalog that is named as the configuration, and
/// what VelRbaConfiguration answers for its key follows the language in force.
struct VelConfigurationMessage {
  VelString language;
  VelString key;
  VelString text;
};

/// What a source says of one configuration.
struct VelSourcedConfiguration {
  VelString parent;                               ///< Empty for none.
  std::vector<VelConfigurationEntry> entries;     ///< Whose configuration is not looked at. No key stands twice.
  std::vector<VelConfigurationMessage> messages;  ///< Whose keys are in no entry. A key has an English text.
};

/// A host that knows configurations by other files than those of VelRbaConfiguration binds a source to the late type
/// "VelRbaConfiguration". A session asks it at the first look-up, and for a configuration when that is first looked
/// into. What it says stands beneath everything else: files and code override it key by key. It goes with the session.
///
/// Implemented by: the host, for late type "VelRbaConfiguration".
/// Thread: the application thread. Re-entrancy: must not look configurations or messages up.
class VEL_PLATFORM_API VelIConfigurationSource : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelIConfigurationSource);

  /// Adds what a session's options name, before the first look-up.
  /// @param[in] iPath a file or a folder
  /// @return S_OK; E_FAIL, after an error of the source's own, when something is wrong with it
  virtual HRESULT AddPath(const std::string& iPath) = 0;

  /// Lists the configurations that may be asked for. That should cost little: nothing of them is wanted yet.
  /// @param[out] oNames replaced; an empty name and "Default" are passed over
  /// @return S_OK; E_FAIL when there is none
  virtual HRESULT ListConfigurations(std::vector<VelString>& oNames) = 0;

  /// @param[in] iName one of those listed
  /// @param[out] oContent replaced by what is said of it; untouched on failure
  /// @return S_OK; E_FAIL, after an error of the source's own, when nothing can be said
  virtual HRESULT ReadConfiguration(const VelString& iName, VelSourcedConfiguration& oContent) = 0;

 protected:
  ~VelIConfigurationSource() = default;
};

using VelIConfigurationSource_var = VelVar<VelIConfigurationSource>;

#endif  // PLATFORM_CONFIGURATION_VELICONFIGURATIONSOURCE_H
