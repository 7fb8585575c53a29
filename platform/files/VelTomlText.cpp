// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTomlText.cpp Writes the paths of the values of a TOML text out.
#include "platform/files/VelTomlText.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "platform/configuration/VelConfigurationNode.h"
#include "platform/files/VelTomlTree.h"

namespace {

using Nodes = std::vector<VelConfigurationNode>;
using Kind = VelConfigurationNode::Kind;

/// What the paths of all values may take, in bytes. Each value repeats the names of the tables around it, so that a
/// file of 4 MiB could ask for any amount of memory.
constexpr std::size_t pathLimit = 64U << 20U;

bool IsIn(const VelConfigurationNode& iNode, const Nodes& iNodes, Kind iKind) {
  return iNode.parent != VelConfigurationNode::noParent && iNodes[iNode.parent].kind == iKind;
}

/// @return whether the array at a place holds tables and nothing else, of which the first follows it
bool IsOfTables(const Nodes& iNodes, std::size_t iArray) {
  bool hasTable = false;
  for (std::size_t i = iArray + 1; i < iNodes.size() && iNodes[i].parent >= iArray; ++i) {
    if (iNodes[i].parent == VelConfigurationNode::noParent) break;
    if (iNodes[i].parent != iArray) continue;
    if (iNodes[i].kind != Kind::Table) return false;
    hasTable = true;
  }
  return hasTable;
}

/// @return kind and text of a node that is no table
std::pair<VelTomlValue::Kind, std::string> Convert(const Nodes& iNodes, std::size_t iNode) {
  const VelConfigurationNode& node = iNodes[iNode];
  switch (node.kind) {
    case Kind::Text:
      return {VelTomlValue::Kind::Text, node.text};
    case Kind::Integer:
    case Kind::Real:
    case Kind::Boolean:
      return {VelTomlValue::Kind::Scalar, node.text};
    case Kind::Array:
      return {VelTomlValue::Kind::Foreign, IsOfTables(iNodes, iNode) ? "an array of tables" : "an array"};
    case Kind::Moment:
    case Kind::Table:
      break;
  }
  return {VelTomlValue::Kind::Foreign, node.text};
}

std::vector<std::string> PathOf(const Nodes& iNodes, std::size_t iNode) {
  std::vector<std::string> path;
  for (std::size_t i = iNode; i != VelConfigurationNode::noParent; i = iNodes[i].parent) path.push_back(iNodes[i].name);
  std::reverse(path.begin(), path.end());
  return path;
}

/// @return false when the paths take too much
bool Flatten(const Nodes& iNodes, std::vector<VelTomlValue>& oValues) {
  std::size_t spent = 0;
  std::vector<std::size_t> sizes(iNodes.size());  // What the path of each node takes; 0 for what an array holds.
  for (std::size_t i = 0; i < iNodes.size(); ++i) {
    const VelConfigurationNode& node = iNodes[i];
    const bool isOutermost = node.parent == VelConfigurationNode::noParent;
    if (!isOutermost && (sizes[node.parent] == 0 || IsIn(node, iNodes, Kind::Array))) continue;
    sizes[i] = (isOutermost ? 0 : sizes[node.parent]) + sizeof(std::string) + node.name.size();
    spent += sizes[i];
    if (spent > pathLimit) return false;
    if (node.kind == Kind::Table) continue;
    auto [kind, text] = Convert(iNodes, i);
    oValues.push_back({PathOf(iNodes, i), kind, std::move(text), node.key, node.position});
  }
  return true;
}

/// A table may be opened again further down.
void SortAsInTheText(std::vector<VelTomlValue>& ioValues) {
  std::sort(ioValues.begin(), ioValues.end(), [](const VelTomlValue& iLeft, const VelTomlValue& iRight) {
    return std::pair(iLeft.key.line, iLeft.key.column) < std::pair(iRight.key.line, iRight.key.column);
  });
}

}  // namespace

bool VelTomlText::Read(std::string_view iText, std::vector<VelTomlValue>& oValues, VelConfigurationFault& oFault) {
  Nodes nodes;
  if (!VelTomlTree::Read(iText, nodes, oFault)) return false;
  std::vector<VelTomlValue> values;
  if (!Flatten(nodes, values)) {
    oFault = {0, 0, "the keys, written out with the tables around them, take more than 64 MiB"};
    return false;
  }
  SortAsInTheText(values);
  oValues = std::move(values);
  return true;
}
