// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTomlGuard.cpp Walks through a TOML text, past strings and comments, and counts.
#include "platform/files/VelTomlGuard.h"

#include <algorithm>
#include <cstddef>

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

/// The walk over one text. What it takes for a string or a comment, the parser does too, or else the parser stops there
/// with an error: so nothing is parsed that was not counted.
class Walk {
 public:
  explicit Walk(std::string_view iText) : text_(iText) {
    if (text_.starts_with(byteOrderMark)) lineStart_ = position_ = byteOrderMark.size();
  }

  /// @return true when the end is reached within the limits
  bool Run(VelConfigurationFault& oFault) {
    while (position_ < text_.size()) {
      const char byte = text_[position_];
      if (byte == '#') {
        position_ = std::min(text_.find('\n', position_), text_.size());
      } else if (byte == '"' || byte == '\'') {
        SkipString(byte);
      } else if (const char* excess = Count(byte); excess != nullptr) {
        oFault = {line_, Column(), excess};
        return false;
      } else {
        ++position_;
      }
    }
    return true;
  }

 private:
  /// Counts what stands outside strings and comments. Dots are counted in values, too, where a few are all there can
  /// be.
  /// @return what is too much, null when nothing is
  const char* Count(char iByte) {
    switch (iByte) {
      case '.':
        return ++parts_ > VelTomlGuard::partLimit ? "a key has more than 32 parts" : nullptr;
      case '\n':
        StartLine(position_ + 1);
        // No key goes on in the next line. Brackets may, but not the brackets of a header.
        parts_ = 1;
        return nullptr;
      case '{':
      case '[':
        parts_ = 1;
        return ++depth_ > VelTomlGuard::depthLimit ? "tables and arrays stand more than 32 deep in each other"
                                                   : nullptr;
      case '}':
      case ']':
        if (depth_ > 0) --depth_;
        return nullptr;
      case '=':
      case ',':
        parts_ = 1;
        return nullptr;
      default:
        return nullptr;
    }
  }

  void SkipString(char iQuote) {
    const std::string_view three = iQuote == '"' ? "\"\"\"" : "'''";
    const bool isLong = text_.substr(position_).starts_with(three);
    position_ += isLong ? three.size() : 1;
    while (position_ < text_.size()) {
      const char byte = text_[position_];
      // A string of one line that is not closed is the parser's to refuse.
      if (byte == '\n' && !isLong) return;
      if (byte == '\n') StartLine(position_ + 1);
      if (isLong ? text_.substr(position_).starts_with(three) : byte == iQuote) return SkipEnd(iQuote, isLong);
      position_ += byte == '\\' && iQuote == '"' ? EscapeSize() : 1;
    }
  }

  /// An escaped line feed is left where it is, so that the line is counted.
  std::size_t EscapeSize() const { return position_ + 1 < text_.size() && text_[position_ + 1] != '\n' ? 2 : 1; }

  /// Up to two quotes may stand right before the three that end a long string.
  void SkipEnd(char iQuote, bool iIsLong) {
    position_ += iIsLong ? 3 : 1;
    for (int i = 0; iIsLong && i < 2 && position_ < text_.size() && text_[position_] == iQuote; ++i) ++position_;
  }

  void StartLine(std::size_t iPosition) {
    ++line_;
    lineStart_ = iPosition;
  }

  /// @return the column in code points: every byte that does not go on with a sequence begins one
  unsigned Column() const {
    const auto isBegin = [](char iByte) { return (static_cast<unsigned char>(iByte) & 0xC0U) != 0x80U; };
    const std::string_view before = text_.substr(lineStart_, position_ - lineStart_);
    return 1 + static_cast<unsigned>(std::count_if(before.begin(), before.end(), isBegin));
  }

  std::string_view text_;
  std::size_t position_ = 0;
  std::size_t lineStart_ = 0;
  unsigned line_ = 1;
  unsigned parts_ = 1;
  unsigned depth_ = 0;
};

}  // namespace

bool VelTomlGuard::Accepts(std::string_view iText, VelConfigurationFault& oFault) { return Walk(iText).Run(oFault); }
