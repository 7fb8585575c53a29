// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file RoadTree.cpp Reads values by the type of their parameter, and lays them out.
#include "examples/road_of_one_edit/RoadTree.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>

#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterCollection.h"
#include "platform/base/VelUnicodeString.h"
#include "platform/documents/VelIPLMDmtDocument.h"

namespace {

constexpr const char* noValue = "-";
constexpr std::size_t lineLength = 118;

/// The shortest text of a number, whatever the locale.
template <class Number>
std::string NumberText(Number iNumber) {
  std::array<char, 32> text{};
  return {text.data(), std::to_chars(text.data(), text.data() + text.size(), iNumber).ptr};
}

template <std::size_t Count>
std::string RealsText(VelIRshParameter& iParameter) {
  float reals[Count]{};
  if (FAILED(iParameter.GetValue(reals))) return noValue;
  std::string text;
  for (const float real : reals) text += (text.empty() ? "" : " ") + NumberText(real);
  return Count == 1 ? text : '(' + text + ')';
}

std::string BooleanText(VelIRshParameter& iParameter) {
  bool value = false;
  if (FAILED(iParameter.GetValue(&value))) return noValue;
  return value ? "true" : "false";
}

std::string IntegerText(VelIRshParameter& iParameter) {
  std::int32_t value = 0;
  return SUCCEEDED(iParameter.GetValue(&value)) ? NumberText(value) : noValue;
}

std::string QuotedText(VelIRshParameter& iParameter) {
  VelUnicodeString value;
  return SUCCEEDED(iParameter.GetValue(&value)) ? '"' + std::string(value.View()) + '"' : noValue;
}

std::string DocumentText(VelIRshParameter& iParameter) {
  VelBaseUnknown_var hValue;
  if (FAILED(iParameter.GetValue(hValue.Receive()))) return noValue;
  const VelIPLMDmtDocument_var hDocument(hValue);
  VelUnicodeString name;
  return hDocument && SUCCEEDED(hDocument->GetName(name)) ? std::string(name.View()) : noValue;
}

std::string ValueText(VelIRshParameter& iParameter) {
  struct Row {
    const char* startUp;
    std::string (*text)(VelIRshParameter&);
  };
  static constexpr std::array rows{
      Row{"VelRmaBoolean", &BooleanText}, Row{"VelRmaInteger", &IntegerText},  Row{"VelRmaScalar", &RealsText<1>},
      Row{"VelRmaVector", &RealsText<3>}, Row{"VelRmaColor", &RealsText<4>},   Row{"VelRmaMatrix", &RealsText<16>},
      Row{"VelRmaString", &QuotedText},   Row{"VelRmaTexture", &DocumentText}, Row{"VelRmaLightProfile", &DocumentText},
  };
  VelString startUp;
  if (FAILED(iParameter.GetType(startUp))) return noValue;
  const auto* const row = std::ranges::find_if(rows, [&](const Row& iRow) { return startUp == iRow.startUp; });
  return row != rows.end() ? row->text(iParameter) : noValue;
}

RoadTree::Parameter ReadParameter(VelIRshParameter& iParameter) {
  VelString name;
  static_cast<void>(iParameter.GetName(name));
  RoadTree::Parameter parameter{std::string(name.View()), ValueText(iParameter), {}};
  VelIRshShader_var hConnected;
  if (SUCCEEDED(iParameter.GetConnection(hConnected.Receive())) && hConnected) {
    parameter.connected.push_back(RoadTree::Read(*hConnected));
  }
  return parameter;
}

const RoadTree::Parameter* Find(const RoadTree* iTree, const std::string& iName) {
  if (iTree == nullptr) return nullptr;
  const auto found = std::ranges::find(iTree->parameters, iName, &RoadTree::Parameter::name);
  return found != iTree->parameters.end() ? &*found : nullptr;
}

/// Puts words on lines, so many as each has room for.
std::vector<std::string> Wrap(const std::vector<std::string>& iWords, const std::string& iIndent) {
  std::vector<std::string> lines;
  for (const std::string& word : iWords) {
    const bool hasRoom = !lines.empty() && lines.back().size() + 2 + word.size() <= lineLength;
    if (!lines.empty()) lines.back() += ',';
    if (hasRoom) {
      lines.back() += ' ' + word;
    } else {
      lines.push_back(iIndent + word);
    }
  }
  return lines;
}

void Append(const RoadTree& iTree, const RoadTree* iBefore, const std::string& iIndent,
            std::vector<std::string>& oLines) {
  std::vector<std::string> values;
  const auto valueOf = [&](const RoadTree::Parameter& iParameter) {
    const RoadTree::Parameter* const before = Find(iBefore, iParameter.name);
    const bool isChanged = iBefore != nullptr && (before == nullptr || before->value != iParameter.value);
    return (isChanged ? "*" : "") + iParameter.name + ' ' + iParameter.value;
  };
  for (const RoadTree::Parameter& parameter : iTree.parameters) {
    if (parameter.connected.empty()) values.push_back(valueOf(parameter));
  }
  std::ranges::move(Wrap(values, iIndent), std::back_inserter(oLines));
  for (const RoadTree::Parameter& parameter : iTree.parameters) {
    if (parameter.connected.empty()) continue;
    const RoadTree& connected = parameter.connected.front();
    const RoadTree::Parameter* const before = Find(iBefore, parameter.name);
    const bool wasConnected = before != nullptr && !before->connected.empty();
    oLines.push_back(iIndent + valueOf(parameter) + " <- " + connected.title);
    Append(connected, wasConnected ? &before->connected.front() : nullptr, iIndent + "   ", oLines);
  }
}

}  // namespace

RoadTree RoadTree::Read(VelIRshShader& iShader) {
  RoadTree tree;
  VelString type;
  std::uint32_t version = 0;
  static_cast<void>(iShader.GetType(type));
  tree.title = type.CString();
  if (SUCCEEDED(iShader.GetVersion(version))) tree.title += ", version " + NumberText(version);
  const VelRshReaderParameterCollection collection;
  for (const VelIRshParameter_var& hParameter : collection(iShader)) {
    tree.parameters.push_back(ReadParameter(*hParameter));
  }
  return tree;
}

std::vector<std::string> RoadTree::Lines(const RoadTree* iBefore) const {
  std::vector<std::string> lines{title};
  Append(*this, iBefore, "   ", lines);
  return lines;
}
