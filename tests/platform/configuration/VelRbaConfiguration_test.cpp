// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRbaConfiguration_test.cpp Looking values up through the hierarchy, and forgetting what was looked up.
#include "platform/configuration/VelRbaConfiguration.h"

#include <functional>
#include <string>

#include "tests/platform/configuration/ConfigurationTest.h"
#include "tests/support/VelAllocationCounter.h"

namespace {

void Set(const VelString& iConfiguration, const VelString& iKey, const VelString& iValue) {
  ASSERT_TRUE(SUCCEEDED(VelRbaConfiguration::SetValue(iConfiguration, iKey, iValue)));
}

void Put(const VelString& iConfiguration, const VelString& iParent) {
  ASSERT_TRUE(SUCCEEDED(VelRbaConfiguration::SetParent(iConfiguration, iParent)));
}

class VelRbaConfigurationTest : public ConfigurationTest {};

TEST_F(VelRbaConfigurationTest, LookUp_TakesTheFirstOfTheHierarchyThatHasTheKey) {
  Put("Car", "Metal");
  Put("Metal", "Basic");
  Set("Car", "everywhere", "car");
  Set("Metal", "everywhere", "metal");
  Set("Basic", "everywhere", "basic");
  Set("Default", "everywhere", "default");
  Set("Metal", "middle", "metal");
  Set("Basic", "middle", "basic");
  Set("Basic", "top", "basic");
  Set("Default", "top", "default");
  Set("Default", "last", "default");
  Set("Default", "empty", "default");
  Set("Metal", "empty", "");
  Set("Car", "blanks", "  a\tb\n ");
  Put("Orphan", "Nobody");
  struct Case {
    const char* name;
    const char* configuration;
    const char* key;
    const char* expected;
  };
  for (const Case& test :
       {Case{"own value", "Car", "everywhere", "car"}, Case{"of the parent", "Car", "middle", "metal"},
        Case{"of the parent's parent", "Car", "top", "basic"}, Case{"of Default", "Car", "last", "default"},
        Case{"an empty text answers", "Car", "empty", ""}, Case{"blanks are kept", "Car", "blanks", "  a\tb\n "},
        Case{"nowhere", "Car", "missing", "(none)"}, Case{"not from below", "Metal", "blanks", "(none)"},
        Case{"an unknown name has Default", "Unknown", "last", "default"},
        Case{"a parent that nobody knows has Default", "Orphan", "last", "default"},
        Case{"Default itself", "Default", "last", "default"}, Case{"case counts", "car", "middle", "(none)"},
        Case{"case of keys counts", "Car", "Middle", "(none)"}, Case{"empty name", "", "last", "(none)"},
        Case{"empty key", "Car", "", "(none)"}}) {
    SCOPED_TRACE(test.name);
    EXPECT_EQ(Value(test.configuration, test.key), test.expected);
    EXPECT_EQ(Value(test.configuration, test.key), test.expected) << "the second time";
  }
  EXPECT_EQ(TakeErrors(), Texts{});
}

TEST_F(VelRbaConfigurationTest, ParentCalledDefault_EndsTheHierarchyThere) {
  Put("Car", "Default");
  Set("Default", "key", "default");
  EXPECT_EQ(Value("Car", "key"), "default");
  EXPECT_EQ(Value("Car", "missing"), "(none)");
}

TEST_F(VelRbaConfigurationTest, ParentsInACircle_AnswerWhatStandsBeforeItClosesAndNothingElse) {
  Put("Entry", "A");
  Put("A", "B");
  Put("B", "C");
  Put("C", "A");
  Put("Self", "Self");
  Set("B", "inside", "b");
  Set("Entry", "own", "entry");
  Set("Self", "own", "self");
  Set("Default", "last", "default");
  struct Case {
    const char* configuration;
    const char* key;
    const char* expected;
  };
  for (const Case& test : {Case{"Entry", "own", "entry"}, Case{"Entry", "inside", "b"}, Case{"C", "inside", "b"},
                           Case{"Entry", "last", "(none)"}, Case{"A", "last", "(none)"}, Case{"A", "more", "(none)"},
                           Case{"Self", "own", "self"}, Case{"Self", "last", "(none)"}}) {
    SCOPED_TRACE(std::string(test.configuration) + " " + test.key);
    EXPECT_EQ(Value(test.configuration, test.key), test.expected);
  }
  EXPECT_EQ(TakeErrors(), (Texts{"VelRbaConfiguration: The parents of 'Entry' run in a circle",
                                 "VelRbaConfiguration: The parents of 'A' run in a circle",
                                 "VelRbaConfiguration: The parents of 'Self' run in a circle"}))
      << "once each";
  Put("C", "");
  EXPECT_EQ(Value("Entry", "last"), "default");
}

TEST_F(VelRbaConfigurationTest, CirclesOfAnySizeBehindAnyEntry_AreFound) {
  for (int entry = 0; entry < 9; ++entry) {
    for (int size = 1; size < 9; ++size) {
      SCOPED_TRACE(std::to_string(entry) + " in front of " + std::to_string(size));
      VelRbaConfiguration::Clear();
      Set("Default", "key", "default");
      for (int i = 0; i < entry + size; ++i) {
        const int next = i + 1 < entry + size ? i + 1 : entry;
        Put(VelString("L" + std::to_string(i)), VelString("L" + std::to_string(next)));
      }
      // The last level of the circle is still reached.
      Set(VelString("L" + std::to_string(entry + size - 1)), "deep", "found");
      EXPECT_EQ(Value("L0", "key"), "(none)");
      EXPECT_EQ(Value("L0", "deep"), "found");
    }
  }
}

TEST_F(VelRbaConfigurationTest, HierarchyOfTenThousand_IsClimbedToItsTop) {
  constexpr int depth = 10000;
  for (int i = 0; i < depth; ++i) Put(VelString("L" + std::to_string(i)), VelString("L" + std::to_string(i + 1)));
  Set(VelString("L" + std::to_string(depth)), "key", "top");
  Set("Default", "last", "default");
  EXPECT_EQ(Value("L0", "key"), "top");
  EXPECT_EQ(Value("L0", "last"), "default");
  EXPECT_EQ(Value("L0", "missing"), "(none)");
}

TEST_F(VelRbaConfigurationTest, Changes_SayWhetherThereWasOne) {
  EXPECT_EQ(VelRbaConfiguration::SetValue("A", "k", "v"), S_OK);
  EXPECT_EQ(VelRbaConfiguration::SetValue("A", "k", "v"), S_FALSE);
  EXPECT_EQ(VelRbaConfiguration::SetValue("A", "empty", ""), S_OK) << "an empty value is one";
  EXPECT_EQ(VelRbaConfiguration::SetValue("A", "empty", ""), S_FALSE);
  EXPECT_EQ(VelRbaConfiguration::SetValue("", "k", "v"), E_INVALIDARG);
  EXPECT_EQ(VelRbaConfiguration::SetValue("A", "", "v"), E_INVALIDARG);
  EXPECT_EQ(VelRbaConfiguration::SetParent("A", "B"), S_OK);
  EXPECT_EQ(VelRbaConfiguration::SetParent("A", "B"), S_FALSE);
  EXPECT_EQ(VelRbaConfiguration::SetParent("A", ""), S_OK);
  EXPECT_EQ(VelRbaConfiguration::SetParent("Unknown", ""), S_FALSE);
  EXPECT_EQ(VelRbaConfiguration::SetParent("", "B"), E_INVALIDARG);
  EXPECT_EQ(VelRbaConfiguration::SetParent("Default", "B"), E_INVALIDARG);
  EXPECT_EQ(VelRbaConfiguration::RemoveConfiguration("A"), S_OK);
  EXPECT_EQ(VelRbaConfiguration::RemoveConfiguration("A"), S_FALSE);
  EXPECT_EQ(VelRbaConfiguration::RemoveConfiguration("Unknown"), S_FALSE);
}

TEST_F(VelRbaConfigurationTest, EachKindOfChange_RaisesTheGenerationAndChangesTheNextAnswer) {
  struct Case {
    const char* name;
    std::function<void()> change;
    const char* expected;
  };
  const Case cases[] = {
      {"new value", [] { Set("Car", "key", "car"); }, "car"},
      {"other value", [] { Set("Metal", "key", "other"); }, "other"},
      {"other parent", [] { Put("Car", "Wood"); }, "wood"},
      {"parent taken away", [] { Put("Car", ""); }, "default"},
      {"removed", [] { ASSERT_EQ(VelRbaConfiguration::RemoveConfiguration("Metal"), S_OK); }, "default"},
      {"cleared", [] { VelRbaConfiguration::Clear(); }, "(none)"},
  };
  for (const Case& test : cases) {
    SCOPED_TRACE(test.name);
    VelRbaConfiguration::Clear();
    Put("Car", "Metal");
    Set("Metal", "key", "metal");
    Set("Wood", "key", "wood");
    Set("Default", "key", "default");
    ASSERT_EQ(Value("Car", "key"), "metal");
    const std::uint64_t before = VelRbaConfiguration::Generation();
    test.change();
    EXPECT_EQ(VelRbaConfiguration::Generation(), before + 1);
    EXPECT_EQ(Value("Car", "key"), test.expected);
  }
}

TEST_F(VelRbaConfigurationTest, RememberedAbsence_IsForgottenWhenTheValueComes) {
  ASSERT_EQ(Value("Unknown", "key"), "(none)");
  Set("Default", "key", "default");
  EXPECT_EQ(Value("Unknown", "key"), "default");
}

TEST_F(VelRbaConfigurationTest, WhatChangesNothing_LeavesTheGeneration) {
  Set("A", "k", "v");
  Put("A", "B");
  const std::uint64_t before = VelRbaConfiguration::Generation();
  Set("A", "k", "v");
  Put("A", "B");
  EXPECT_EQ(VelRbaConfiguration::RemoveConfiguration("Unknown"), S_FALSE);
  static_cast<void>(Value("A", "k"));
  static_cast<void>(Value("A", "missing"));
  EXPECT_EQ(VelRbaConfiguration::Generation(), before);
  VelRbaConfiguration::Clear();
  VelRbaConfiguration::Clear();
  EXPECT_EQ(VelRbaConfiguration::Generation(), before + 1);
}

TEST_F(VelRbaConfigurationTest, LookUpThatWasMadeBefore_AllocatesNothing) {
  const VelString long1 = "a configuration whose name is longer than what a string holds inside";
  const VelString long2 = "a key that is longer than what a string holds inside";
  const VelString miss = "another key that is longer than what a string holds inside";
  const VelString unknown = "a name that nobody knows and that is longer than what a string holds inside";
  Put(long1, "Metal");
  Set("Metal", long2, "a value that is longer than what a string holds inside");
  VelString value;
  for (int i = 0; i < 2; ++i) {
    const VelAllocationCounter allocations;
    ASSERT_EQ(VelRbaConfiguration::GetHierarchicalValue(long1, long2, value), S_OK);
    ASSERT_EQ(VelRbaConfiguration::GetHierarchicalValue(long1, miss, value), E_FAIL);
    ASSERT_EQ(VelRbaConfiguration::GetHierarchicalValue(unknown, miss, value), E_FAIL);
    EXPECT_EQ(allocations.Count() > 0, i == 0);
  }
}

TEST_F(VelRbaConfigurationTest, MoreNamesThanAreRemembered_AreStillAnsweredRight) {
  Set("Default", "key", "default");
  Set("Car", "key", "car");
  for (int i = 0; i < 70000; ++i) {
    ASSERT_EQ(Value(std::to_string(i).c_str(), "key"), "default");
  }
  VelString value("default");
  const VelString first("0");
  const VelString key("key");
  {
    const VelAllocationCounter allocations;
    ASSERT_EQ(VelRbaConfiguration::GetHierarchicalValue(first, key, value), S_OK);
    EXPECT_GT(allocations.Count(), 0) << "the first name is forgotten";
  }
  {
    const VelAllocationCounter allocations;
    ASSERT_EQ(VelRbaConfiguration::GetHierarchicalValue(first, key, value), S_OK);
    EXPECT_EQ(allocations.Count(), 0) << "and remembered anew";
  }
  EXPECT_EQ(Value("Car", "key"), "car");
  EXPECT_EQ(Value("0", "key"), "default");
  EXPECT_EQ(Value("0", "missing"), "(none)");
}

TEST_F(VelRbaConfigurationTest, RemovedParent_LeavesTheNameToWhoeverComesNext) {
  Put("Car", "Metal");
  Set("Metal", "key", "metal");
  ASSERT_EQ(VelRbaConfiguration::RemoveConfiguration("Metal"), S_OK);
  EXPECT_EQ(Value("Car", "key"), "(none)");
  Set("Metal", "key", "new");
  EXPECT_EQ(Value("Car", "key"), "new");
}

}  // namespace
