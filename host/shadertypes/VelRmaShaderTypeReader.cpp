// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaShaderTypeReader.cpp The keys of a file, and what stands in no parameter.
#include "host/shadertypes/VelRmaShaderTypeReader.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <string>
#include <system_error>
#include <utility>

#include "host/shadertypes/VelRmaFileKeys.h"
#include "host/shadertypes/VelRmaLabelReader.h"
#include "host/shadertypes/VelRmaMappingReader.h"
#include "host/shadertypes/VelRmaParameterReader.h"
#include "platform/configuration/VelRbaConfiguration.h"

namespace {

using Kind = VelConfigurationNode::Kind;

constexpr std::string_view anyUsage = "any";

/// What a manager is asked for when it shall look for new types.
constexpr std::uint32_t usageOfQuestion = 1;

std::optional<std::uint32_t> NumberOf(const VelConfigurationNode& iNode) {
  std::uint32_t number = 0;
  if (iNode.kind != Kind::Integer) return std::nullopt;
  const char* const end = iNode.text.data() + iNode.text.size();
  const auto [stop, error] = std::from_chars(iNode.text.data(), end, number);
  if (error != std::errc() || stop != end) return std::nullopt;
  return number;
}

}  // namespace

std::vector<VelConfigurationFault> VelRmaShaderTypeReader::Read(const VelString& iName,
                                                                const std::vector<VelConfigurationNode>& iNodes,
                                                                VelRmaShaderType& oType) {
  VelRmaShaderTypeReader reader(iNodes);
  const VelRmaTable file(reader.nodes_, VelRmaNodes::root, "a shader type", VelRmaFileKeys::all, reader.faults_);
  // What stands below a header is read before the head, which lacks the keys that were written there.
  reader.ReadParameters(file);
  if (const auto mapping = file.Take("mapping", file.Find("mapping"), Kind::Table)) {
    VelRmaMappingReader(reader.nodes_, reader.type_.parameters, reader.areNamesKnown_, reader.faults_)
        .Read(*mapping, reader.type_.mapping);
  }
  reader.type_.labels = VelRmaLabelReader(file).Read();
  reader.ReadHead(file, iName);
  reader.ReadUsage(file);
  reader.ReadVersion(file);
  if (reader.faults_.IsEmpty()) oType = std::move(reader.type_);
  return reader.faults_.Take();
}

void VelRmaShaderTypeReader::ReadHead(const VelRmaTable& iFile, const VelString& iName) {
  type_.name = iName;
  const auto type = iFile.Take("type", iFile.Require("type"), Kind::Text);
  if (type && nodes_[*type].text != iName.View()) {
    faults_.Add(nodes_[*type].position, "the type is " + VelRmaFaults::Quote(nodes_[*type].text) +
                                            ", but the file is named after " + VelRmaFaults::Quote(iName.View()));
  } else if (type && iName == VelRbaConfiguration::defaultName) {
    faults_.Add(nodes_[*type].position, "'Default' is the configuration below all others, and no type");
  }
  if (const auto output = iFile.Take("output", iFile.Require("output"), Kind::Text)) {
    const VelConfigurationNode& node = nodes_[*output];
    type_.outputType = VelString(node.text);
    if (VelRmaStartUp::Find(node.text) == nullptr) VelRmaParameterReader::RefuseStartUp(node, faults_);
  }
  const auto parent = iFile.Take("parent", iFile.Find("parent"), Kind::Text);
  if (parent && (nodes_[*parent].text.empty() || nodes_[*parent].text == iName.View())) {
    faults_.Add(nodes_[*parent].position, "'parent': expected the name of another configuration, found " +
                                              VelRmaFaults::Describe(nodes_[*parent]));
  } else if (parent) {
    type_.parent = VelString(nodes_[*parent].text);
  }
}

void VelRmaShaderTypeReader::ReadUsage(const VelRmaTable& iFile) {
  const auto usage = iFile.Find("usage");
  if (!usage) return;
  const VelConfigurationNode& node = nodes_[*usage];
  if (node.kind == Kind::Text && node.text == anyUsage) return;
  const auto number = NumberOf(node);
  if (!number) return iFile.Refuse("usage", *usage);
  if (*number == usageOfQuestion) {
    return faults_.Add(node.position,
                       "'usage': 1 alone is the question for new types and no context; expected \"any\" or the bits "
                       "of contexts such as 0x6");
  }
  type_.usage = *number;
}

void VelRmaShaderTypeReader::ReadVersion(const VelRmaTable& iFile) {
  const auto version = iFile.Require("version");
  if (!version) return;
  type_.version = NumberOf(nodes_[*version]).value_or(0);
  if (type_.version == 0) iFile.Refuse("version", *version);
}

void VelRmaShaderTypeReader::ReadParameters(const VelRmaTable& iFile) {
  const auto found = iFile.Find(VelRmaFileKeys::parameter);
  const auto all = iFile.Take(VelRmaFileKeys::parameter, found, Kind::Array);
  areNamesKnown_ = found.has_value() == all.has_value() && !HasUnknownTables();
  if (!all) return;
  Lines names;
  Lines slots;
  for (const std::size_t inner : nodes_.Inner(*all)) {
    if (nodes_[inner].kind != Kind::Table) {
      iFile.Refuse(VelRmaFileKeys::parameter, inner);
      areNamesKnown_ = false;
      continue;
    }
    VelRmaParameterReader reader(nodes_, inner, faults_);
    VelRmaShaderParameter parameter = reader.Read();
    if (parameter.name.IsEmpty() || !RefuseSecond("parameter", parameter.name, reader.NamePosition(), names)) {
      areNamesKnown_ = false;
      continue;
    }
    static_cast<void>(RefuseSecond("slot", parameter.slot, reader.SlotPosition(), slots));
    type_.parameters.push_back(std::move(parameter));
  }
}

/// @return true where the parameters may stand below headers that are misspelt
bool VelRmaShaderTypeReader::HasUnknownTables() const {
  const std::vector<std::size_t> inner = nodes_.Inner(VelRmaNodes::root);
  return std::any_of(inner.begin(), inner.end(), [&](std::size_t iNode) {
    const VelConfigurationNode& node = nodes_[iNode];
    if (node.kind != Kind::Table && node.kind != Kind::Array) return false;
    return std::none_of(VelRmaFileKeys::all.begin(), VelRmaFileKeys::all.end(),
                        [&](const VelRmaKey& iKey) { return iKey.name == node.name; });
  });
}

bool VelRmaShaderTypeReader::RefuseSecond(const char* iWhat, const VelString& iWord, VelConfigurationPosition iPosition,
                                          Lines& ioLines) {
  if (iWord.IsEmpty()) return true;
  const auto [known, isNew] = ioLines.try_emplace(iWord, iPosition.line);
  if (isNew) return true;
  faults_.Add(iPosition, std::string("the ") + iWhat + ' ' + VelRmaFaults::Quote(iWord.View()) +
                             " is there already, in line " + std::to_string(known->second));
  return false;
}
