// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelConfigurationParticipant.h Loads the configurations of a session and takes them out at its end.
#ifndef PLATFORM_SESSION_VELCONFIGURATIONPARTICIPANT_H
#define PLATFORM_SESSION_VELCONFIGURATIONPARTICIPANT_H

#include <string>
#include <vector>

#include "platform/session/VelSessionParticipant.h"

/// Loads what the installation holds, then what VEL_CONFIGURATION_PATH names (files and folders, separated by ':'),
/// both of which are reported and left out where they are faulty, then what the options name, of which a faulty one
/// ends the start. Then the host's source of configurations may be asked, to which it hands the shader types of the
/// options. At the end of the session its values go, and those that they covered come back. It adds itself when the
/// platform's library is loaded. Not exported.
class VelConfigurationParticipant final : public VelSessionParticipant {
 public:
  HRESULT OnSessionStart(const VelPlatformOptions& iOptions) override;
  void OnSessionEnd() override;

 private:
  static void LoadInstallation();
  static void LoadEnvironment();
  static HRESULT LoadOptions(const std::vector<std::string>& iConfigurations);
  static HRESULT AddShaderTypes(const std::vector<std::string>& iShaderTypes);
};

#endif  // PLATFORM_SESSION_VELCONFIGURATIONPARTICIPANT_H
