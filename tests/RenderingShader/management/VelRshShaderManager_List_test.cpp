// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshShaderManager_List_test.cpp Which types suit a context, and what the list answers.
#include "tests/RenderingShader/management/fixtures/ManagementTest.h"

namespace {

using VelRshShaderManagerListTest = ManagementTest;

TEST_F(VelRshShaderManagerListTest, UsageFlags_SuitByOneCommonBitAndZeroSuitsAny) {
  First().Add("any").usage.value = 0;
  First().Add("two").usage.value = 2;
  First().Add("six").usage.value = 6;
  First().Add("top").usage.value = 0x80000000U;
  const struct {
    unsigned usage;
    Texts expected;
  } cases[] = {{0, {"any"}},
               {1, {"any"}},
               {2, {"any", "two", "six"}},
               {4, {"any", "six"}},
               {8, {"any"}},
               {3, {"any", "two", "six"}},
               {0x80000000U, {"any", "top"}},
               {0xFFFFFFFFU, {"any", "two", "six", "top"}}};
  for (const auto& row : cases) EXPECT_EQ(List(row.usage).types, row.expected) << row.usage;
}

TEST_F(VelRshShaderManagerListTest, OutputTypes_SuitWhenTheyAreEqualAndVoidTakesVectors) {
  for (const char* output : {"VelRmaColor", "VelRmaVector", "VelRmaVoid", "velrmacolor", ""}) {
    First().Add(("to " + std::string(output)).c_str()).output.value = output;
  }
  const struct {
    const char* wanted;
    Texts expected;
  } cases[] = {{"", {"to VelRmaColor", "to VelRmaVector", "to VelRmaVoid", "to velrmacolor", "to "}},
               {"VelRmaColor", {"to VelRmaColor"}},
               {"VelRmaVector", {"to VelRmaVector"}},
               {"VelRmaVoid", {"to VelRmaVector", "to VelRmaVoid"}},
               {"VelRmaScalar", {}}};
  for (const auto& row : cases) EXPECT_EQ(List(0, row.wanted).types, row.expected) << row.wanted;
}

TEST_F(VelRshShaderManagerListTest, TypesAndNames_AreAppendedPairwise) {
  First().Add("a").display.value = "Alpha";
  First().Add("b").display.code = E_FAIL;
  First().Add("c").display.value =
      "\xC3\x87"
      "a";
  VelListValVelString types;
  VelListValVelUnicodeString names;
  types.Append("before");
  names.Append("Before");
  EXPECT_EQ(Manager().ListAvailableShaders(0, "", types, names), S_OK);
  ASSERT_EQ(types.Size(), 3);
  ASSERT_EQ(names.Size(), 3);
  EXPECT_EQ(types[1], "before");
  EXPECT_EQ(types[2], "a");
  EXPECT_EQ(types[3], "c");
  EXPECT_EQ(names[1], VelUnicodeString("Before"));
  EXPECT_EQ(names[2], VelUnicodeString("Alpha"));
  EXPECT_EQ(names[3], VelUnicodeString("\xC3\x87"
                                       "a"));
}

TEST_F(VelRshShaderManagerListTest, NoType_IsAFailureWithTheListsUntouched) {
  EXPECT_EQ(List().code, E_FAIL);
  EXPECT_EQ(List().types, Texts{});
}

TEST_F(VelRshShaderManagerListTest, EachOperationThatFails_SkipsItsTypeAndTheOthersFollow) {
  const char* const names[] = {"usage fails", "output fails", "name fails", "last"};
  for (const char* name : names) First().Add(name);
  First().types[0].usage.code = E_FAIL;
  First().types[1].output.code = E_FAIL;
  First().types[2].display.code = E_FAIL;
  EXPECT_EQ(List().types, Texts{"last"});
  EXPECT_EQ(First().calls,
            (Texts{"ListShaderTypes", "GetUsageFlags usage fails", "GetUsageFlags output fails",
                   "GetOutputType output fails", "GetUsageFlags name fails", "GetOutputType name fails",
                   "GetDisplayName name fails", "GetUsageFlags last", "GetOutputType last", "GetDisplayName last"}));
}

TEST_F(VelRshShaderManagerListTest, ATypeThatDoesNotSuit_IsAskedForItsOutputButNotForItsName) {
  First().Add("other usage").usage.value = 2;
  First().Add("other output").output.value = "VelRmaScalar";
  EXPECT_EQ(List(4, "VelRmaColor").types, Texts{});
  EXPECT_EQ(First().calls, (Texts{"ListShaderTypes", "GetUsageFlags other usage", "GetOutputType other usage",
                                  "GetUsageFlags other output", "GetOutputType other output"}));
}

TEST_F(VelRshShaderManagerListTest, TheResult_IsThatOfTheLastCallOfAFactory) {
  const struct {
    const char* name;
    HRESULT usage;
    HRESULT output;
    HRESULT display;
    std::uint32_t flags;
    HRESULT expected;
    bool isListed;
  } cases[] = {{"all well", S_OK, S_OK, S_OK, 0, S_OK, true},
               {"usage", E_NOINTERFACE, S_OK, S_OK, 0, E_NOINTERFACE, false},
               {"output", S_OK, E_INVALIDARG, S_OK, 0, E_INVALIDARG, false},
               {"display", S_OK, S_OK, E_UNEXPECTED, 0, E_UNEXPECTED, false},
               {"other usage", S_OK, S_FALSE, E_UNEXPECTED, 2, S_FALSE, false},
               {"a success of its own", S_OK, S_OK, S_FALSE, 0, S_FALSE, true}};
  First().Add("first");
  VelTestShaderType& last = First().Add("last");
  for (const auto& row : cases) {
    last.usage = {row.flags, row.usage};
    last.output.code = row.output;
    last.display.code = row.display;
    const Listed listed = List(4);
    EXPECT_EQ(listed.code, row.expected) << row.name;
    EXPECT_EQ(listed.types, (row.isListed ? Texts{"first", "last"} : Texts{"first"})) << row.name;
  }
}

TEST_F(VelRshShaderManagerListTest, TheResult_IsASuccessWhereOnlyAnEarlierTypeFailed) {
  First().Add("fails").usage.code = E_UNEXPECTED;
  First().Add("does not suit").usage.value = 2;
  const Listed listed = List(4);
  EXPECT_EQ(listed.code, S_OK) << "asking for the output went well";
  EXPECT_EQ(listed.types, Texts{});
}

TEST_F(VelRshShaderManagerListTest, FlagsOfAFailure_DoNotLeakIntoTheNextType) {
  First().Add("a").usage = {6, S_OK};
  First().Add("b").usage = {0, S_OK};
  EXPECT_EQ(List(8).types, Texts{"b"});
}

}  // namespace
