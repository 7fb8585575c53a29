// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TIEVelIConfigurationReader.h The forwarder of VelIConfigurationReader.
#ifndef PLATFORM_CONFIGURATION_TIEVELICONFIGURATIONREADER_H
#define PLATFORM_CONFIGURATION_TIEVELICONFIGURATIONREADER_H

#include "platform/configuration/VelIConfigurationReader.h"
#include "platform/objectmodeler/VelTie.h"

template <class Implementation>
class TIEVelIConfigurationReader final : public VelTie<VelIConfigurationReader> {
 public:
  using VelTie::VelTie;

  HRESULT ReadConfigurations(std::string_view iText, VelConfigurationContent& oContent,
                             VelConfigurationFault& oFault) override {
    return Forward<Implementation>(
        [&](Implementation& ioReader) { return ioReader.ReadConfigurations(iText, oContent, oFault); });
  }
  HRESULT ReadMessages(std::string_view iText, VelConfigurationContent& oContent,
                       VelConfigurationFault& oFault) override {
    return Forward<Implementation>(
        [&](Implementation& ioReader) { return ioReader.ReadMessages(iText, oContent, oFault); });
  }
};

#endif  // PLATFORM_CONFIGURATION_TIEVELICONFIGURATIONREADER_H
