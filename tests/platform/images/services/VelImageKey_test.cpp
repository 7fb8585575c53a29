// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageKey_test.cpp What keys tell apart.
#include "platform/images/services/VelImageKey.h"

#include <gtest/gtest.h>

#include <functional>
#include <set>

#include "platform/base/system/VelSystemInputFile.h"

namespace {

TEST(VelImageKey, SameParts_GiveTheSameKeyOfFortyDigits) {
  const std::string key = VelImageKey().Add("pixels").Add(96).Finish();
  EXPECT_EQ(key.size(), 40U);
  EXPECT_EQ(key.find_first_not_of("0123456789abcdef"), std::string::npos);
  EXPECT_EQ(VelImageKey().Add("pixels").Add(96).Finish(), key);
}

TEST(VelImageKey, EveryPartAndTheirBordersCount) {
  const VelSystemFileStatus status{1, 2, 3, 4, 5};
  const VelSystemFileStatus statuses[] = {
      {9, 2, 3, 4, 5}, {1, 9, 3, 4, 5}, {1, 2, 9, 4, 5}, {1, 2, 3, 9, 5}, {1, 2, 3, 4, 9}};
  std::multiset<std::string> keys{VelImageKey().Finish(),
                                  VelImageKey().Add("").Finish(),
                                  VelImageKey().Add("ab").Add("c").Finish(),
                                  VelImageKey().Add("a").Add("bc").Finish(),
                                  VelImageKey().Add("abc").Finish(),
                                  VelImageKey().Add("c").Add("ab").Finish(),
                                  VelImageKey().Add(1).Finish(),
                                  VelImageKey().Add(-1).Finish(),
                                  VelImageKey().Add(status).Finish()};
  for (const VelSystemFileStatus& other : statuses) keys.insert(VelImageKey().Add(other).Finish());
  EXPECT_EQ(keys.size(), 14U);
  EXPECT_EQ(std::set<std::string>(keys.begin(), keys.end()).size(), keys.size());
}

}  // namespace
