// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file shader_types_fuzz.cpp Fuzzes the reader of files of shader types with arbitrary bytes.
#include <cstddef>
#include <cstdint>
#include <set>
#include <string_view>
#include <utility>

#include "host/shadertypes/VelRmaShaderTypeReader.h"
#include "platform/files/VelTomlTree.h"
#include "tests/fuzz/ConfigurationFault.h"

namespace {

/// Each node stands behind the one around it, which is a table or an array; only nodes of tables have a key.
void CheckNodes(const std::vector<VelConfigurationNode>& iNodes) {
  for (std::size_t i = 0; i < iNodes.size(); ++i) {
    const VelConfigurationNode& node = iNodes[i];
    Require(node.position.line > 0 && node.key.line > 0);
    if (node.parent == VelConfigurationNode::noParent) continue;
    Require(node.parent < i);
    const VelConfigurationNode::Kind around = iNodes[node.parent].kind;
    Require(around == VelConfigurationNode::Kind::Table || around == VelConfigurationNode::Kind::Array);
    Require(around == VelConfigurationNode::Kind::Table || node.name.empty());
  }
}

/// What was accepted can be entered: no key stands twice, no parameter either, and each that can have a value has one.
void CheckAccepted(const VelRmaShaderType& iType) {
  Require(iType.version > 0);
  std::set<VelString> names;
  for (const VelRmaShaderParameter& parameter : iType.parameters) {
    Require(!parameter.name.IsEmpty() && names.insert(parameter.name).second);
    const VelRmaStartUp* const startUp = VelRmaStartUp::Find(parameter.startUp.View());
    Require(startUp != nullptr && parameter.value.has_value() == (startUp->form != VelRmaStartUp::Form::None));
  }
  std::set<VelString> keys;
  const VelSourcedConfiguration content = iType.Configuration();
  for (const VelConfigurationEntry& entry : content.entries) {
    Require(!entry.key.IsEmpty() && keys.insert(entry.key).second);
  }
  std::set<std::pair<VelString, VelString>> messages;
  for (const VelConfigurationMessage& message : content.messages) {
    Require(!keys.contains(message.key) && !message.text.IsEmpty());
    Require(messages.insert({message.language, message.key}).second);
  }
  for (const VelConfigurationMessage& message : content.messages) Require(messages.contains({"en", message.key}));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* iData, std::size_t iSize) {
  const std::string_view text(reinterpret_cast<const char*>(iData), iSize);
  std::vector<VelConfigurationNode> nodes;
  VelConfigurationFault fault;
  if (!VelTomlTree::Read(text, nodes, fault)) {
    CheckFault(text, fault);
    return 0;
  }
  CheckNodes(nodes);
  VelRmaShaderType type;
  const auto faults = VelRmaShaderTypeReader::Read("Own", nodes, type);
  if (faults.empty()) CheckAccepted(type);
  for (const VelConfigurationFault& one : faults) CheckFault(text, one);
  return 0;
}
