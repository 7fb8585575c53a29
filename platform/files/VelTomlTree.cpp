// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTomlTree.cpp Parses with the TOML library and copies what it made.
#include "platform/files/VelTomlTree.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <string>
#include <utility>

#include <toml++/toml.h>

#include "platform/base/VelExceptionText.h"
#include "platform/files/VelTomlGuard.h"

namespace {

using Kind = VelConfigurationNode::Kind;

VelConfigurationPosition PositionOf(const toml::source_position& iPosition) {
  return {iPosition.line, iPosition.column};
}

/// The shortest text that reads back as the same number, in whatever locale.
template <class Number>
std::string NumberText(Number iNumber) {
  constexpr std::size_t longest = 32;
  std::array<char, longest> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), iNumber).ptr;
  return {text.data(), end};
}

std::string RealText(double iReal) { return std::isnan(iReal) ? "nan" : NumberText(iReal); }

/// @return kind and text of a node
std::pair<Kind, std::string> Convert(const toml::node& iNode) {
  switch (iNode.type()) {
    case toml::node_type::string:
      return {Kind::Text, iNode.as_string()->get()};
    case toml::node_type::integer:
      return {Kind::Integer, NumberText(iNode.as_integer()->get())};
    case toml::node_type::floating_point:
      return {Kind::Real, RealText(iNode.as_floating_point()->get())};
    case toml::node_type::boolean:
      return {Kind::Boolean, iNode.as_boolean()->get() ? "true" : "false"};
    case toml::node_type::array:
      return {Kind::Array, {}};
    case toml::node_type::date:
      return {Kind::Moment, "a date"};
    case toml::node_type::time:
      return {Kind::Moment, "a time"};
    case toml::node_type::date_time:
      return {Kind::Moment, "a date and time"};
    case toml::node_type::none:
    case toml::node_type::table:
      break;
  }
  return {Kind::Table, {}};
}

/// A node of the library that is still to be copied.
struct Pending {
  const toml::node* node;
  const toml::key* key;  ///< Null in an array.
  std::size_t parent;

  VelConfigurationPosition KeyPosition() const {
    return PositionOf(key != nullptr ? key->source().begin : node->source().begin);
  }
};

/// Appends what stands in a table or an array, the last first. The library keeps its tables in the order of their keys.
void AppendInner(const toml::node& iNode, std::size_t iParent, std::vector<Pending>& ioPending) {
  const std::size_t begin = ioPending.size();
  if (const toml::array* array = iNode.as_array(); array != nullptr) {
    for (const toml::node& element : *array) ioPending.push_back({&element, nullptr, iParent});
    std::reverse(ioPending.begin() + static_cast<std::ptrdiff_t>(begin), ioPending.end());
  }
  if (const toml::table* table = iNode.as_table(); table != nullptr) {
    for (const auto& [key, node] : *table) ioPending.push_back({&node, &key, iParent});
    std::sort(ioPending.begin() + static_cast<std::ptrdiff_t>(begin), ioPending.end(),
              [](const Pending& iLeft, const Pending& iRight) {
                const VelConfigurationPosition left = iLeft.KeyPosition();
                const VelConfigurationPosition right = iRight.KeyPosition();
                return std::pair(left.line, left.column) > std::pair(right.line, right.column);
              });
  }
}

/// Walks through the tree without recursion.
std::vector<VelConfigurationNode> Copy(const toml::table& iRoot) {
  std::vector<VelConfigurationNode> nodes;
  std::vector<Pending> pending;
  AppendInner(iRoot, VelConfigurationNode::noParent, pending);
  while (!pending.empty()) {
    const Pending next = pending.back();
    pending.pop_back();
    auto [kind, text] = Convert(*next.node);
    const std::string name(next.key != nullptr ? next.key->str() : std::string_view());
    nodes.push_back(
        {next.parent, kind, name, std::move(text), next.KeyPosition(), PositionOf(next.node->source().begin)});
    AppendInner(*next.node, nodes.size() - 1, pending);
  }
  return nodes;
}

}  // namespace

bool VelTomlTree::Read(std::string_view iText, std::vector<VelConfigurationNode>& oNodes,
                       VelConfigurationFault& oFault) {
  if (!VelTomlGuard::Accepts(iText, oFault)) return false;
  try {
    oNodes = Copy(toml::parse(iText));
    return true;
  } catch (const toml::parse_error& error) {
    const VelConfigurationPosition position = PositionOf(error.source().begin);
    oFault = {position.line, position.column, std::string(error.description())};
  } catch (...) {
    oFault = {0, 0, VelExceptionText("the file cannot be parsed")};
  }
  return false;
}
