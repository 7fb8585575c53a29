// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaParameterReader.cpp The keys of a parameter and of its layout.
#include "host/shadertypes/VelRmaParameterReader.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <utility>

#include "host/shadertypes/VelRmaLabelReader.h"
#include "host/shadertypes/VelRmaMappingReader.h"

namespace {

using Kind = VelConfigurationNode::Kind;

constexpr std::string_view angleTag = "angle";

constexpr std::array keys{
    VelRmaKey{"name", "a text of 1 to 254 bytes without blanks"},
    VelRmaKey{"type", "a start-up such as \"VelRmaScalar\""},
    VelRmaKey{"default", "the value that a new shader has"},
    VelRmaKey{"tags", "an array of tags such as [\"mapping\", \"scale_u\"]"},
    VelRmaKey{"slot", "a channel such as \"surface.normal\""},
    VelRmaKey{VelRmaLabelReader::key, VelRmaLabelReader::expected},
    VelRmaKey{"layout", "a table such as { kind = \"slider\" }"},
};

constexpr std::array layoutKeys{
    VelRmaKey{"kind", "the kind of control, such as \"slider\""},
    VelRmaKey{"shown", "true or false"},
    VelRmaKey{"text", "the text of the control"},
};

constexpr std::array tagWords{
#define VEL_RSH_TAG(Enumerator, Word) std::string_view(Word),
#include "RenderingShader/interfaces/VelRshTags.def"
#undef VEL_RSH_TAG
};

constexpr std::array slotWords{
#define VEL_RSH_SLOT(Text, Slot) std::string_view(Text),
#include "RenderingShader/VelRshModel.m/src/services/VelRshSlots.def"
#undef VEL_RSH_SLOT
};

/// Tags that a shader which is connected follows: values go along between parameters of one start-up alone.
struct FollowedTag {
  std::string_view word;
  std::string_view startUp;
};

constexpr std::array followedTags{
    FollowedTag{"mapping-behavior", "VelRmaInteger"},
    FollowedTag{"projector-function", "VelRmaInteger"},
    FollowedTag{"scale_u", "VelRmaScalar"},
    FollowedTag{"scale_v", "VelRmaScalar"},
    FollowedTag{"offset_u", "VelRmaScalar"},
    FollowedTag{"offset_v", "VelRmaScalar"},
    FollowedTag{angleTag, "VelRmaScalar"},
    FollowedTag{"flip_u", "VelRmaBoolean"},
    FollowedTag{"flip_v", "VelRmaBoolean"},
    FollowedTag{"repeat_u", "VelRmaBoolean"},
    FollowedTag{"repeat_v", "VelRmaBoolean"},
};

/// What can feed a channel.
constexpr std::array slotStartUps{std::string_view("VelRmaColor"), std::string_view("VelRmaScalar"),
                                  std::string_view("VelRmaVector"), std::string_view("VelRmaInteger"),
                                  std::string_view("VelRmaTexture")};

bool IsOneOf(std::string_view iWord, std::span<const std::string_view> iWords) {
  return std::find(iWords.begin(), iWords.end(), iWord) != iWords.end();
}

/// The readers of mappings take names apart at blanks, and no more than that of each.
bool IsName(std::string_view iText) {
  constexpr std::size_t longest = 254;
  return !iText.empty() && iText.size() <= longest && std::none_of(iText.begin(), iText.end(), [](char iByte) {
    return static_cast<unsigned char>(iByte) <= 0x20U || iByte == 0x7F;
  });
}

}  // namespace

VelRmaParameterReader::VelRmaParameterReader(const VelRmaNodes& iNodes, std::size_t iTable, VelRmaFaults& ioFaults)
    : nodes_(iNodes), faults_(ioFaults), table_(iNodes, iTable, "a parameter", keys, ioFaults) {}

VelRmaShaderParameter VelRmaParameterReader::Read() {
  ReadName();
  if (const auto type = table_.Take("type", table_.Require("type"), Kind::Text)) {
    if (VelRmaStartUp::Find(nodes_[*type].text) != nullptr) parameter_.startUp = VelString(nodes_[*type].text);
  }
  ReadTags();
  ReadDefault();
  ReadSlot();
  parameter_.labels = VelRmaLabelReader(table_).Read();
  ReadLayout();
  return std::move(parameter_);
}

void VelRmaParameterReader::ReadName() {
  const auto name = table_.Take("name", table_.Require("name"), Kind::Text);
  if (!name) return;
  const VelConfigurationNode& node = nodes_[*name];
  namePosition_ = node.position;
  if (!IsName(node.text)) return table_.Refuse("name", *name);
  if (VelRmaMappingReader::IsReserved(node.text)) {
    return faults_.Add(node.position, "the name " + VelRmaFaults::Quote(node.text) + " is that of a mapping reader");
  }
  parameter_.name = VelString(node.text);
}

void VelRmaParameterReader::RefuseStartUp(const VelConfigurationNode& iText, VelRmaFaults& ioFaults) {
  const auto names = VelRmaStartUp::Names();
  ioFaults.AddUnknown(
      iText.position,
      "unknown start-up " + VelRmaFaults::Quote(iText.text) + "; expected " + VelRmaFaults::Choice(names), iText.text,
      names);
}

/// A parameter without a value could not be copied, so that every one that can have a value needs it.
void VelRmaParameterReader::ReadDefault() {
  const auto type = table_.Find("type");
  if (!type || nodes_[*type].kind != Kind::Text) return;
  const VelRmaStartUp* const startUp = VelRmaStartUp::Find(nodes_[*type].text);
  if (startUp == nullptr) return RefuseStartUp(nodes_[*type], faults_);
  const bool hasValue = startUp->form != VelRmaStartUp::Form::None;
  const auto value = hasValue ? table_.Require("default") : table_.Find("default");
  if (!value) return;
  const bool isAngle = std::find(tags_.begin(), tags_.end(), angleTag) != tags_.end();
  const auto dimension = isAngle ? VelRmaUnits::Dimension::Angle : VelRmaUnits::Dimension::Any;
  parameter_.value = VelRmaDefaultValue::Read(*startUp, nodes_, *value, dimension, faults_);
}

void VelRmaParameterReader::ReadTags() {
  const auto tags = table_.Take("tags", table_.Find("tags"), Kind::Array);
  if (!tags) return;
  for (const std::size_t inner : nodes_.Inner(*tags)) {
    const VelConfigurationNode& node = nodes_[inner];
    if (node.kind != Kind::Text) {
      table_.Refuse("tags", inner);
    } else if (!IsOneOf(node.text, tagWords)) {
      faults_.AddUnknown(
          node.position,
          "unknown tag " + VelRmaFaults::Quote(node.text) + "; expected one of the tags of docs/shader_types.md",
          node.text, tagWords);
    } else if (std::find(tags_.begin(), tags_.end(), node.text) != tags_.end()) {
      faults_.Add(node.position, "the tag " + VelRmaFaults::Quote(node.text) + " is there already");
    } else if (Suits(node)) {
      tags_.push_back(node.text);
    }
  }
  std::string all;
  for (const std::string& tag : tags_) all += (all.empty() ? "" : " ") + tag;
  parameter_.tags = VelString(all);
}

bool VelRmaParameterReader::Suits(const VelConfigurationNode& iTag) {
  const auto* const row = std::find_if(followedTags.begin(), followedTags.end(),
                                       [&](const FollowedTag& iRow) { return iRow.word == iTag.text; });
  const VelString& startUp = parameter_.startUp;
  if (row == followedTags.end() || startUp.IsEmpty() || row->startUp == startUp.View()) return true;
  faults_.Add(iTag.position, "the tag " + VelRmaFaults::Quote(iTag.text) + " does nothing on a " + startUp.CString() +
                                 "; expected a " + std::string(row->startUp));
  return false;
}

void VelRmaParameterReader::ReadSlot() {
  const auto slot = table_.Take("slot", table_.Find("slot"), Kind::Text);
  if (!slot) return;
  const VelConfigurationNode& node = nodes_[*slot];
  if (!IsOneOf(node.text, slotWords)) {
    faults_.AddUnknown(
        node.position,
        "unknown slot " + VelRmaFaults::Quote(node.text) + "; expected " + VelRmaFaults::Choice(slotWords), node.text,
        slotWords);
    return;
  }
  const VelString& startUp = parameter_.startUp;
  if (!startUp.IsEmpty() && !IsOneOf(startUp.View(), slotStartUps)) {
    return faults_.Add(node.position, std::string("a ") + startUp.CString() + " feeds no slot; expected a " +
                                          VelRmaFaults::Choice(slotStartUps));
  }
  slotPosition_ = node.position;
  parameter_.slot = VelString(node.text);
}

void VelRmaParameterReader::ReadLayout() {
  const auto found = table_.Take("layout", table_.Find("layout"), Kind::Table);
  if (!found) return;
  const VelRmaTable table(nodes_, *found, "a layout", layoutKeys, faults_);
  VelRmaLayout layout;
  if (const auto kind = table.Take("kind", table.Require("kind"), Kind::Text)) {
    if (nodes_[*kind].text.empty()) table.Refuse("kind", *kind);
    layout.kind = VelString(nodes_[*kind].text);
  }
  if (const auto shown = table.Take("shown", table.Find("shown"), Kind::Boolean)) {
    layout.isShown = nodes_[*shown].text == "true";
  }
  if (const auto text = table.Take("text", table.Find("text"), Kind::Text)) layout.text = VelString(nodes_[*text].text);
  parameter_.layout = std::move(layout);
}
