// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TIEVelIConfigurationTreeReader.h The forwarder of VelIConfigurationTreeReader.
#ifndef PLATFORM_CONFIGURATION_TIEVELICONFIGURATIONTREEREADER_H
#define PLATFORM_CONFIGURATION_TIEVELICONFIGURATIONTREEREADER_H

#include "platform/configuration/VelIConfigurationTreeReader.h"
#include "platform/objectmodeler/VelTie.h"

template <class Implementation>
class TIEVelIConfigurationTreeReader final : public VelTie<VelIConfigurationTreeReader> {
 public:
  using VelTie::VelTie;

  HRESULT ReadTree(std::string_view iText, std::vector<VelConfigurationNode>& oNodes,
                   VelConfigurationFault& oFault) override {
    return Forward<Implementation>([&](Implementation& ioReader) { return ioReader.ReadTree(iText, oNodes, oFault); });
  }
};

#endif  // PLATFORM_CONFIGURATION_TIEVELICONFIGURATIONTREEREADER_H
