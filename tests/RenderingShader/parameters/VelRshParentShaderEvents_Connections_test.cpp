// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParentShaderEvents_Connections_test.cpp Values that a newly connected shader takes over, and those that
/// are given to one.
#include "RenderingShader/interfaces/VelRshModelNotificationParameterConnectionChanged.h"
#include "RenderingShader/interfaces/VelRshModelNotificationParameterShaderChanged.h"
#include "RenderingShader/interfaces/VelRshModelNotificationShaderParameterChanged.h"
#include "RenderingShader/interfaces/VelRshParameterPublisherEvents.h"
#include "RenderingShader/interfaces/VelRshShaderPublisherEvents.h"
#include "tests/RenderingShader/model/fixtures/VelTestEventRecorder.h"
#include "tests/RenderingShader/parameters/PropagationTest.h"

namespace {

using Changed = VelRshModelNotificationShaderParameterChanged;
using Forwarded = VelRshModelNotificationParameterShaderChanged;
using ConnectionChanged = VelRshModelNotificationParameterConnectionChanged;
using Events = VelRshShaderPublisherEvents;

const struct {
  std::string startUp;
  const char* otherStartUp;  ///< Of which no value can be read or written.
  const char* fallback;      ///< What is printed where no value could be read.
  const char* initial;       ///< What is printed of an equivalent of another type.
  std::string source;        ///< What stands before an error.
} types[] = {{"VelRmaBoolean", "VelRmaScalar", "<true>", "<false>",
              "! RenderingShader/VelRshModel.m/src/VelRshParameterBoolean_EventParentShaderToParameter: "},
             {"VelRmaInteger", "VelRmaBoolean", "0", "0",
              "! RenderingShader/VelRshModel.m/src/VelRshParameterInteger_EventParentShaderToParameter: "},
             {"VelRmaScalar", "VelRmaInteger", "0.000000", "0.000000",
              "! RenderingShader/VelRshModel.m/src/VelRshParameterScalar_EventParentShaderToParameter: "}};

class VelRshParentShaderEventsConnectionsTest : public PropagationTest {
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

  void MakePair(const std::string& iAbove, const std::string& iBelow) {
    hSource_ = Add(hAbove_, "source", iAbove.c_str());
    hTarget_ = Add(hBelow_, "target", iBelow.c_str());
    static_cast<void>(hAbove_->AddNode(hBelow_.Get()));  // Has been one since, where it was never connected.
  }

  void EndPair() {
    EXPECT_TRUE(SUCCEEDED(hLink_->SetConnection(nullptr)));
    EXPECT_TRUE(SUCCEEDED(LifeCycleObject_var(hSource_)->remove()));
    EXPECT_TRUE(SUCCEEDED(LifeCycleObject_var(hTarget_)->remove()));
  }

  /// Connects the link and takes what the target tells of it.
  Texts TakeTracesOfConnection() {
    StartTraces();
    Connect();
    Texts lines = TakeTraces();
    EXPECT_EQ(lines.front().rfind("Changed connection", 0), 0U);
    lines.erase(lines.begin());
    return lines;
  }

  static std::string Named(const char* iName, const std::string& iType, const char* iShader) {
    return std::string("Parameter '") + iName + "' [ type = " + iType + ", shader = " + iShader + " ]";
  }

  /// Tells the source that a connection changed, as its shader does.
  void TellSource(VelNotification* ioNotification) {
    SubscriberOf(hSource_)->OnShaderConnection(Events::PARAMETER_CONNECTION_UPDATED(), hAbove_.Get(), ioNotification);
  }
  void TellTarget(VelNotification* ioNotification) {
    SubscriberOf(hTarget_)->OnShaderConnection(Events::FORWARDED_PARAMETER_CONNECTION_UPDATED(), hBelow_.Get(),
                                               ioNotification);
  }

  VelIRshParameter_var hSource_;
  VelIRshParameter_var hTarget_;
};

TEST_F(VelRshParentShaderEventsConnectionsTest, Connection_LetsTheShaderTakeOverAndTellsEachStep) {
  for (const auto& type : types) {
    MakePair(type.startUp, type.startUp);
    EXPECT_TRUE(SUCCEEDED(Write(hSource_, 2)));
    EXPECT_EQ(Write(hTarget_, 1), S_OK);
    const std::string source = Named("source", type.startUp, "Above");
    const std::string target = Named("target", type.startUp, "Below");
    const std::string link = Named("link", "VelRmaColor", "Above");
    EXPECT_EQ(TakeTracesOfConnection(), (Texts{
                                            "PARAMETER_CONNECTION_UPDATED Current:" + source,
                                            "\tUpdated: " + link,
                                            "FORWARDED_PARAMETER_CONNECTION_UPDATED Current:" + target,
                                            "\tParent: " + link,
                                            "\t\tParent shader 's equivalent parameter: " + source,
                                            "PARAMETER_VALUE_UPDATED Current:" + target,
                                            "\tUpdated: " + target,
                                            "\t\t\tCurrent parameter equivalent updated to " + Printed(type.startUp, 2),
                                        }));
    EXPECT_EQ(NumberOf(hTarget_), 2);
    EndPair();
  }
}

TEST_F(VelRshParentShaderEventsConnectionsTest, Connection_WithTheSameValue_IsASuccess) {
  for (const auto& type : types) {
    MakePair(type.startUp, type.startUp);
    EXPECT_TRUE(SUCCEEDED(Write(hSource_, 2)));
    EXPECT_TRUE(SUCCEEDED(Write(hTarget_, 2)));
    const Texts lines = TakeTracesOfConnection();
    EXPECT_EQ(lines.size(), 6U);
    EXPECT_EQ(lines.back(), "\t\t\tCurrent parameter equivalent updated to " + Printed(type.startUp, 2));
    EndPair();
  }
}

TEST_F(VelRshParentShaderEventsConnectionsTest, ConnectionBelowAnotherType_IsAnErrorAndChangesNothing) {
  for (const auto& type : types) {
    MakePair(type.otherStartUp, type.startUp);
    EXPECT_EQ(Write(hSource_, 1), S_OK);
    EXPECT_EQ(Write(hTarget_, 1), S_OK);
    EXPECT_EQ(TakeTracesOfConnection().back(),
              type.source + "\t\t\tCurrent parameter equivalent updated to " + type.initial);
    EXPECT_EQ(NumberOf(hTarget_), 1);
    EndPair();
  }
}

TEST_F(VelRshParentShaderEventsConnectionsTest, ConnectionBelowAParameterWithoutValue_IsAnErrorAndChangesNothing) {
  for (const auto& type : types) {
    MakePair(type.startUp, type.startUp);
    EXPECT_EQ(Write(hTarget_, 1), S_OK);
    EXPECT_EQ(TakeTracesOfConnection().back(),
              type.source + "\t\t\tCurrent parameter equivalent updated to " + type.fallback);
    EXPECT_EQ(NumberOf(hTarget_), 1);
    EndPair();
  }
}

TEST_F(VelRshParentShaderEventsConnectionsTest, LoadedConnection_TakesNothingOverUntilAValueChanges) {
  const char* names[] = {"above", "below"};
  VelISpecObject_var shaders[2];
  for (int i = 0; i < 2; ++i) {
    shaders[i] = Make("VelRmaShader");
    EXPECT_EQ(Access(shaders[i])->SetText(type_, names[i]), S_OK);
  }
  const VelISpecAttrKey* name = Key("Name", VelSpecAttrKind::Text);
  const VelISpecAttrKey* value = Key("Value", VelSpecAttrKind::Real);
  const VelISpecObject_var hSource = Make("VelRmaScalar");
  const VelISpecObject_var hLink = Make("VelRmaScalar");
  const VelISpecObject_var hTarget = Make("VelRmaScalar");
  EXPECT_EQ(Access(hSource)->SetText(name, "source"), S_OK);
  EXPECT_EQ(Access(hLink)->SetText(name, "link"), S_OK);
  EXPECT_EQ(Access(hTarget)->SetText(name, "target"), S_OK);
  EXPECT_EQ(Access(hSource)->SetReal(value, 1.0), S_OK);
  EXPECT_EQ(Access(hTarget)->SetReal(value, 0.5), S_OK);
  EXPECT_EQ(Access(shaders[0])->AppendComponent(parameters_, hSource.Get()), S_OK);
  EXPECT_EQ(Access(shaders[0])->AppendComponent(parameters_, hLink.Get()), S_OK);
  EXPECT_EQ(Access(shaders[1])->AppendComponent(parameters_, hTarget.Get()), S_OK);
  EXPECT_EQ(Access(shaders[0])->AppendComponent(nodes_, shaders[1].Get()), S_OK);
  EXPECT_EQ(Access(hLink)->SetReference(node_, shaders[1].Get()), S_OK);
  const VelIRshParameter_var hFollower(hTarget);
  const VelIRshParameter_var hFollowed(hSource);
  EXPECT_EQ(NumberOf(hFollower), 1);
  EXPECT_EQ(NumberOf(hFollowed), 2);
  EXPECT_EQ(Write(hFollowed, 3), S_OK);
  EXPECT_EQ(NumberOf(hFollower), 3);
  const VelIRshParameter_var hConnected(hLink);
  EXPECT_EQ(hConnected->SetConnection(nullptr), S_OK);
  EXPECT_EQ(Write(hFollowed, 4), S_OK);
  EXPECT_EQ(NumberOf(hFollower), 3) << "it is connected no more";
  EXPECT_EQ(hConnected->SetConnection(VelIRshShader_var(shaders[1]).Get()), S_OK);
  EXPECT_EQ(NumberOf(hFollower), 4) << "a connection made in session";
}

TEST_F(VelRshParentShaderEventsConnectionsTest, Pull_GivesUpAtEachUnexpectedNotification) {
  MakePair("VelRmaScalar", "VelRmaScalar");
  EXPECT_EQ(Write(hSource_, 2), S_OK);
  EXPECT_EQ(Write(hTarget_, 1), S_OK);
  ConnectionChanged connection(nullptr, hBelow_);
  const Changed inner(*hSource_, nullptr);
  const Forwarded ofParameter(Events::PARAMETER_CONNECTION_UPDATED(), *hAbove_, inner);
  const Forwarded ofConnection(Events::PARAMETER_CONNECTION_UPDATED(), *hAbove_, connection);
  Changed whole(*hLink_, &connection);
  Changed empty(*hLink_, nullptr);
  Changed nested(*hLink_, &inner);
  Changed forwarded(*hLink_, &ofParameter);
  Changed forwardedOther(*hLink_, &ofConnection);
  Changed ofNoParameter(*hAbove_, &connection);
  const struct {
    const char* name;
    VelNotification* notification;
    Texts lines;  ///< After the own one.
  } cases[] = {{"none", nullptr, {}},
               {"bare connection", &connection, {}},
               {"without inner", &empty, {"\tParent: " + Named("link", "VelRmaColor", "Above")}},
               {"change of a parameter", &nested, {"\tParent: " + Named("link", "VelRmaColor", "Above")}},
               {"forwarded",
                &forwarded,
                {"\tParent: " + Named("link", "VelRmaColor", "Above"),
                 "\t\tUpdated: " + Named("source", "VelRmaScalar", "Above")}},
               {"forwarded something else", &forwardedOther, {"\tParent: " + Named("link", "VelRmaColor", "Above")}},
               {"of no parameter", &ofNoParameter, {"\tParent: " + Named("", "", "")}}};
  for (const auto& test : cases) {
    SCOPED_TRACE(test.name);
    TellTarget(test.notification);
    StartTraces();
    TellTarget(test.notification);
    Texts lines = TakeTraces();
    ASSERT_FALSE(lines.empty());
    EXPECT_EQ(lines[0], "FORWARDED_PARAMETER_CONNECTION_UPDATED Current:" + Named("target", "VelRmaScalar", "Below"));
    lines.erase(lines.begin());
    EXPECT_EQ(lines, test.lines);
    EXPECT_EQ(NumberOf(hTarget_), 1);
  }
  TellTarget(&whole);
  EXPECT_EQ(NumberOf(hTarget_), 2) << "or the cases show nothing";
}

TEST_F(VelRshParentShaderEventsConnectionsTest, Pull_FromAParameterWithoutShader_ChangesNothing) {
  MakePair("VelRmaScalar", "VelRmaScalar");
  EXPECT_EQ(Write(hTarget_, 1), S_OK);
  const VelIRshParameter_var hFree(Make("VelRmaScalar"));
  ConnectionChanged connection(nullptr, hBelow_);
  Changed changed(*hFree, &connection);
  TellTarget(&changed);
  EXPECT_EQ(NumberOf(hTarget_), 1);
}

TEST_F(VelRshParentShaderEventsConnectionsTest, Push_GivesTheValueToTheEquivalentAndTellsEachStep) {
  const VelIRshShader_var hOther = MakeShader("Other");
  const VelIRshParameter_var hFree(Make("VelRmaScalar"));
  for (const auto& type : types) {
    MakePair(type.startUp, type.startUp);
    const VelIRshParameter_var hBeside = Add(hOther, "link", "VelRmaColor");
    EXPECT_EQ(Write(hSource_, 1), S_OK);
    EXPECT_TRUE(SUCCEEDED(Write(hTarget_, 2)));
    ConnectionChanged connection(nullptr, hBelow_);
    Changed changed(*hBeside, &connection);
    StartTraces();
    TellSource(&changed);
    const std::string source = Named("source", type.startUp, "Above");
    const std::string target = Named("target", type.startUp, "Below");
    EXPECT_EQ(TakeTraces(), (Texts{
                                "PARAMETER_CONNECTION_UPDATED Current:" + source,
                                "\tUpdated: " + Named("link", "VelRmaColor", "Other"),
                                "\t\tConnection's equivalent parameter: " + target,
                                "PARAMETER_VALUE_UPDATED Current:" + target,
                                "\tUpdated: " + target,
                                "\t\t\t Connection parameter equivalent updated to " + Printed(type.startUp, 1),
                            }));
    EXPECT_EQ(NumberOf(hTarget_), 1);
    StartTraces();
    TellSource(&changed);
    EXPECT_EQ(TakeTraces().back(), "\t\t\t Connection parameter equivalent updated to " + Printed(type.startUp, 1));
    EXPECT_TRUE(SUCCEEDED(Write(hTarget_, 2)));
    Changed ofFree(*hFree, &connection);
    TellSource(&ofFree);
    EXPECT_EQ(NumberOf(hTarget_), 1) << "a parameter without shader is not beside it either";
    EndPair();
  }
}

TEST_F(VelRshParentShaderEventsConnectionsTest, Push_ThatFails_IsAnErrorAndChangesNothing) {
  const VelIRshShader_var hOther = MakeShader("Other");
  const VelIRshParameter_var hBeside = Add(hOther, "link", "VelRmaColor");
  ConnectionChanged connection(nullptr, hBelow_);
  Changed changed(*hBeside, &connection);
  for (const auto& type : types) {
    MakePair(type.startUp, type.otherStartUp);
    EXPECT_EQ(Write(hTarget_, 1), S_OK);
    StartTraces();
    TellSource(&changed);
    EXPECT_EQ(TakeTraces().back(), type.source + "\t\t\t Connection parameter equivalent updated to " + type.fallback)
        << "nothing to read";
    EXPECT_EQ(Write(hSource_, 1), S_OK);
    StartTraces();
    TellSource(&changed);
    EXPECT_EQ(TakeTraces().back(),
              type.source + "\t\t\t Connection parameter equivalent updated to " + Printed(type.startUp, 1))
        << "nothing to write to";
    EXPECT_EQ(NumberOf(hTarget_), 1);
    EndPair();
  }
}

/// After each of these the change is still forwarded, as far as it is one of a parameter beside the source.
TEST_F(VelRshParentShaderEventsConnectionsTest, Push_GivesUpAtEachUnexpectedNotification) {
  MakePair("VelRmaScalar", "VelRmaScalar");
  EXPECT_EQ(Write(hSource_, 2), S_OK);
  EXPECT_EQ(Write(hTarget_, 1), S_OK);
  const VelIRshShader_var hOther = MakeShader("Other");
  const VelIRshShader_var hBare = MakeShader("Bare");
  const VelIRshParameter_var hBeside = Add(hOther, "link", "VelRmaColor");
  ConnectionChanged connection(nullptr, hBelow_);
  ConnectionChanged disconnection(hBelow_, nullptr);
  ConnectionChanged bareConnection(nullptr, hBare);
  Changed own(*hSource_, &connection);
  Changed beside(*hLink_, &connection);
  Changed empty(*hBeside, nullptr);
  Changed nested(*hBeside, &own);
  Changed ofDisconnection(*hBeside, &disconnection);
  Changed ofBare(*hBeside, &bareConnection);
  VelTestRecorder client;
  client.Hear(ManagerOf(hSource_), VelRshParameterPublisherEvents::FORWARD_PARAMETER_CONNECTION_UPDATED());
  const struct {
    const char* name;
    VelNotification* notification;
    std::size_t lines;
    std::size_t forwarded;
  } cases[] = {{"none", nullptr, 1, 0},
               {"bare connection", &connection, 1, 0},
               {"its own", &own, 2, 0},
               {"of a parameter beside it", &beside, 2, 1},
               {"without inner", &empty, 2, 0},
               {"change of a parameter", &nested, 2, 0},
               {"disconnection", &ofDisconnection, 2, 0},
               {"shader without equivalent", &ofBare, 2, 0}};
  for (const auto& test : cases) {
    SCOPED_TRACE(test.name);
    StartTraces();
    TellSource(test.notification);
    EXPECT_EQ(TakeTraces().size(), test.lines);
    EXPECT_EQ(NumberOf(hTarget_), 1);
    EXPECT_EQ(client.Notes().size(), test.forwarded);
    client.Notes().clear();
  }
  VelIRmaEditionMode::SetActivation(VelIRmaEditionMode::Mode::SilentPropagation, true);
  Changed whole(*hBeside, &connection);
  TellSource(&whole);
  EXPECT_EQ(NumberOf(hTarget_), 1) << "silenced";
  VelIRmaEditionMode::SetActivation(VelIRmaEditionMode::Mode::SilentPropagation, false);
  TellSource(&whole);
  EXPECT_EQ(NumberOf(hTarget_), 2) << "or the cases show nothing";
}

}  // namespace
