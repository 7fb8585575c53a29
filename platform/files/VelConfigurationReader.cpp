// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelConfigurationReader.cpp Forwards the operations of the interfaces.
#include "platform/files/VelConfigurationReader.h"

#include "platform/files/VelConfigurationText.h"
#include "platform/files/VelTomlTree.h"

HRESULT VelConfigurationReader::ReadConfigurations(std::string_view iText, VelConfigurationContent& oContent,
                                                   VelConfigurationFault& oFault) {
  return VelConfigurationText::Read(iText, VelConfigurationText::Form::Configurations, oContent, oFault) ? S_OK
                                                                                                         : E_FAIL;
}

HRESULT VelConfigurationReader::ReadMessages(std::string_view iText, VelConfigurationContent& oContent,
                                             VelConfigurationFault& oFault) {
  return VelConfigurationText::Read(iText, VelConfigurationText::Form::Messages, oContent, oFault) ? S_OK : E_FAIL;
}

HRESULT VelConfigurationReader::ReadTree(std::string_view iText, std::vector<VelConfigurationNode>& oNodes,
                                         VelConfigurationFault& oFault) {
  return VelTomlTree::Read(iText, oNodes, oFault) ? S_OK : E_FAIL;
}
