// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelToken.h Takes a text apart into words.
#ifndef PLATFORM_BASE_VELTOKEN_H
#define PLATFORM_BASE_VELTOKEN_H

#include <bitset>
#include <cstddef>

#include "platform/base/VelPlatformApi.h"
#include "platform/base/VelString.h"

/// The words of a text, one after the other. Separators in a row count as one; at the start and at the end they make no
/// word.
class VelToken {
 public:
  /// Blank, tab, carriage return, line feed, vertical tab, form feed.
  static constexpr const char* whiteSpace = " \t\r\n\v\f";

  /// @param[in] iText copied
  /// @param[in] iSeparators each of its ASCII bytes separates; others are passed over, so that no character of several
  /// bytes is ever cut. Without any, the whole text is one word.
  VEL_PLATFORM_API explicit VelToken(const VelString& iText, const VelString& iSeparators = whiteSpace);

  /// @return the next word; an empty one at the end, and at every call from then on
  VEL_PLATFORM_API VelString Next();

 private:
  static constexpr std::size_t asciiSize = 128;

  bool IsSeparator(char iByte) const noexcept;

  VelString text_;
  std::bitset<asciiSize> separators_;
  std::size_t position_ = 0;
};

#endif  // PLATFORM_BASE_VELTOKEN_H
