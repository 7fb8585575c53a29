// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshShaderFeature_test.cpp The attributes, parameters and nodes of a shader.
#include "tests/RenderingShader/RshModelTest.h"

namespace {

using VelRshShaderFeatureTest = RshModelTest;

TEST_F(VelRshShaderFeatureTest, NewShader_HasTheTypeThatTheFactoryGaveIt) {
  const VelIRshShader_var hShader = MakeShader("BasicMaterial");
  VelString type;
  EXPECT_EQ(hShader->GetType(type), S_OK);
  EXPECT_EQ(type, "BasicMaterial");
}

TEST_F(VelRshShaderFeatureTest, AddParameter_KeepsTheOrderAndRepeatedNames) {
  const VelIRshShader_var hShader = MakeShader();
  Add(hShader, "roughness", "VelRmaScalar");
  Add(hShader, "base_color", "VelRmaColor");
  Add(hShader, "roughness", "VelRmaScalar");
  EXPECT_EQ(ParameterNames(hShader), (Texts{"roughness", "base_color", "roughness"}));
}

TEST_F(VelRshShaderFeatureTest, WriteAndConnect_Work) {
  const VelIRshShader_var hShader = MakeShader();
  const VelIRshParameter_var hScalar = Add(hShader, "roughness", "VelRmaScalar");
  const float value = 0.25F;
  EXPECT_EQ(hScalar->SetValue(&value), S_OK);
  EXPECT_EQ(hScalar->SetValue(&value), S_FALSE);
  float read = 0.0F;
  EXPECT_EQ(hScalar->GetValue(&read), S_OK);
  EXPECT_EQ(read, 0.25F);
  const VelIRshShader_var hNode = AddNode(hShader);
  EXPECT_EQ(hScalar->SetConnection(hNode.Get()), S_OK);
  EXPECT_TRUE(IsSameObject(ConnectionOf(hScalar).Get(), hNode.Get()));
  EXPECT_EQ(hScalar->SetConnection(nullptr), S_OK);
}

}  // namespace
