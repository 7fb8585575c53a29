// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelLineReader.h Walks through a text of the platform's own formats: line by line, each line in words.
#ifndef PLATFORM_BASE_VELLINEREADER_H
#define PLATFORM_BASE_VELLINEREADER_H

#include <string_view>
#include <vector>

#include "platform/base/VelPlatformApi.h"

/// The words of a line; they point into the text.
using VelWords = std::vector<std::string_view>;

/// Reads a text whose lines are words between blanks, and whose comments go from a word that begins with '#' to the end
/// of the line. Lines without words are passed over. A line ends with LF; a CR before it is a blank.
class VEL_PLATFORM_API VelLineReader {
 public:
  /// @param[in] iText not copied; must live as long as the reader and the words
  explicit VelLineReader(std::string_view iText) noexcept : rest_(iText) {}

  /// Goes to the next line that has words. @return false at the end of the text
  bool Next();

  /// @return the words of the line, at least one
  const VelWords& Words() const noexcept { return words_; }

  /// @return the number of the line, from 1; at the end that of the last line, 0 for an empty text
  unsigned Line() const noexcept { return line_; }

 private:
  std::string_view rest_;
  VelWords words_;
  unsigned line_ = 0;
};

/// @return true for a word of ASCII letters, digits and underscores, of which names in these formats are made
VEL_PLATFORM_API bool VelIsName(std::string_view iWord) noexcept;

#endif  // PLATFORM_BASE_VELLINEREADER_H
