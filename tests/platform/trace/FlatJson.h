// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file FlatJson.h Reads a JSON object of texts and numbers, strictly, with means of its own.
#ifndef TESTS_PLATFORM_TRACE_FLATJSON_H
#define TESTS_PLATFORM_TRACE_FLATJSON_H

#include <map>
#include <string>
#include <string_view>

class FlatJson {
 public:
  /// @param[in] iLine one object; escapes above \u007f are not read
  /// @return its members, numbers as they are written; empty when the line is no such object
  static std::map<std::string, std::string> Read(std::string_view iLine);
};

#endif  // TESTS_PLATFORM_TRACE_FLATJSON_H
