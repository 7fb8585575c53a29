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

  ~LonelyCommand() override {
    const VelBaseUnknown_var self(static_cast<VelBaseUnknown*>(this));
    if (destroyed != nullptr) *destroyed = true;
  }
  LonelyCommand& operator=(const LonelyCommand&) = default;

  VelBaseUnknown_var Copy() const { return VelBaseUnknown_var::Adopt(new LonelyCommand(*this)); }

  bool* destroyed = nullptr;

 private:
  using VelCommand::VelCommand;
  LonelyCommand(const LonelyCommand&) = default;
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

TEST_F(VelCommandTest, Copy_HasTheSameParentAndNameAndIsAComponentOfItsOwn) {
  const VelBaseUnknown_var hParent = LonelyCommand::Make(nullptr, nullptr);
  const VelBaseUnknown_var hCommand = LonelyCommand::Make(&CommandOf(hParent), "original");
  const VelBaseUnknown_var hCopy = static_cast<LonelyCommand&>(CommandOf(hCommand)).Copy();
  EXPECT_FALSE(hCopy->IsEqual(hCommand.Get()));
  EXPECT_EQ(CommandOf(hCopy).GetName(), VelString("original"));
  EXPECT_EQ(CommandOf(hCopy).GetParent(), &CommandOf(hParent));
  EXPECT_TRUE(VelTestIShared_var(hCopy));
  static_cast<LonelyCommand&>(CommandOf(hCopy)) = static_cast<LonelyCommand&>(CommandOf(hParent));
  EXPECT_TRUE(CommandOf(hCopy).GetName().IsEmpty());
  EXPECT_EQ(CommandOf(hCopy).GetParent(), nullptr);
}

TEST_F(VelCommandTest, Destructor_MayTakeAHandleOnItsOwnObject) {
  bool destroyed = false;
  {
    const VelBaseUnknown_var hCommand = LonelyCommand::Make(nullptr, nullptr);
    static_cast<LonelyCommand&>(CommandOf(hCommand)).destroyed = &destroyed;
  }
  EXPECT_TRUE(destroyed);
}

TEST_F(VelCommandTest, From_GivesTheObjectBehindAPointerOrNone) {
  const VelBaseUnknown_var hObject = VelObject::Create("VelTestThing", nullptr);
  EXPECT_STREQ(hObject->IsA(), "VelObject") << "without a class name it is a plain object";
  EXPECT_EQ(VelObject::From(VelTestIValue_var(hObject).Get()), hObject->GetComponent());
  EXPECT_EQ(VelObject::From(nullptr), nullptr);
  EXPECT_EQ(hObject->GetComponent()->LateTypeName(), "VelTestThing");
}

TEST_F(VelCommandTest, Object_HasALateTypeAndAClassOfItsOwn) {
  const VelBaseUnknown_var hObject = VelObject::Create("VelTestThing", "VelTestDelegate");
  EXPECT_STREQ(hObject->IsA(), "VelTestDelegate");
  EXPECT_TRUE(hObject->IsAKindOf("VelObject"));
  EXPECT_TRUE(VelTestIValue_var(hObject));
  EXPECT_EQ(hObject->GetComponentState(), VelComponentState::InSession);
}

}  // namespace
