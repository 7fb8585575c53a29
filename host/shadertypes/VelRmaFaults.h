// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaFaults.h Collects what is wrong with a file of a shader type.
#ifndef HOST_SHADERTYPES_VELRMAFAULTS_H
#define HOST_SHADERTYPES_VELRMAFAULTS_H

#include <cstddef>
#include <functional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/configuration/VelConfigurationContent.h"
#include "platform/configuration/VelConfigurationNode.h"

/// All causes of one file, so that its author mends them at once, and how their texts are worded.
class VelRmaFaults {
 public:
  /// So many are told of one file; the rest is counted.
  static constexpr std::size_t limit = 20;

  /// @param[in] iCause in English, made to follow the position in a message
  void Add(VelConfigurationPosition iPosition, std::string iCause);

  /// Adds a word that is not known, with the one that may be meant.
  /// @param[in] iWords those that are known
  /// @return the one of iWords that may be meant; empty where none is near, and where there are too many to be told
  std::string_view AddUnknown(VelConfigurationPosition iPosition, std::string iCause, std::string_view iFound,
                              std::span<const std::string_view> iWords);

  /// Remembers a key of the file that was found in another table, so that it is not said to be missing as well.
  void Misplace(std::string_view iKey) { misplaced_.emplace(iKey); }
  bool IsMisplaced(std::string_view iKey) const { return misplaced_.contains(iKey); }

  bool IsEmpty() const noexcept { return faults_.empty(); }

  /// @return the faults in the order of the text, the last of which tells how many more there are
  std::vector<VelConfigurationFault> Take();

  /// @return a text between quotes, cut where it is long, with '?' for what is not to be printed
  static std::string Quote(std::string_view iText);

  /// @return what a node is, for instance "the text 'x'" or "an array"
  static std::string Describe(const VelConfigurationNode& iNode);

  /// @return "a, b or c"
  static std::string Choice(std::span<const std::string_view> iWords);

 private:
  /// So many are kept to be put in order. A file of 4 MiB could have any number.
  static constexpr std::size_t capacity = 1000;

  std::vector<VelConfigurationFault> faults_;
  std::size_t more_ = 0;  ///< Those that are only counted.
  std::set<std::string, std::less<>> misplaced_;
};

#endif  // HOST_SHADERTYPES_VELRMAFAULTS_H
