// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelERshParameterGeneric_VelIModelEvents_test.cpp How parameters translate the notification of a graph output,
/// and to which outputs they are connected.
#include "RenderingShader/VelRshModel.m/include/VelRshVizNotificationParameterSubstanceGraphOutputChanged.h"
#include "platform/base/VelVisibility.h"
#include "platform/events/VelExtIModelEvents.h"
#include "platform/events/VelModelEventsListener.h"
#include "platform/objectmodeler/VelDictionary.h"
#include "platform/objectmodeler/VelObject.h"
#include "platform/substance/VelAlgVizNotificationSubstanceGraphOutputChanged.h"
#include "tests/RenderingShader/RshModelTest.h"
#include "tests/RenderingShader/bindings/fixtures/VelTestGraphOutput.h"
#include "tests/RenderingShader/fixtures/FakeGraphOutput.h"

// What the component exports for the dictionary.
extern "C" VEL_EXPORT VelImplementation* CreateExtensionVelERshParameterGeneric_VelIModelEvents(
    VelComponent& ioComponent);
extern "C" VEL_EXPORT VelBaseUnknown* CreateTIEVelIModelEventsVelERshParameterGeneric_VelIModelEvents(
    void* iBlock, VelImplementation& iImpl, VelComponent& ioComponent, bool iOwns);

namespace {

using HostChanged = VelAlgVizNotificationSubstanceGraphOutputChanged;
using ParameterChanged = VelRshVizNotificationParameterSubstanceGraphOutputChanged;

constexpr const char* sharers[] = {"VelRmaScalar",  "VelRmaInteger", "VelRmaBoolean", "VelRmaColor",
                                   "VelRmaTexture", "VelRmaMatrix",  "VelRmaVector",  "VelRmaString"};

/// Notes what it receives: class, and for a parameter's notification the parameter and the output.
class Listener final : public VelModelEventsListener {
 public:
  explicit Listener(VelBaseUnknown* iObject) { EXPECT_EQ(ConnectTo(iObject), S_OK); }

  void Receive(VelNotification& ioNotification) override {
    classes.emplace_back(ioNotification.ClassName());
    last = &ioNotification;
    if (VelNotificationCast<ParameterChanged>(&ioNotification) == nullptr) return;
    auto& changed = static_cast<ParameterChanged&>(ioNotification);
    parameters.push_back(changed.GetParameter().GetComponent());
    outputs.push_back(changed.GetOutput().GetComponent());
  }

  /// @return how often a change of an output was heard as one of a parameter; anything else is a failure
  int TakeChanges() {
    EXPECT_EQ(classes.size(), parameters.size()) << ::testing::PrintToString(classes);
    const int count = static_cast<int>(parameters.size());
    classes.clear();
    parameters.clear();
    outputs.clear();
    return count;
  }

  Texts classes;
  std::vector<VelComponent*> parameters;
  std::vector<VelComponent*> outputs;
  const VelNotification* last = nullptr;  ///< Only for its address.
};

class VelParameterModelEventsTest : public RshModelTest {
 protected:
  void SetUp() override {
    RshModelTest::SetUp();
    hShader_ = MakeShader();
    hQ_ = Add(hShader_, "Q", "VelRmaTexture");
  }
  void TearDown() override {
    hQ_ = nullptr;
    hShader_ = nullptr;
    RshModelTest::TearDown();
    EXPECT_EQ(VelExtIModelEvents::CountConnections(), 0) << "of what was closed";
  }

  VelISpecObject_var MakeOutput() { return VelTestGraphOutputSide::Create(*hContainer_); }

  static HRESULT Report(const VelISpecObject_var& iOutput) {
    return VelTestGraphOutputSide::ReportChange(iOutput.Get());
  }

  static HRESULT Connect(const VelIRshParameter_var& iParameter, const VelISpecObject_var& iOutput) {
    return iParameter->SetConnection(VelIRshShader_var(iOutput).Get());
  }

  FakeGraphOutputBindings outputs_;
  VelTestGraphOutputBindings shaderOutputs_;
  VelIRshShader_var hShader_;
  VelIRshParameter_var hQ_;
};

TEST_F(VelParameterModelEventsTest, ChangeOfAnOutput_IsDispatchedAsOneOfTheParameterByEachStartUp) {
  const VelIAlgSubstanceGraphOutput_var hOutput = FakeGraphOutput::Create();
  for (const char* startUp : sharers) {
    SCOPED_TRACE(startUp);
    const VelIRshParameter_var hParameter = Add(hShader_, startUp, startUp);
    Listener listener(hParameter.Get());
    HostChanged changed(*hOutput);
    EXPECT_EQ(VelIModelEvents_var(hParameter)->Dispatch(changed), S_OK);
    EXPECT_EQ(listener.classes, Texts{"VelRshVizNotificationParameterSubstanceGraphOutputChanged"})
        << "once, and never the host's own as well";
    EXPECT_EQ(listener.parameters, std::vector{hParameter->GetComponent()});
    EXPECT_EQ(listener.outputs, std::vector{hOutput->GetComponent()});
  }
}

TEST_F(VelParameterModelEventsTest, ChangeOfAnOutput_IsTranslatedByReceiveToo) {
  const VelIAlgSubstanceGraphOutput_var hOutput = FakeGraphOutput::Create();
  Listener listener(hQ_.Get());
  HostChanged changed(*hOutput);
  EXPECT_EQ(VelIModelEvents_var(hQ_)->Receive(changed), S_OK);
  EXPECT_EQ(listener.outputs, std::vector{hOutput->GetComponent()});
  EXPECT_EQ(listener.TakeChanges(), 1);
}

TEST_F(VelParameterModelEventsTest, ChangeOfTheConnectedOutput_ReachesTheListenersOfTheParameter) {
  const VelISpecObject_var hOutput = MakeOutput();
  ASSERT_EQ(Connect(hQ_, hOutput), S_OK);
  Listener first(hQ_.Get());
  Listener second(hQ_.Get());
  Listener ofTheOutput(hOutput.Get());
  EXPECT_EQ(Report(hOutput), S_OK);
  EXPECT_EQ(first.parameters, std::vector{hQ_->GetComponent()});
  EXPECT_EQ(first.outputs, std::vector{hOutput->GetComponent()});
  EXPECT_EQ(first.TakeChanges(), 1);
  EXPECT_EQ(second.TakeChanges(), 1);
  EXPECT_EQ(ofTheOutput.classes, Texts{"VelAlgVizNotificationSubstanceGraphOutputChanged"})
      << "an output is no parameter";
}

TEST_F(VelParameterModelEventsTest, ChangeOfASharedOutput_IsOneOfEachParameter) {
  const VelISpecObject_var hOutput = MakeOutput();
  const VelIRshParameter_var hR = Add(hShader_, "R", "VelRmaScalar");
  ASSERT_EQ(Connect(hR, hOutput), S_OK);
  ASSERT_EQ(Connect(hQ_, hOutput), S_OK);
  Listener listener(hQ_.Get());
  ASSERT_EQ(listener.ConnectTo(hR.Get()), S_OK);
  EXPECT_EQ(Report(hOutput), S_OK);
  EXPECT_EQ(listener.parameters, (std::vector{hR->GetComponent(), hQ_->GetComponent()})) << "in order of connecting";
}

TEST_F(VelParameterModelEventsTest, OtherNotifications_GoOnUnchanged) {
  Listener listener(hQ_.Get());
  VelModifyAttribut modified(nullptr, nullptr, nullptr, 0);
  EXPECT_EQ(VelIModelEvents_var(hQ_)->Dispatch(modified), S_OK);
  EXPECT_EQ(listener.last, &modified);
  const VelIAlgSubstanceGraphOutput_var hOutput = FakeGraphOutput::Create();
  ParameterChanged translated(*hQ_, *hOutput);
  EXPECT_EQ(VelIModelEvents_var(hQ_)->Dispatch(translated), S_OK);
  EXPECT_EQ(listener.last, &translated) << "what is translated already";
  EXPECT_EQ(listener.classes.size(), 2U);
}

TEST_F(VelParameterModelEventsTest, ObjectThatIsNoParameter_DispatchesTheHostsNotification) {
  const VelModuleClass classes[] = {
      {"VelTestBorrowedEvents", VelTypeOfClass::Extension, &CreateExtensionVelERshParameterGeneric_VelIModelEvents}};
  const VelModuleRow rows[] = {{"VelTestNoParameter", "VelIModelEvents", VelMechanism::TIE, VelLifetime::Component,
                                "VelTestBorrowedEvents",
                                &CreateTIEVelIModelEventsVelERshParameterGeneric_VelIModelEvents, nullptr}};
  const VelModuleTable table{"VelTestBorrowedEvents", "RenderingShaderTests", {}, classes, rows, {}};
  ASSERT_EQ(VelDictionary::Declare(table), S_OK);
  {
    const VelBaseUnknown_var hObject = VelObject::Create("VelTestNoParameter", nullptr);
    const VelIAlgSubstanceGraphOutput_var hOutput = FakeGraphOutput::Create();
    Listener listener(hObject.Get());
    HostChanged changed(*hOutput);
    EXPECT_EQ(VelIModelEvents_var(hObject)->Dispatch(changed), S_OK);
    EXPECT_EQ(listener.last, &changed);
    EXPECT_EQ(listener.classes.size(), 1U);
  }
  EXPECT_EQ(VelDictionary::Undeclare(table), S_OK);
}

TEST_F(VelParameterModelEventsTest, ShaderEvents_GoOnUnchanged) {
  const VelIAlgSubstanceGraphOutput_var hOutput = FakeGraphOutput::Create();
  Listener listener(hShader_.Get());
  HostChanged changed(*hOutput);
  VelModifyAttribut modified(nullptr, nullptr, nullptr, 0);
  EXPECT_EQ(VelIModelEvents_var(hShader_)->Dispatch(changed), S_OK);
  EXPECT_EQ(listener.last, &changed);
  EXPECT_EQ(VelIModelEvents_var(hShader_)->Receive(modified), S_OK);
  EXPECT_EQ(listener.last, &modified);
  EXPECT_EQ(listener.classes.size(), 2U);
}

/// As after a load: features exist and nothing was asked of any of them.
TEST_F(VelParameterModelEventsTest, LoadedParameter_HearsItsOutputAlthoughNobodyTouchedIt) {
  const VelISpecObject_var hShader = Make("VelRmaShader");
  const VelISpecObject_var hQ = Make("VelRmaColor");
  const VelISpecObject_var hOutput = MakeOutput();
  ASSERT_EQ(Access(hShader)->AppendComponent(parameters_, hQ.Get()), S_OK);
  ASSERT_EQ(Access(hQ)->SetReference(node_, hOutput.Get()), S_OK);
  Listener listener(hQ.Get());
  EXPECT_EQ(Report(hOutput), S_OK);
  EXPECT_EQ(listener.parameters, std::vector{hQ->GetComponent()});
  EXPECT_EQ(listener.TakeChanges(), 1);
}

TEST_F(VelParameterModelEventsTest, Reconnection_LeavesTheOldOutput) {
  const VelISpecObject_var hOld = MakeOutput();
  const VelISpecObject_var hNew = MakeOutput();
  ASSERT_EQ(hShader_->AddNode(VelIRshShader_var(hOld).Get()), S_OK);
  ASSERT_EQ(Connect(hQ_, hOld), S_OK);
  Listener listener(hQ_.Get());
  ASSERT_EQ(Connect(hQ_, hNew), S_OK);
  listener.classes.clear();  // The host is told of the connection itself.
  EXPECT_EQ(Report(hOld), S_OK);
  EXPECT_EQ(listener.TakeChanges(), 0);
  EXPECT_EQ(Report(hNew), S_OK);
  EXPECT_EQ(listener.TakeChanges(), 1);
  EXPECT_EQ(hQ_->SetConnection(nullptr), E_FAIL) << "the output has no father to be taken out of";
  listener.classes.clear();
  EXPECT_EQ(Report(hNew), S_OK);
  EXPECT_EQ(listener.TakeChanges(), 0);
}

TEST_F(VelParameterModelEventsTest, LoadedParameter_LeavesTheOutputThatItWasLoadedWith) {
  const VelISpecObject_var hQ = Make("VelRmaScalar");
  const VelISpecObject_var hOld = MakeOutput();
  const VelISpecObject_var hNew = MakeOutput();
  ASSERT_EQ(Access(hQ)->SetReference(node_, hOld.Get()), S_OK);
  Listener listener(hQ.Get());
  EXPECT_EQ(Connect(VelIRshParameter_var(hQ), hNew), E_FAIL) << "the old one has no father to be taken out of";
  listener.classes.clear();
  EXPECT_EQ(Report(hOld), S_OK);
  EXPECT_EQ(listener.TakeChanges(), 0);
  EXPECT_EQ(Report(hNew), S_OK);
  EXPECT_EQ(listener.TakeChanges(), 1);
}

TEST_F(VelParameterModelEventsTest, GetConnection_ConnectsOnlyWhenItHandsOut) {
  const VelISpecObject_var hOutput = MakeOutput();
  Listener listener(hQ_.Get());
  ASSERT_EQ(VelISpecAttrAccess_var(hQ_)->SetReference(node_, hOutput.Get()), S_OK);
  EXPECT_EQ(Report(hOutput), S_OK);
  EXPECT_EQ(listener.TakeChanges(), 0) << "nobody has told the events";
  EXPECT_EQ(hQ_->GetConnection(nullptr), S_OK);
  EXPECT_EQ(Report(hOutput), S_OK);
  EXPECT_EQ(listener.TakeChanges(), 0) << "nothing was handed out";
  for (int time = 0; time < 2; ++time) {
    VelIRshShader_var hShader;
    EXPECT_EQ(hQ_->GetConnection(hShader.Receive()), S_OK);
    EXPECT_EQ(Report(hOutput), S_OK);
    EXPECT_EQ(listener.TakeChanges(), 1) << "once, however often it was read";
  }
}

/// A reference to what is no shader is no connection: nothing that SetConnection could ever end.
TEST_F(VelParameterModelEventsTest, ReferenceToWhatIsNoShader_IsNotListenedTo) {
  const VelIRshParameter_var hOther = Add(hShader_, "other", "VelRmaScalar");
  const VelISpecObject_var hQ = Make("VelRmaScalar");
  ASSERT_EQ(Access(hQ)->SetReference(node_, hOther.Get()), S_OK);
  Listener listener(hQ.Get());
  VelIRshShader_var hConnected;
  EXPECT_EQ(VelIRshParameter_var(hQ)->GetConnection(hConnected.Receive()), E_NOINTERFACE);
  VelModifyAttribut modified(nullptr, nullptr, nullptr, 0);
  EXPECT_EQ(VelIModelEvents_var(hOther)->Dispatch(modified), S_OK);
  EXPECT_EQ(listener.classes, Texts{});
}

TEST_F(VelParameterModelEventsTest, ParameterOfTheOutputItself_HearsItOnce) {
  const VelISpecObject_var hOutput = MakeOutput();
  const VelIRshParameter_var hOwn = Add(VelIRshShader_var(hOutput), "own", "VelRmaScalar");
  ASSERT_EQ(Connect(hOwn, hOutput), S_OK);
  Listener listener(hOwn.Get());
  EXPECT_EQ(Report(hOutput), S_OK);
  EXPECT_EQ(listener.TakeChanges(), 1);
}

TEST_F(VelParameterModelEventsTest, RemovedEnds_HearAndTellNothing) {
  const VelISpecObject_var hOutput = MakeOutput();
  const VelIRshParameter_var hR = Add(hShader_, "R", "VelRmaScalar");
  ASSERT_EQ(Connect(hR, hOutput), S_OK);
  ASSERT_EQ(Connect(hQ_, hOutput), S_OK);
  Listener ofQ(hQ_.Get());
  Listener ofR(hR.Get());
  ASSERT_EQ(LifeCycleObject_var(hR)->remove(), S_OK);
  EXPECT_EQ(Report(hOutput), S_OK);
  EXPECT_EQ(ofQ.TakeChanges(), 1);
  EXPECT_EQ(ofR.TakeChanges(), 0);
  const VelIModelEvents_var hEvents(hOutput);
  ASSERT_EQ(LifeCycleObject_var(hOutput)->remove(), S_OK);
  VelModifyAttribut modified(nullptr, nullptr, nullptr, 0);
  EXPECT_EQ(hEvents->Dispatch(modified), E_FAIL);
  EXPECT_EQ(ofQ.TakeChanges(), 0);
}

TEST_F(VelParameterModelEventsTest, ParametersWithoutModelEvents_AreConnectedAllTheSame) {
  for (const char* startUp : {"VelRmaLightProfile", "VelRmaVoid", "VelRmaParameter"}) {
    SCOPED_TRACE(startUp);
    const VelISpecObject_var hOutput = MakeOutput();
    const VelIRshParameter_var hParameter = Add(hShader_, startUp, startUp);
    EXPECT_EQ(Connect(hParameter, hOutput), S_OK);
    EXPECT_TRUE(IsSameObject(ConnectionOf(hParameter).Get(), hOutput.Get()));
    EXPECT_FALSE(VelIModelEvents_var(hParameter));
    EXPECT_EQ(VelExtIModelEvents::CountConnections(), 0);
  }
}

}  // namespace
