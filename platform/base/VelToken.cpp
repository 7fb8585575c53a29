// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelToken.cpp Takes a text apart into words.
#include "platform/base/VelToken.h"

#include <string_view>

VelToken::VelToken(const VelString& iText, const VelString& iSeparators) : text_(iText) {
  for (const char byte : iSeparators.View()) {
    const auto code = static_cast<unsigned char>(byte);
    if (code < asciiSize) separators_.set(code);
  }
}

VelString VelToken::Next() {
  const std::string_view text = text_.View();
  while (position_ < text.size() && IsSeparator(text[position_])) ++position_;
  const std::size_t start = position_;
  while (position_ < text.size() && !IsSeparator(text[position_])) ++position_;
  return text_.SubString(start, position_ - start);
}

bool VelToken::IsSeparator(char iByte) const noexcept {
  const auto code = static_cast<unsigned char>(iByte);
  return code < asciiSize && separators_[code];
}
