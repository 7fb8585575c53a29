// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaParameterLayout_test.cpp What the configuration of a shader type says of its parameters.
#include <array>

#include "RenderingShader/interfaces/VelIRshParameterDialog.h"
#include "RenderingShader/interfaces/VelIRshParameterImmLayout.h"
#include "platform/featuremodeler/LifeCycleObject.h"
#include "tests/host/HostTest.h"

namespace {

class VelRmaParameterLayoutTest : public HostTest {
 protected:
  void SetUp() override {
    HostTest::SetUp();
    hShader_ = MakeShader(type);
  }
  void TearDown() override {
    hShader_ = nullptr;
    HostTest::TearDown();
  }

  Texts TakeErrors() {
    Texts errors = traces_.Texts("VelRmaParameterSettings", VelTraceKind::Error);
    traces_.Clear();
    return errors;
  }

  VelIRshShader_var hShader_;
};

TEST_F(VelRmaParameterLayoutTest, WithoutKeys_NeitherLayoutNorDialogAnswers) {
  const VelIRshParameter_var hParameter = Add(hShader_, "p", "VelRmaScalar");
  Configure("other.Layout", "slider");
  Configure("p.Layout", "slider", "OtherType");
  Configure("p.Tag", "mapping");
  EXPECT_FALSE(VelIRshParameterImmLayout_var(hParameter));
  EXPECT_FALSE(VelIRshParameterDialog_var(hParameter));
}

TEST_F(VelRmaParameterLayoutTest, EachKey_MakesTheLayoutAnswer_AndTheDefaultTheDialogToo) {
  for (const char* word : {"Layout", "Shown", "LayoutValue", "DefaultValue"}) {
    SCOPED_TRACE(word);
    const VelIRshParameter_var hParameter = Add(hShader_, word, "VelRmaScalar");
    Configure((std::string(word) + "." + word).c_str(), "1");
    EXPECT_TRUE(VelIRshParameterImmLayout_var(hParameter));
    EXPECT_EQ(static_cast<bool>(VelIRshParameterDialog_var(hParameter)), std::string(word) == "DefaultValue");
  }
}

TEST_F(VelRmaParameterLayoutTest, Texts_AreThoseOfTheConfigurationAtThatTime) {
  const VelIRshParameter_var hParameter = Add(hShader_, "p", "VelRmaBoolean");
  Configure("p.Layout", "slider");
  const VelIRshParameterImmLayout_var hLayout(hParameter);
  VelString text("before");
  EXPECT_EQ(hLayout->GetShown(text), E_FAIL);
  EXPECT_EQ(hLayout->GetTextValue(text), E_FAIL);
  EXPECT_EQ(text, "before");
  Configure("p.Shown", "Yes");
  Configure("p.LayoutValue", "true");
  EXPECT_EQ(hLayout->GetKind(text), S_OK);
  EXPECT_EQ(text, "slider");
  EXPECT_EQ(hLayout->GetShown(text), S_OK);
  EXPECT_EQ(text, "Yes");
  EXPECT_EQ(hLayout->GetTextValue(text), S_OK);
  EXPECT_EQ(text, "true");
  EXPECT_EQ(VelIRshParameterPrivate_var(hParameter)->GetLayoutFlag(), S_OK);
}

TEST_F(VelRmaParameterLayoutTest, ADefault_IsTheValueOfAParameterThatHasNone) {
  Configure("on.DefaultValue", "Yes");
  Configure("off.DefaultValue", "FALSE");
  Configure("count.DefaultValue", "-12");
  Configure("level.DefaultValue", "0.25");
  Configure("name.DefaultValue", " two words ");
  Configure("color.DefaultValue", "0.5 0.25 1");
  Configure("rgba.DefaultValue", "0.5 0.25 1 0.75");
  Configure("axis.DefaultValue", "1 2 3");
  bool flag = false;
  EXPECT_EQ(Add(hShader_, "on", "VelRmaBoolean")->GetValue(&flag), S_OK);
  EXPECT_TRUE(flag);
  EXPECT_EQ(Add(hShader_, "off", "VelRmaBoolean")->GetValue(&flag), S_OK);
  EXPECT_FALSE(flag);
  std::int32_t count = 0;
  EXPECT_EQ(Add(hShader_, "count", "VelRmaInteger")->GetValue(&count), S_OK);
  EXPECT_EQ(count, -12);
  float level = 0.0F;
  EXPECT_EQ(Add(hShader_, "level", "VelRmaScalar")->GetValue(&level), S_OK);
  EXPECT_EQ(level, 0.25F);
  VelUnicodeString name;
  EXPECT_EQ(Add(hShader_, "name", "VelRmaString")->GetValue(&name), S_OK);
  EXPECT_EQ(name, " two words ");
  float color[4] = {};
  EXPECT_EQ(Add(hShader_, "color", "VelRmaColor")->GetValue(color), S_OK);
  EXPECT_EQ(std::to_array(color), (std::array{0.5F, 0.25F, 1.0F, 1.0F}));
  EXPECT_EQ(Add(hShader_, "rgba", "VelRmaColor")->GetValue(color), S_OK);
  EXPECT_EQ(std::to_array(color), (std::array{0.5F, 0.25F, 1.0F, 0.75F}));
  float axis[3] = {};
  EXPECT_EQ(Add(hShader_, "axis", "VelRmaVector")->GetValue(axis), S_OK);
  EXPECT_EQ(std::to_array(axis), (std::array{1.0F, 2.0F, 3.0F}));
  EXPECT_EQ(TakeErrors(), Texts{});
}

TEST_F(VelRmaParameterLayoutTest, ADefaultOfAnotherType_IsRefusedWithWhatWasExpected) {
  struct Case {
    const char* startUp;
    const char* text;
    const char* expected;
  };
  const Case cases[] = {{"VelRmaBoolean", "maybe", "true or false"},
                        {"VelRmaInteger", "1.5", "a whole number"},
                        {"VelRmaInteger", "1 2", "a whole number"},
                        {"VelRmaInteger", "2147483648", "a whole number"},
                        {"VelRmaScalar", "0,5", "as many numbers as the value has"},
                        {"VelRmaScalar", "", "as many numbers as the value has"},
                        {"VelRmaScalar", "1 2", "as many numbers as the value has"},
                        {"VelRmaColor", "1 2", "as many numbers as the value has"},
                        {"VelRmaColor", "1 2 3 4 5", "as many numbers as the value has"}};
  for (const Case& test : cases) {
    SCOPED_TRACE(test.text);
    Configure("p.DefaultValue", test.text);
    const VelIRshParameter_var hParameter = Add(hShader_, "p", test.startUp);
    traces_.Clear();
    const VelIRshParameterDialog_var hDialog(hParameter);
    bool flag = true;
    std::int32_t count = 7;
    float reals[4] = {7.0F, 7.0F, 7.0F, 7.0F};
    const std::string startUp = test.startUp;
    const VelRshValueTarget target = startUp == "VelRmaBoolean"   ? VelRshValueTarget(&flag)
                                     : startUp == "VelRmaInteger" ? VelRshValueTarget(&count)
                                     : startUp == "VelRmaScalar"  ? VelRshValueTarget(&reals[0])
                                                                  : VelRshValueTarget(reals);
    EXPECT_EQ(hDialog->GetDefaultValue(target), E_FAIL);
    EXPECT_TRUE(flag);
    EXPECT_EQ(count, 7);
    EXPECT_EQ(std::to_array(reals), (std::array{7.0F, 7.0F, 7.0F, 7.0F}));
    EXPECT_EQ(TakeErrors(), Texts{std::string("The default value of 'p' in the configuration 'HostedType' is '") +
                                  test.text + "'; expected " + test.expected});
  }
}

TEST_F(VelRmaParameterLayoutTest, AClosedParameter_IsAFailure) {
  Configure("p.DefaultValue", "1");
  Configure("p.Layout", "slider");
  const VelIRshParameter_var hParameter = Add(hShader_, "p", "VelRmaScalar");
  const VelIRshParameterImmLayout_var hLayout(hParameter);
  const VelIRshParameterDialog_var hDialog(hParameter);
  EXPECT_EQ(LifeCycleObject_var(hParameter)->remove(), S_OK);
  float value = 7.0F;
  VelString text("before");
  EXPECT_EQ(hLayout->GetDefaultValue(&value), E_FAIL);
  EXPECT_EQ(hDialog->GetDefaultValue(&value), E_FAIL);
  EXPECT_EQ(hLayout->GetKind(text), E_FAIL);
  EXPECT_EQ(value, 7.0F);
  EXPECT_EQ(text, "before");
}

}  // namespace
