// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelConfigurationNode.h A table, an array or a value of a file that people write, and where it stands.
#ifndef PLATFORM_CONFIGURATION_VELCONFIGURATIONNODE_H
#define PLATFORM_CONFIGURATION_VELCONFIGURATIONNODE_H

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>

/// A place in a text, both counted from 1, columns in code points; 0 for none.
struct VelConfigurationPosition {
  unsigned line = 0;
  unsigned column = 0;
};

/// One node of a file's tree.
struct VelConfigurationNode {
  enum class Kind : std::uint8_t {
    Table,    ///< Named nodes: a table under a header, an inline table, or what dotted keys share.
    Array,    ///< Nodes without a name, an array of tables among them.
    Text,     ///< As it was written.
    Integer,  ///< In decimal.
    Real,     ///< The shortest text that reads back as the same number; "inf", "-inf" or "nan".
    Boolean,  ///< "true" or "false".
    Moment,   ///< A date, a time or both; the text says which ("a date").
  };

  /// Of a node that stands in no other one.
  static constexpr std::size_t noParent = std::numeric_limits<std::size_t>::max();

  std::size_t parent = noParent;      ///< The place of the table or array around it in the list of nodes.
  Kind kind = Kind::Table;            ///< What it is.
  std::string name;                   ///< Its key in the table around it; empty in an array.
  std::string text;                   ///< What a value says; empty for a table and an array.
  VelConfigurationPosition key;       ///< Of the name; in an array that of the node itself.
  VelConfigurationPosition position;  ///< Of the node itself.
};

#endif  // PLATFORM_CONFIGURATION_VELCONFIGURATIONNODE_H
