// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TranslatorTest.h The fixture of the translator's tests: what an editor sends, and what comes of it.
#ifndef TESTS_RENDERINGSHADER_UPDATES_TRANSLATORTEST_H
#define TESTS_RENDERINGSHADER_UPDATES_TRANSLATORTEST_H

#include "RenderingShader/VelRshModel.m/include/VelRshTranslatorParameter.h"
#include "platform/materials/VelRbaBooleanShaderModifyNotification.h"
#include "platform/materials/VelRbaColorShaderModifyNotification.h"
#include "platform/materials/VelRbaFloatShaderModifyNotification.h"
#include "platform/materials/VelRbaIntegralShaderModifyNotification.h"
#include "platform/materials/VelRbaNotificationTopologyModification.h"
#include "platform/materials/VelRbaResetRenderingMaterialNotification.h"
#include "platform/materials/VelRbaStringShaderModifyNotification.h"
#include "tests/RenderingShader/updates/UpdatesTest.h"

/// What is sent of each kind of value.
struct SentBoolean {
  using Notification = VelRbaBooleanShaderModifyNotification;
  static constexpr const char* startUp = "VelRmaBoolean";
  static bool Before() { return false; }
  static bool After() { return true; }
  static bool Read(const VelIRshParameter_var& iParameter) {
    bool value = false;
    EXPECT_EQ(iParameter->GetValue(&value), S_OK);
    return value;
  }
  static HRESULT Write(const VelIRshParameter_var& iParameter, bool iValue) { return iParameter->SetValue(&iValue); }
};

struct SentIntegral {
  using Notification = VelRbaIntegralShaderModifyNotification;
  static constexpr const char* startUp = "VelRmaInteger";
  static std::int32_t Before() { return 3; }
  static std::int32_t After() { return -2147483647; }
  static std::int32_t Read(const VelIRshParameter_var& iParameter) {
    std::int32_t value = 0;
    EXPECT_EQ(iParameter->GetValue(&value), S_OK);
    return value;
  }
  static HRESULT Write(const VelIRshParameter_var& iParameter, std::int32_t iValue) {
    return iParameter->SetValue(&iValue);
  }
};

struct SentFloat {
  using Notification = VelRbaFloatShaderModifyNotification;
  static constexpr const char* startUp = "VelRmaScalar";
  static double Before() { return 0.25; }
  static double After() { return 1.5; }
  static double Read(const VelIRshParameter_var& iParameter) {
    float value = 0.0F;
    EXPECT_EQ(iParameter->GetValue(&value), S_OK);
    return value;
  }
  static HRESULT Write(const VelIRshParameter_var& iParameter, double iValue) {
    const auto value = static_cast<float>(iValue);
    return iParameter->SetValue(&value);
  }
};

struct SentColor {
  using Notification = VelRbaColorShaderModifyNotification;
  static constexpr const char* startUp = "VelRmaColor";
  static rgba_t Before() { return {0.125F, 0.25F, 0.5F, 1.0F}; }
  static rgba_t After() { return {0.125F, 0.25F, 0.5F, 0.75F}; }
  static rgba_t Read(const VelIRshParameter_var& iParameter) {
    float value[4] = {};
    EXPECT_EQ(iParameter->GetValue(value), S_OK);
    return {value[0], value[1], value[2], value[3]};
  }
  static HRESULT Write(const VelIRshParameter_var& iParameter, const rgba_t& iValue) {
    const float value[4] = {iValue.r, iValue.g, iValue.b, iValue.a};
    return iParameter->SetValue(value);
  }
};

struct SentString {
  using Notification = VelRbaStringShaderModifyNotification;
  static constexpr const char* startUp = "VelRmaString";
  static VelUnicodeString Before() { return "left"; }
  static VelUnicodeString After() { return "left;right"; }
  static VelUnicodeString Read(const VelIRshParameter_var& iParameter) {
    VelUnicodeString value;
    EXPECT_EQ(iParameter->GetValue(&value), S_OK);
    return value;
  }
  static HRESULT Write(const VelIRshParameter_var& iParameter, const VelUnicodeString& iValue) {
    return iParameter->SetValue(&iValue);
  }
};

/// No parameter is tagged, so that only the translator carries a value from one to another.
class TranslatorTest : public UpdatesTest {
 protected:
  void SetUp() override {
    UpdatesTest::SetUp();
    VelIRmaEditionMode::SetActivation(silent, false);
  }

  /// Puts another root of a type below the material.
  void MakeRoot(const char* iType) {
    hRoot_ = MakeShader(iType);
    EXPECT_EQ(VelIRenderingMaterial_var(hMaterial_)->SetShader(hRoot_.Get()), S_OK);
  }

  /// Adds a parameter that has the value before.
  template <class Sent>
  static VelIRshParameter_var AddBefore(const VelIRshShader_var& iShader, const char* iName) {
    VelIRshParameter_var hParameter = Add(iShader, iName, Sent::startUp);
    EXPECT_TRUE(SUCCEEDED(Sent::Write(hParameter, Sent::Before())));
    return hParameter;
  }

  /// Sends that a value was changed.
  template <class Sent, class Value>
  bool Send(VelBaseUnknown* iObject, const Value& iPrevious, const Value& iNext) const {
    const typename Sent::Notification notification("p", iObject, VelIRshParameter::InterfaceId(), iPrevious, iNext);
    return translate_(notification);
  }

  /// Sends that the value before became the value after.
  template <class Sent>
  bool Send(const VelIRshParameter_var& iParameter) const {
    return Send<Sent>(iParameter.Get(), Sent::Before(), Sent::After());
  }

  const VelRshTranslatorParameter translate_;
};

#endif  // TESTS_RENDERINGSHADER_UPDATES_TRANSLATORTEST_H
