// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTomlText.cpp Parses a TOML text into its values.
#include "platform/files/VelTomlText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <utility>

#include <toml++/toml.h>

#include "platform/base/VelExceptionText.h"
#include "platform/files/VelTomlGuard.h"

namespace {

VelTomlPosition PositionOf(const toml::source_position& iPosition) { return {iPosition.line, iPosition.column}; }

/// The shortest text that reads back as the same number, in whatever locale.
template <class Number>
std::string NumberText(Number iNumber) {
  constexpr std::size_t longest = 32;
  std::array<char, longest> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), iNumber).ptr;
  return {text.data(), end};
}

std::string RealText(double iReal) { return std::isnan(iReal) ? "nan" : NumberText(iReal); }

/// @return kind and text of a node that is no table
std::pair<VelTomlValue::Kind, std::string> Convert(const toml::node& iNode) {
  using Kind = VelTomlValue::Kind;
  switch (iNode.type()) {
    case toml::node_type::string:
      return {Kind::Text, iNode.as_string()->get()};
    case toml::node_type::integer:
      return {Kind::Scalar, NumberText(iNode.as_integer()->get())};
    case toml::node_type::floating_point:
      return {Kind::Scalar, RealText(iNode.as_floating_point()->get())};
    case toml::node_type::boolean:
      return {Kind::Scalar, iNode.as_boolean()->get() ? "true" : "false"};
    case toml::node_type::array:
      return {Kind::Foreign, iNode.is_array_of_tables() ? "an array of tables" : "an array"};
    case toml::node_type::date:
      return {Kind::Foreign, "a date"};
    case toml::node_type::time:
      return {Kind::Foreign, "a time"};
    case toml::node_type::date_time:
      return {Kind::Foreign, "a date and time"};
    case toml::node_type::none:
    case toml::node_type::table:
      break;
  }
  return {Kind::Foreign, "nothing"};
}

/// What the paths of all values may take, in bytes. Each value repeats the names of the tables around it, so that a
/// file of 4 MiB could ask for any amount of memory.
constexpr std::size_t pathLimit = 64U << 20U;

/// Walks through the tables without recursion.
/// @return false when the paths take too much
bool Flatten(const toml::table& iRoot, std::vector<VelTomlValue>& oValues) {
  struct Open {
    const toml::table* table;
    std::vector<std::string> path;
    std::size_t size;
  };
  std::size_t spent = 0;
  std::vector<Open> open{{&iRoot, {}, 0}};
  while (!open.empty()) {
    const Open current = std::move(open.back());
    open.pop_back();
    for (const auto& [key, node] : *current.table) {
      const std::size_t size = current.size + sizeof(std::string) + key.str().size();
      spent += size;
      if (spent > pathLimit) return false;
      std::vector<std::string> path = current.path;
      path.emplace_back(key.str());
      if (const toml::table* inner = node.as_table(); inner != nullptr) {
        open.push_back({inner, std::move(path), size});
        continue;
      }
      auto [kind, text] = Convert(node);
      oValues.push_back(
          {std::move(path), kind, std::move(text), PositionOf(key.source().begin), PositionOf(node.source().begin)});
    }
  }
  return true;
}

/// The library keeps its tables in the order of their keys.
void SortAsInTheText(std::vector<VelTomlValue>& ioValues) {
  std::sort(ioValues.begin(), ioValues.end(), [](const VelTomlValue& iLeft, const VelTomlValue& iRight) {
    return std::pair(iLeft.key.line, iLeft.key.column) < std::pair(iRight.key.line, iRight.key.column);
  });
}

}  // namespace

bool VelTomlText::Read(std::string_view iText, std::vector<VelTomlValue>& oValues, VelConfigurationFault& oFault) {
  if (!VelTomlGuard::Accepts(iText, oFault)) return false;
  try {
    std::vector<VelTomlValue> values;
    if (!Flatten(toml::parse(iText), values)) {
      oFault = {0, 0, "the keys, written out with the tables around them, take more than 64 MiB"};
      return false;
    }
    SortAsInTheText(values);
    oValues = std::move(values);
    return true;
  } catch (const toml::parse_error& error) {
    const VelTomlPosition position = PositionOf(error.source().begin);
    oFault = {position.line, position.column, std::string(error.description())};
  } catch (...) {
    oFault = {0, 0, VelExceptionText("the file cannot be parsed")};
  }
  return false;
}
