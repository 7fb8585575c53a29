// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTestMain.cpp The main function of every test program: it takes over the environment's locale and runs the
/// tests.
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <locale>

#include <gtest/gtest.h>

#include "platform/base/VelVisibility.h"
#include "platform/objectmodeler/VelInstanceCounts.h"
#include "platform/trace/VelTraceService.h"

// The C library keeps what it splits LOCPATH into; it is the loader of the comma locale, not the system under test. The
// library that draws SVG files keeps the entities of their texts. The table of what was suppressed would end up in what
// death tests read. The names are the sanitizer's.
extern "C" VEL_EXPORT const char* __lsan_default_suppressions();   // NOLINT
extern "C" VEL_EXPORT const char* __lsan_default_suppressions() {  // NOLINT
  return "leak:argz_add_sep\nleak:xmlParseEntityValue\n";
}
extern "C" VEL_EXPORT const char* __lsan_default_options();                                    // NOLINT
extern "C" VEL_EXPORT const char* __lsan_default_options() { return "print_suppressions=0"; }  // NOLINT

namespace {

/// After each test nothing may be alive that the test made: no component, implementation, forwarder or channel.
class LeakListener final : public ::testing::EmptyTestEventListener {
  void OnTestEnd(const ::testing::TestInfo&) override {
    const VelInstanceCounts left = VelInstanceCounts::Now();
    EXPECT_EQ(left.components, 0);
    EXPECT_EQ(left.implementations, 0);
    EXPECT_EQ(left.forwarders, 0);
    EXPECT_EQ(left.delegatingExtensions, 0);
    EXPECT_EQ(left.liveParts, 0);
    EXPECT_EQ(VelTraceService::OpenChannelCount(), 0);
  }
};

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
  ::testing::UnitTest::GetInstance()->listeners().Append(new LeakListener);
  return RUN_ALL_TESTS();
}
