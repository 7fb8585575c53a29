// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTraceSwitches.h The switches of the trace channels, read from their text form.
#ifndef PLATFORM_TRACE_VELTRACESWITCHES_H
#define PLATFORM_TRACE_VELTRACESWITCHES_H

#include <string>
#include <string_view>
#include <vector>

/// Which messages of a channel are on; each level includes those before it. info + n is the class level n.
namespace VelTraceLevel {
inline constexpr int off = 0;
inline constexpr int error = 1;
inline constexpr int warning = 2;
inline constexpr int info = 3;
}  // namespace VelTraceLevel

/// A list of patterns with their levels. VelTraceService::SetSwitches documents the text form.
class VelTraceSwitches {
 public:
  /// Reads the text form.
  /// @param[out] oComplaints one message per bad item is appended; it names the item and what was expected
  [[nodiscard]] static VelTraceSwitches Parse(std::string_view iText, std::vector<std::string>& oComplaints);

  /// @return the level of a channel, from off to info + 9.
  [[nodiscard]] int LevelOf(std::string_view iChannel) const noexcept;

 private:
  struct Item {
    std::string name;  ///< Of the channel, or the beginning of its name.
    bool isPrefix;
    int level;
  };

  std::vector<Item> items_;
};

#endif  // PLATFORM_TRACE_VELTRACESWITCHES_H
