// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshShaderManager_UpgradeValues_test.cpp Gives a shader the parameters of its type's version of today, with
/// the values of before.
#include <algorithm>

#include "tests/RenderingShader/fixtures/FakeDocument.h"
#include "tests/RenderingShader/management/fixtures/UpgradeTest.h"

namespace {

using VelRshShaderManagerUpgradeValuesTest = UpgradeTest;

TEST_F(VelRshShaderManagerUpgradeValuesTest, ParametersAreThoseOfToday_WithTheValuesOfBeforeByNameAndStartUp) {
  AddScalar(hShader_, "kept", 1.0F);
  AddScalar(hShader_, "dropped", 2.0F);
  AddScalar(hShader_, "retyped", 3.0F);
  AddScalar(hShader_, "moved", 4.0F);
  today_ = [](const VelIRshShader_var& iShader) {
    AddScalar(iShader, "added", 10.0F);
    AddScalar(iShader, "moved", 40.0F);
    const std::int32_t number = 30;
    EXPECT_EQ(Add(iShader, "retyped", "VelRmaInteger")->SetValue(&number), S_OK);
    AddScalar(iShader, "kept", 10.0F);
  };
  EXPECT_EQ(Upgrade(), S_OK);
  EXPECT_EQ(ParameterNames(hShader_), (Texts{"added", "moved", "retyped", "kept"}));
  EXPECT_EQ(Scalars(), (std::vector<float>{10.0F, 4.0F, -1.0F, 1.0F}));
  std::int32_t number = 0;
  EXPECT_EQ(Find(hShader_, "retyped")->GetValue(&number), S_OK);
  EXPECT_EQ(number, 30);
  EXPECT_EQ(hContainer_->CountFeatures(), 5) << "the copy of before is gone";
}

TEST_F(VelRshShaderManagerUpgradeValuesTest, ParametersOfOneName_TakeTheirValuesInOrder) {
  for (const float value : {1.0F, 2.0F, 3.0F}) AddScalar(hShader_, "a", value);
  today_ = [](const VelIRshShader_var& iShader) {
    AddText(iShader, "a", "no scalar");
    for (const float value : {10.0F, 20.0F}) AddScalar(iShader, "a", value);
  };
  EXPECT_EQ(Upgrade(), S_OK);
  EXPECT_EQ(Scalars(), (std::vector<float>{-1.0F, 1.0F, 2.0F}));
  today_ = [](const VelIRshShader_var& iShader) {
    for (const float value : {10.0F, 20.0F, 30.0F}) AddScalar(iShader, "a", value);
  };
  EXPECT_EQ(hShader_->SetVersion(1), S_OK);
  EXPECT_EQ(Upgrade(), S_OK);
  EXPECT_EQ(Scalars(), (std::vector<float>{1.0F, 2.0F, 30.0F})) << "the third has its default";
}

TEST_F(VelRshShaderManagerUpgradeValuesTest, TextsAndMatrices_TakeTheDefaultOfTodayAndPlainValuesDoNot) {
  float matrix[16]{1.0F};
  const bool boolean = false;
  const float color[] = {0.1F, 0.2F, 0.3F, 0.4F};
  const float vector[] = {1.0F, 2.0F, 3.0F};
  AddText(hShader_, "text", "before");
  EXPECT_EQ(Add(hShader_, "matrix", "VelRmaMatrix")->SetValue(matrix), S_OK);
  EXPECT_EQ(Add(hShader_, "boolean", "VelRmaBoolean")->SetValue(&boolean), S_OK);
  EXPECT_EQ(Add(hShader_, "color", "VelRmaColor")->SetValue(color), S_OK);
  EXPECT_EQ(Add(hShader_, "vector", "VelRmaVector")->SetValue(vector), S_OK);
  today_ = [](const VelIRshShader_var& iShader) {
    const bool other = true;
    const float others[16]{9.0F};
    EXPECT_EQ(Add(iShader, "vector", "VelRmaVector")->SetValue(VelRshValueSource(others, 3)), S_OK);
    EXPECT_EQ(Add(iShader, "color", "VelRmaColor")->SetValue(VelRshValueSource(others, 4)), S_OK);
    EXPECT_EQ(Add(iShader, "boolean", "VelRmaBoolean")->SetValue(&other), S_OK);
    EXPECT_EQ(Add(iShader, "matrix", "VelRmaMatrix")->SetValue(others), S_OK);
    AddText(iShader, "text", "today");
  };
  EXPECT_EQ(Upgrade(), S_OK);
  bool booleanRead = true;
  float read[16]{};
  EXPECT_EQ(TextOf(Find(hShader_, "text")), VelUnicodeString("today"));
  EXPECT_EQ(Find(hShader_, "matrix")->GetValue(read), S_OK);
  EXPECT_EQ(read[0], 9.0F);
  EXPECT_EQ(Find(hShader_, "boolean")->GetValue(&booleanRead), S_OK);
  EXPECT_FALSE(booleanRead);
  EXPECT_EQ(Find(hShader_, "color")->GetValue(read), S_OK);
  EXPECT_TRUE(std::equal(color, color + 4, read));
  EXPECT_EQ(Find(hShader_, "vector")->GetValue(read), S_OK);
  EXPECT_TRUE(std::equal(vector, vector + 3, read));
}

TEST_F(VelRshShaderManagerUpgradeValuesTest, Documents_AreKeptAndWithoutOneTheDefaultStays) {
  const FakeDocumentBindings bindings;
  const VelIPLMDmtDocument_var hBefore = FakeDocument::Create("before");
  const VelIPLMDmtDocument_var hToday = FakeDocument::Create("today");
  for (const char* startUp : {"VelRmaTexture", "VelRmaLightProfile"}) {
    EXPECT_EQ(Add(hShader_, startUp, startUp)->SetValue(hBefore.Get()), S_OK);
    static_cast<void>(Add(hShader_, "none", startUp));
  }
  today_ = [&](const VelIRshShader_var& iShader) {
    for (const char* startUp : {"VelRmaTexture", "VelRmaLightProfile"}) {
      for (const char* name : {"none", startUp}) {
        EXPECT_EQ(Add(iShader, name, startUp)->SetValue(hToday.Get()), S_OK);
      }
    }
  };
  EXPECT_EQ(Upgrade(), S_OK);
  for (const VelIRshParameter_var& hParameter : ParametersOf(hShader_)) {
    const bool hadNone = NameOfParameter(hParameter.Get()) == "none";
    VelBaseUnknown_var hDocument;
    EXPECT_EQ(hParameter->GetValue(hDocument.Receive()), S_OK);
    EXPECT_TRUE(IsSameObject(hDocument.Get(), hadNone ? hToday.Get() : hBefore.Get()));
  }
  hShader_ = nullptr;
  CloseContainer();
}

}  // namespace
