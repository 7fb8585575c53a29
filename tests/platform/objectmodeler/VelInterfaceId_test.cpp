// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelInterfaceId_test.cpp The numbers behind the names of interfaces.
#include "platform/objectmodeler/VelInterfaceId.h"

#include <string>

#include <gtest/gtest.h>

#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelMetaClass.h"

namespace {

const VelInterfaceId IID_VelITestBase{"VelITestBase", IID_VelBaseUnknown};
const VelInterfaceId IID_VelITestDerived{"VelITestDerived", IID_VelITestBase};

TEST(VelInterfaceIdTest, Identifier_TellsItsNameAndBase) {
  EXPECT_STREQ(IID_VelITestDerived.Name(), "VelITestDerived");
  EXPECT_EQ(IID_VelITestDerived.Base(), &IID_VelITestBase);
  EXPECT_EQ(IID_VelITestBase.Base(), &IID_VelBaseUnknown);
  EXPECT_EQ(IID_VelBaseUnknown.Base(), nullptr);
  EXPECT_STREQ(IID_VelBaseUnknown.Name(), "VelBaseUnknown");
}

TEST(VelInterfaceIdTest, IdentifiersOfOneName_AreEqual_AndOthersAreNot) {
  const std::string name = "VelITestDerived";
  const VelInterfaceId again(name.c_str());
  EXPECT_EQ(again.Index(), IID_VelITestDerived.Index());
  EXPECT_TRUE(again == IID_VelITestDerived);
  EXPECT_FALSE(IID_VelITestBase == IID_VelITestDerived);
}

TEST(VelInterfaceIdTest, Numbers_AreHandedOutByNameWithoutGaps) {
  const std::uint32_t known = VelInterfaceId::FindIndex("VelITestNumbered");
  const std::uint32_t number = VelInterfaceId::IndexOf("VelITestNumbered");
  EXPECT_TRUE(known == VelInterfaceId::noNumber || known == number) << "a test that runs twice finds its number";
  EXPECT_EQ(VelInterfaceId::IndexOf("VelITestNumbered"), number);
  EXPECT_EQ(VelInterfaceId::FindIndex("VelITestNumbered"), number);
  EXPECT_EQ(VelInterfaceId::NameOf(number), "VelITestNumbered");
  for (std::uint32_t each = 0; each <= number; ++each) {
    const std::string name(VelInterfaceId::NameOf(each));
    EXPECT_EQ(VelInterfaceId::FindIndex(name), each) << name;
  }
}

TEST(VelInterfaceIdTest, NumberOrNameThatWasNeverUsed_IsNone) {
  EXPECT_EQ(VelInterfaceId::FindIndex("VelITestThatNobodyEverNamed"), VelInterfaceId::noNumber);
  EXPECT_EQ(VelInterfaceId::FindIndex("VelITestThatNobodyEverNamed"), VelInterfaceId::noNumber)
      << "asking hands out none";
  EXPECT_EQ(VelInterfaceId::NameOf(VelInterfaceId::noNumber), "");
}

TEST(VelInterfaceIdTest, MetaObject_IsAnInterfaceThatDerivesAsTheIdentifierDoes) {
  const VelMetaClass& metaClass = IID_VelITestDerived.MetaObject();
  EXPECT_STREQ(metaClass.Name(), "VelITestDerived");
  EXPECT_STREQ(metaClass.IdentifierName(), "VelITestDerived");
  EXPECT_EQ(metaClass.TypeOfClass(), VelTypeOfClass::Interface);
  EXPECT_EQ(metaClass.Base(), &IID_VelITestBase.MetaObject());
  EXPECT_EQ(metaClass.Base()->Base(), &IID_VelBaseUnknown.MetaObject());
  EXPECT_EQ(IID_VelBaseUnknown.MetaObject().Base(), nullptr);
  EXPECT_EQ(&IID_VelITestDerived.MetaObject(), &metaClass);
  EXPECT_TRUE(metaClass.IsAKindOf("VelBaseUnknown"));
}

}  // namespace
