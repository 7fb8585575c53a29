// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelUtf.h Reads and writes single code points as UTF-8 and UTF-16.
#ifndef PLATFORM_BASE_VELUTF_H
#define PLATFORM_BASE_VELUTF_H

#include <cstddef>
#include <string>
#include <string_view>

/// Private to this folder.
class VelUtf {
 public:
  /// What stands for everything that is not text.
  static constexpr char32_t replacement = 0xFFFD;

  struct CodePoint {
    char32_t codePoint;  ///< The replacement where the bytes are ill-formed.
    bool wellFormed;     ///< Tells a replacement from a U+FFFD that stands in the text.
  };

  /// Reads one code point, or one maximal subpart of an ill-formed sequence, which is at least one byte.
  /// @param[in,out] ioPosition inside the text; moved behind what was read
  static CodePoint NextOfUtf8(std::string_view iText, std::size_t& ioPosition) noexcept;

  /// Reads one code point; an unpaired surrogate reads as the replacement.
  /// @param[in,out] ioPosition inside the text; moved behind what was read
  static char32_t NextOfUtf16(std::u16string_view iText, std::size_t& ioPosition) noexcept;

  /// @param[in] iCodePoint at most U+10FFFF and no surrogate
  static void AppendUtf8(char32_t iCodePoint, std::string& ioText);
  static void AppendUtf16(char32_t iCodePoint, std::u16string& ioText);
};

#endif  // PLATFORM_BASE_VELUTF_H
