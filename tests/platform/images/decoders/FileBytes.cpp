// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file FileBytes.cpp Numbers as bytes in either order.
#include "tests/platform/images/decoders/FileBytes.h"

#include <bit>
#include <filesystem>
#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

std::string BytesOf(std::initializer_list<int> iBytes) {
  std::string bytes;
  for (const int byte : iBytes) bytes += static_cast<char>(byte);
  return bytes;
}

std::string BigEndian(std::uint64_t iNumber, int iBytes) {
  const std::string bytes = LittleEndian(iNumber, iBytes);
  return {bytes.rbegin(), bytes.rend()};
}

std::string LittleEndian(std::uint64_t iNumber, int iBytes) {
  std::string bytes;
  for (int i = 0; i < iBytes; ++i) bytes += static_cast<char>(iNumber >> (8 * i) & 0xFF);
  return bytes;
}

std::string FloatBytes(float iNumber) { return LittleEndian(std::bit_cast<std::uint32_t>(iNumber), 4); }

std::string ReadTestFile(const std::string& iName) {
  std::ifstream file(std::filesystem::path(VEL_TEST_IMAGE_FILES) / iName, std::ios::binary);
  EXPECT_TRUE(file.is_open()) << iName;
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}
