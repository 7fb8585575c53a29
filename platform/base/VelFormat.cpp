// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelFormat.cpp Finds the placeholders of a template and prints each argument the way its kind asks for.
#include "platform/base/VelFormat.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace {

constexpr int defaultDecimals = 6;
constexpr int mostDecimals = 17;

/// What a percent sign introduces.
struct Placeholder {
  char conversion;     ///< One of s d u x f %.
  int decimals;        ///< Of a real.
  std::size_t length;  ///< Characters in the template, the percent sign included.
};

bool IsDigit(char iCharacter) { return iCharacter >= '0' && iCharacter <= '9'; }

/// Reads ".N" at the start of a text.
/// @param[out] oDecimals N, untouched when there is no dot
/// @return the characters read, 0 without a dot; none when N is missing or too large
std::optional<std::size_t> ReadPrecision(std::string_view iText, int& oDecimals) {
  if (iText.empty() || iText.front() != '.') return 0;
  std::size_t end = 1;
  int decimals = 0;
  while (end < iText.size() && IsDigit(iText[end])) {
    decimals = decimals * 10 + (iText[end] - '0');
    if (decimals > mostDecimals) return std::nullopt;
    ++end;
  }
  if (end == 1) return std::nullopt;
  oDecimals = decimals;
  return end;
}

/// @param[in] iText starts with a percent sign
/// @return none when that percent sign is an ordinary character
std::optional<Placeholder> ReadPlaceholder(std::string_view iText) {
  if (iText.size() < 2) return std::nullopt;
  if (std::string_view("sdux%").find(iText[1]) != std::string_view::npos) return Placeholder{iText[1], 0, 2};
  int decimals = defaultDecimals;
  const std::optional<std::size_t> precision = ReadPrecision(iText.substr(1), decimals);
  if (!precision) return std::nullopt;
  std::size_t end = 1 + *precision;
  if (end < iText.size() && iText[end] == 'l') ++end;
  if (end >= iText.size() || iText[end] != 'f') return std::nullopt;
  return Placeholder{'f', decimals, end + 1};
}

template <class Integer>
void AppendInteger(std::string& ioText, Integer iValue, int iBase) {
  std::array<char, 24> digits;
  const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), iValue, iBase);
  ioText.append(digits.data(), result.ptr);
}

void AppendReal(std::string& ioText, double iValue, int iDecimals) {
  if (std::isnan(iValue)) {
    ioText += "nan";  // A NaN's sign says nothing to a reader.
    return;
  }
  std::array<char, 352> digits;  // 309 digits before the point, 17 after it, sign and point.
  const auto result =
      std::to_chars(digits.data(), digits.data() + digits.size(), iValue, std::chars_format::fixed, iDecimals);
  ioText.append(digits.data(), result.ptr);
}

void AppendHexadecimal(std::string& ioText, const VelFormatArgument& iArgument) {
  AppendInteger(ioText, iArgument.Bits(), 16);
}

void AppendDecimal(std::string& ioText, const VelFormatArgument& iArgument) {
  if (iArgument.GetKind() == VelFormatArgument::Kind::Signed) {
    AppendInteger(ioText, iArgument.Signed(), 10);
    return;
  }
  AppendInteger(ioText, iArgument.Unsigned(), 10);
}

/// A 64-bit integer has digits that a real would lose, so the zeros of the fraction are written by hand.
void AppendIntegerAsReal(std::string& ioText, const VelFormatArgument& iArgument, int iDecimals) {
  AppendDecimal(ioText, iArgument);
  if (iDecimals == 0) return;
  ioText += '.';
  ioText.append(static_cast<std::size_t>(iDecimals), '0');
}

void AppendIntegral(std::string& ioText, const VelFormatArgument& iArgument, const Placeholder& iPlaceholder) {
  if (iPlaceholder.conversion == 'x') {
    AppendHexadecimal(ioText, iArgument);
    return;
  }
  if (iPlaceholder.conversion == 'f') {
    AppendIntegerAsReal(ioText, iArgument, iPlaceholder.decimals);
    return;
  }
  AppendDecimal(ioText, iArgument);
}

void AppendArgument(std::string& ioText, const VelFormatArgument& iArgument, const Placeholder& iPlaceholder) {
  using Kind = VelFormatArgument::Kind;
  switch (iArgument.GetKind()) {
    case Kind::Boolean:
      if (iPlaceholder.conversion == 's') {
        ioText += iArgument.Unsigned() != 0 ? "true" : "false";
        return;
      }
      AppendIntegral(ioText, iArgument, iPlaceholder);
      return;
    case Kind::Signed:
    case Kind::Unsigned:
      AppendIntegral(ioText, iArgument, iPlaceholder);
      return;
    case Kind::Real:
      AppendReal(ioText, iArgument.Real(), iPlaceholder.conversion == 'f' ? iPlaceholder.decimals : defaultDecimals);
      return;
    case Kind::Text:
      if (iPlaceholder.conversion == 'x') {
        AppendHexadecimal(ioText, iArgument);
        return;
      }
      ioText += iArgument.Text();
      return;
    case Kind::Pointer:
      AppendHexadecimal(ioText, iArgument);
      return;
  }
}

}  // namespace

std::string VelFormat::ListToText(std::string_view iFormat, std::span<const VelFormatArgument> iArguments) {
  std::string text;
  text.reserve(iFormat.size() + 16 * iArguments.size());
  std::size_t nextArgument = 0;
  while (!iFormat.empty()) {
    const std::size_t percent = iFormat.find('%');
    text += iFormat.substr(0, percent);
    if (percent == std::string_view::npos) break;
    iFormat.remove_prefix(percent);
    const std::optional<Placeholder> placeholder = ReadPlaceholder(iFormat);
    const std::size_t length = placeholder ? placeholder->length : 1;
    if (placeholder && placeholder->conversion == '%') {
      text += '%';
    } else if (placeholder && nextArgument < iArguments.size()) {
      AppendArgument(text, iArguments[nextArgument++], *placeholder);
    } else {
      text += iFormat.substr(0, length);
    }
    iFormat.remove_prefix(length);
  }
  return text;
}
