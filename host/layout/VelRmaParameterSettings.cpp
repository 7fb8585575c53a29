// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaParameterSettings.cpp Looks keys up, and reads default values.
#include "host/layout/VelRmaParameterSettings.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>
#include <vector>

#include "RenderingShader/VelRshModel.m/include/VelRshReaderConfiguration.h"
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterName.h"
#include "platform/base/VelScanner.h"
#include "platform/base/VelUnicodeString.h"
#include "platform/configuration/VelRbaConfiguration.h"
#include "platform/trace/VelTraceHandle.h"

namespace {

constexpr std::uint32_t colorComponents = 4;

bool TakeBoolean(const VelString& iText, bool& oValue) {
  static constexpr std::array yes{"true", "yes", "1"};
  static constexpr std::array no{"false", "no", "0"};
  const VelString text = iText.ToLower();
  const auto isText = [&](const char* iWord) { return text == iWord; };
  const bool isYes = std::any_of(yes.begin(), yes.end(), isText);
  if (!isYes && std::none_of(no.begin(), no.end(), isText)) return false;
  oValue = isYes;
  return true;
}

/// @return the numbers of a text, which blanks separate; none when it holds anything else
std::vector<double> NumbersOf(const VelString& iText) {
  std::vector<double> numbers;
  VelScanner scanner(iText);
  while (const auto word = scanner.Word(iText.View().size())) {
    double number = 0.0;
    const char* const end = word->data() + word->size();
    const auto [stop, error] = std::from_chars(word->data(), end, number);
    if (error != std::errc() || stop != end) return {};
    numbers.push_back(number);
  }
  return numbers;
}

bool TakeInteger(const VelString& iText, std::int32_t& oValue) {
  using Limits = std::numeric_limits<std::int32_t>;
  const std::vector<double> numbers = NumbersOf(iText);
  const bool isInteger = numbers.size() == 1 && std::trunc(numbers[0]) == numbers[0] && numbers[0] >= Limits::min() &&
                         numbers[0] <= Limits::max();
  if (isInteger) oValue = static_cast<std::int32_t>(numbers[0]);
  return isInteger;
}

bool TakeReals(const VelString& iText, VelRshValueTarget oValue) {
  std::vector<double> numbers = NumbersOf(iText);
  if (oValue.Capacity() == colorComponents && numbers.size() + 1 == colorComponents) numbers.push_back(1.0);
  if (numbers.empty() || numbers.size() != oValue.Capacity()) return false;
  float* const reals = oValue.As<float>(oValue.Capacity());
  std::transform(numbers.begin(), numbers.end(), reals, [](double iNumber) { return static_cast<float>(iNumber); });
  return true;
}

/// @return nullptr when the text was taken, else what was expected
const char* Take(const VelString& iText, VelRshValueTarget oValue) {
  switch (oValue.Kind()) {
    case VelRshElementKind::Boolean:
      return TakeBoolean(iText, *oValue.As<bool>()) ? nullptr : "true or false";
    case VelRshElementKind::Integer:
      return TakeInteger(iText, *oValue.As<std::int32_t>()) ? nullptr : "a whole number";
    case VelRshElementKind::Real:
      return TakeReals(iText, oValue) ? nullptr : "as many numbers as the value has";
    case VelRshElementKind::Text:
      *oValue.As<VelUnicodeString>() = VelUnicodeString(iText);
      return nullptr;
  }
  return "another type";
}

}  // namespace

VelRmaParameterSettings::VelRmaParameterSettings(VelBaseUnknown& iParameter) {
  const VelIRshParameter_var hParameter(&iParameter);
  if (!hParameter) return;
  configuration_ = VelRshReaderConfiguration()(*hParameter);
  name_ = VelRshReaderParameterName()(*hParameter);
}

bool VelRmaParameterSettings::Has(const char* iWord) const {
  VelString text;
  return SUCCEEDED(Read(iWord, text));
}

HRESULT VelRmaParameterSettings::Read(const char* iWord, VelString& oText) const {
  if (configuration_.IsEmpty() || name_.IsEmpty()) return E_FAIL;
  return VelRbaConfiguration::GetHierarchicalValue(configuration_, name_ + "." + iWord, oText);
}

HRESULT VelRmaParameterSettings::ReadDefault(VelRshValueTarget oValue) const {
  VelString text;
  if (oValue.IsNull() || FAILED(Read(defaultValueWord, text))) return E_FAIL;
  const char* const expected = Take(text, oValue);
  if (expected == nullptr) return S_OK;
  VelTraceHandle("VelRmaParameterSettings")
      .Error(VEL_HERE("host/layout/VelRmaParameterSettings"),
             "The default value of '%s' in the configuration '%s' is '%s'; expected %s", name_, configuration_, text,
             expected);
  return E_FAIL;
}
