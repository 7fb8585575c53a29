// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file ObjectModelerTest.h The fixture of the object modeler's tests: the grid declared, the script clean.
#ifndef TESTS_PLATFORM_OBJECTMODELER_OBJECTMODELERTEST_H
#define TESTS_PLATFORM_OBJECTMODELER_OBJECTMODELERTEST_H

#include <gtest/gtest.h>

#include "platform/objectmodeler/VelDictionary.h"
#include "tests/platform/objectmodeler/fixtures/VelTestObjects.h"

class ObjectModelerTest : public ::testing::Test {
 protected:
  void SetUp() override {
    VelTestScript::Current() = {};
    ASSERT_EQ(VelDictionary::Declare(VelTestObjectsTable()), S_OK);
  }
  void TearDown() override {
    EXPECT_EQ(VelDictionary::Undeclare(VelTestObjectsTable()), S_OK);
    VelTestScript::Current() = {};
  }

  static VelBaseUnknown_var MakeThing() { return VelObject::Create("VelTestThing", "VelTestThingObject"); }
  static std::vector<std::string>& Notes() { return VelTestScript::Current().notes; }

  static void End(const VelBaseUnknown_var& iObject) { static_cast<VelObject*>(iObject->GetComponent())->EndLife(); }
};

#endif  // TESTS_PLATFORM_OBJECTMODELER_OBJECTMODELERTEST_H
