// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelCommand_test.cpp Commands and plain objects: their names, late types and ends.
#include "platform/objectmodeler/VelCommand.h"

#include "platform/objectmodeler/VelMetaClass.h"
#include "tests/platform/objectmodeler/ObjectModelerTest.h"

namespace {

/// A command whose class has the name of a late type that the tests' grid extends.
class LonelyCommand final : public VelCommand {
 public:
  static VelBaseUnknown_var Make(VelCommand* iParent, const char* iName) {
    const VelMetaClass& metaClass =
        fct_RetrieveMetaObject("VelTestLonelyType", &VelCommand::MetaObject(), VelTypeOfClass::Implementation);
    return VelBaseUnknown_var::Adopt(new LonelyCommand(iParent, iName, metaClass));
  }

 private:
  using VelCommand::VelCommand;
};

using VelCommandTest = ObjectModelerTest;

VelCommand& CommandOf(const VelBaseUnknown_var& iHandle) { return static_cast<VelCommand&>(*iHandle->GetComponent()); }

TEST_F(VelCommandTest, Command_HasTheNameOfItsClassAsLateType) {
  const VelBaseUnknown_var hCommand = LonelyCommand::Make(nullptr, nullptr);
  EXPECT_STREQ(hCommand->ClassName(), "VelTestLonelyType");
  EXPECT_TRUE(hCommand->IsAKindOf("VelCommand"));
  EXPECT_TRUE(hCommand->IsAKindOf("VelObject"));
  const VelTestIShared_var hShared(hCommand);
  ASSERT_TRUE(hShared) << "what is declared on the class's late type answers";
  EXPECT_EQ(hShared->Answer(), 3);
}

TEST_F(VelCommandTest, Command_KnowsItsParentAndItsName) {
  const VelBaseUnknown_var hParent = LonelyCommand::Make(nullptr, nullptr);
  const VelBaseUnknown_var hCommand = LonelyCommand::Make(&CommandOf(hParent), "copy");
  EXPECT_EQ(CommandOf(hParent).GetParent(), nullptr);
  EXPECT_TRUE(CommandOf(hParent).GetName().IsEmpty());
  EXPECT_EQ(CommandOf(hCommand).GetParent(), &CommandOf(hParent));
  EXPECT_EQ(CommandOf(hCommand).GetName(), VelString("copy"));
}

TEST_F(VelCommandTest, Object_HasALateTypeAndAClassOfItsOwn) {
  const VelBaseUnknown_var hObject = VelObject::Create("VelTestThing", "VelTestDelegate");
  EXPECT_STREQ(hObject->IsA(), "VelTestDelegate");
  EXPECT_TRUE(hObject->IsAKindOf("VelObject"));
  EXPECT_TRUE(VelTestIValue_var(hObject));
  EXPECT_EQ(hObject->GetComponentState(), VelComponentState::InSession);
}

}  // namespace
