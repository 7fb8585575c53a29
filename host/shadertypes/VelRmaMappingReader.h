// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaMappingReader.h Reads by which parameters a shader type is mapped.
#ifndef HOST_SHADERTYPES_VELRMAMAPPINGREADER_H
#define HOST_SHADERTYPES_VELRMAMAPPINGREADER_H

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "host/shadertypes/VelRmaFaults.h"
#include "host/shadertypes/VelRmaNodes.h"
#include "host/shadertypes/VelRmaShaderType.h"
#include "host/shadertypes/VelRmaTable.h"

/// The table "mapping", each key of which is one of the component's mapping readers.
class VelRmaMappingReader {
 public:
  /// @param[in] iParameters those of the type, kept by the caller
  /// @param[in] iAreNamesKnown false when a name was refused: nobody knows then which one a reader means
  VelRmaMappingReader(const VelRmaNodes& iNodes, const std::vector<VelRmaShaderParameter>& iParameters,
                      bool iAreNamesKnown, VelRmaFaults& ioFaults)
      : nodes_(iNodes), parameters_(iParameters), areNamesKnown_(iAreNamesKnown), faults_(ioFaults) {}

  /// @param[in] iTable the place of the table
  /// @param[in,out] oKeys the keys of the configuration are appended
  void Read(std::size_t iTable, std::vector<VelRmaMappingKey>& oKeys);

  /// @return true for the beginning of a reader's keys, which is no name for a parameter
  static bool IsReserved(std::string_view iName);

 private:
  struct Row;

  static const Row rows[];

  void ReadOne(const Row& iRow, std::size_t iTable, std::vector<VelRmaMappingKey>& oKeys);
  VelString ReadParameters(const Row& iRow, const VelRmaTable& iTable, std::size_t iNames);
  bool Suits(const Row& iRow, const VelConfigurationNode& iName);
  VelString ReadDefault(const Row& iRow, const VelRmaTable& iTable, std::size_t iNode);

  const VelRmaNodes& nodes_;
  const std::vector<VelRmaShaderParameter>& parameters_;
  bool areNamesKnown_;
  VelRmaFaults& faults_;
};

#endif  // HOST_SHADERTYPES_VELRMAMAPPINGREADER_H
