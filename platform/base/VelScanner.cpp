// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelScanner.cpp Finds where an item ends, then converts it.
#include "platform/base/VelScanner.h"

#include <charconv>
#include <cstdint>
#include <limits>

namespace {

bool IsWhiteSpace(char iByte) noexcept { return iByte == ' ' || (iByte >= '\t' && iByte <= '\r'); }

char LowerCase(char iByte) noexcept {
  return iByte >= 'A' && iByte <= 'Z' ? static_cast<char>(iByte - 'A' + 'a') : iByte;
}

bool IsDigit(char iByte, bool iHexadecimal) noexcept {
  if (iByte >= '0' && iByte <= '9') return true;
  return iHexadecimal && LowerCase(iByte) >= 'a' && LowerCase(iByte) <= 'f';
}

/// How far a number without sign and prefix reaches: digits with at most one point, then an exponent, which may be cut
/// off.
struct Extent {
  std::size_t digits = 0;  ///< How many there are in front of the exponent.
  std::size_t end = 0;
  /// The decimal or binary place of the first digit that is not zero, exponent included. Its sign tells whether a
  /// number that cannot be represented is too large or too small.
  std::int64_t magnitude = 0;
};

/// Adds the exponent, when one follows. One that no text could make up for stands for all that are larger.
void MeasureExponent(std::string_view iText, bool iHexadecimal, Extent& ioExtent) noexcept {
  constexpr std::int64_t beyondAnyText = 1'000'000'000'000'000;
  const char mark = iHexadecimal ? 'p' : 'e';
  if (ioExtent.end == iText.size() || LowerCase(iText[ioExtent.end]) != mark) return;
  ++ioExtent.end;
  const bool hasSign = ioExtent.end < iText.size() && (iText[ioExtent.end] == '+' || iText[ioExtent.end] == '-');
  const bool isNegative = hasSign && iText[ioExtent.end] == '-';
  if (hasSign) ++ioExtent.end;
  std::int64_t exponent = 0;
  for (; ioExtent.end < iText.size() && IsDigit(iText[ioExtent.end], false); ++ioExtent.end) {
    if (exponent < beyondAnyText) exponent = 10 * exponent + (iText[ioExtent.end] - '0');
  }
  ioExtent.magnitude += isNegative ? -exponent : exponent;
}

Extent Measure(std::string_view iText, bool iHexadecimal) noexcept {
  Extent extent;
  bool hasPoint = false;
  bool isZero = true;
  for (; extent.end < iText.size(); ++extent.end) {
    const char byte = iText[extent.end];
    if (byte == '.' && !hasPoint) {
      hasPoint = true;
    } else if (IsDigit(byte, iHexadecimal)) {
      ++extent.digits;
      if (isZero && hasPoint) --extent.magnitude;
      if (!isZero && !hasPoint) ++extent.magnitude;
      isZero = isZero && byte == '0';
    } else {
      break;
    }
  }
  if (iHexadecimal) extent.magnitude *= 4;
  if (extent.digits != 0) MeasureExponent(iText, iHexadecimal, extent);
  return extent;
}

}  // namespace

VelScanner::VelScanner(std::string_view iText) noexcept : left_(iText.substr(0, iText.find('\0'))) {}

/// @return false at the end
bool VelScanner::SkipWhiteSpace() noexcept {
  while (!left_.empty() && IsWhiteSpace(left_.front())) left_.remove_prefix(1);
  return !left_.empty();
}

bool VelScanner::Stop() noexcept {
  left_ = {};
  return false;
}

std::optional<std::string_view> VelScanner::Word(std::size_t iLimit) noexcept {
  if (!SkipWhiteSpace()) return std::nullopt;
  std::size_t length = 0;
  while (length < left_.size() && length < iLimit && !IsWhiteSpace(left_[length])) ++length;
  const std::string_view word = left_.substr(0, length);
  left_.remove_prefix(length);
  return word;
}

std::optional<double> VelScanner::Real() noexcept {
  if (!SkipWhiteSpace()) return std::nullopt;
  const bool isNegative = left_.front() == '-';
  if (isNegative || left_.front() == '+') left_.remove_prefix(1);
  std::optional<double> number = Name();
  if (!number) number = Digits();
  if (!number) {
    Stop();
    return std::nullopt;
  }
  return isNegative ? -*number : *number;
}

/// Takes a word away when it stands next, in whatever case.
bool VelScanner::Skip(std::string_view iLowerCase) noexcept {
  if (left_.size() < iLowerCase.size()) return false;
  for (std::size_t i = 0; i < iLowerCase.size(); ++i) {
    if (LowerCase(left_[i]) != iLowerCase[i]) return false;
  }
  left_.remove_prefix(iLowerCase.size());
  return true;
}

std::optional<double> VelScanner::Name() noexcept {
  if (Skip("nan")) return std::numeric_limits<double>::quiet_NaN();
  if (!Skip("inf")) return std::nullopt;
  // An "i" that follows can only begin the long form.
  if (!left_.empty() && LowerCase(left_.front()) == 'i' && !Skip("inity")) return std::nullopt;
  return std::numeric_limits<double>::infinity();
}

std::optional<double> VelScanner::Digits() noexcept {
  const bool isHexadecimal = Skip("0x");
  const Extent extent = Measure(left_, isHexadecimal);
  if (extent.digits == 0) return std::nullopt;
  double number = 0.0;
  const auto format = isHexadecimal ? std::chars_format::hex : std::chars_format::general;
  const std::from_chars_result converted = std::from_chars(left_.data(), left_.data() + extent.end, number, format);
  left_.remove_prefix(extent.end);
  if (converted.ec != std::errc::result_out_of_range) return number;
  return extent.magnitude > 0 ? std::numeric_limits<double>::infinity() : 0.0;
}
