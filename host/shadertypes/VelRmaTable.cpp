// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaTable.cpp Looks keys up, and words what is wrong with them.
#include "host/shadertypes/VelRmaTable.h"

#include <algorithm>
#include <utility>

#include "host/shadertypes/VelRmaFileKeys.h"

VelRmaTable::VelRmaTable(const VelRmaNodes& iNodes, std::size_t iTable, std::string_view iOf,
                         std::span<const VelRmaKey> iKeys, VelRmaFaults& ioFaults)
    : nodes_(iNodes), table_(iTable), keys_(iKeys), faults_(ioFaults) {
  std::vector<std::string_view> words;
  for (const VelRmaKey& key : iKeys) words.push_back(key.name);
  const std::string expected = " of " + std::string(iOf) + "; expected " + VelRmaFaults::Choice(words);
  for (const std::size_t inner : iNodes.Inner(iTable)) {
    const std::string& name = iNodes[inner].name;
    if (std::find(words.begin(), words.end(), name) != words.end()) continue;
    std::string cause = "unknown key " + VelRmaFaults::Quote(name) + expected;
    if (const std::string hint = HintOfMisplaced(iNodes, iTable, inner, faults_); !hint.empty()) {
      faults_.Add(iNodes[inner].key, cause + hint);
      continue;
    }
    const std::string_view meant = faults_.AddUnknown(iNodes[inner].key, std::move(cause), name, words);
    if (!meant.empty()) misspelt_.push_back(meant);
  }
}

/// What stands in a line below the header of a table was often written for the file. What stands in an inline table,
/// which ends in its line, was not, and what stands in a table of a parameter may have been written for the parameter.
std::string VelRmaTable::HintOfMisplaced(const VelRmaNodes& iNodes, std::size_t iTable, std::size_t iInner,
                                         VelRmaFaults& ioFaults) {
  const VelConfigurationNode& node = iNodes[iInner];
  if (iTable == VelRmaNodes::root || iNodes[iTable].position.line == node.key.line) return {};
  const std::size_t outer = iNodes[iTable].parent;
  const bool isOfFile = outer == VelRmaNodes::root || iNodes[outer].kind == Kind::Array;
  if (!isOfFile || !VelRmaFileKeys::IsOfHead(node.name)) return {};
  ioFaults.Misplace(node.name);
  return "; '" + node.name + "' is a key of the file, and stands before the first header such as [[parameter]]";
}

bool VelRmaTable::IsMisspelt(std::string_view iKey) const {
  return std::find(misspelt_.begin(), misspelt_.end(), iKey) != misspelt_.end();
}

std::optional<std::size_t> VelRmaTable::Find(std::string_view iKey) const {
  for (const std::size_t inner : nodes_.Inner(table_)) {
    if (nodes_[inner].name == iKey) return inner;
  }
  return std::nullopt;
}

std::optional<std::size_t> VelRmaTable::Require(std::string_view iKey) const {
  const auto found = Find(iKey);
  if (found) return found;
  if (IsMisspelt(iKey) || (table_ == VelRmaNodes::root && faults_.IsMisplaced(iKey))) return std::nullopt;
  const VelConfigurationPosition position =
      table_ == VelRmaNodes::root ? VelConfigurationPosition{1, 1} : nodes_[table_].position;
  faults_.Add(position, "the key '" + std::string(iKey) + "' is missing; expected " + std::string(Expected(iKey)));
  return std::nullopt;
}

std::optional<std::size_t> VelRmaTable::Take(std::string_view iKey, std::optional<std::size_t> iNode,
                                             Kind iKind) const {
  if (!iNode || nodes_[*iNode].kind == iKind) return iNode;
  Refuse(iKey, *iNode);
  return std::nullopt;
}

void VelRmaTable::Refuse(std::string_view iKey, std::size_t iNode) const {
  std::string found = VelRmaFaults::Describe(nodes_[iNode]);
  if (nodes_[iNode].kind == Kind::Array) found += " of " + std::to_string(nodes_.Inner(iNode).size());
  faults_.Add(nodes_[iNode].position,
              "'" + std::string(iKey) + "': expected " + std::string(Expected(iKey)) + ", found " + found);
}

std::string_view VelRmaTable::Expected(std::string_view iKey) const {
  const auto key =
      std::find_if(keys_.begin(), keys_.end(), [&](const VelRmaKey& iKnown) { return iKnown.name == iKey; });
  return key != keys_.end() ? key->expected : "another value";
}
