// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaNodes.cpp Links the nodes of a tree.
#include "host/shadertypes/VelRmaNodes.h"

VelRmaNodes::VelRmaNodes(const std::vector<VelConfigurationNode>& iNodes)
    : nodes_(iNodes), first_(iNodes.size(), none), next_(iNodes.size(), none) {
  // From the last to the first, so that each is put before those that follow it.
  for (std::size_t i = iNodes.size(); i-- > 0;) {
    const std::size_t parent = iNodes[i].parent;
    if (parent != root && parent >= i) continue;
    std::size_t& first = parent == root ? firstOfRoot_ : first_[parent];
    next_[i] = first;
    first = i;
  }
}

std::vector<std::size_t> VelRmaNodes::Inner(std::size_t iNode) const {
  std::vector<std::size_t> inner;
  for (std::size_t i = First(iNode); i != none; i = next_[i]) inner.push_back(i);
  return inner;
}
