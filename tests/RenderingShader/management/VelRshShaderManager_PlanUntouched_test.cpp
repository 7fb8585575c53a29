// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshShaderManager_PlanUntouched_test.cpp A plan leaves no trace of itself.
#include <cinttypes>
#include <cstdio>

#include "platform/configuration/VelRbaConfiguration.h"
#include "platform/events/VelCallbackProbe.h"
#include "platform/events/VelIModelEvents.h"
#include "platform/featuremodeler/VelSpecDocumentLinkHooks.h"
#include "platform/objectmodeler/VelBaseUnknown_WR.h"
#include "platform/trace/VelDiagnostics.h"
#include "platform/trace/VelTraceService.h"
#include "tests/RenderingShader/fixtures/FakeDocument.h"
#include "tests/RenderingShader/fixtures/FakeRepLifeCycle.h"
#include "tests/RenderingShader/management/fixtures/UpgradeTest.h"
#include "tests/RenderingShader/model/fixtures/VelTestHostListener.h"

namespace {

/// Notes each object that takes part in a delivery.
class Parties final : public VelCallbackProbe {
 public:
  Parties() { VelCallbackManager::SetProbe(this); }
  ~Parties() { VelCallbackManager::SetProbe(nullptr); }
  Parties(const Parties&) = delete;
  Parties& operator=(const Parties&) = delete;
  void OnDelivery(const VelCallbackDelivery& iDelivery) noexcept override {
    for (VelBaseUnknown* side : {iDelivery.publisher, iDelivery.subscriber}) {
      const VelISpecObject_var hFeature(side);
      VelIContainer_var hContainer;
      if (!hFeature || FAILED(hFeature->GetContainer(hContainer.Receive()))) continue;
      containers.push_back(hContainer.Get());
    }
  }

  std::vector<VelIContainer*> containers;  ///< Not referenced.
};

/// Counts the links of features that are removed, as a document store does.
class CountingHooks final : public VelSpecDocumentLinkHooks {
 public:
  CountingHooks() { VelSpecDocumentLinkHooks::Install(this); }
  ~CountingHooks() { VelSpecDocumentLinkHooks::Install(nullptr); }
  CountingHooks(const CountingHooks&) = delete;
  CountingHooks& operator=(const CountingHooks&) = delete;
  void OnCopied(VelBaseUnknown&) override { ++copied; }
  void OnDropped(VelBaseUnknown&) override { ++dropped; }

  int copied = 0;
  int dropped = 0;
};

class VelRshShaderManagerPlanUntouchedTest : public UpgradeTest {
 protected:
  /// A shader with a connected one, whose plan has rows of many kinds.
  void SetUp() override {
    UpgradeTest::SetUp();
    EXPECT_TRUE(SUCCEEDED(VelRbaConfiguration::SetValue("Default", "scale.Tag", "scale_u")));
    hNode_ = AddNode(hShader_, "node");
    AddScalar(hNode_, "scale", 5.0F);
    AddScalar(hShader_, "dropped", 1.0F);
    AddText(hShader_, "text", "before");
    AddScalar(hShader_, "scale", 2.0F);
    EXPECT_EQ(Find(hShader_, "dropped")->SetConnection(hNode_.Get()), S_OK);
    EXPECT_EQ(Find(hShader_, "text")->SetConnection(hNode_.Get()), S_OK);
    const float own = 5.0F;
    EXPECT_EQ(Find(hNode_, "scale")->SetValue(&own), S_OK);
    today_ = [](const VelIRshShader_var& iShader) {
      AddText(iShader, "text", "today");
      AddScalar(iShader, "scale", 10.0F);
      AddScalar(iShader, "added", 10.0F);
    };
  }
  void TearDown() override {
    hNode_ = nullptr;
    UpgradeTest::TearDown();
  }

  VelIRshShader_var hNode_;
};

TEST_F(VelRshShaderManagerPlanUntouchedTest, TheShaderAndItsContainer_StayAsTheyAre) {
  const std::vector<VelIRshParameter_var> before = ParametersOf(hShader_);
  const int features = hContainer_->CountFeatures();
  const int heardBy = CountSubscribers(hNode_);
  const int heardByOwn = CountSubscribers(hShader_);
  EXPECT_EQ(Plan().rows.size(), 7U);
  const std::vector<VelIRshParameter_var> after = ParametersOf(hShader_);
  ASSERT_EQ(after.size(), before.size());
  for (std::size_t i = 0; i < after.size(); ++i) EXPECT_TRUE(IsSameObject(after[i].Get(), before[i].Get()));
  EXPECT_EQ(Scalars(), (std::vector<float>{1.0F, -1.0F, 2.0F}));
  EXPECT_EQ(TextOf(before[1]), VelUnicodeString("before"));
  EXPECT_TRUE(IsSameObject(ConnectionOf(before[0]).Get(), hNode_.Get()));
  EXPECT_TRUE(IsSameObject(ConnectionOf(before[1]).Get(), hNode_.Get()));
  EXPECT_EQ(ScalarOf(Find(hNode_, "scale")), 5.0F);
  EXPECT_EQ(NodesOf(hShader_).size(), 1U);
  EXPECT_EQ(Version(), 1U);
  EXPECT_EQ(hContainer_->CountFeatures(), features);
  EXPECT_EQ(CountSubscribers(hNode_), heardBy);
  EXPECT_EQ(CountSubscribers(hShader_), heardByOwn);
}

TEST_F(VelRshShaderManagerPlanUntouchedTest, NobodyAround_HearsAnything) {
  VelTestHostListener ofParameter;
  VelTestHostListener ofNode;
  const VelIModelEvents_var hParameterEvents(Find(hShader_, "scale"));
  const VelIModelEvents_var hNodeEvents(Find(hNode_, "scale"));
  ASSERT_TRUE(hParameterEvents);
  ASSERT_TRUE(hNodeEvents);
  EXPECT_EQ(ofParameter.ConnectTo(hParameterEvents.Get()), S_OK);
  EXPECT_EQ(ofNode.ConnectTo(hNodeEvents.Get()), S_OK);
  const Parties parties;
  EXPECT_EQ(Plan().rows.size(), 7U);
  EXPECT_FALSE(parties.containers.empty()) << "what is tried has events of its own";
  for (VelIContainer* container : parties.containers) EXPECT_NE(container, hContainer_.Get());
  EXPECT_EQ(ofParameter.notes, Texts{});
  EXPECT_EQ(ofNode.notes, Texts{});
}

TEST_F(VelRshShaderManagerPlanUntouchedTest, NothingIsTraced_ButTheCall) {
  EXPECT_EQ(Plan().rows.size(), 7U);
  VelTraceService::SetSwitches("*=9");
  traces_.Clear();
  const VelDiagnostics scope;
  EXPECT_EQ(Plan().rows.size(), 7U);
  VelRshUpgradePlan plan;
  EXPECT_EQ(Manager().PlanUpgrade(nullptr, plan), E_FAIL);
  char address[32];
  std::snprintf(address, sizeof(address), "%" PRIxPTR, reinterpret_cast<std::uintptr_t>(hShader_.Get()));
  EXPECT_EQ(Told(), (Texts{"4 (VelRshShaderManager::PlanUpgrade) iShader=" + std::string(address) + "\n",
                           "4 (VelRshShaderManager::PlanUpgrade) iShader=0\n"}));
  EXPECT_TRUE(scope.Entries().empty());
}

TEST_F(VelRshShaderManagerPlanUntouchedTest, WhatWasTriedOn_IsGoneWithThePlansEnd) {
  VelBaseUnknown_WR tried;
  today_ = [&](const VelIRshShader_var& iShader) {
    AddText(iShader, "text", "today");
    tried = VelBaseUnknown_WR(iShader.Get());
  };
  const int channels = VelTraceService::OpenChannelCount();
  const VelRshUpgradePlan plan = Plan();
  EXPECT_FALSE(plan.rows.empty());
  EXPECT_EQ(VelTraceService::OpenChannelCount(), channels) << "each parameter holds one";
  VelIRshShader_var hTried;
  EXPECT_TRUE(FAILED(tried.Query(hTried.Receive())));
}

TEST_F(VelRshShaderManagerPlanUntouchedTest, Documents_AreNeitherLinkedNorLeftCounted) {
  const FakeDocumentBindings bindings;
  const FakeRepLifeCycle store;
  CountingHooks hooks;
  const VelIPLMDmtDocument_var hBefore = FakeDocument::Create("before");
  const VelIPLMDmtDocument_var hToday = FakeDocument::Create("today");
  EXPECT_EQ(Add(hShader_, "texture", "VelRmaTexture")->SetValue(hBefore.Get()), S_OK);
  today_ = [&](const VelIRshShader_var& iShader) {
    EXPECT_EQ(Add(iShader, "texture", "VelRmaTexture")->SetValue(hToday.Get()), S_OK);
  };
  EXPECT_FALSE(Plan().rows.empty());
  EXPECT_EQ(store.Of(hBefore.Get()), (FakeRepLifeCycle::Counts{1, 0})) << "the shader's own";
  EXPECT_EQ(store.Of(hToday.Get()), (FakeRepLifeCycle::Counts{1, 0})) << "the factory's, which the hook gives back";
  EXPECT_EQ(hooks.dropped, 1);
  EXPECT_EQ(hooks.copied, 0);
  hShader_ = nullptr;
  hNode_ = nullptr;
  CloseContainer();
}

TEST_F(VelRshShaderManagerPlanUntouchedTest, PlannedTwice_ThePlansAreTheSameAndTheUpgradeKeepsThem) {
  const VelRshUpgradePlan first = Plan();
  const VelRshUpgradePlan second = Plan();
  EXPECT_EQ(first.Text(), second.Text());
  EXPECT_EQ(Upgrade(), S_OK);
  EXPECT_EQ(ScalarOf(Find(hNode_, "scale")), 2.0F);
  EXPECT_FALSE(Plan().changesShader);
}

}  // namespace
