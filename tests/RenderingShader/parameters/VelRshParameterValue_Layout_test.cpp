// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterValue_Layout_test.cpp What the host supplies where no value was set.
#include "RenderingShader/interfaces/VelRshModelNotificationValueChanged.h"
#include "RenderingShader/interfaces/VelRshParameterPublisherEvents.h"
#include "tests/RenderingShader/RshModelTest.h"
#include "tests/RenderingShader/model/fixtures/VelTestEventRecorder.h"
#include "tests/RenderingShader/parameters/fixtures/FakeParameterLayout.h"
#include "tests/RenderingShader/parameters/fixtures/PlainTypes.h"

namespace {

class VelRshParameterValueLayoutTest : public RshModelTest {
 protected:
  void SetUp() override {
    RshModelTest::SetUp();
    hShader_ = MakeShader();
  }
  void TearDown() override {
    hShader_ = nullptr;
    RshModelTest::TearDown();
  }

  /// Makes a default the one that a type's first value is.
  static void Supply(bool iValue) { FakeParameterLayouts::Current().boolean = iValue; }
  static void Supply(std::int32_t iValue) { FakeParameterLayouts::Current().integer = iValue; }
  static void Supply(float iValue) { FakeParameterLayouts::Current().reals[0] = iValue; }
  static void Supply(const VelUnicodeString& iValue) { FakeParameterLayouts::Current().text = iValue; }
  template <std::size_t Count>
  static void Supply(const std::array<float, Count>& iValue) {
    std::copy(iValue.begin(), iValue.end(), FakeParameterLayouts::Current().reals.begin());
  }

  template <class Type>
  static constexpr bool isVector = std::is_same_v<typename Type::Value, std::array<float, 3>>;
  template <class Type>
  static constexpr bool isScalar = std::is_same_v<typename Type::Value, float>;

  VelIRshShader_var hShader_;
};

TEST_F(VelRshParameterValueLayoutTest, WhereNoneWasSet_TheLayoutSupplies_AndTheDialogForAVector) {
  FakeParameterLayouts layouts;
  ForEachTypeWithDefault([&](const auto& iType) {
    using Type = std::decay_t<decltype(iType)>;
    SCOPED_TRACE(iType.startUp);
    Supply(iType.first);
    layouts.layoutCalls = 0;
    layouts.dialogCalls = 0;
    auto read = iType.second;
    EXPECT_EQ(Add(hShader_, "p", iType.startUp)->GetValue(TargetOf(read)), S_OK);
    EXPECT_EQ(read, iType.first);
    EXPECT_EQ(layouts.layoutCalls, isVector<Type> ? 0 : 1);
    EXPECT_EQ(layouts.dialogCalls, isVector<Type> ? 1 : 0);
  });
}

TEST_F(VelRshParameterValueLayoutTest, ProviderThatSucceedsWithAnotherCode_IsSOk) {
  FakeParameterLayouts layouts;
  layouts.layoutCode = layouts.dialogCode = S_FALSE;
  ForEachTypeWithDefault([&](const auto& iType) {
    Supply(iType.first);
    auto read = iType.second;
    EXPECT_EQ(Add(hShader_, "p", iType.startUp)->GetValue(TargetOf(read)), S_OK) << iType.startUp;
    EXPECT_EQ(read, iType.first) << iType.startUp;
  });
}

TEST_F(VelRshParameterValueLayoutTest, ProviderThatFails_GivesItsCodeAndTheDefaultOfTheType) {
  FakeParameterLayouts layouts;
  layouts.layoutCode = E_UNEXPECTED;
  layouts.dialogCode = E_INVALIDARG;
  ForEachTypeWithDefault([&](const auto& iType) {
    using Type = std::decay_t<decltype(iType)>;
    Supply(iType.first);
    auto read = iType.second;
    EXPECT_EQ(Add(hShader_, "p", iType.startUp)->GetValue(TargetOf(read)), isVector<Type> ? E_INVALIDARG : E_UNEXPECTED)
        << iType.startUp;
    EXPECT_EQ(read, iType.fallback) << iType.startUp;
  });
}

TEST_F(VelRshParameterValueLayoutTest, WhereOneWasSet_NobodyIsAsked) {
  FakeParameterLayouts layouts;
  ForEachTypeWithDefault([&](const auto& iType) {
    const VelIRshParameter_var hParameter = Add(hShader_, "p", iType.startUp);
    EXPECT_EQ(hParameter->SetValue(SourceOf(iType.second)), S_OK) << iType.startUp;
    layouts.layoutCalls = 0;
    layouts.dialogCalls = 0;
    auto read = iType.fallback;
    EXPECT_EQ(hParameter->GetValue(TargetOf(read)), S_OK) << iType.startUp;
    EXPECT_EQ(hParameter->SetValue(SourceOf(iType.second)), S_FALSE) << iType.startUp;
    EXPECT_EQ(layouts.layoutCalls + layouts.dialogCalls, 0) << iType.startUp;
  });
}

TEST_F(VelRshParameterValueLayoutTest, Matrix_AsksNobody) {
  FakeParameterLayouts layouts;
  const VelIRshParameter_var hMatrix = Add(hShader_, "m", "VelRmaMatrix");
  std::array<float, 16> read{};
  EXPECT_EQ(hMatrix->GetValue(TargetOf(read)), E_FAIL);
  EXPECT_EQ(layouts.layoutCalls + layouts.dialogCalls, 0);
}

TEST_F(VelRshParameterValueLayoutTest, SettingWhatIsSupplied_ChangesAllButAScalar) {
  FakeParameterLayouts layouts;
  ForEachTypeWithDefault([&](const auto& iType) {
    using Type = std::decay_t<decltype(iType)>;
    SCOPED_TRACE(iType.startUp);
    Supply(iType.first);
    const VelIRshParameter_var hParameter = Add(hShader_, "p", iType.startUp);
    VelTestRecorder recorder;
    recorder.Hear(ManagerOf(hParameter), VelRshParameterPublisherEvents::VALUE_UPDATED());
    EXPECT_EQ(hParameter->SetValue(SourceOf(iType.first)), isScalar<Type> ? S_FALSE : S_OK);
    EXPECT_EQ(recorder.Notes().size(), isScalar<Type> ? 0U : 1U);
    // What was written stays when the supplier says something else.
    Supply(iType.second);
    auto read = iType.fallback;
    EXPECT_EQ(hParameter->GetValue(TargetOf(read)), S_OK);
    EXPECT_EQ(read, isScalar<Type> ? iType.second : iType.first);
  });
}

TEST_F(VelRshParameterValueLayoutTest, ScalarWhoseLayoutFails_IsWrittenThoughItEqualsTheDefault) {
  FakeParameterLayouts layouts;
  layouts.layoutCode = E_UNEXPECTED;
  const VelIRshParameter_var hScalar = Add(hShader_, "s", "VelRmaScalar");
  const float zero = 0.0F;
  EXPECT_EQ(hScalar->SetValue(&zero), S_OK);
  float read = 1.0F;
  EXPECT_EQ(hScalar->GetValue(&read), S_OK);
  EXPECT_EQ(read, 0.0F);
}

TEST_F(VelRshParameterValueLayoutTest, OldValueOfANotification_IsTheOneThatWasSupplied) {
  FakeParameterLayouts layouts;
  layouts.integer = 5;
  const VelIRshParameter_var hInteger = Add(hShader_, "i", "VelRmaInteger");
  VelTestRecorder recorder;
  recorder.Hear(ManagerOf(hInteger), VelRshParameterPublisherEvents::VALUE_UPDATED());
  std::int32_t old = 0;
  recorder.Do([&](VelEventName, VelBaseUnknown*, VelNotification* ioNotification) {
    const auto* changed = VelNotificationCast<VelRshModelNotificationParameterIntegral1Changed>(ioNotification);
    if (changed != nullptr) old = changed->GetOld();
  });
  const std::int32_t next = 6;
  EXPECT_EQ(hInteger->SetValue(&next), S_OK);
  EXPECT_EQ(old, 5);
}

}  // namespace
