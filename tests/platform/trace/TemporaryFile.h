// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TemporaryFile.h The path of a file that is gone before and after a test.
#ifndef TESTS_PLATFORM_TRACE_TEMPORARYFILE_H
#define TESTS_PLATFORM_TRACE_TEMPORARYFILE_H

#include <string>
#include <vector>

class TemporaryFile {
 public:
  /// Names a file of the running test and of this process; it does not exist yet.
  TemporaryFile();
  ~TemporaryFile();
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  const std::string& Path() const { return path_; }

  /// @return what is in the file now; empty when there is none.
  std::string Content() const;
  std::vector<std::string> Lines() const;

 private:
  std::string path_;
};

#endif  // TESTS_PLATFORM_TRACE_TEMPORARYFILE_H
