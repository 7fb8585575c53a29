// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRbaNotificationTopologyModification_test.cpp The notification of a modified reference, and what it keeps
/// alive.
#include "platform/materials/VelRbaNotificationTopologyModification.h"

#include <memory>

#include <gtest/gtest.h>

#include "platform/documents/VelIPLMDmtDocument.h"
#include "platform/events/VelNotificationHeap.h"
#include "platform/materials/VelIRenderingMaterial.h"
#include "platform/objectmodeler/VelInstanceCounts.h"
#include "platform/objectmodeler/VelObject.h"

namespace {

using Topology = VelRbaNotificationTopologyModification;

VelBaseUnknown_var MakeObject() { return VelObject::Create("VelTestModifiedType", nullptr); }

TEST(VelRbaNotificationTopologyModificationTest, Fields_AreThoseOfTheConstruction) {
  const VelBaseUnknown_var hObject = MakeObject();
  const VelBaseUnknown_var hPrevious = MakeObject();
  const VelBaseUnknown_var hNext = MakeObject();
  const Topology topology("tex", hObject.Get(), IID_VelIRenderingMaterial, hPrevious, hNext, IID_VelIPLMDmtDocument);
  EXPECT_EQ(topology.GetName(), "tex");
  EXPECT_EQ(topology.GetObject(), hObject.Get());
  EXPECT_EQ(&topology.GetInterface(), &IID_VelIRenderingMaterial);
  EXPECT_EQ(topology.GetPrevious().Get(), hPrevious.Get());
  EXPECT_EQ(topology.GetNext().Get(), hNext.Get());
  EXPECT_EQ(&topology.GetSubComponentsIID(), &IID_VelIPLMDmtDocument);
}

TEST(VelRbaNotificationTopologyModificationTest, PreviousAndNext_MayBeEmpty) {
  const Topology topology("tex", nullptr, IID_VelBaseUnknown, {}, {}, IID_VelBaseUnknown);
  EXPECT_FALSE(topology.GetPrevious());
  EXPECT_FALSE(topology.GetNext());
}

TEST(VelRbaNotificationTopologyModificationTest, PreviousAndNext_AreKeptAliveAndTheObjectIsNot) {
  VelBaseUnknown_var hObject = MakeObject();
  VelBaseUnknown_var hPrevious = MakeObject();
  VelBaseUnknown_var hNext = MakeObject();
  std::unique_ptr<VelNotification> clone;
  {
    const Topology topology("tex", hObject.Get(), IID_VelBaseUnknown, hPrevious, hNext, IID_VelBaseUnknown);
    hObject = hPrevious = hNext = nullptr;
    EXPECT_EQ(VelInstanceCounts::Now().components, 2);
    clone.reset(topology.Clone());
  }
  EXPECT_EQ(VelInstanceCounts::Now().components, 2) << "the clone keeps them";
  clone.reset();
  EXPECT_EQ(VelInstanceCounts::Now().components, 0);
}

TEST(VelRbaNotificationTopologyModificationTest, Clone_SaysTheSame) {
  const VelBaseUnknown_var hObject = MakeObject();
  const VelBaseUnknown_var hNext = MakeObject();
  const Topology topology("tex", hObject.Get(), IID_VelIRenderingMaterial, {}, hNext, IID_VelIPLMDmtDocument);
  const std::unique_ptr<VelNotification> clone(topology.Clone());
  EXPECT_EQ(VelNotificationHeap::CountTaken(), 1);
  const auto* copy = VelNotificationCast<Topology>(clone.get());
  ASSERT_NE(copy, nullptr);
  EXPECT_EQ(copy->GetName(), "tex");
  EXPECT_EQ(copy->GetObject(), hObject.Get());
  EXPECT_EQ(&copy->GetInterface(), &IID_VelIRenderingMaterial);
  EXPECT_FALSE(copy->GetPrevious());
  EXPECT_EQ(copy->GetNext().Get(), hNext.Get());
  EXPECT_EQ(&copy->GetSubComponentsIID(), &IID_VelIPLMDmtDocument);
}

TEST(VelRbaNotificationTopologyModificationTest, Clone_WhenTheNotificationHeapIsUsedUp_IsNull) {
  const VelBaseUnknown_var hNext = MakeObject();
  const Topology topology("tex", nullptr, IID_VelBaseUnknown, {}, hNext, IID_VelBaseUnknown);
  VelNotificationHeap::SetFailing(true);
  EXPECT_EQ(topology.Clone(), nullptr);
  VelNotificationHeap::SetFailing(false);
}

TEST(VelRbaNotificationTopologyModificationTest, TheMetaClass_IsTheClassesOwn) {
  const Topology topology("tex", nullptr, IID_VelBaseUnknown, {}, {}, IID_VelBaseUnknown);
  EXPECT_STREQ(topology.ClassName(), "VelRbaNotificationTopologyModification");
  EXPECT_TRUE(topology.IsAKindOf("VelRbaShaderModifyNotification"));
  EXPECT_TRUE(topology.IsAKindOf("VelModelEntityNotification"));
}

}  // namespace
