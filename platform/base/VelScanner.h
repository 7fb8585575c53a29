// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelScanner.h Reads words and numbers from a text, one after the other, in no locale.
#ifndef PLATFORM_BASE_VELSCANNER_H
#define PLATFORM_BASE_VELSCANNER_H

#include <cstddef>
#include <optional>
#include <string_view>

#include "platform/base/VelPlatformApi.h"

/// Reads like the conversions of the C library's scanf in the "C" locale, whatever the locale of the process. White
/// space before each item is passed over; after an item that cannot be read nothing more is read.
class VelScanner {
 public:
  /// @param[in] iText not copied; read up to its first NUL, as the C library does
  VEL_PLATFORM_API explicit VelScanner(std::string_view iText) noexcept;

  /// Reads as "%<n>s" does: bytes that are no white space. What goes beyond the limit is the beginning of the next
  /// item.
  /// @param[in] iLimit the most bytes of the word, at least 1
  /// @return the word, a part of the text; nothing at its end
  VEL_PLATFORM_API std::optional<std::string_view> Word(std::size_t iLimit) noexcept;

  /// Reads as "%lf" does: decimal and hexadecimal numbers, "inf", "infinity" and "nan" in any case, with or without a
  /// sign. A number too large is infinite, one too small is zero.
  /// @return the number; nothing where there is none
  VEL_PLATFORM_API std::optional<double> Real() noexcept;

 private:
  bool SkipWhiteSpace() noexcept;
  bool Skip(std::string_view iLowerCase) noexcept;
  std::optional<double> Name() noexcept;
  std::optional<double> Digits() noexcept;
  bool Stop() noexcept;

  std::string_view left_;
};

#endif  // PLATFORM_BASE_VELSCANNER_H
