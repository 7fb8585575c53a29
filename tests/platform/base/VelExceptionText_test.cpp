// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelExceptionText_test.cpp What exceptions of each family say in the detail of a check.
#include "platform/base/VelExceptionText.h"

#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

namespace {

template <class Thrown>
std::string TextOf(const Thrown& iThrown) {
  try {
    throw iThrown;  // NOLINT(cert-err60-cpp): any type has to be thrown here
  } catch (...) {
    return VelExceptionText("Thing");
  }
}

TEST(VelExceptionText, ExceptionOfTheStandardFamily_IsQuotedAfterWhoLetItOut) {
  EXPECT_EQ(TextOf(std::runtime_error("no room")), "Thing: no room");
  EXPECT_EQ(TextOf(std::out_of_range("")), "Thing: ");
}

TEST(VelExceptionText, AnyOtherException_LeavesWhoLetItOut) {
  EXPECT_EQ(TextOf(17), "Thing");
  EXPECT_EQ(TextOf(std::string("text")), "Thing");
}

}  // namespace
