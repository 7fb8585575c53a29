// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterValue_Notifications_test.cpp What subscribers and the host are told of a new value.
#include "RenderingShader/interfaces/VelRshModelNotificationValueChanged.h"
#include "RenderingShader/interfaces/VelRshParameterPublisherEvents.h"
#include "platform/events/VelIModelEvents.h"
#include "platform/materials/VelRbaBooleanShaderModifyNotification.h"
#include "platform/materials/VelRbaColorShaderModifyNotification.h"
#include "platform/materials/VelRbaFloatShaderModifyNotification.h"
#include "platform/materials/VelRbaIntegralShaderModifyNotification.h"
#include "platform/materials/VelRbaStringShaderModifyNotification.h"
#include "tests/RenderingShader/RshModelTest.h"
#include "tests/RenderingShader/model/fixtures/VelTestEventRecorder.h"
#include "tests/RenderingShader/model/fixtures/VelTestHostListener.h"
#include "tests/RenderingShader/parameters/fixtures/PlainTypes.h"

namespace {

using Events = VelRshParameterPublisherEvents;

class VelRshParameterValueNotificationsTest : public RshModelTest {
 protected:
  void SetUp() override {
    RshModelTest::SetUp();
    hShader_ = MakeShader();
  }
  void TearDown() override {
    hShader_ = nullptr;
    RshModelTest::TearDown();
  }

  /// Sets two values and expects that subscribers hear of each change with what was and what is.
  template <class Changed, class Value>
  void ExpectPublished(const char* iStartUp, const Value& iDefault, const Value& iFirst, const Value& iSecond) {
    SCOPED_TRACE(iStartUp);
    const VelIRshParameter_var hParameter = Add(hShader_, "p", iStartUp);
    VelTestRecorder recorder;
    recorder.Hear(ManagerOf(hParameter), Events::VALUE_UPDATED());
    std::vector<Value> values;
    bool isPublisher = false;
    recorder.Do([&](VelEventName, VelBaseUnknown* iPublisher, VelNotification* ioNotification) {
      const auto* changed = VelNotificationCast<Changed>(ioNotification);
      ASSERT_NE(changed, nullptr) << ioNotification->ClassName();
      values.push_back(changed->GetOld());
      values.push_back(changed->GetNew());
      isPublisher = IsSameObject(iPublisher, hParameter.Get());
    });
    EXPECT_EQ(hParameter->SetValue(SourceOf(iFirst)), S_OK);
    EXPECT_EQ(hParameter->SetValue(SourceOf(iFirst)), S_FALSE);
    EXPECT_EQ(hParameter->SetValue(SourceOf(iSecond)), S_OK);
    EXPECT_EQ(values, (std::vector<Value>{iDefault, iFirst, iFirst, iSecond}));
    EXPECT_TRUE(isPublisher);
  }

  /// Sets two values and expects that the host hears of each change.
  template <class Changed, class Value>
  void ExpectHostTold(const char* iStartUp, const Value& iFirst, const Value& iSecond,
                      const std::vector<typename Changed::Value>& iExpected) {
    SCOPED_TRACE(iStartUp);
    const VelIRshParameter_var hParameter = Add(hShader_, "wood", iStartUp);
    VelTestHostListener host;
    EXPECT_EQ(host.ConnectTo(hParameter.Get()), S_OK);
    std::vector<typename Changed::Value> values;
    host.look = [&](VelNotification& ioNotification) {
      const auto* changed = VelNotificationCast<Changed>(&ioNotification);
      ASSERT_NE(changed, nullptr) << ioNotification.ClassName();
      EXPECT_EQ(changed->GetName(), "wood");
      EXPECT_EQ(changed->GetObject(), hParameter->GetImpl());
      EXPECT_EQ(&changed->GetInterface(), &VelIRshParameter::InterfaceId());
      values.push_back(changed->GetPrevious());
      values.push_back(changed->GetNext());
    };
    EXPECT_EQ(hParameter->SetValue(SourceOf(iFirst)), S_OK);
    EXPECT_EQ(hParameter->SetValue(SourceOf(iFirst)), S_FALSE);
    EXPECT_EQ(hParameter->SetValue(SourceOf(iSecond)), S_OK);
    EXPECT_EQ(values, iExpected);
  }

  VelIRshShader_var hShader_;
};

TEST_F(VelRshParameterValueNotificationsTest, Subscribers_HearOldAndNewInTheNotificationOfTheType) {
  using Vector = std::array<float, 3>;
  using Color = std::array<float, 4>;
  ExpectPublished<VelRshModelNotificationParameterBoolean1Changed>("VelRmaBoolean", true, false, true);
  ExpectPublished<VelRshModelNotificationParameterIntegral1Changed>("VelRmaInteger", 0, 3, -4);
  ExpectPublished<VelRshModelNotificationParameterScalar1Changed>("VelRmaScalar", 0.0F, 0.5F, 2.0F);
  ExpectPublished<VelRshModelNotificationParameterScalar3Changed>("VelRmaVector", Vector{}, Vector{1.0F, 2.0F, 3.0F},
                                                                  Vector{4.0F, 5.0F, 6.0F});
  ExpectPublished<VelRshModelNotificationParameterScalar4Changed>("VelRmaColor", Color{}, Color{1.0F, 2.0F, 3.0F, 4.0F},
                                                                  Color{5.0F, 6.0F, 7.0F, 8.0F});
  ExpectPublished<VelRshModelNotificationParameterTextChanged>("VelRmaString", VelUnicodeString(""),
                                                               VelUnicodeString("a"), VelUnicodeString("b"));
}

TEST_F(VelRshParameterValueNotificationsTest, Host_HearsNameObjectInterfaceAndValues) {
  ExpectHostTold<VelRbaBooleanShaderModifyNotification>("VelRmaBoolean", false, true, {true, false, false, true});
  ExpectHostTold<VelRbaIntegralShaderModifyNotification>("VelRmaInteger", 3, -4, {0, 3, 3, -4});
  ExpectHostTold<VelRbaFloatShaderModifyNotification>("VelRmaScalar", 0.1F, 2.0F,
                                                      {0.0, static_cast<double>(0.1F), static_cast<double>(0.1F), 2.0});
  using Color = std::array<float, 4>;
  const rgba_t first{1.0F, 2.0F, 3.0F, 4.0F};
  ExpectHostTold<VelRbaColorShaderModifyNotification>("VelRmaColor", Color{1.0F, 2.0F, 3.0F, 4.0F},
                                                      Color{5.0F, 6.0F, 7.0F, 8.0F},
                                                      {rgba_t{}, first, first, rgba_t{5.0F, 6.0F, 7.0F, 8.0F}});
  ExpectHostTold<VelRbaStringShaderModifyNotification>("VelRmaString", VelUnicodeString("a"), VelUnicodeString("b"),
                                                       {"", "a", "a", "b"});
}

TEST_F(VelRshParameterValueNotificationsTest, Host_HearsNothingOfVectorsAndMatrices) {
  for (const char* startUp : {"VelRmaVector", "VelRmaMatrix"}) {
    const VelIRshParameter_var hParameter = Add(hShader_, "p", startUp);
    VelTestHostListener host;
    EXPECT_EQ(host.ConnectTo(hParameter.Get()), S_OK) << startUp;
    const std::array<float, 16> values{1.0F};
    EXPECT_EQ(hParameter->SetValue(SourceOf(values)), S_OK) << startUp;
    EXPECT_EQ(host.notes, Texts{}) << startUp;
  }
}

TEST_F(VelRshParameterValueNotificationsTest, WithoutAShaderAbove_OnlySubscribersHear) {
  ForEachTypeWithDefault([&](const auto& iType) {
    const VelISpecObject_var hFeature = Make(iType.startUp);
    const VelIRshParameter_var hParameter(hFeature);
    EXPECT_EQ(hParameter->SetName("free"), S_OK);
    VelTestHostListener host;
    EXPECT_EQ(host.ConnectTo(hParameter.Get()), S_OK) << iType.startUp;
    VelTestRecorder recorder;
    recorder.Hear(ManagerOf(hParameter), Events::VALUE_UPDATED());
    EXPECT_EQ(hParameter->SetValue(SourceOf(iType.first)), S_OK) << iType.startUp;
    EXPECT_EQ(recorder.Notes().size(), 1U) << iType.startUp;
    EXPECT_EQ(host.notes, Texts{}) << iType.startUp;
  });
}

TEST_F(VelRshParameterValueNotificationsTest, WithoutAName_OnlySubscribersHear) {
  ForEachTypeWithDefault([&](const auto& iType) {
    const VelISpecObject_var hFeature = Make(iType.startUp);
    const VelIRshParameter_var hParameter(hFeature);
    EXPECT_EQ(hShader_->AppendParameter(hParameter.Get()), S_OK) << iType.startUp;
    VelTestHostListener host;
    EXPECT_EQ(host.ConnectTo(hParameter.Get()), S_OK) << iType.startUp;
    VelTestRecorder recorder;
    recorder.Hear(ManagerOf(hParameter), Events::VALUE_UPDATED());
    EXPECT_EQ(hParameter->SetValue(SourceOf(iType.first)), S_OK) << iType.startUp;
    EXPECT_EQ(recorder.Notes().size(), 1U) << iType.startUp;
    EXPECT_EQ(host.notes, Texts{}) << iType.startUp;
  });
}

TEST_F(VelRshParameterValueNotificationsTest, Subscribers_HearBeforeTheHost) {
  const VelIRshParameter_var hScalar = Add(hShader_, "s", "VelRmaScalar");
  VelTestHostListener host;
  EXPECT_EQ(host.ConnectTo(hScalar.Get()), S_OK);
  VelTestRecorder recorder;
  recorder.Hear(ManagerOf(hScalar), Events::VALUE_UPDATED());
  Texts hostBySubscriber{"not called"};
  recorder.Do([&](VelEventName, VelBaseUnknown*, VelNotification*) { hostBySubscriber = host.notes; });
  const float value = 1.0F;
  EXPECT_EQ(hScalar->SetValue(&value), S_OK);
  EXPECT_EQ(hostBySubscriber, Texts{});
  EXPECT_EQ(host.notes.size(), 1U);
}

TEST_F(VelRshParameterValueNotificationsTest, Subscribers_ReadTheNewValue) {
  const VelIRshParameter_var hInteger = Add(hShader_, "i", "VelRmaInteger");
  VelTestRecorder recorder;
  recorder.Hear(ManagerOf(hInteger), Events::VALUE_UPDATED());
  std::int32_t read = 0;
  recorder.Do([&](VelEventName, VelBaseUnknown*, VelNotification*) { EXPECT_EQ(hInteger->GetValue(&read), S_OK); });
  const std::int32_t value = 9;
  EXPECT_EQ(hInteger->SetValue(&value), S_OK);
  EXPECT_EQ(read, 9);
}

TEST_F(VelRshParameterValueNotificationsTest, ParameterClosedByASubscriber_IsSOkAndTheHostIsNotTold) {
  ForEachTypeWithDefault([&](const auto& iType) {
    const VelIRshParameter_var hParameter = Add(hShader_, "p", iType.startUp);
    VelTestHostListener host;
    EXPECT_EQ(host.ConnectTo(hParameter.Get()), S_OK);
    VelTestRecorder recorder;
    recorder.Hear(ManagerOf(hParameter), Events::VALUE_UPDATED());
    recorder.Do([&](VelEventName, VelBaseUnknown* iPublisher, VelNotification*) {
      EXPECT_EQ(LifeCycleObject_var(iPublisher)->remove(), S_OK);
    });
    EXPECT_EQ(hParameter->SetValue(SourceOf(iType.first)), S_OK) << iType.startUp;
    EXPECT_EQ(recorder.Notes().size(), 1U) << iType.startUp;
    EXPECT_EQ(host.notes, Texts{}) << iType.startUp;
    EXPECT_EQ(hParameter->SetValue(SourceOf(iType.second)), E_FAIL) << iType.startUp;
  });
}

TEST_F(VelRshParameterValueNotificationsTest, ParameterOfWhichOnlyTheCallIsLeft_SurvivesUntilItReturns) {
  VelIRshParameter_var hParameter = Add(hShader_, "p", "VelRmaString");
  VelTestRecorder recorder;
  recorder.Hear(ManagerOf(hParameter), Events::VALUE_UPDATED());
  VelIRshParameter* raw = hParameter.Get();
  recorder.Do([&](VelEventName, VelBaseUnknown* iPublisher, VelNotification*) {
    EXPECT_EQ(LifeCycleObject_var(iPublisher)->remove(), S_OK);
    hParameter = nullptr;
  });
  const VelUnicodeString text("a text that does not fit into the object itself, so that its block is seen");
  EXPECT_EQ(raw->SetValue(&text), S_OK);
  EXPECT_FALSE(hParameter);
}

TEST_F(VelRshParameterValueNotificationsTest, SubscriberThatSetsAnotherValue_IsHeardInsideTheFirstChange) {
  const VelIRshParameter_var hInteger = Add(hShader_, "i", "VelRmaInteger");
  VelTestRecorder recorder;
  recorder.Hear(ManagerOf(hInteger), Events::VALUE_UPDATED());
  const std::int32_t second = 2;
  recorder.Do([&](VelEventName, VelBaseUnknown*, VelNotification*) {
    if (recorder.Notes().size() > 1) return;
    EXPECT_EQ(hInteger->SetValue(&second), S_OK);
  });
  const std::int32_t first = 1;
  EXPECT_EQ(hInteger->SetValue(&first), S_OK);
  EXPECT_EQ(recorder.Notes().size(), 2U);
  std::int32_t read = 0;
  EXPECT_EQ(hInteger->GetValue(&read), S_OK);
  EXPECT_EQ(read, 2);
}

}  // namespace
