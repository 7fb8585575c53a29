// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelAlgVizNotificationSubstanceGraphOutputChanged_test.cpp Graph outputs and the notification of their changes.
#include "platform/substance/VelAlgVizNotificationSubstanceGraphOutputChanged.h"

#include <memory>
#include <vector>

#include <gtest/gtest.h>

#include "platform/events/VelModelEventsListener.h"
#include "platform/events/VelNotificationHeap.h"
#include "tests/RenderingShader/fixtures/FakeGraphOutput.h"

namespace {

using Changed = VelAlgVizNotificationSubstanceGraphOutputChanged;

/// Notes the outputs that it is told of.
class OutputListener final : public VelModelEventsListener {
 public:
  void Receive(VelNotification& ioNotification) override {
    const auto* changed = VelNotificationCast<Changed>(&ioNotification);
    outputs.push_back(changed != nullptr ? &changed->GetOutput() : nullptr);
  }

  std::vector<VelIAlgSubstanceGraphOutput*> outputs;
};

class SubstanceTest : public ::testing::Test {
 protected:
  FakeGraphOutputBindings bindings_;
};

TEST_F(SubstanceTest, TheOutput_IsThatOfTheConstructionAndNotReferenced) {
  const VelIAlgSubstanceGraphOutput_var hOutput = FakeGraphOutput::Create();
  const Changed changed(*hOutput);
  const std::unique_ptr<VelNotification> clone(changed.Clone());
  EXPECT_EQ(VelNotificationHeap::CountTaken(), 1);
  EXPECT_EQ(&changed.GetOutput(), hOutput.Get());
  const auto* copy = VelNotificationCast<Changed>(clone.get());
  ASSERT_NE(copy, nullptr);
  EXPECT_EQ(&copy->GetOutput(), hOutput.Get());
  EXPECT_EQ(hOutput->AddRef(), 2U);
  hOutput->Release();
}

TEST_F(SubstanceTest, Clone_WhenTheNotificationHeapIsUsedUp_IsNull) {
  const VelIAlgSubstanceGraphOutput_var hOutput = FakeGraphOutput::Create();
  VelNotificationHeap::SetFailing(true);
  EXPECT_EQ(Changed(*hOutput).Clone(), nullptr);
  VelNotificationHeap::SetFailing(false);
}

TEST_F(SubstanceTest, TheMetaClass_IsTheClassesOwn_OfTheFrameworkOfTheEngine) {
  const VelIAlgSubstanceGraphOutput_var hOutput = FakeGraphOutput::Create();
  const Changed changed(*hOutput);
  EXPECT_STREQ(changed.ClassName(), "VelAlgVizNotificationSubstanceGraphOutputChanged");
  EXPECT_TRUE(changed.IsAKindOf("VelModelEntityNotification"));
  EXPECT_STREQ(changed.GetMetaObject().Framework(), "PlatformSubstance");
  EXPECT_STREQ(changed.GetMetaObject().IdentifierName(), "VelNull");
}

TEST_F(SubstanceTest, AnOutput_ReportsItsChangeToWhoListens) {
  const VelIAlgSubstanceGraphOutput_var hOutput = FakeGraphOutput::Create();
  const VelIAlgSubstanceGraphOutput_var hOther = FakeGraphOutput::Create();
  OutputListener listener;
  EXPECT_EQ(listener.ConnectTo(hOutput.Get()), S_OK);
  FakeGraphOutput::ReportChange(*hOther);
  EXPECT_EQ(listener.outputs.size(), 0U);
  FakeGraphOutput::ReportChange(*hOutput);
  ASSERT_EQ(listener.outputs.size(), 1U);
  EXPECT_EQ(listener.outputs.front(), hOutput.Get());
}

}  // namespace
