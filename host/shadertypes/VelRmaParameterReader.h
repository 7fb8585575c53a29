// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaParameterReader.h Reads a parameter of a shader type.
#ifndef HOST_SHADERTYPES_VELRMAPARAMETERREADER_H
#define HOST_SHADERTYPES_VELRMAPARAMETERREADER_H

#include <cstddef>
#include <string>
#include <vector>

#include "host/shadertypes/VelRmaFaults.h"
#include "host/shadertypes/VelRmaNodes.h"
#include "host/shadertypes/VelRmaShaderType.h"
#include "host/shadertypes/VelRmaTable.h"

/// One table below a header [[parameter]].
class VelRmaParameterReader {
 public:
  /// @param[in] iTable the place of the table
  VelRmaParameterReader(const VelRmaNodes& iNodes, std::size_t iTable, VelRmaFaults& ioFaults);

  /// @return the parameter, without what was reported; its name is empty where that is not known
  VelRmaShaderParameter Read();

  /// @return where the name stands
  VelConfigurationPosition NamePosition() const noexcept { return namePosition_; }

  /// @return where the slot stands
  VelConfigurationPosition SlotPosition() const noexcept { return slotPosition_; }

  /// Reports a text that is no start-up.
  static void RefuseStartUp(const VelConfigurationNode& iText, VelRmaFaults& ioFaults);

 private:
  void ReadName();
  void ReadDefault();
  void ReadTags();
  bool Suits(const VelConfigurationNode& iTag);
  void ReadSlot();
  void ReadLayout();

  const VelRmaNodes& nodes_;
  VelRmaFaults& faults_;
  VelRmaTable table_;
  VelConfigurationPosition namePosition_;
  VelConfigurationPosition slotPosition_;
  VelRmaShaderParameter parameter_;
  std::vector<std::string> tags_;
};

#endif  // HOST_SHADERTYPES_VELRMAPARAMETERREADER_H
