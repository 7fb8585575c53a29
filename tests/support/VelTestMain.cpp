// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTestMain.cpp The main function of every test program: it takes over the environment's locale and runs the tests.
#include <clocale>
#include <cstdlib>
#include <cstring>
#include <locale>

#include <gtest/gtest.h>

namespace {

/// Puts the process under the locale that the environment names, the way a host program would.
bool AdoptEnvironmentLocale() {
  if (std::setlocale(LC_ALL, "") == nullptr) return std::getenv("VEL_TEST_COMMA_LOCALE") == nullptr;
  std::locale::global(std::locale(""));
  const bool commaWanted = std::getenv("VEL_TEST_COMMA_LOCALE") != nullptr;
  return !commaWanted || std::strcmp(std::localeconv()->decimal_point, ",") == 0;
}

}  // namespace

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  if (!AdoptEnvironmentLocale()) {
    std::fputs("The comma locale that this run asks for is not in force.\n", stderr);
    return 2;
  }
  return RUN_ALL_TESTS();
}
