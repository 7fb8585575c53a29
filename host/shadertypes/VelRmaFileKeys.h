// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaFileKeys.h The keys of a file of a shader type that stand in no other table.
#ifndef HOST_SHADERTYPES_VELRMAFILEKEYS_H
#define HOST_SHADERTYPES_VELRMAFILEKEYS_H

#include <array>
#include <string_view>

#include "host/shadertypes/VelRmaLabelReader.h"
#include "host/shadertypes/VelRmaTable.h"

/// What the file as a whole may have.
struct VelRmaFileKeys {
  static constexpr std::string_view parameter = "parameter";
  static constexpr std::string_view mapping = "mapping";

  static constexpr std::array all{
      VelRmaKey{"type", "the name of the type, which is that of the file without '.toml'"},
      VelRmaKey{"output", "the start-up of what the type produces, such as \"VelRmaColor\""},
      VelRmaKey{"usage", "\"any\" or a whole number from 0 to 4294967295"},
      VelRmaKey{"version", "a whole number from 1 to 4294967295"},
      VelRmaKey{"parent", "the name of a configuration"},
      VelRmaKey{VelRmaLabelReader::key, VelRmaLabelReader::expected},
      VelRmaKey{parameter, "tables, each below a header [[parameter]]"},
      VelRmaKey{mapping, "a table of mapping readers"},
  };

  /// @return true for a key that has no header of its own, so that it must stand before all headers
  static constexpr bool IsOfHead(std::string_view iName) {
    if (iName == parameter || iName == mapping) return false;
    for (const VelRmaKey& key : all) {
      if (key.name == iName) return true;
    }
    return false;
  }
};

#endif  // HOST_SHADERTYPES_VELRMAFILEKEYS_H
