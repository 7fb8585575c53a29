// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshTranslatorParameter_Reset_test.cpp Parameters that go back to the default values of their dialogs.
#include <optional>

#include "tests/RenderingShader/parameters/fixtures/FakeParameterLayout.h"
#include "tests/RenderingShader/updates/TranslatorTest.h"
#include "tests/RenderingShader/updates/fixtures/FakeParameter.h"

namespace {

class VelRshTranslatorResetTest : public TranslatorTest {
 protected:
  void SetUp() override {
    TranslatorTest::SetUp();
    dialogs_.emplace();
    dialogs_->boolean = SentBoolean::After();
    dialogs_->integer = SentIntegral::After();
    dialogs_->text = SentString::After();
  }

  bool SendReset(VelBaseUnknown* iObject) const {
    return translate_(VelRbaResetRenderingMaterialNotification(iObject));
  }

  /// The fake gives one list of numbers, of which a scalar takes the first.
  template <class Sent>
  void SetReals() {
    const rgba_t color = SentColor::After();
    dialogs_->reals = {color.r, color.g, color.b, color.a};
    if (std::string(Sent::startUp) == "VelRmaScalar") dialogs_->reals = {1.5F, 9.0F, 9.0F, 9.0F};
  }

  template <class Sent>
  void ExpectReset() {
    SetReals<Sent>();
    for (const char* type : {"Top", "MPM"}) {
      SCOPED_TRACE(std::string(type) + " " + Sent::startUp);
      MakeRoot(type);
      const VelIRshParameter_var hParameter = AddBefore<Sent>(hRoot_, "p");
      const VelIRshParameter_var hBelow = AddBefore<Sent>(Connect("one"), "p");
      dialogs_->dialogCode = E_FAIL;
      EXPECT_FALSE(SendReset(hParameter.Get()));
      EXPECT_EQ(Sent::Read(hParameter), Sent::Before()) << "what a failing dialog gives is not written";
      dialogs_->dialogCode = S_OK;
      dialogs_->dialogCalls = dialogs_->layoutCalls = 0;
      EXPECT_TRUE(SendReset(hParameter.Get()));
      EXPECT_EQ(Sent::Read(hParameter), Sent::After());
      EXPECT_EQ(dialogs_->dialogCalls, 1);
      EXPECT_EQ(dialogs_->layoutCalls, 0) << "the layout has no say";
      EXPECT_TRUE(SendReset(hParameter.Get())) << "also where it is the value already";
      EXPECT_EQ(Sent::Read(hBelow), Sent::Before()) << "it reaches no sub-shader";
    }
  }

  std::optional<FakeParameterLayouts> dialogs_;
};

TEST_F(VelRshTranslatorResetTest, Default_IsReadFromTheDialogAndWritten) {
  ExpectReset<SentBoolean>();
  ExpectReset<SentIntegral>();
  ExpectReset<SentFloat>();
  ExpectReset<SentColor>();
  ExpectReset<SentString>();
}

TEST_F(VelRshTranslatorResetTest, OtherTypes_AreNotHandled) {
  for (const char* startUp : {"VelRmaVector", "VelRmaMatrix", "VelRmaTexture", "VelRmaLightProfile", "VelRmaVoid"}) {
    const VelIRshParameter_var hParameter = Add(hRoot_, "p", startUp);
    dialogs_->dialogCalls = 0;
    EXPECT_FALSE(SendReset(hParameter.Get())) << startUp;
    EXPECT_EQ(dialogs_->dialogCalls, 0) << startUp;
  }
}

TEST_F(VelRshTranslatorResetTest, ParameterWithoutADialog_IsNotHandled) {
  dialogs_.reset();
  const VelIRshParameter_var hScalar = AddScalar(hRoot_, "p", 2.0F);
  EXPECT_FALSE(SendReset(hScalar.Get()));
  EXPECT_EQ(ScalarOf(hScalar), 2.0F);
}

TEST_F(VelRshTranslatorResetTest, WhatIsNoParameter_IsNotHandled) {
  EXPECT_FALSE(SendReset(nullptr));
  EXPECT_FALSE(SendReset(hRoot_.Get()));
}

TEST_F(VelRshTranslatorResetTest, ParameterWithoutARoot_IsWrittenAndNotHandled) {
  dialogs_->reals = {4.0F};
  const VelIRshParameter_var hAlone(Make("VelRmaScalar"));
  EXPECT_FALSE(SendReset(hAlone.Get()));
  EXPECT_EQ(ScalarOf(hAlone), 4.0F);
}

TEST_F(VelRshTranslatorResetTest, WriteThatFails_IsNotHandled) {
  const FakeParameterBindings bindings;
  FakeParameter::Notes notes;
  const struct {
    const char* startUp;
    const char* write;
  } cases[] = {{"VelRmaBoolean", "fake write of 1"},
               {"VelRmaInteger", "fake write of 1"},
               {"VelRmaScalar", "fake write of 1"},
               {"VelRmaString", "fake write of 1"},
               {"VelRmaColor", "fake write of 4"}};
  for (const auto& test : cases) {
    SCOPED_TRACE(test.startUp);
    const VelIRshParameter_var hFake = FakeParameter::Create("fake", test.startUp, notes);
    FakeParameter& fake = FakeParameter::Of(hFake);
    fake.parent = hRoot_.Get();
    for (const HRESULT code : {S_OK, S_FALSE, E_FAIL}) {
      notes.clear();
      fake.setCode = code;
      EXPECT_EQ(SendReset(hFake.Get()), code != E_FAIL);
      EXPECT_EQ(notes, (Texts{"fake default", test.write}));
    }
  }
}

TEST_F(VelRshTranslatorResetTest, EditOfAnotherType_IsRefusedBeforeItIsWritten) {
  const FakeParameterBindings bindings;
  FakeParameter::Notes notes;
  const VelIRshParameter_var hVector = FakeParameter::Create("vector", "VelRmaVector", notes);
  const VelIRshParameter_var hTexture = FakeParameter::Create("texture", "VelRmaTexture", notes);
  FakeParameter::Of(hVector).parent = FakeParameter::Of(hTexture).parent = hRoot_.Get();
  EXPECT_FALSE(Send<SentColor>(hVector));
  EXPECT_FALSE(Send<SentString>(hTexture)) << "which is what the host hears when a document was set";
  EXPECT_EQ(notes, Texts{});
}

TEST_F(VelRshTranslatorResetTest, EditThatCannotBeWritten_IsNotHandled) {
  const FakeParameterBindings bindings;
  FakeParameter::Notes notes;
  const VelIRshParameter_var hFake = FakeParameter::Create("fake", "VelRmaScalar", notes);
  FakeParameter& fake = FakeParameter::Of(hFake);
  fake.parent = hRoot_.Get();
  const VelIRshParameter_var hBelow = AddScalar(Connect("one"), "fake", 7.0F);
  fake.reals = {8.0F};
  fake.setCode = E_FAIL;
  EXPECT_FALSE(Send<SentFloat>(hFake));
  EXPECT_EQ(ScalarOf(hBelow), 7.0F) << "nothing is carried over";
  fake.setCode = S_FALSE;
  EXPECT_TRUE(Send<SentFloat>(hFake));
  EXPECT_EQ(ScalarOf(hBelow), 1.5F);
}

}  // namespace
