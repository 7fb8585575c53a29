// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TemporaryFile.cpp The path of a file that is gone before and after a test.
#include "tests/platform/trace/TemporaryFile.h"

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

TemporaryFile::TemporaryFile() {
  static int count = 0;
  path_ = ::testing::TempDir() + "vel_trace_" + std::to_string(::getpid()) + "_" + std::to_string(++count) + ".txt";
  std::filesystem::remove(path_);
}

TemporaryFile::~TemporaryFile() {
  std::error_code ignored;
  std::filesystem::remove(path_, ignored);
}

std::string TemporaryFile::Content() const {
  std::ostringstream content;
  content << std::ifstream(path_, std::ios::binary).rdbuf();
  return content.str();
}

std::vector<std::string> TemporaryFile::Lines() const {
  std::vector<std::string> lines;
  std::ifstream file(path_, std::ios::binary);
  for (std::string line; std::getline(file, line);) lines.push_back(line);
  return lines;
}
