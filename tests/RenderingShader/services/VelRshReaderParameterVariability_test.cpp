// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshReaderParameterVariability_test.cpp Which parameters vary over the surface.
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterVariability.h"

#include "tests/RenderingShader/RshModelTest.h"
#include "tests/RenderingShader/fixtures/FakeDocument.h"

namespace {

using Variability = VelRshReaderParameterVariability;

static_assert(Variability::Uniform == 1 && Variability::Varying == 2);

constexpr const char* startUps[] = {"VelRmaVoid",    "VelRmaBoolean",      "VelRmaColor",    "VelRmaScalar",
                                    "VelRmaInteger", "VelRmaString",       "VelRmaVector",   "VelRmaTexture",
                                    "VelRmaMatrix",  "VelRmaLightProfile", "VelRmaParameter"};

class VelRshReaderParameterVariabilityTest : public RshModelTest {
 protected:
  static void SetDocument(const VelIRshParameter_var& iParameter) {
    EXPECT_EQ(iParameter->SetValue(FakeDocument::Create().Get()), S_OK);
  }

  const FakeDocumentBindings documents_;
};

TEST_F(VelRshReaderParameterVariabilityTest, ParameterWithoutAnImage_IsUniform) {
  const VelIRshShader_var hShader = MakeShader();
  for (const char* startUp : startUps) {
    EXPECT_EQ(Variability()(*Add(hShader, "p", startUp)), Variability::Uniform) << startUp;
  }
}

TEST_F(VelRshReaderParameterVariabilityTest, Texture_VariesWithADocument) {
  const VelIRshParameter_var hTexture = Add(MakeShader(), "p", "VelRmaTexture");
  EXPECT_EQ(Variability()(*hTexture), Variability::Uniform);
  SetDocument(hTexture);
  EXPECT_EQ(Variability()(*hTexture), Variability::Varying);
  EXPECT_EQ(LifeCycleObject_var(hTexture)->remove(), S_OK);
  EXPECT_EQ(Variability()(*hTexture), Variability::Uniform) << "closed";
}

TEST_F(VelRshReaderParameterVariabilityTest, LightProfileWithADocument_IsUniform) {
  const VelIRshParameter_var hLight = Add(MakeShader(), "p", "VelRmaLightProfile");
  SetDocument(hLight);
  EXPECT_EQ(Variability()(*hLight), Variability::Uniform);
}

TEST_F(VelRshReaderParameterVariabilityTest, ConnectedParameter_VariesWithTheTextureOfItsShader) {
  for (const char* startUp : startUps) {
    SCOPED_TRACE(startUp);
    const VelIRshShader_var hShader = MakeShader();
    const VelIRshShader_var hMap = AddNode(hShader);
    const VelIRshParameter_var hParameter = Add(hShader, "p", startUp);
    EXPECT_EQ(hParameter->SetConnection(hMap.Get()), S_OK);
    EXPECT_EQ(Variability()(*hParameter), Variability::Uniform) << "no parameter";
    const VelIRshParameter_var hTexture = Add(hMap, "tex", "VelRmaTexture");
    EXPECT_EQ(Variability()(*hParameter), Variability::Uniform) << "no document";
    SetDocument(hTexture);
    EXPECT_EQ(Variability()(*hParameter), Variability::Varying);
    EXPECT_EQ(hParameter->SetConnection(nullptr), S_OK);
    EXPECT_EQ(Variability()(*hParameter), Variability::Uniform) << "disconnected";
  }
}

}  // namespace
