// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParentShaderEvents_Values_test.cpp A parameter that follows the value of its equivalent above: what it
/// tells of it, and when it gives up.
#include "RenderingShader/interfaces/VelRshModelNotificationParameterConnectionChanged.h"
#include "RenderingShader/interfaces/VelRshModelNotificationParameterShaderChanged.h"
#include "RenderingShader/interfaces/VelRshModelNotificationShaderParameterChanged.h"
#include "RenderingShader/interfaces/VelRshModelNotificationValueChanged.h"
#include "RenderingShader/interfaces/VelRshParameterPublisherEvents.h"
#include "RenderingShader/interfaces/VelRshShaderPublisherEvents.h"
#include "tests/RenderingShader/model/fixtures/VelTestEventRecorder.h"
#include "tests/RenderingShader/parameters/PropagationTest.h"
#include "tests/RenderingShader/parameters/fixtures/ValuelessParameters.h"

namespace {

using Changed = VelRshModelNotificationShaderParameterChanged;
using Forwarded = VelRshModelNotificationParameterShaderChanged;
using ConnectionChanged = VelRshModelNotificationParameterConnectionChanged;
using ScalarChanged = VelRshModelNotificationParameterScalar1Changed;
using IntegerChanged = VelRshModelNotificationParameterIntegral1Changed;
using BooleanChanged = VelRshModelNotificationParameterBoolean1Changed;
using Events = VelRshShaderPublisherEvents;

constexpr const char* startUps[] = {"VelRmaBoolean", "VelRmaInteger", "VelRmaScalar"};

class VelRshParentShaderEventsValuesTest : public PropagationTest {
 protected:
  void SetUp() override {
    PropagationTest::SetUp();
    for (const char* name : {"source", "target"}) Tag("Default", name, "flip_u mapping-behavior scale_u");
  }
  void TearDown() override {
    hSource_ = nullptr;
    hTarget_ = nullptr;
    PropagationTest::TearDown();
  }

  /// Makes "source" above and "target" below.
  void MakePair(const char* iStartUp) {
    hSource_ = Add(hAbove_, "source", iStartUp);
    hTarget_ = Add(hBelow_, "target", iStartUp);
  }

  void EndPair() {
    EXPECT_EQ(LifeCycleObject_var(hSource_)->remove(), S_OK);
    EXPECT_EQ(LifeCycleObject_var(hTarget_)->remove(), S_OK);
  }

  /// Tells the target of a notification, as its shader does.
  void Tell(VelEventName iEvent, VelNotification* ioNotification) {
    SubscriberOf(hTarget_)->OnShaderValue(iEvent, hBelow_.Get(), ioNotification);
  }

  VelIRshParameter_var hSource_;
  VelIRshParameter_var hTarget_;
};

TEST_F(VelRshParentShaderEventsValuesTest, Following_TellsEachStepWordForWord) {
  Connect();
  for (const std::string startUp : startUps) {
    MakePair(startUp.c_str());
    EXPECT_EQ(Write(hTarget_, 1), S_OK);
    EXPECT_TRUE(SUCCEEDED(Write(hSource_, 1)));
    StartTraces();
    EXPECT_EQ(Write(hSource_, 2), S_OK);
    const std::string source = "Parameter 'source' [ type = " + startUp + ", shader = Above ]";
    const std::string target = "Parameter 'target' [ type = " + startUp + ", shader = Below ]";
    const std::string link = "Parameter 'link' [ type = VelRmaColor, shader = Above ]";
    EXPECT_EQ(TakeTraces(), (Texts{
                                "FORWARDED_PARAMETER_VALUE_UPDATED Current:" + target,
                                "\tParent: " + link,
                                "\t\tUpdated: " + source,
                                "PARAMETER_VALUE_UPDATED Current:" + target,
                                "\tUpdated: " + target,
                                "\t\t\t Current parameter equivalent updated to " + Printed(startUp, 2),
                                "PARAMETER_VALUE_UPDATED Current:" + source,
                                "\tUpdated: " + source,
                            }))
        << startUp;
    EndPair();
  }
}

TEST_F(VelRshParentShaderEventsValuesTest, Following_OfTheSameValue_IsASuccessThatTellsNobodyBelow) {
  Connect();
  for (const std::string startUp : startUps) {
    MakePair(startUp.c_str());
    EXPECT_EQ(Write(hSource_, 1), S_OK);
    EXPECT_TRUE(SUCCEEDED(Write(hTarget_, 2)));
    StartTraces();
    EXPECT_EQ(Write(hSource_, 2), S_OK);
    const Texts lines = TakeTraces();
    ASSERT_EQ(lines.size(), 6U);
    EXPECT_EQ(lines[3], "\t\t\t Current parameter equivalent updated to " + Printed(startUp, 2));
    EndPair();
  }
}

TEST_F(VelRshParentShaderEventsValuesTest, SameValueAbove_TellsNobody) {
  Connect();
  MakePair("VelRmaScalar");
  EXPECT_EQ(Write(hSource_, 1), S_OK);
  EXPECT_EQ(Write(hTarget_, 2), S_OK);
  StartTraces();
  EXPECT_EQ(Write(hSource_, 1), S_FALSE);
  EXPECT_EQ(TakeTraces(), Texts{});
  EXPECT_EQ(NumberOf(hTarget_), 2);
}

TEST_F(VelRshParentShaderEventsValuesTest, FailingSetter_IsAnErrorWithTheSource) {
  Connect();
  const ValuelessParameters valueless(VEL_TEST_LIBRARY_FOLDER, VEL_TEST_VALUELESS_CATALOG);
  const struct {
    const char* startUp;
    const char* valueless;
    const char* source;
  } cases[] = {{"VelRmaBoolean", "VelTestValuelessBoolean",
                "! RenderingShader/VelRshModel.m/src/VelRshParameterBoolean_EventParentShaderToParameter: "},
               {"VelRmaInteger", "VelTestValuelessInteger",
                "! RenderingShader/VelRshModel.m/src/VelRshParameterInteger_EventParentShaderToParameter: "},
               {"VelRmaScalar", "VelTestValuelessScalar",
                "! RenderingShader/VelRshModel.m/src/VelRshParameterScalar_EventParentShaderToParameter: "}};
  for (const auto& test : cases) {
    hSource_ = Add(hAbove_, "source", test.startUp);
    hTarget_ = valueless.Make(*hContainer_, test.valueless);
    EXPECT_EQ(hTarget_->SetName("target"), S_OK);
    EXPECT_EQ(hBelow_->AppendParameter(hTarget_.Get()), S_OK);
    EXPECT_TRUE(SUCCEEDED(Write(hSource_, 2)));
    StartTraces();
    EXPECT_EQ(Write(hSource_, 1), S_OK);
    const Texts lines = TakeTraces();
    ASSERT_EQ(lines.size(), 6U);
    EXPECT_EQ(lines[3],
              std::string(test.source) + "\t\t\t Current parameter equivalent updated to " + Printed(test.startUp, 1));
    VelTraceService::SetSwitches("VelRshParameter=error");
    EXPECT_EQ(Write(hSource_, 2), S_OK);
    EXPECT_EQ(TakeTraces().size(), 1U) << "the error alone";
    EndPair();
  }
}

TEST_F(VelRshParentShaderEventsValuesTest, UnexpectedNotification_EndsSilentlyAtEachStep) {
  MakePair("VelRmaScalar");
  const ScalarChanged scalar(0.0F, 1.0F);
  const IntegerChanged integer(0, 2);
  const BooleanChanged boolean(true, false);
  ConnectionChanged connection(nullptr, nullptr);
  const Changed above(*hSource_, &scalar);
  const Changed aboveOfInteger(*hSource_, &integer);
  const Changed aboveOfBoolean(*hSource_, &boolean);
  const Changed aboveOfNothing(*hSource_, nullptr);
  const VelEventName event = Events::PARAMETER_VALUE_UPDATED();
  const Forwarded forwarded(event, *hAbove_, above);
  const Forwarded ofInteger(event, *hAbove_, aboveOfInteger);
  const Forwarded ofBoolean(event, *hAbove_, aboveOfBoolean);
  const Forwarded ofNothing(event, *hAbove_, aboveOfNothing);
  const Forwarded ofConnection(event, *hAbove_, connection);
  const Forwarded ofValue(event, *hAbove_, scalar);
  Changed whole(*hLink_, &forwarded);
  Changed direct(*hLink_, &scalar);
  Changed withInteger(*hLink_, &ofInteger);
  Changed withBoolean(*hLink_, &ofBoolean);
  Changed withNothing(*hLink_, &ofNothing);
  Changed withConnection(*hLink_, &ofConnection);
  Changed withValue(*hLink_, &ofValue);
  Changed empty(*hLink_, nullptr);
  Forwarded outer(event, *hAbove_, above);
  const struct {
    const char* name;
    VelNotification* notification;
    std::size_t lines;  ///< How far it comes: own line, parent, updated.
  } cases[] = {{"none", nullptr, 1},
               {"a connection", &connection, 1},
               {"what the parameter above forwards", &outer, 1},
               {"without inner", &empty, 2},
               {"a value inside", &direct, 2},
               {"forwarded connection", &withConnection, 2},
               {"forwarded value", &withValue, 2},
               {"forwarded nothing", &withNothing, 3},
               {"forwarded integer", &withInteger, 3},
               {"forwarded boolean", &withBoolean, 3}};
  for (const auto& test : cases) {
    SCOPED_TRACE(test.name);
    Tell(Events::FORWARDED_PARAMETER_VALUE_UPDATED(), test.notification);
    EXPECT_EQ(NumberOf(hTarget_), 0);
    StartTraces();
    Tell(Events::FORWARDED_PARAMETER_VALUE_UPDATED(), test.notification);
    EXPECT_EQ(TakeTraces().size(), test.lines);
    EXPECT_EQ(NumberOf(hTarget_), 0);
  }
  Tell(Events::FORWARDED_PARAMETER_CONNECTION_UPDATED(), &whole);
  Tell(Events::PARAMETER_CONNECTION_UPDATED(), &whole);
  Tell(Events::PARAMETER_VALUE_UPDATED(), &whole);
  Tell(VelRshParameterPublisherEvents::VALUE_UPDATED(), &whole);
  EXPECT_EQ(NumberOf(hTarget_), 0) << "other events are none of its own";
  Tell(Events::FORWARDED_PARAMETER_VALUE_UPDATED(), &whole);
  EXPECT_EQ(NumberOf(hTarget_), 2) << "or the cases show nothing";
}

TEST_F(VelRshParentShaderEventsValuesTest, OwnEventWithoutAParameter_IsToldAndForwardedNowhere) {
  MakePair("VelRmaScalar");
  ConnectionChanged other(nullptr, nullptr);
  VelTestRecorder client;
  client.Hear(ManagerOf(hTarget_), VelRshParameterPublisherEvents::FORWARD_PARAMETER_VALUE_UPDATED());
  for (VelNotification* notification :
       {static_cast<VelNotification*>(nullptr), static_cast<VelNotification*>(&other)}) {
    StartTraces();
    Tell(Events::PARAMETER_VALUE_UPDATED(), notification);
    EXPECT_EQ(TakeTraces(), (Texts{"PARAMETER_VALUE_UPDATED Current:"
                                   "Parameter 'target' [ type = VelRmaScalar, shader = Below ]"}));
  }
  Changed changed(*hSource_, nullptr);
  Tell(Events::PARAMETER_VALUE_UPDATED(), &changed);
  EXPECT_EQ(client.Notes(), Texts{}) << "the source has another shader";
}

/// Whoever hears the first follower may end the parameter that is followed.
TEST_F(VelRshParentShaderEventsValuesTest, SourceThatIsRemovedMeanwhile_IsNotFollowedAnyFurther) {
  Connect();
  MakePair("VelRmaScalar");
  const VelIRshParameter_var hSecond = Add(hBelow_, "target", "VelRmaScalar");
  EXPECT_EQ(Write(hSource_, 1), S_OK);
  EXPECT_EQ(NumberOf(hSecond), 1);
  VelTestRecorder client;
  client.Hear(ManagerOf(hTarget_), VelRshParameterPublisherEvents::VALUE_UPDATED());
  client.Do([this](VelEventName, VelBaseUnknown*, VelNotification*) {
    EXPECT_EQ(LifeCycleObject_var(hSource_)->remove(), S_OK);
  });
  EXPECT_EQ(Write(hSource_, 2), S_OK);
  EXPECT_EQ(NumberOf(hTarget_), 2);
  EXPECT_EQ(NumberOf(hSecond), 1) << "a parameter that is gone carries no tag";
}

TEST_F(VelRshParentShaderEventsValuesTest, EditionMode0_SilencesTheThreeClassesAndNoOther) {
  const struct {
    const char* startUp;
    bool isSilenced;
  } cases[] = {{"VelRmaBoolean", true}, {"VelRmaInteger", true},  {"VelRmaScalar", true}, {"VelRmaColor", false},
               {"VelRmaString", false}, {"VelRmaTexture", false}, {"VelRmaVector", false}};
  hSource_ = Add(hAbove_, "source", "VelRmaScalar");
  for (const auto& test : cases) {
    for (const int mode : {0, 1, 2}) {
      SCOPED_TRACE(std::string(test.startUp) + " " + std::to_string(mode));
      const VelIRshParameter_var hBeside = Add(hAbove_, "beside", test.startUp);
      VelTestRecorder client;
      client.Hear(ManagerOf(hBeside), VelRshParameterPublisherEvents::FORWARD_PARAMETER_VALUE_UPDATED());
      client.Hear(ManagerOf(hBeside), VelRshParameterPublisherEvents::FORWARD_PARAMETER_CONNECTION_UPDATED());
      VelIRmaEditionMode::SetActivation(static_cast<VelIRmaEditionMode::Mode>(mode), true);
      const bool isSilenced = test.isSilenced && mode == 0;
      EXPECT_TRUE(SUCCEEDED(Write(hSource_, 1)));
      EXPECT_EQ(Write(hSource_, 2), S_OK);
      EXPECT_EQ(client.Notes().empty(), isSilenced);
      client.Notes().clear();
      EXPECT_EQ(hAbove_->AddNode(hBelow_.Get()), S_OK);
      EXPECT_EQ(hSource_->SetConnection(hBelow_.Get()), S_OK);
      EXPECT_EQ(client.Notes().empty(), isSilenced);
      EXPECT_EQ(hSource_->SetConnection(nullptr), S_OK);
      VelIRmaEditionMode::SetActivation(static_cast<VelIRmaEditionMode::Mode>(mode), false);
      EXPECT_EQ(LifeCycleObject_var(hBeside)->remove(), S_OK);
    }
  }
}

TEST_F(VelRshParentShaderEventsValuesTest, EditionMode0_ChangesAndTellsNothing) {
  for (const char* startUp : startUps) {
    MakePair(startUp);
    EXPECT_EQ(Write(hTarget_, 1), S_OK);
    EXPECT_EQ(hAbove_->AddNode(hBelow_.Get()), S_OK);
    EXPECT_TRUE(SUCCEEDED(Write(hSource_, 1)));
    VelIRmaEditionMode::SetActivation(VelIRmaEditionMode::Mode::SilentPropagation, true);
    StartTraces();
    Connect();
    EXPECT_EQ(Write(hSource_, 2), S_OK);
    for (const std::string& line : TakeTraces()) {
      EXPECT_EQ(line.rfind("Changed connection", 0), 0U) << line << ": which is told by the connection itself";
    }
    EXPECT_EQ(NumberOf(hTarget_), 1);
    VelIRmaEditionMode::SetActivation(VelIRmaEditionMode::Mode::SilentPropagation, false);
    EXPECT_EQ(Write(hSource_, 1), S_OK);
    EXPECT_EQ(Write(hSource_, 2), S_OK);
    EXPECT_EQ(NumberOf(hTarget_), 2);
    EXPECT_EQ(hLink_->SetConnection(nullptr), S_OK);
    EndPair();
  }
}

}  // namespace
