// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelQueryFramework_test.cpp Which framework answers, told without opening its library.
#include <string>

#include "platform/objectmodeler/VelDictionary.h"
#include "platform/objectmodeler/VelMetaClass.h"
#include "platform/objectmodeler/VelModule.h"
#include "tests/platform/objectmodeler/DictionaryScope.h"

namespace {

using VelQueryFrameworkTest = DictionaryTest;

TEST_F(VelQueryFrameworkTest, BoundInterface_IsAnsweredWithTheFramework_AndAnythingElseWithNothing) {
  ASSERT_EQ(scope_.LoadModule("a.dictionary", "VelTestOne",
                              "class C Extension\nbind VelTestFrameThing VelITestFrame TIE Reference C\n"),
            S_OK);
  EXPECT_EQ(VelQueryFramework("VelTestFrameThing", "VelITestFrame"), "FrameworkOfVelTestOne");
  EXPECT_EQ(VelQueryFramework("VelTestFrameThing", "VelITestFrameOther"), "");
  EXPECT_EQ(VelQueryFramework("VelTestFrameOther", "VelITestFrame"), "");
  EXPECT_EQ(VelQueryFramework("VelTestFrameThing", ""), "");
  EXPECT_EQ(VelQueryFramework("", "VelITestFrame"), "");
}

TEST_F(VelQueryFrameworkTest, WhatEveryComponentAnswers_IsAnsweredForAnyLateType) {
  EXPECT_EQ(VelQueryFramework("VelComponent", "VelIDelegation"), "Platform");
  EXPECT_EQ(VelQueryFramework("VelTestFrameThatNobodyEverNamed", "VelIDelegation"), "Platform");
}

TEST_F(VelQueryFrameworkTest, LateTypeThatOnlyItsMetaClassNames_ClimbsToTheBasesOfTheClass) {
  ASSERT_EQ(scope_.LoadModule("a.dictionary", "VelTestOne",
                              "class C Extension\nbind VelTestFrameBase VelITestFrame TIE Reference C\n"),
            S_OK);
  const VelMetaClass& base = fct_RetrieveMetaObject("VelTestFrameBase", nullptr, VelTypeOfClass::Implementation);
  const VelMetaClass& between = fct_RetrieveMetaObject("VelTestFrameBetween", &base, VelTypeOfClass::Implementation);
  fct_RetrieveMetaObject("VelTestFrameNeverUsed", &between, VelTypeOfClass::Implementation);
  EXPECT_EQ(VelQueryFramework("VelTestFrameNeverUsed", "VelITestFrame"), "FrameworkOfVelTestOne");
}

TEST(VelQueryFrameworkAloneTest, Question_OpensNoLibrary) {
  RunAlone([] {
    ASSERT_EQ(VelDictionary::LoadFile(BuiltDictionary("VelTestGrid")), S_OK);
    EXPECT_EQ(VelQueryFramework("VelTestGridDerived", "VelITestNumber"), "TestFramework");
    EXPECT_EQ(VelModuleRegistration::Find("VelTestGrid"), nullptr);
  });
}

}  // namespace
