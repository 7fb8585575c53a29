// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIConfigurationTreeReader.h Reads the text of any file that people write, arrays and places included.
#ifndef PLATFORM_CONFIGURATION_VELICONFIGURATIONTREEREADER_H
#define PLATFORM_CONFIGURATION_VELICONFIGURATIONTREEREADER_H

#include <string_view>
#include <vector>

#include "platform/base/VelPlatformApi.h"
#include "platform/configuration/VelConfigurationContent.h"
#include "platform/configuration/VelConfigurationNode.h"
#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"

VEL_PLATFORM_API extern const VelInterfaceId IID_VelIConfigurationTreeReader;

/// Turns a text into the tree of its tables, arrays and values, for those who give files a meaning of their own and
/// want to say where in a file something is wrong.
///
/// Implemented by: VelConfigurationReader, for late type "VelPlatformFiles".
/// Thread: the application thread. Re-entrancy: none.
class VEL_PLATFORM_API VelIConfigurationTreeReader : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelIConfigurationTreeReader);

  /// @param[in] iText the whole file, UTF-8, untrusted
  /// @param[out] oNodes replaced by the nodes: each after the one around it, those of one table or array in the order
  ///             of the text, without the table that is the whole file; untouched on failure
  /// @param[out] oFault the first thing that is wrong with the text; untouched on success
  /// @return S_OK; E_FAIL when something is wrong
  virtual HRESULT ReadTree(std::string_view iText, std::vector<VelConfigurationNode>& oNodes,
                           VelConfigurationFault& oFault) = 0;

 protected:
  ~VelIConfigurationTreeReader() = default;
};

using VelIConfigurationTreeReader_var = VelVar<VelIConfigurationTreeReader>;

#endif  // PLATFORM_CONFIGURATION_VELICONFIGURATIONTREEREADER_H
