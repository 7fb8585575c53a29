// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRbaResetRenderingMaterialNotification_test.cpp The notification that a parameter goes back to its default
/// value.
#include "platform/materials/VelRbaResetRenderingMaterialNotification.h"

#include <memory>

#include <gtest/gtest.h>

#include "platform/events/VelNotificationHeap.h"
#include "platform/materials/VelRbaShaderModifyNotification.h"
#include "platform/objectmodeler/VelObject.h"

namespace {

using Reset = VelRbaResetRenderingMaterialNotification;

TEST(VelRbaResetRenderingMaterialNotificationTest, TheObject_IsThatOfTheConstructionAndNotReferenced) {
  const VelBaseUnknown_var hObject = VelObject::Create("VelTestModifiedType", nullptr);
  const Reset reset(hObject.Get());
  const std::unique_ptr<VelNotification> clone(reset.Clone());
  EXPECT_EQ(VelNotificationHeap::CountTaken(), 1);
  EXPECT_EQ(reset.GetObject(), hObject.Get());
  const auto* copy = VelNotificationCast<Reset>(clone.get());
  ASSERT_NE(copy, nullptr);
  EXPECT_EQ(copy->GetObject(), hObject.Get());
  EXPECT_EQ(hObject->AddRef(), 2U);
  hObject->Release();
}

TEST(VelRbaResetRenderingMaterialNotificationTest, TheObject_MayBeMissing) {
  EXPECT_EQ(Reset(nullptr).GetObject(), nullptr);
}

TEST(VelRbaResetRenderingMaterialNotificationTest, Clone_WhenTheNotificationHeapIsUsedUp_IsNull) {
  VelNotificationHeap::SetFailing(true);
  EXPECT_EQ(Reset(nullptr).Clone(), nullptr);
  VelNotificationHeap::SetFailing(false);
}

TEST(VelRbaResetRenderingMaterialNotificationTest, TheMetaClass_IsTheClassesOwnAndNoModificationOfAValue) {
  const Reset reset(nullptr);
  EXPECT_STREQ(reset.ClassName(), "VelRbaResetRenderingMaterialNotification");
  EXPECT_TRUE(reset.IsAKindOf("VelModelEntityNotification"));
  EXPECT_EQ(VelNotificationCast<VelRbaShaderModifyNotification>(&reset), nullptr);
}

}  // namespace
