// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TIEVelIConfigurationSource.h The forwarder of VelIConfigurationSource.
#ifndef PLATFORM_CONFIGURATION_TIEVELICONFIGURATIONSOURCE_H
#define PLATFORM_CONFIGURATION_TIEVELICONFIGURATIONSOURCE_H

#include "platform/configuration/VelIConfigurationSource.h"
#include "platform/objectmodeler/VelTie.h"

template <class Implementation>
class TIEVelIConfigurationSource final : public VelTie<VelIConfigurationSource> {
 public:
  using VelTie::VelTie;

  HRESULT AddPath(const std::string& iPath) override {
    return Forward<Implementation>([&](Implementation& ioSource) { return ioSource.AddPath(iPath); });
  }
  HRESULT ListConfigurations(std::vector<VelString>& oNames) override {
    return Forward<Implementation>([&](Implementation& ioSource) { return ioSource.ListConfigurations(oNames); });
  }
  HRESULT ReadConfiguration(const VelString& iName, VelSourcedConfiguration& oContent) override {
    return Forward<Implementation>(
        [&](Implementation& ioSource) { return ioSource.ReadConfiguration(iName, oContent); });
  }
};

#endif  // PLATFORM_CONFIGURATION_TIEVELICONFIGURATIONSOURCE_H
