// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelNotification_test.cpp Notifications: what they say of themselves, their casts and their clones.
#include "platform/events/VelNotification.h"

#include <memory>

#include <gtest/gtest.h>

#include "platform/events/VelModifyAttribut.h"
#include "platform/events/VelNotificationHeap.h"
#include "platform/objectmodeler/VelObject.h"

namespace {

/// A notification that derives from a derived one, in another library than the bases.
class VelTestRename final : public VelModifyAttribut {
 public:
  VEL_NOTIFICATION(VelTestRename);

  explicit VelTestRename(const VelUnicodeString& iPath) : VelModifyAttribut(nullptr, nullptr, nullptr, 0, iPath) {}
  VelNotification* Clone() const noexcept override { return new VelTestRename(*this); }
};

const VelMetaClass& VelTestRename::MetaObject() noexcept {
  static const VelMetaClass& metaClass =
      fct_RetrieveMetaObject("VelTestRename", &VelModifyAttribut::MetaObject(), VelTypeOfClass::Implementation);
  return metaClass;
}

/// A notification that is no notification about a model, and keeps the base's Clone.
class VelTestPlain final : public VelNotification {
 public:
  VEL_NOTIFICATION(VelTestPlain);
};

const VelMetaClass& VelTestPlain::MetaObject() noexcept {
  static const VelMetaClass& metaClass =
      fct_RetrieveMetaObject("VelTestPlain", &VelNotification::MetaObject(), VelTypeOfClass::Implementation);
  return metaClass;
}

/// Lets the notification heap fail while it lives.
class FailingHeap {
 public:
  FailingHeap() { VelNotificationHeap::SetFailing(true); }
  ~FailingHeap() { VelNotificationHeap::SetFailing(false); }
  FailingHeap(const FailingHeap&) = delete;
  FailingHeap& operator=(const FailingHeap&) = delete;
};

TEST(VelNotificationTest, MetaClass_OfANotification_TellsItsNameAndItsBases) {
  const VelTestRename rename("label");
  const VelNotification& notification = rename;
  EXPECT_STREQ(notification.ClassName(), "VelTestRename");
  EXPECT_STREQ(notification.IsA(), "VelTestRename");
  struct Case {
    const char* name;
    bool expected;
  };
  for (const Case& test :
       {Case{"VelTestRename", true}, Case{"VelModifyAttribut", true}, Case{"VelModelEntityNotification", true},
        Case{"VelNotification", true}, Case{"VelTestPlain", false}, Case{"VelBaseUnknown", false}, Case{"", false}}) {
    SCOPED_TRACE(test.name);
    EXPECT_EQ(notification.IsAKindOf(test.name), test.expected);
  }
}

TEST(VelNotificationTest, Cast_GivesTheNotificationAsItsClassAndEachOfItsBases) {
  const VelTestRename rename("label");
  const VelNotification* notification = &rename;
  EXPECT_EQ(VelNotificationCast<VelTestRename>(notification), &rename);
  EXPECT_EQ(VelNotificationCast<VelModifyAttribut>(notification), &rename);
  EXPECT_EQ(VelNotificationCast<VelModelEntityNotification>(notification), &rename);
  EXPECT_EQ(VelNotificationCast<VelNotification>(notification), &rename);
}

TEST(VelNotificationTest, Cast_ToAClassThatItIsNot_IsNull) {
  const VelModifyAttribut modify(nullptr, nullptr, nullptr, 0);
  const VelTestPlain plain;
  EXPECT_EQ(VelNotificationCast<VelTestRename>(&modify), nullptr) << "a derived class";
  EXPECT_EQ(VelNotificationCast<VelTestPlain>(&modify), nullptr);
  EXPECT_EQ(VelNotificationCast<VelModelEntityNotification>(&plain), nullptr);
  EXPECT_EQ(VelNotificationCast<VelNotification>(static_cast<const VelNotification*>(nullptr)), nullptr);
}

TEST(VelModifyAttributTest, Fields_AreThoseOfTheConstruction) {
  const VelBaseUnknown_var hObject = VelObject::Create("VelTestModifiedType", nullptr);
  int attribute = 0;
  auto* const key = reinterpret_cast<VelISpecAttrKey*>(&attribute);  // The notification never looks into it.
  const VelModifyAttribut modify(hObject.Get(), key, &IID_VelBaseUnknown, 7, "path/element");
  EXPECT_EQ(modify.GetModifiedObject(), hObject.Get());
  EXPECT_EQ(modify.GetAttribute(), key);
  EXPECT_EQ(modify.GetInterface(), &IID_VelBaseUnknown);
  EXPECT_EQ(modify.GetAttributeKind(), 7);
  EXPECT_EQ(modify.GetPathElement(), VelUnicodeString("path/element"));
}

TEST(VelModifyAttributTest, Fields_MayAllBeMissing) {
  const VelModifyAttribut modify(nullptr, nullptr, nullptr, 0);
  EXPECT_EQ(modify.GetModifiedObject(), nullptr);
  EXPECT_EQ(modify.GetAttribute(), nullptr);
  EXPECT_EQ(modify.GetInterface(), nullptr);
  EXPECT_TRUE(modify.GetPathElement().IsEmpty());
}

TEST(VelModifyAttributTest, Clone_OutlivesTheNotificationAndSaysTheSame) {
  std::unique_ptr<VelNotification> clone;
  {
    const VelTestRename rename("a path element that is too long to lie inside a string");
    clone.reset(static_cast<const VelNotification&>(rename).Clone());
  }
  ASSERT_NE(clone, nullptr);
  EXPECT_EQ(VelNotificationHeap::CountTaken(), 1);
  const auto* rename = VelNotificationCast<VelTestRename>(clone.get());
  ASSERT_NE(rename, nullptr);
  EXPECT_EQ(rename->GetPathElement(), VelUnicodeString("a path element that is too long to lie inside a string"));
  clone.reset();
  EXPECT_EQ(VelNotificationHeap::CountTaken(), 0);
}

TEST(VelModifyAttributTest, Clone_WhenTheNotificationHeapIsUsedUp_IsNull) {
  const VelModifyAttribut modify(nullptr, nullptr, nullptr, 3, "path");
  {
    const FailingHeap failing;
    EXPECT_EQ(modify.Clone(), nullptr);
  }
  EXPECT_EQ(VelNotificationHeap::CountTaken(), 0);
  const std::unique_ptr<VelNotification> clone(modify.Clone());
  EXPECT_NE(clone, nullptr) << "the heap works again";
}

TEST(VelNotificationTest, Clone_OfAClassThatCannotBeCloned_IsNull) {
  const VelTestPlain plain;
  EXPECT_EQ(static_cast<const VelNotification&>(plain).Clone(), nullptr);
}

}  // namespace
