// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file FakeConfigurationReader.h A reader of configuration files that needs no library.
#ifndef TESTS_PLATFORM_CONFIGURATION_FAKECONFIGURATIONREADER_H
#define TESTS_PLATFORM_CONFIGURATION_FAKECONFIGURATIONREADER_H

/// While it lives, the dictionary answers VelIConfigurationReader for "VelPlatformFiles" by a reader of lines, whose
/// words are separated by one blank each; what is written as "-" is empty:
///
///     <configuration> <key> <value>     an entry
///     <configuration> < <parent>        a parent
///     fault <line> <column>             a fault there, "as written"
///     fail                              a failure without a fault
///     throw                             an exception
class FakeConfigurationReader {
 public:
  FakeConfigurationReader();
  ~FakeConfigurationReader();
  FakeConfigurationReader(const FakeConfigurationReader&) = delete;
  FakeConfigurationReader& operator=(const FakeConfigurationReader&) = delete;

  /// @return the number of files that any reader was asked to read since the construction
  static int Count();
};

#endif  // TESTS_PLATFORM_CONFIGURATION_FAKECONFIGURATIONREADER_H
