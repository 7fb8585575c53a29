// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file HostTest.cpp The fixture of the host's tests.
#include "tests/host/HostTest.h"

#include "platform/objectmodeler/VelDictionary.h"

namespace {

constexpr const char* dictionary = VEL_TEST_LIBRARY_FOLDER "/dictionaries/VelRshHost.dictionary";

}  // namespace

void HostTest::SetUp() {
  RshModelTest::SetUp();
  ASSERT_EQ(VelDictionary::LoadFile(dictionary), S_OK);
}

void HostTest::TearDown() {
  RshModelTest::TearDown();
  EXPECT_EQ(VelDictionary::Unload(dictionary), S_OK);
}
