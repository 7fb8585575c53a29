// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshVizNotificationParameterSubstanceGraphOutputChanged_test.cpp What the notification holds, and its
/// clones.
#include "RenderingShader/VelRshModel.m/include/VelRshVizNotificationParameterSubstanceGraphOutputChanged.h"

#include <memory>
#include <optional>
#include <type_traits>

#include "platform/events/VelNotificationHeap.h"
#include "tests/RenderingShader/RshModelTest.h"
#include "tests/RenderingShader/fixtures/FakeGraphOutput.h"

namespace {

using Changed = VelRshVizNotificationParameterSubstanceGraphOutputChanged;

constexpr const char* className = "VelRshVizNotificationParameterSubstanceGraphOutputChanged";

class VelRshGraphOutputChangedTest : public RshModelTest {
 protected:
  void SetUp() override {
    RshModelTest::SetUp();
    hParameter_ = VelIRshParameter_var(Make("VelRmaScalar"));
    hOutput_ = FakeGraphOutput::Create();
    changed_.emplace(*hParameter_, *hOutput_);
  }
  void TearDown() override {
    changed_.reset();
    hOutput_ = nullptr;
    hParameter_ = nullptr;
    EXPECT_EQ(VelNotificationHeap::CountTaken(), 0);
    RshModelTest::TearDown();
  }

  FakeGraphOutputBindings bindings_;
  VelIRshParameter_var hParameter_;
  VelIAlgSubstanceGraphOutput_var hOutput_;
  std::optional<Changed> changed_;
};

TEST_F(VelRshGraphOutputChangedTest, Holds_ParameterAndOutputWithoutReferences) {
  const Changed& constant = *changed_;
  EXPECT_EQ(&changed_->GetParameter(), hParameter_.Get());
  EXPECT_EQ(&constant.GetParameter(), hParameter_.Get());
  EXPECT_EQ(&changed_->GetOutput(), hOutput_.Get());
  EXPECT_EQ(&constant.GetOutput(), hOutput_.Get());
  EXPECT_EQ(hParameter_->AddRef(), 2U) << "the handle's and this one";
  EXPECT_EQ(hOutput_->AddRef(), 2U);
  hParameter_->Release();
  hOutput_->Release();
}

TEST_F(VelRshGraphOutputChangedTest, Modification_IsOfTheParameterAsAWhole) {
  EXPECT_EQ(changed_->GetModifiedObject(), hParameter_->GetImpl());
  EXPECT_EQ(changed_->GetAttribute(), nullptr);
  ASSERT_NE(changed_->GetInterface(), nullptr);
  EXPECT_TRUE(*changed_->GetInterface() == IID_VelIRshParameter);
  EXPECT_EQ(changed_->GetAttributeKind(), 2);
  EXPECT_TRUE(changed_->GetPathElement().IsEmpty());
}

TEST_F(VelRshGraphOutputChangedTest, MetaClass_IsOneOfAnObjectOfTheFramework) {
  const VelMetaClass& metaClass = Changed::MetaObject();
  EXPECT_STREQ(metaClass.Name(), className);
  EXPECT_EQ(metaClass.Base(), &VelModifyAttribut::MetaObject());
  EXPECT_EQ(static_cast<int>(metaClass.TypeOfClass()), 1);
  EXPECT_STREQ(metaClass.IdentifierName(), "VelNull");
  EXPECT_STREQ(metaClass.Framework(), "RenderingShader");
  EXPECT_EQ(&metaClass, &Changed::MetaObject());
  EXPECT_EQ(&metaClass, &changed_->GetMetaObject());
  EXPECT_EQ(&metaClass, VelMetaClass::Find(className));
  EXPECT_STREQ(Changed::ClassId(), "VelNull");
}

TEST_F(VelRshGraphOutputChangedTest, Class_TellsItsNameAndThoseOfItsBases) {
  EXPECT_STREQ(changed_->ClassName(), className);
  EXPECT_STREQ(changed_->IsA(), className);
  struct Case {
    const char* name;
    bool isKind;
  };
  const Case cases[] = {
      {className, true},
      {"VelModifyAttribut", true},
      {"VelModelEntityNotification", true},
      {"VelNotification", true},
      {"VelAlgVizNotificationSubstanceGraphOutputChanged", false},
      {"VelRbaShaderModifyNotification", false},
      {"VelRshVizNotificationParameterSubstanceGraphOutput", false},
      {"", false},
  };
  for (const Case& each : cases) EXPECT_EQ(changed_->IsAKindOf(each.name), each.isKind) << each.name;
}

TEST_F(VelRshGraphOutputChangedTest, CreateItself_GivesNothing) { EXPECT_EQ(Changed::CreateItself(), nullptr); }

TEST_F(VelRshGraphOutputChangedTest, Copy_HoldsTheSame) {
  const Changed copy(*changed_);
  changed_.reset();
  EXPECT_EQ(&copy.GetParameter(), hParameter_.Get());
  EXPECT_EQ(&copy.GetOutput(), hOutput_.Get());
  EXPECT_EQ(copy.GetModifiedObject(), hParameter_->GetImpl());
  EXPECT_EQ(copy.GetAttributeKind(), 2);
}

TEST_F(VelRshGraphOutputChangedTest, Clone_OutlivesTheOriginalOnTheNotificationHeap) {
  const std::unique_ptr<VelNotification> clone(changed_->Clone());
  ASSERT_NE(clone, nullptr);
  EXPECT_EQ(VelNotificationHeap::CountTaken(), 1);
  changed_.reset();
  const auto* copy = VelNotificationCast<Changed>(clone.get());
  ASSERT_NE(copy, nullptr);
  EXPECT_STREQ(copy->ClassName(), className);
  EXPECT_EQ(&copy->GetParameter(), hParameter_.Get());
  EXPECT_EQ(&copy->GetOutput(), hOutput_.Get());
  EXPECT_EQ(copy->GetModifiedObject(), hParameter_->GetImpl());
  EXPECT_TRUE(*copy->GetInterface() == IID_VelIRshParameter);
  EXPECT_EQ(copy->GetAttributeKind(), 2);
}

TEST_F(VelRshGraphOutputChangedTest, Clone_OfAClone_IsIndependentOfIt) {
  std::unique_ptr<VelNotification> first(changed_->Clone());
  const std::unique_ptr<VelNotification> second(first->Clone());
  EXPECT_EQ(VelNotificationHeap::CountTaken(), 2);
  first.reset();
  EXPECT_EQ(&VelNotificationCast<Changed>(second.get())->GetParameter(), hParameter_.Get());
}

TEST_F(VelRshGraphOutputChangedTest, Clone_WithoutMemory_IsNull) {
  VelNotificationHeap::SetFailing(true);
  EXPECT_EQ(changed_->Clone(), nullptr);
  VelNotificationHeap::SetFailing(false);
  const std::unique_ptr<VelNotification> clone(changed_->Clone());
  EXPECT_NE(clone, nullptr);
}

}  // namespace
