// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaShaderTypeReader.cpp The keys of a file, and what stands in no parameter.
#include "host/shadertypes/VelRmaShaderTypeReader.h"

#include <array>
#include <charconv>
#include <map>
#include <optional>
#include <string>
#include <system_error>
#include <utility>

#include "host/shadertypes/VelRmaLabelReader.h"
#include "host/shadertypes/VelRmaMappingReader.h"
#include "host/shadertypes/VelRmaParameterReader.h"
#include "platform/configuration/VelRbaConfiguration.h"

namespace {

using Kind = VelConfigurationNode::Kind;

constexpr std::string_view anyUsage = "any";

constexpr std::array keys{
    VelRmaKey{"type", "the name of the type, which is that of the file without '.toml'"},
    VelRmaKey{"output", "the start-up of what the type produces, such as \"VelRmaColor\""},
    VelRmaKey{"usage", "\"any\" or a whole number from 0 to 4294967295"},
    VelRmaKey{"version", "a whole number from 1 to 4294967295"},
    VelRmaKey{"parent", "the name of a configuration"},
    VelRmaKey{"label", VelRmaLabelReader::expected},
    VelRmaKey{"parameter", "tables, each below a header [[parameter]]"},
    VelRmaKey{"mapping", "a table of mapping readers"},
};

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
  const VelRmaTable file(reader.nodes_, VelRmaNodes::root, "a shader type", keys, reader.faults_);
  reader.ReadHead(file, iName);
  reader.ReadUsage(file);
  reader.ReadVersion(file);
  reader.ReadParameters(file);
  if (const auto mapping = file.Take("mapping", file.Find("mapping"), Kind::Table)) {
    VelRmaMappingReader(reader.nodes_, reader.type_.parameters, reader.faults_).Read(*mapping, reader.type_.mapping);
  }
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
  type_.labels = VelRmaLabelReader(iFile).Read();
}

void VelRmaShaderTypeReader::ReadUsage(const VelRmaTable& iFile) {
  const auto usage = iFile.Find("usage");
  if (!usage) return;
  const VelConfigurationNode& node = nodes_[*usage];
  if (node.kind == Kind::Text && node.text == anyUsage) return;
  const auto number = NumberOf(node);
  if (!number) return iFile.Refuse("usage", *usage);
  type_.usage = *number;
}

void VelRmaShaderTypeReader::ReadVersion(const VelRmaTable& iFile) {
  const auto version = iFile.Require("version");
  if (!version) return;
  type_.version = NumberOf(nodes_[*version]).value_or(0);
  if (type_.version == 0) iFile.Refuse("version", *version);
}

void VelRmaShaderTypeReader::ReadParameters(const VelRmaTable& iFile) {
  const auto all = iFile.Take("parameter", iFile.Find("parameter"), Kind::Array);
  if (!all) return;
  std::map<VelString, unsigned> lines;
  for (const std::size_t inner : nodes_.Inner(*all)) {
    if (nodes_[inner].kind != Kind::Table) {
      iFile.Refuse("parameter", inner);
      continue;
    }
    VelRmaParameterReader reader(nodes_, inner, faults_);
    VelRmaShaderParameter parameter = reader.Read();
    if (parameter.name.IsEmpty()) continue;
    const auto [known, isNew] = lines.try_emplace(parameter.name, reader.NamePosition().line);
    if (!isNew) {
      faults_.Add(reader.NamePosition(), "the parameter " + VelRmaFaults::Quote(parameter.name.View()) +
                                             " is there already, in line " + std::to_string(known->second));
      continue;
    }
    type_.parameters.push_back(std::move(parameter));
  }
}
