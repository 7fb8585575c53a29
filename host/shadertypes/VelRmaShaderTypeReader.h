// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaShaderTypeReader.h Turns the tree of a file into a shader type.
#ifndef HOST_SHADERTYPES_VELRMASHADERTYPEREADER_H
#define HOST_SHADERTYPES_VELRMASHADERTYPEREADER_H

#include <map>
#include <vector>

#include "host/shadertypes/VelRmaFaults.h"
#include "host/shadertypes/VelRmaNodes.h"
#include "host/shadertypes/VelRmaShaderType.h"
#include "host/shadertypes/VelRmaTable.h"
#include "platform/configuration/VelConfigurationNode.h"

/// docs/shader_types.md describes the files and all that is refused.
class VelRmaShaderTypeReader {
 public:
  /// @param[in] iName the type that the file is named after
  /// @param[in] iNodes the file's tree, untrusted
  /// @param[out] oType replaced; untouched when something is wrong
  /// @return all that is wrong, in the order of the text; empty for a sound file
  static std::vector<VelConfigurationFault> Read(const VelString& iName,
                                                 const std::vector<VelConfigurationNode>& iNodes,
                                                 VelRmaShaderType& oType);

 private:
  using Lines = std::map<VelString, unsigned>;  ///< Where words were first found.

  explicit VelRmaShaderTypeReader(const std::vector<VelConfigurationNode>& iNodes) : nodes_(iNodes) {}

  void ReadHead(const VelRmaTable& iFile, const VelString& iName);
  void ReadUsage(const VelRmaTable& iFile);
  void ReadVersion(const VelRmaTable& iFile);
  void ReadParameters(const VelRmaTable& iFile);
  bool HasUnknownTables() const;

  /// Reports a word that stands in the file already.
  /// @param[in] iWhat what it is, made to follow "the"
  /// @return false when it was reported
  bool RefuseSecond(const char* iWhat, const VelString& iWord, VelConfigurationPosition iPosition, Lines& ioLines);

  VelRmaNodes nodes_;
  VelRmaFaults faults_;
  VelRmaShaderType type_;
  bool areNamesKnown_ = true;  ///< Whether type_ has every parameter that the file names.
};

#endif  // HOST_SHADERTYPES_VELRMASHADERTYPEREADER_H
