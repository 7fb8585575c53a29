// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelListVal_test.cpp The behaviour of the lists that are counted from 1.
#include "platform/base/VelListVal.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <vector>

#include "platform/base/VelListPtrVelBaseUnknown.h"
#include "platform/base/VelListValVelString.h"
#include "platform/base/VelListValVelUnicodeString.h"
#include "tests/support/VelFailureRecorder.h"

namespace {

constexpr const char* inside = "1 <= position && position <= size";
constexpr const char* insertable = "1 <= position && position <= size + 1";

VelListValVelString ListOf(const std::vector<const char*>& iTexts) {
  VelListValVelString list;
  for (const char* text : iTexts) list.Append(text);
  return list;
}

/// Tells whether exactly one report was raised, in the words of the lists.
void ExpectOneReport(const RecordingFailureObserver& iObserver, const char* iExpression, const std::string& iDetail) {
  ASSERT_EQ(iObserver.Failures().size(), 1U);
  const RecordedFailure& failure = iObserver.Failures().front();
  EXPECT_EQ(failure.kind, VelFailureKind::Check);
  EXPECT_EQ(failure.source, "platform/base/VelListVal");
  EXPECT_EQ(failure.expression, iExpression);
  EXPECT_EQ(failure.message, "List position out of range");
  EXPECT_EQ(failure.detail, iDetail);
}

struct PositionCase {
  const char* name;
  int position;
  const char* detail;  ///< Null where the position is inside the list of three.
};

constexpr PositionCase positionCases[] = {
    {"first", 1, nullptr},
    {"last", 3, nullptr},
    {"zero", 0, "position = 0, size = 3"},
    {"behind the last", 4, "position = 4, size = 3"},
    {"far behind the last", 7, "position = 7, size = 3"},
    {"negative", -1, "position = -1, size = 3"},
    {"lowest", INT_MIN, "position = -2147483648, size = 3"},
    {"highest", INT_MAX, "position = 2147483647, size = 3"},
};

TEST(VelListVal, MadeWithoutArguments_IsEmpty) {
  const VelListValVelString list;
  EXPECT_EQ(list.Size(), 0);
  EXPECT_TRUE(list.IsEmpty());
  EXPECT_EQ(list.begin(), list.end());
}

TEST(VelListVal, Read_CountsFromOne) {
  const VelListValVelString list = ListOf({"a", "b", "c"});
  EXPECT_EQ(list.Size(), 3);
  EXPECT_EQ(list[1], "a");
  EXPECT_EQ(list[2], "b");
  EXPECT_EQ(list[3], "c");
}

TEST(VelListVal, ReadOutsideItsPositions_ReportsAndAnswersAnEmptyValue) {
  const VelListValVelString list = ListOf({"a", "b", "c"});
  for (const PositionCase& test : positionCases) {
    SCOPED_TRACE(test.name);
    const RecordingFailureObserver observer;
    const VelString& value = list[test.position];
    EXPECT_EQ(value.IsEmpty(), test.detail != nullptr);
    if (test.detail != nullptr) {
      ExpectOneReport(observer, inside, test.detail);
    } else {
      EXPECT_TRUE(observer.Failures().empty());
    }
  }
}

TEST(VelListVal, ReadWhileEmpty_ReportsAndAnswersAnEmptyValue) {
  const RecordingFailureObserver observer;
  const VelListValVelUnicodeString list;
  EXPECT_TRUE(list[1].IsEmpty());
  ExpectOneReport(observer, inside, "position = 1, size = 0");
}

TEST(VelListVal, ReadTwiceOutside_AnswersTheSameEmptyValue) {
  const RecordingFailureObserver observer;
  const VelListVal<int> first;
  const VelListVal<int> second;
  EXPECT_EQ(&first[0], &second[9]);
  EXPECT_EQ(first[0], 0);
}

TEST(VelListVal, SetInsideAndOutside_WritesOrRefuses) {
  for (const PositionCase& test : positionCases) {
    SCOPED_TRACE(test.name);
    const RecordingFailureObserver observer;
    VelListValVelString list = ListOf({"a", "b", "c"});
    const HRESULT code = list.Set(test.position, "x");
    if (test.detail != nullptr) {
      EXPECT_EQ(code, E_INVALIDARG);
      EXPECT_EQ(list, ListOf({"a", "b", "c"}));
      ExpectOneReport(observer, inside, test.detail);
      continue;
    }
    EXPECT_EQ(code, S_OK);
    EXPECT_EQ(list[test.position], "x");
    EXPECT_EQ(list.Size(), 3);
    EXPECT_TRUE(observer.Failures().empty());
  }
}

TEST(VelListVal, RemovePositionInsideAndOutside_RemovesOrRefuses) {
  for (const PositionCase& test : positionCases) {
    SCOPED_TRACE(test.name);
    const RecordingFailureObserver observer;
    VelListValVelString list = ListOf({"a", "b", "c"});
    const HRESULT code = list.RemovePosition(test.position);
    if (test.detail != nullptr) {
      EXPECT_EQ(code, E_INVALIDARG);
      EXPECT_EQ(list, ListOf({"a", "b", "c"}));
      ExpectOneReport(observer, inside, test.detail);
      continue;
    }
    EXPECT_EQ(code, S_OK);
    EXPECT_EQ(list, test.position == 1 ? ListOf({"b", "c"}) : ListOf({"a", "b"}));
    EXPECT_TRUE(observer.Failures().empty());
  }
}

TEST(VelListVal, InsertAt_MovesUpWhatStoodThere) {
  struct Case {
    const char* name;
    int position;
    std::vector<const char*> expected;
  };
  const Case cases[] = {
      {"first", 1, {"x", "a", "b"}}, {"last", 2, {"a", "x", "b"}}, {"behind the last", 3, {"a", "b", "x"}}};
  for (const Case& test : cases) {
    SCOPED_TRACE(test.name);
    const RecordingFailureObserver observer;
    VelListValVelString list = ListOf({"a", "b"});
    EXPECT_EQ(list.InsertAt(test.position, "x"), S_OK);
    EXPECT_EQ(list, ListOf(test.expected));
    EXPECT_TRUE(observer.Failures().empty());
  }
}

TEST(VelListVal, InsertAtOutside_ReportsAndRefuses) {
  const PositionCase cases[] = {{"zero", 0, "position = 0, size = 2"},
                                {"two behind the last", 4, "position = 4, size = 2"},
                                {"negative", -3, "position = -3, size = 2"}};
  for (const PositionCase& test : cases) {
    SCOPED_TRACE(test.name);
    const RecordingFailureObserver observer;
    VelListValVelString list = ListOf({"a", "b"});
    EXPECT_EQ(list.InsertAt(test.position, "x"), E_INVALIDARG);
    EXPECT_EQ(list, ListOf({"a", "b"}));
    ExpectOneReport(observer, insertable, test.detail);
  }
}

TEST(VelListVal, InsertAtTheStartOfAnEmptyList_Appends) {
  VelListValVelString list;
  EXPECT_EQ(list.InsertAt(1, "x"), S_OK);
  EXPECT_EQ(list, ListOf({"x"}));
}

TEST(VelListVal, Locate_AnswersTheFirstPositionOrZero) {
  const VelListValVelString list = ListOf({"a", "b", "a"});
  EXPECT_EQ(list.Locate("a"), 1);
  EXPECT_EQ(list.Locate("b"), 2);
  EXPECT_EQ(list.Locate("A"), 0);
  EXPECT_EQ(VelListValVelString().Locate(""), 0);
}

TEST(VelListVal, RemoveValue_TakesOutTheFirstAndTellsWhenAbsent) {
  const RecordingFailureObserver observer;
  VelListValVelString list = ListOf({"a", "b", "a"});
  EXPECT_EQ(list.RemoveValue("a"), S_OK);
  EXPECT_EQ(list, ListOf({"b", "a"}));
  EXPECT_EQ(list.RemoveValue("x"), S_FALSE);
  EXPECT_EQ(list, ListOf({"b", "a"}));
  EXPECT_TRUE(observer.Failures().empty());
}

TEST(VelListVal, GivenItsOwnElements_CopiesThemBeforeItMovesAnything) {
  const VelString longText("a text that is too long to stand in the string object itself");
  VelListValVelString list;
  list.Append(longText);
  list.Append("b");
  list.Append(list[1]);
  EXPECT_EQ(list.InsertAt(1, list[2]), S_OK);
  EXPECT_EQ(list.Size(), 4);
  EXPECT_EQ(list[1], "b");
  EXPECT_EQ(list[2], longText);
  EXPECT_EQ(list[4], longText);
  EXPECT_EQ(list.RemoveValue(list[2]), S_OK);
  EXPECT_EQ(list.Locate(longText), 3);
}

TEST(VelListVal, RemoveAll_LeavesAnEmptyList) {
  VelListValVelString list = ListOf({"a", "b"});
  list.RemoveAll();
  EXPECT_TRUE(list.IsEmpty());
  EXPECT_EQ(list.Locate("a"), 0);
}

TEST(VelListVal, Iterated_FollowsThePositions) {
  std::string joined;
  for (const VelString& text : ListOf({"a", "b", "c"})) joined += text.View();
  EXPECT_EQ(joined, "abc");
}

TEST(VelListPtrVelBaseUnknown, WithObjects_ComparesAddressesAndAnswersNullOutside) {
  int objects[2] = {0, 0};
  // A list never touches what its pointers lead to, so that any two addresses serve.
  auto* first = reinterpret_cast<VelBaseUnknown*>(&objects[0]);
  auto* second = reinterpret_cast<VelBaseUnknown*>(&objects[1]);
  const RecordingFailureObserver observer;
  VelListPtrVelBaseUnknown list;
  list.Append(first);
  EXPECT_EQ(list.Locate(first), 1);
  EXPECT_EQ(list.Locate(second), 0);
  EXPECT_EQ(list[2], nullptr);
  EXPECT_EQ(observer.Failures().size(), 1U);
}

}  // namespace
