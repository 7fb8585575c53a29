// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaNodes.h The tree of a file, from its tables down to its values.
#ifndef HOST_SHADERTYPES_VELRMANODES_H
#define HOST_SHADERTYPES_VELRMANODES_H

#include <cstddef>
#include <vector>

#include "platform/configuration/VelConfigurationNode.h"

/// Finds what stands in a table or an array.
class VelRmaNodes {
 public:
  /// The table that is the whole file.
  static constexpr std::size_t root = VelConfigurationNode::noParent;

  /// @param[in] iNodes as VelIConfigurationTreeReader gives them; kept by the caller. A node that names one behind it
  ///            as the one around it is left out.
  explicit VelRmaNodes(const std::vector<VelConfigurationNode>& iNodes);

  const VelConfigurationNode& operator[](std::size_t iNode) const { return nodes_[iNode]; }

  /// @return the places of the nodes in a table or an array, in order
  std::vector<std::size_t> Inner(std::size_t iNode) const;

 private:
  static constexpr std::size_t none = VelConfigurationNode::noParent;

  std::size_t First(std::size_t iNode) const { return iNode == root ? firstOfRoot_ : first_[iNode]; }

  const std::vector<VelConfigurationNode>& nodes_;
  std::size_t firstOfRoot_ = none;
  std::vector<std::size_t> first_;  ///< Of each node, the first in it.
  std::vector<std::size_t> next_;   ///< Of each node, the next beside it.
};

#endif  // HOST_SHADERTYPES_VELRMANODES_H
