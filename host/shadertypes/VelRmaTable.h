// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaTable.h A table of a file whose keys are known.
#ifndef HOST_SHADERTYPES_VELRMATABLE_H
#define HOST_SHADERTYPES_VELRMATABLE_H

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "host/shadertypes/VelRmaFaults.h"
#include "host/shadertypes/VelRmaNodes.h"

/// A key that a table may have.
struct VelRmaKey {
  std::string_view name;
  std::string_view expected;  ///< What its value is, made to follow "expected".
};

/// Takes the values of a table by their keys, and reports what is unknown, missing or of another kind.
class VelRmaTable {
 public:
  using Kind = VelConfigurationNode::Kind;

  /// Reports the keys that are not known.
  /// @param[in] iTable a table of the nodes, or their root
  /// @param[in] iOf what the table is, made to follow "of", for instance "a parameter"
  /// @param[in] iKeys all keys that it may have; stays as long as this object
  VelRmaTable(const VelRmaNodes& iNodes, std::size_t iTable, std::string_view iOf, std::span<const VelRmaKey> iKeys,
              VelRmaFaults& ioFaults);

  /// @param[in] iKey one of the known keys
  /// @return the place of its value; nothing when it is not there
  std::optional<std::size_t> Find(std::string_view iKey) const;

  /// As Find, and reports a key that is missing, unless it was found misspelt or in another table.
  std::optional<std::size_t> Require(std::string_view iKey) const;

  /// @return true when an unknown key was reported that is near to this one
  bool IsMisspelt(std::string_view iKey) const;

  /// Words where a key of the file belongs that stands below a header, and remembers it.
  /// @param[in] iTable the table in which it stands
  /// @param[in] iInner its place
  /// @return made to follow a cause; empty for every other key
  static std::string HintOfMisplaced(const VelRmaNodes& iNodes, std::size_t iTable, std::size_t iInner,
                                     VelRmaFaults& ioFaults);

  /// Takes a value of one kind, and reports one of another.
  /// @param[in] iNode what Find or Require gave
  /// @return the place of the value; nothing where there is none of the kind
  std::optional<std::size_t> Take(std::string_view iKey, std::optional<std::size_t> iNode, Kind iKind) const;

  /// Reports that a value is none that the key may have.
  void Refuse(std::string_view iKey, std::size_t iNode) const;

  const VelRmaNodes& Nodes() const noexcept { return nodes_; }
  VelRmaFaults& Faults() const noexcept { return faults_; }

 private:
  std::string_view Expected(std::string_view iKey) const;

  const VelRmaNodes& nodes_;
  std::size_t table_;
  std::span<const VelRmaKey> keys_;
  VelRmaFaults& faults_;
  std::vector<std::string_view> misspelt_;  ///< The known keys that unknown ones are near to.
};

#endif  // HOST_SHADERTYPES_VELRMATABLE_H
