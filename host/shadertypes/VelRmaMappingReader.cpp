// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaMappingReader.cpp The table of the mapping readers, and the names and numbers that each takes.
#include "host/shadertypes/VelRmaMappingReader.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>

namespace {

using Kind = VelConfigurationNode::Kind;

constexpr std::array readers{
    VelRmaKey{"flip", "a table"},  VelRmaKey{"offset", "a table"},   VelRmaKey{"ratio", "a table"},
    VelRmaKey{"scale", "a table"}, VelRmaKey{"rotation", "a table"},
};

constexpr std::array pairKeys{
    VelRmaKey{"parameters", "an array of one or two names of parameters"},
    VelRmaKey{"default", "an array of 2 numbers"},
};

constexpr std::array singleKeys{
    VelRmaKey{"parameters", "an array of one name of a parameter"},
    VelRmaKey{"default", "a number in radians, or a text such as \"45 deg\""},
};

constexpr std::array booleans{std::string_view("VelRmaBoolean")};
constexpr std::array numbers{std::string_view("VelRmaScalar"), std::string_view("VelRmaInteger"),
                             std::string_view("VelRmaColor")};

}  // namespace

struct VelRmaMappingReader::Row {
  std::string_view word;
  std::string_view key;
  std::size_t count;                           ///< Of the numbers, and of the names at most.
  std::span<const std::string_view> startUps;  ///< Of the parameters.
};

const VelRmaMappingReader::Row VelRmaMappingReader::rows[] = {
    {"flip", "MappingFlip", 2, booleans},        {"offset", "MappingOffset", 2, numbers},
    {"ratio", "MappingRatio", 2, numbers},       {"scale", "MappingScale", 2, numbers},
    {"rotation", "MappingRotation", 1, numbers},
};

bool VelRmaMappingReader::IsReserved(std::string_view iName) {
  return std::any_of(std::begin(rows), std::end(rows), [&](const Row& iRow) { return iRow.key == iName; });
}

void VelRmaMappingReader::Read(std::size_t iTable, std::vector<VelRmaMappingKey>& oKeys) {
  const VelRmaTable table(nodes_, iTable, "a mapping", readers, faults_);
  for (const Row& row : rows) {
    const auto found = table.Take(row.word, table.Find(row.word), Kind::Table);
    if (found) ReadOne(row, *found, oKeys);
  }
}

void VelRmaMappingReader::ReadOne(const Row& iRow, std::size_t iTable, std::vector<VelRmaMappingKey>& oKeys) {
  const std::span<const VelRmaKey> keys = iRow.count == 2 ? std::span<const VelRmaKey>(pairKeys) : singleKeys;
  const VelRmaTable table(nodes_, iTable, "a mapping reader", keys, faults_);
  const VelString key{iRow.key};
  const auto names = table.Find("parameters");
  const auto value = table.Find("default");
  if (names) oKeys.push_back({key + ".ParameterValue", ReadParameters(iRow, table, *names)});
  if (value) oKeys.push_back({key + ".DefaultValue", ReadDefault(iRow, table, *value)});
  // Names that a configuration above gives would hide the default.
  if (value && !names) oKeys.push_back({key + ".ParameterValue", {}});
  if (names.has_value() != value.has_value() || table.IsMisspelt("parameters") || table.IsMisspelt("default")) return;
  faults_.Add(nodes_[iTable].position, "expected the key 'parameters' or 'default' of '" + std::string(iRow.word) +
                                           "', found " + (names ? "both" : "neither"));
}

VelString VelRmaMappingReader::ReadParameters(const Row& iRow, const VelRmaTable& iTable, std::size_t iNames) {
  const std::vector<std::size_t> inner = nodes_.Inner(iNames);
  if (nodes_[iNames].kind != Kind::Array || inner.empty() || inner.size() > iRow.count) {
    iTable.Refuse("parameters", iNames);
    return {};
  }
  std::string names;
  for (const std::size_t one : inner) {
    if (nodes_[one].kind != Kind::Text) {
      iTable.Refuse("parameters", one);
    } else if (Suits(iRow, nodes_[one])) {
      names += (names.empty() ? "" : " ") + nodes_[one].text;
    }
  }
  return VelString(names);
}

bool VelRmaMappingReader::Suits(const Row& iRow, const VelConfigurationNode& iName) {
  std::vector<std::string_view> known;
  for (const VelRmaShaderParameter& parameter : parameters_) known.push_back(parameter.name.View());
  const auto found = std::find(known.begin(), known.end(), iName.text);
  if (found == known.end() && !areNamesKnown_) return false;
  if (found == known.end()) {
    faults_.AddUnknown(iName.position, "there is no parameter " + VelRmaFaults::Quote(iName.text), iName.text, known);
    return false;
  }
  const VelString& startUp = parameters_[static_cast<std::size_t>(found - known.begin())].startUp;
  if (startUp.IsEmpty()) return false;
  if (std::find(iRow.startUps.begin(), iRow.startUps.end(), startUp.View()) != iRow.startUps.end()) return true;
  faults_.Add(iName.position, "the parameter " + VelRmaFaults::Quote(iName.text) + " is a " + startUp.CString() +
                                  "; '" + std::string(iRow.word) + "' takes " + VelRmaFaults::Choice(iRow.startUps));
  return false;
}

VelString VelRmaMappingReader::ReadDefault(const Row& iRow, const VelRmaTable& iTable, std::size_t iNode) {
  const bool isPair = iRow.count == 2;
  std::vector<std::size_t> places{iNode};
  if (isPair) places = nodes_.Inner(iNode);
  if (isPair && (nodes_[iNode].kind != Kind::Array || places.size() != iRow.count)) {
    iTable.Refuse("default", iNode);
    return {};
  }
  const auto dimension = isPair ? VelRmaUnits::Dimension::None : VelRmaUnits::Dimension::Angle;
  std::vector<float> reals;
  for (const std::size_t place : places) {
    const auto real =
        VelRmaDefaultValue::ReadNumber(nodes_[place], dimension, isPair ? "a number" : singleKeys[1].expected, faults_);
    if (real) reals.push_back(*real);
  }
  return VelString(VelRmaDefaultValue::TextOf(reals));
}
