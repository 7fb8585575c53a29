// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaRefresh_test.cpp When materials are brought up to date by themselves, and how often.
#include "RenderingShader/VelRshModel.m/include/VelRshTranslatorParameter.h"
#include "host/refresh/VelIRmaRefresh.h"
#include "platform/base/VelEditScope.h"
#include "platform/events/VelModelEventsListener.h"
#include "platform/featuremodeler/LifeCycleObject.h"
#include "platform/materials/VelIRmaEditionMode.h"
#include "platform/materials/VelRbaFloatShaderModifyNotification.h"
#include "platform/objectmodeler/VelObject.h"
#include "platform/trace/VelTraceService.h"
#include "tests/host/HostTest.h"

namespace {

constexpr const char* channel = "VelRshAppearanceUpdater";
constexpr const char* performanceChannel = "VelRshAppearanceUpdaterPerformanceTime";

class VelRmaRefreshTest : public HostTest {
 protected:
  void SetUp() override {
    HostTest::SetUp();
    hRoot_ = MakeShader(type);
    hA_ = Add(hRoot_, "a", "VelRmaScalar");
    hB_ = Add(hRoot_, "b", "VelRmaScalar");
    hNode_ = AddNode(hRoot_, "NodeType");
    hInner_ = Add(hNode_, "inner", "VelRmaScalar");
    hMaterial_ = MakeMaterial(hRoot_);
    hRefresh_ = VelIRmaRefresh_var(VelObject::Create("VelRmaRefresh", nullptr));
    ASSERT_TRUE(hRefresh_);
    VelTraceService::SetSwitches("VelRshAppearanceUpdater*");
  }
  void TearDown() override {
    hRefresh_ = nullptr;
    hMaterial_ = nullptr;
    hInner_ = nullptr;
    hNode_ = nullptr;
    hB_ = nullptr;
    hA_ = nullptr;
    hRoot_ = nullptr;
    HostTest::TearDown();
  }

  void Attach() {
    ASSERT_EQ(hRefresh_->Attach(hMaterial_.Get()), S_OK);
    traces_.Clear();
  }

  static void Set(const VelIRshParameter_var& iParameter, float iValue) {
    EXPECT_EQ(iParameter->SetValue(&iValue), S_OK);
  }

  /// @return "value" or "connection" for each update since the last call, in their order
  Texts TakeUpdates() {
    Texts updates;
    for (const std::string& line : traces_.Texts(performanceChannel)) {
      if (line.starts_with("OnValueUpdate ")) updates.emplace_back("value");
      if (line.starts_with("OnConnectionUpdate ")) updates.emplace_back("connection");
    }
    traces_.Clear();
    return updates;
  }

  /// @return the parameters whose cache entry was reset since the last call, which the update of a connection does
  Texts TakeResets() {
    constexpr std::string_view start = "Appearance cache entry reset for ";
    Texts names;
    for (const std::string& line : traces_.Texts(channel, VelTraceKind::Information)) {
      if (line.starts_with(start)) names.push_back(line.substr(start.size()));
    }
    traces_.Clear();
    return names;
  }

  static bool Notify(const VelIRshParameter_var& iParameter, double iPrevious, double iNext) {
    VelString name;
    EXPECT_EQ(iParameter->GetName(name), S_OK);
    return VelRshTranslatorParameter()(
        VelRbaFloatShaderModifyNotification(name, iParameter.Get(), VelIRshParameter::InterfaceId(), iPrevious, iNext));
  }

  VelIRshShader_var hRoot_;
  VelIRshShader_var hNode_;
  VelIRshParameter_var hA_;
  VelIRshParameter_var hB_;
  VelIRshParameter_var hInner_;
  VelIRenderingMaterial_var hMaterial_;
  VelIRmaRefresh_var hRefresh_;
};

TEST_F(VelRmaRefreshTest, Attach_TellsWhatItCannotFollow) {
  EXPECT_EQ(hRefresh_->Attach(nullptr), E_INVALIDARG);
  EXPECT_EQ(hRefresh_->Attach(hRoot_.Get()), E_NOINTERFACE);
  EXPECT_EQ(hRefresh_->Attach(hMaterial_.Get()), S_OK);
  EXPECT_EQ(hRefresh_->Attach(hMaterial_.Get()), S_FALSE);
  EXPECT_EQ(hRefresh_->Detach(nullptr), E_INVALIDARG);
  EXPECT_EQ(hRefresh_->Detach(hMaterial_.Get()), S_OK);
  EXPECT_EQ(hRefresh_->Detach(hMaterial_.Get()), S_FALSE);
}

TEST_F(VelRmaRefreshTest, WhatIsThereAlready_CountsAsUpToDate) {
  Set(hA_, 0.5F);
  Attach();
  EXPECT_EQ(hRefresh_->Flush(), S_FALSE);
  EXPECT_EQ(TakeUpdates(), Texts{});
}

TEST_F(VelRmaRefreshTest, ABareSetter_WaitsForTheFlush) {
  Attach();
  Set(hA_, 0.5F);
  Set(hInner_, 0.5F);
  EXPECT_EQ(TakeUpdates(), Texts{});
  EXPECT_EQ(hRefresh_->Flush(), S_OK);
  EXPECT_EQ(TakeUpdates(), (Texts{"value", "value"}));
  EXPECT_EQ(hRefresh_->Flush(), S_FALSE);
  EXPECT_EQ(TakeUpdates(), Texts{});
}

TEST_F(VelRmaRefreshTest, AScope_UpdatesEachParameterAndKindOnceAtItsEnd) {
  Attach();
  {
    const VelEditScope outer;
    {
      const VelEditScope inner;
      Set(hA_, 0.1F);
      Set(hA_, 0.2F);
    }
    EXPECT_EQ(hA_->SetConnection(hNode_.Get()), S_OK);
    Set(hA_, 0.3F);
    EXPECT_EQ(TakeUpdates(), Texts{});
  }
  EXPECT_EQ(TakeUpdates(), (Texts{"value", "connection"}));
}

TEST_F(VelRmaRefreshTest, Updates_RunInTheOrderInWhichTheChangesWereHeard) {
  Attach();
  {
    const VelEditScope scope;
    EXPECT_EQ(hB_->SetConnection(hNode_.Get()), S_OK);
    EXPECT_EQ(hA_->SetConnection(hNode_.Get()), S_OK);
    EXPECT_EQ(hB_->SetConnection(nullptr), S_OK);
  }
  EXPECT_EQ(TakeResets(), (Texts{"'b'", "'a'"}));
}

TEST_F(VelRmaRefreshTest, WhatASubShadersParameterRefersTo_IsHeard) {
  Attach();
  const VelIRshShader_var hOther = MakeShader("OtherType");
  EXPECT_EQ(hInner_->SetConnection(hOther.Get()), S_OK);
  EXPECT_EQ(hRefresh_->Flush(), S_OK);
  EXPECT_EQ(TakeResets(), Texts{"'inner'"});
}

TEST_F(VelRmaRefreshTest, ParametersThatWereAdded_CountAsChangedInBothWays) {
  Attach();
  const VelIRshParameter_var hNew = Add(hNode_, "new", "VelRmaScalar");
  traces_.Clear();
  EXPECT_EQ(hRefresh_->Flush(), S_OK);
  EXPECT_EQ(TakeUpdates(), (Texts{"value", "connection"}));
  Set(hNew, 0.5F);
  EXPECT_EQ(hRefresh_->Flush(), S_OK);
  EXPECT_EQ(TakeUpdates(), Texts{"value"});
}

TEST_F(VelRmaRefreshTest, ShadersThatWereAdded_AreHeardFromThenOn) {
  Attach();
  const VelIRshShader_var hNew = AddNode(hNode_, "NewType");
  const VelIRshParameter_var hParameter = Add(hNew, "p", "VelRmaScalar");
  EXPECT_EQ(hRefresh_->Flush(), S_OK);
  traces_.Clear();
  Set(hParameter, 0.5F);
  EXPECT_EQ(hRefresh_->Flush(), S_OK);
  EXPECT_EQ(TakeUpdates(), Texts{"value"});
}

TEST_F(VelRmaRefreshTest, WhatAnUpdateChanges_JoinsTheSameRun) {
  Configure("a.Tag", "bump");
  const VelIRshParameter_var hBump = Add(hNode_, "bump", "VelRmaScalar");
  Set(hBump, 0.0F);
  EXPECT_EQ(hB_->SetConnection(hNode_.Get()), S_OK);
  Attach();
  Set(hA_, 0.05F);
  EXPECT_EQ(hRefresh_->Flush(), S_OK);
  EXPECT_EQ(TakeUpdates(), (Texts{"value", "value"}));
  float level = 0.0F;
  EXPECT_EQ(hBump->GetValue(&level), S_OK);
  EXPECT_EQ(level, 0.05F * 10.0F * 100.0F);
}

/// Counts the updates that have run when a change is told.
class UpdateCounter final : public VelModelEventsListener {
 public:
  explicit UpdateCounter(const VelTraceRecorder& iTraces) : traces_(iTraces) {}
  ~UpdateCounter() override = default;

  void Receive(VelNotification&) override {
    ++heard;
    updates += traces_.Texts(performanceChannel).size();
  }

  int heard = 0;
  std::size_t updates = 0;

 private:
  const VelTraceRecorder& traces_;
};

TEST_F(VelRmaRefreshTest, ATranslatedNotification_UpdatesAtItsEndAndNotInsideTheSetter) {
  Attach();
  Set(hA_, 0.5F);
  EXPECT_EQ(hRefresh_->Flush(), S_OK);
  traces_.Clear();
  UpdateCounter counter(traces_);
  ASSERT_EQ(counter.ConnectTo(hA_.Get()), S_OK);
  EXPECT_TRUE(Notify(hA_, 0.5, 0.75));
  EXPECT_EQ(counter.heard, 1);
  EXPECT_EQ(counter.updates, 0U);
  EXPECT_EQ(TakeUpdates(), Texts{"value"});
}

TEST_F(VelRmaRefreshTest, TheBumpOfADerivedRoot_EndsAsTheConvertedLevel) {
  const VelIRshShader_var hDerived = MakeShader("MPMPaint");
  Configure("default_sp_bump.Tag", "bump", "MPMPaint");
  const VelIRshShader_var hBumpShader = AddNode(hDerived, "NodeType");
  const VelIRshParameter_var hBump = Add(hBumpShader, "bump", "VelRmaScalar");
  Set(hBump, 0.0F);
  const VelIRshParameter_var hDefault = Add(hDerived, "default_sp_bump", "VelRmaScalar");
  Set(hDefault, 0.0F);
  EXPECT_EQ(Add(hDerived, "map", "VelRmaScalar")->SetConnection(hBumpShader.Get()), S_OK);
  const VelIRenderingMaterial_var hMaterial = MakeMaterial(hDerived);
  ASSERT_EQ(hRefresh_->Attach(hMaterial.Get()), S_OK);
  EXPECT_TRUE(Notify(hDefault, 0.0, 0.05));
  float level = 0.0F;
  EXPECT_EQ(hBump->GetValue(&level), S_OK);
  EXPECT_EQ(level, 0.05F * 10.0F * 100.0F);
}

TEST_F(VelRmaRefreshTest, WhatLeavesTheMaterial_IsUpdatedNoMore) {
  Attach();
  Set(hInner_, 0.5F);
  EXPECT_EQ(hRoot_->RemoveNode(hNode_.Get()), S_OK);
  EXPECT_EQ(hRefresh_->Flush(), S_FALSE);
  EXPECT_EQ(TakeUpdates(), Texts{});
  Set(hA_, 0.5F);
  EXPECT_EQ(LifeCycleObject_var(hA_)->remove(), S_OK);
  EXPECT_EQ(hRefresh_->Flush(), S_FALSE);
  EXPECT_EQ(TakeUpdates(), Texts{});
}

TEST_F(VelRmaRefreshTest, Detach_ForgetsWhatWasHeard) {
  Attach();
  Set(hA_, 0.5F);
  EXPECT_EQ(hRefresh_->Detach(hMaterial_.Get()), S_OK);
  Set(hB_, 0.5F);
  EXPECT_EQ(hRefresh_->Flush(), S_FALSE);
  EXPECT_EQ(TakeUpdates(), Texts{});
}

TEST_F(VelRmaRefreshTest, Detach_LeavesTheShadersOfOtherMaterialsToThem) {
  const VelIRshShader_var hOther = MakeShader("OtherType");
  EXPECT_EQ(Add(hOther, "p", "VelRmaScalar")->SetConnection(hNode_.Get()), S_OK);
  const VelIRenderingMaterial_var hOtherMaterial = MakeMaterial(hOther);
  Attach();
  ASSERT_EQ(hRefresh_->Attach(hOtherMaterial.Get()), S_OK);
  EXPECT_EQ(hRefresh_->Detach(hOtherMaterial.Get()), S_OK);
  Set(hInner_, 0.5F);
  EXPECT_EQ(hRefresh_->Flush(), S_OK);
  EXPECT_EQ(TakeUpdates(), Texts{"value"});
}

TEST_F(VelRmaRefreshTest, AnEditOfOneMaterial_LooksAtNoOther) {
  Attach();
  const VelIRshShader_var hOther = MakeShader("OtherType");
  const VelIRshParameter_var hParameter = Add(hOther, "p", "VelRmaScalar");
  const VelIRenderingMaterial_var hOtherMaterial = MakeMaterial(hOther);
  ASSERT_EQ(hRefresh_->Attach(hOtherMaterial.Get()), S_OK);
  static_cast<void>(hRefresh_->Flush());
  traces_.Clear();
  Set(hA_, 0.5F);
  Set(hParameter, 0.5F);
  EXPECT_EQ(hRefresh_->Flush(), S_OK);
  EXPECT_EQ(TakeUpdates(), (Texts{"value", "value"}));
}

TEST_F(VelRmaRefreshTest, AMaterialThatIsGone_IsNoHarm) {
  Attach();
  Set(hA_, 0.5F);
  EXPECT_EQ(LifeCycleObject_var(hMaterial_)->remove(), S_OK);
  EXPECT_EQ(hRefresh_->Flush(), S_FALSE);
  EXPECT_EQ(TakeUpdates(), Texts{});
}

TEST_F(VelRmaRefreshTest, TheServiceThatIsGone_HearsNothing) {
  Attach();
  hRefresh_ = nullptr;
  {
    const VelEditScope scope;
    Set(hA_, 0.5F);
  }
  EXPECT_EQ(TakeUpdates(), Texts{});
}

TEST_F(VelRmaRefreshTest, SilentPropagation_UpdatesNothing) {
  Attach();
  using Mode = VelIRmaEditionMode::Mode;
  VelIRmaEditionMode::SetActivation(Mode::SilentPropagation, true);
  Set(hA_, 0.5F);
  EXPECT_EQ(hRefresh_->Flush(), S_OK);
  VelIRmaEditionMode::SetActivation(Mode::SilentPropagation, false);
  EXPECT_EQ(traces_.Texts(channel), Texts{"FBDI mode, derived update NOT allowed"});
}

}  // namespace
