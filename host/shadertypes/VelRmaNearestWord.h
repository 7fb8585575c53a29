// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaNearestWord.h Finds the word that somebody may have meant.
#ifndef HOST_SHADERTYPES_VELRMANEARESTWORD_H
#define HOST_SHADERTYPES_VELRMANEARESTWORD_H

#include <span>
#include <string>
#include <string_view>

/// For messages about words that are not known.
class VelRmaNearestWord {
 public:
  /// The nearest is the one that takes the fewest letters to be put in, left out, exchanged with their neighbours or
  /// replaced; letters of either case are the same, and so is a word without the beginning "VelRma".
  /// @param[in] iFound what was written; a very long one is near to nothing
  /// @return the nearest word, the first of equally near ones; empty where none is near
  static std::string_view Find(std::string_view iFound, std::span<const std::string_view> iWords);

  /// @param[in] iNearest what Find gave
  /// @return "; did you mean 'scale_u'?", empty where no word is near
  static std::string Question(std::string_view iNearest);
};

#endif  // HOST_SHADERTYPES_VELRMANEARESTWORD_H
