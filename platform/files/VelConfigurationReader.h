// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelConfigurationReader.h Reads files written in TOML: configurations, messages, and any other.
#ifndef PLATFORM_FILES_VELCONFIGURATIONREADER_H
#define PLATFORM_FILES_VELCONFIGURATIONREADER_H

#include <string_view>
#include <vector>

#include "platform/configuration/VelConfigurationContent.h"
#include "platform/configuration/VelConfigurationNode.h"
#include "platform/objectmodeler/VelImplementation.h"

/// Answers VelIConfigurationReader and VelIConfigurationTreeReader. It has no state.
class VelConfigurationReader final : public VelImplementation {
 public:
  using VelImplementation::VelImplementation;

  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  static HRESULT ReadConfigurations(std::string_view iText, VelConfigurationContent& oContent,
                                    VelConfigurationFault& oFault);
  static HRESULT ReadMessages(std::string_view iText, VelConfigurationContent& oContent, VelConfigurationFault& oFault);
  static HRESULT ReadTree(std::string_view iText, std::vector<VelConfigurationNode>& oNodes,
                          VelConfigurationFault& oFault);
};

#endif  // PLATFORM_FILES_VELCONFIGURATIONREADER_H
