// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelOpenDescriptors.h How many descriptors the test has open, so that it sees one that is left.
#ifndef TESTS_PLATFORM_BASE_SYSTEM_VELOPENDESCRIPTORS_H
#define TESTS_PLATFORM_BASE_SYSTEM_VELOPENDESCRIPTORS_H

#include <cstddef>
#include <filesystem>
#include <iterator>

inline std::size_t CountOpenDescriptors() {
  const std::filesystem::directory_iterator entries("/proc/self/fd");
  return static_cast<std::size_t>(std::distance(begin(entries), end(entries)));
}

#endif  // TESTS_PLATFORM_BASE_SYSTEM_VELOPENDESCRIPTORS_H
