// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRbaValueNotifications_test.cpp The notifications of modified values: one suite for all five.
#include <limits>
#include <memory>

#include <gtest/gtest.h>

#include "platform/events/VelNotificationHeap.h"
#include "platform/materials/VelIRenderingMaterial.h"
#include "platform/materials/VelRbaBooleanShaderModifyNotification.h"
#include "platform/materials/VelRbaColorShaderModifyNotification.h"
#include "platform/materials/VelRbaFloatShaderModifyNotification.h"
#include "platform/materials/VelRbaIntegralShaderModifyNotification.h"
#include "platform/materials/VelRbaStringShaderModifyNotification.h"
#include "platform/objectmodeler/VelObject.h"

namespace {

/// What differs from class to class: the class, its name, and two values.
struct Boolean {
  using Class = VelRbaBooleanShaderModifyNotification;
  static constexpr const char* name = "VelRbaBooleanShaderModifyNotification";
  static bool Previous() { return false; }
  static bool Next() { return true; }
};

struct Integral {
  using Class = VelRbaIntegralShaderModifyNotification;
  static constexpr const char* name = "VelRbaIntegralShaderModifyNotification";
  static std::int32_t Previous() { return -7; }
  static std::int32_t Next() { return std::numeric_limits<std::int32_t>::max(); }
};

struct Float {
  using Class = VelRbaFloatShaderModifyNotification;
  static constexpr const char* name = "VelRbaFloatShaderModifyNotification";
  static double Previous() { return 0.1; }
  static double Next() { return -1e300; }
};

struct Color {
  using Class = VelRbaColorShaderModifyNotification;
  static constexpr const char* name = "VelRbaColorShaderModifyNotification";
  static rgba_t Previous() { return {0.1F, 0.2F, 0.3F, 0.4F}; }
  static rgba_t Next() { return {1.0F, 2.0F, -3.0F, 4.0F}; }
};

struct String {
  using Class = VelRbaStringShaderModifyNotification;
  static constexpr const char* name = "VelRbaStringShaderModifyNotification";
  static VelUnicodeString Previous() { return {}; }
  static VelUnicodeString Next() { return "a path that is too long to lie inside a string"; }
};

template <class Row>
class VelRbaValueNotificationsTest : public ::testing::Test {
 protected:
  using Class = typename Row::Class;

  Class Make() const {
    return Class("scale_u", hObject_.Get(), IID_VelIRenderingMaterial, Row::Previous(), Row::Next());
  }

  void ExpectWhole(const Class& iNotification) const {
    EXPECT_EQ(iNotification.GetName(), "scale_u");
    EXPECT_EQ(iNotification.GetObject(), hObject_.Get());
    EXPECT_EQ(&iNotification.GetInterface(), &IID_VelIRenderingMaterial);
    EXPECT_EQ(iNotification.GetPrevious(), Row::Previous());
    EXPECT_EQ(iNotification.GetNext(), Row::Next());
  }

  const VelBaseUnknown_var hObject_ = VelObject::Create("VelTestModifiedType", nullptr);
};

using Rows = ::testing::Types<Boolean, Integral, Float, Color, String>;
TYPED_TEST_SUITE(VelRbaValueNotificationsTest, Rows);

TYPED_TEST(VelRbaValueNotificationsTest, Fields_AreThoseOfTheConstruction) {
  const auto notification = this->Make();
  this->ExpectWhole(notification);
}

TYPED_TEST(VelRbaValueNotificationsTest, TheObject_MayBeMissing) {
  const typename TypeParam::Class notification("", nullptr, IID_VelBaseUnknown, TypeParam::Next(),
                                               TypeParam::Previous());
  EXPECT_EQ(notification.GetObject(), nullptr);
  EXPECT_TRUE(notification.GetName().IsEmpty());
  EXPECT_EQ(notification.GetPrevious(), TypeParam::Next());
}

TYPED_TEST(VelRbaValueNotificationsTest, TheObject_IsNotReferenced) {
  const VelBaseUnknown_var hObject = VelObject::Create("VelTestModifiedType", nullptr);
  const typename TypeParam::Class notification("", hObject.Get(), IID_VelBaseUnknown, TypeParam::Previous(),
                                               TypeParam::Next());
  const std::unique_ptr<VelNotification> clone(notification.Clone());
  EXPECT_EQ(hObject->AddRef(), 2U);
  hObject->Release();
}

TYPED_TEST(VelRbaValueNotificationsTest, TheMetaClass_IsTheClassesOwnAndThatOfANotificationAboutAModel) {
  const auto notification = this->Make();
  EXPECT_STREQ(notification.ClassName(), TypeParam::name);
  const VelMetaClass& metaClass = TypeParam::Class::MetaObject();
  EXPECT_EQ(VelMetaClass::Find(TypeParam::name), &metaClass);
  EXPECT_EQ(metaClass.TypeOfClass(), VelTypeOfClass::Implementation);
  EXPECT_TRUE(notification.IsAKindOf("VelRbaShaderModifyNotification"));
  EXPECT_TRUE(notification.IsAKindOf("VelModelEntityNotification"));
}

TYPED_TEST(VelRbaValueNotificationsTest, Cast_GivesTheClassAndNoOther) {
  const auto notification = this->Make();
  const VelNotification* base = &notification;
  EXPECT_EQ(VelNotificationCast<VelRbaShaderModifyNotification>(base), &notification);
  int matches = 0;
  matches += VelNotificationCast<VelRbaBooleanShaderModifyNotification>(base) != nullptr ? 1 : 0;
  matches += VelNotificationCast<VelRbaIntegralShaderModifyNotification>(base) != nullptr ? 1 : 0;
  matches += VelNotificationCast<VelRbaFloatShaderModifyNotification>(base) != nullptr ? 1 : 0;
  matches += VelNotificationCast<VelRbaColorShaderModifyNotification>(base) != nullptr ? 1 : 0;
  matches += VelNotificationCast<VelRbaStringShaderModifyNotification>(base) != nullptr ? 1 : 0;
  EXPECT_EQ(matches, 1);
  EXPECT_EQ(VelNotificationCast<typename TypeParam::Class>(base), &notification);
}

TYPED_TEST(VelRbaValueNotificationsTest, Clone_OutlivesTheNotificationAndSaysTheSame) {
  std::unique_ptr<VelNotification> clone(this->Make().Clone());
  ASSERT_NE(clone, nullptr);
  EXPECT_EQ(VelNotificationHeap::CountTaken(), 1);
  const auto* notification = VelNotificationCast<typename TypeParam::Class>(clone.get());
  ASSERT_NE(notification, nullptr);
  this->ExpectWhole(*notification);
  clone.reset();
  EXPECT_EQ(VelNotificationHeap::CountTaken(), 0);
}

TYPED_TEST(VelRbaValueNotificationsTest, Clone_WhenTheNotificationHeapIsUsedUp_IsNull) {
  VelNotificationHeap::SetFailing(true);
  EXPECT_EQ(this->Make().Clone(), nullptr);
  VelNotificationHeap::SetFailing(false);
}

TEST(RgbaTest, TwoColours_AreEqualWhereAllComponentsAre) {
  const rgba_t colour{0.1F, 0.2F, 0.3F, 0.4F};
  EXPECT_EQ(colour, (rgba_t{0.1F, 0.2F, 0.3F, 0.4F}));
  EXPECT_NE(colour, (rgba_t{9.0F, 0.2F, 0.3F, 0.4F}));
  EXPECT_NE(colour, (rgba_t{0.1F, 9.0F, 0.3F, 0.4F}));
  EXPECT_NE(colour, (rgba_t{0.1F, 0.2F, 9.0F, 0.4F}));
  EXPECT_NE(colour, (rgba_t{0.1F, 0.2F, 0.3F, 9.0F}));
  EXPECT_EQ(rgba_t{}, (rgba_t{0.0F, -0.0F, 0.0F, 0.0F}));
  const rgba_t invalid{std::numeric_limits<float>::quiet_NaN(), 0.0F, 0.0F, 0.0F};
  EXPECT_NE(invalid, invalid);
}

}  // namespace
