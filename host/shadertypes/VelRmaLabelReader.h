// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaLabelReader.h Reads the labels of a type or a parameter.
#ifndef HOST_SHADERTYPES_VELRMALABELREADER_H
#define HOST_SHADERTYPES_VELRMALABELREADER_H

#include <cstddef>
#include <string_view>
#include <vector>

#include "host/shadertypes/VelRmaShaderType.h"
#include "host/shadertypes/VelRmaTable.h"

/// A label is one text, which is English, or a table of texts by language with an English one among them.
class VelRmaLabelReader {
 public:
  static constexpr std::string_view key = "label";
  static constexpr std::string_view expected = "a text, or a table of texts by language such as { en = \"Color\" }";

  /// @param[in] iTable the table whose key "label" is read
  explicit VelRmaLabelReader(const VelRmaTable& iTable) : table_(iTable) {}

  /// @return the labels; none where there is no such key, and where something was reported
  std::vector<VelRmaLabel> Read() const;

 private:
  std::vector<VelRmaLabel> ReadLanguages(std::size_t iTable) const;
  bool IsSound(const VelConfigurationNode& iText) const;

  const VelRmaTable& table_;
};

#endif  // HOST_SHADERTYPES_VELRMALABELREADER_H
