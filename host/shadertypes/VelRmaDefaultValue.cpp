// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaDefaultValue.cpp The table of start-ups, and how values are read, worded and written.
#include "host/shadertypes/VelRmaDefaultValue.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

namespace {

using Form = VelRmaStartUp::Form;
using Kind = VelConfigurationNode::Kind;

constexpr std::size_t colorCount = 4;
constexpr std::size_t matrixSide = 4;

constexpr std::array rows{
    VelRmaStartUp{"VelRmaBoolean", Form::Boolean, 0, "true or false"},
    VelRmaStartUp{"VelRmaInteger", Form::Integer, 0, "a whole number from -2147483648 to 2147483647"},
    VelRmaStartUp{"VelRmaScalar", Form::Reals, 1, "a number, or a text of a number and a unit such as \"45 deg\""},
    VelRmaStartUp{"VelRmaVector", Form::Reals, 3, "an array of 3 numbers"},
    VelRmaStartUp{"VelRmaColor", Form::Reals, colorCount, "an array of 3 or 4 numbers"},
    VelRmaStartUp{"VelRmaString", Form::Text, 0, "a text"},
    VelRmaStartUp{"VelRmaMatrix", Form::Reals, matrixSide* matrixSide, "an array of 16 numbers, or of 4 rows of 4"},
    VelRmaStartUp{"VelRmaTexture", Form::None, 0, "no value"},
    VelRmaStartUp{"VelRmaLightProfile", Form::None, 0, "no value"},
    VelRmaStartUp{"VelRmaVoid", Form::None, 0, "no value"},
};

constexpr auto names = [] {
  std::array<std::string_view, rows.size()> all;
  std::transform(rows.begin(), rows.end(), all.begin(), [](const VelRmaStartUp& iRow) { return iRow.name; });
  return all;
}();

void Refuse(const VelConfigurationNode& iNode, std::string_view iExpected, VelRmaFaults& ioFaults) {
  ioFaults.Add(iNode.position, "expected " + std::string(iExpected) + ", found " + VelRmaFaults::Describe(iNode));
}

template <class Number>
std::optional<Number> NumberOf(const std::string& iText) {
  Number number = 0;
  const char* const end = iText.data() + iText.size();
  const auto [stop, error] = std::from_chars(iText.data(), end, number);
  if (error != std::errc() || stop != end) return std::nullopt;
  return number;
}

bool FitsFloat(double iNumber) { return std::fabs(iNumber) <= static_cast<double>(std::numeric_limits<float>::max()); }

/// @return the places of the numbers of an array; those of the rows of a matrix that is written in rows
std::vector<std::size_t> NumbersIn(const VelRmaStartUp& iStartUp, const VelRmaNodes& iNodes, std::size_t iArray) {
  std::vector<std::size_t> inner = iNodes.Inner(iArray);
  if (iStartUp.count != matrixSide * matrixSide || inner.size() != matrixSide) return inner;
  std::vector<std::size_t> all;
  for (const std::size_t row : inner) {
    const std::vector<std::size_t> numbers = iNodes.Inner(row);
    if (iNodes[row].kind != Kind::Array || numbers.size() != matrixSide) return {};
    all.insert(all.end(), numbers.begin(), numbers.end());
  }
  return all;
}

/// @return the reals; empty when they were reported
std::vector<float> ReadReals(const VelRmaStartUp& iStartUp, const VelRmaNodes& iNodes, std::size_t iNode,
                             VelRmaFaults& ioFaults) {
  const VelConfigurationNode& node = iNodes[iNode];
  if (node.kind != Kind::Array) {
    Refuse(node, iStartUp.expected, ioFaults);
    return {};
  }
  const std::vector<std::size_t> numbers = NumbersIn(iStartUp, iNodes, iNode);
  const bool isOpaque = iStartUp.count == colorCount && numbers.size() + 1 == colorCount;
  if (numbers.size() != iStartUp.count && !isOpaque) {
    ioFaults.Add(node.position, "expected " + std::string(iStartUp.expected) + ", found an array of " +
                                    std::to_string(iNodes.Inner(iNode).size()));
    return {};
  }
  std::vector<float> reals;
  for (const std::size_t number : numbers) {
    const auto real =
        VelRmaDefaultValue::ReadNumber(iNodes[number], VelRmaUnits::Dimension::None, "a number", ioFaults);
    if (!real) return {};
    reals.push_back(*real);
  }
  if (isOpaque) reals.push_back(1.0F);
  return reals;
}

}  // namespace

const VelRmaStartUp* VelRmaStartUp::Find(std::string_view iName) {
  const auto* row =
      std::find_if(rows.begin(), rows.end(), [&](const VelRmaStartUp& iRow) { return iRow.name == iName; });
  return row != rows.end() ? row : nullptr;
}

std::span<const std::string_view> VelRmaStartUp::Names() noexcept { return names; }

std::optional<float> VelRmaDefaultValue::ReadNumber(const VelConfigurationNode& iNode,
                                                    VelRmaUnits::Dimension iDimension, std::string_view iExpected,
                                                    VelRmaFaults& ioFaults) {
  double number = 0.0;
  if (iNode.kind == Kind::Text && iDimension != VelRmaUnits::Dimension::None) {
    const std::string cause = VelRmaUnits::Read(iNode.text, iDimension, number);
    if (!cause.empty()) ioFaults.Add(iNode.position, cause);
    if (!cause.empty()) return std::nullopt;
  } else if (iNode.kind == Kind::Integer || iNode.kind == Kind::Real) {
    number = NumberOf<double>(iNode.text).value_or(0.0);
  } else {
    Refuse(iNode, iExpected, ioFaults);
    return std::nullopt;
  }
  if (!FitsFloat(number)) {
    ioFaults.Add(iNode.position, "expected a number that single precision holds, found " + iNode.text);
    return std::nullopt;
  }
  return static_cast<float>(number);
}

std::optional<VelRmaDefaultValue> VelRmaDefaultValue::Read(const VelRmaStartUp& iStartUp, const VelRmaNodes& iNodes,
                                                           std::size_t iNode, VelRmaUnits::Dimension iDimension,
                                                           VelRmaFaults& ioFaults) {
  const VelConfigurationNode& node = iNodes[iNode];
  VelRmaDefaultValue value;
  switch (iStartUp.form) {
    case Form::Boolean:
      if (node.kind != Kind::Boolean) break;
      value.value_ = node.text == "true";
      return value;
    case Form::Integer: {
      const auto integer = node.kind == Kind::Integer ? NumberOf<std::int32_t>(node.text) : std::nullopt;
      if (!integer) break;
      value.value_ = *integer;
      return value;
    }
    case Form::Text:
      if (node.kind != Kind::Text) break;
      value.value_ = VelUnicodeString(node.text);
      return value;
    case Form::Reals: {
      std::vector<float> reals;
      if (iStartUp.count == 1) {
        if (const auto real = ReadNumber(node, iDimension, iStartUp.expected, ioFaults)) reals.push_back(*real);
      } else {
        reals = ReadReals(iStartUp, iNodes, iNode, ioFaults);
      }
      if (reals.empty()) return std::nullopt;
      value.value_ = std::move(reals);
      return value;
    }
    case Form::None:
      break;
  }
  Refuse(node, std::string(iStartUp.expected) + " for a " + std::string(iStartUp.name), ioFaults);
  return std::nullopt;
}

VelString VelRmaDefaultValue::Text() const {
  if (const auto* boolean = std::get_if<bool>(&value_)) return *boolean ? "true" : "false";
  if (const auto* integer = std::get_if<std::int32_t>(&value_)) return VelString(std::to_string(*integer));
  if (const auto* text = std::get_if<VelUnicodeString>(&value_)) return text->ToVelString();
  return VelString(TextOf(*std::get_if<std::vector<float>>(&value_)));
}

HRESULT VelRmaDefaultValue::WriteTo(VelIRshParameter& ioParameter) const {
  return std::visit(
      [&]<class Value>(const Value& iValue) {
        if constexpr (std::is_same_v<Value, std::vector<float>>) {
          return ioParameter.SetValue({iValue.data(), iValue.size()});
        } else {
          return ioParameter.SetValue(&iValue);
        }
      },
      value_);
}

std::string VelRmaDefaultValue::TextOf(std::span<const float> iReals) {
  std::string text;
  for (const float real : iReals) {
    std::array<char, 32> number{};
    const char* const end = std::to_chars(number.data(), number.data() + number.size(), real).ptr;
    if (!text.empty()) text += ' ';
    text.append(number.data(), static_cast<std::size_t>(end - number.data()));
  }
  return text;
}
