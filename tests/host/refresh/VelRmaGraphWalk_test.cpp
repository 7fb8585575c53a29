// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaGraphWalk_test.cpp What stands below a material.
#include "host/refresh/VelRmaGraphWalk.h"

#include "tests/host/HostTest.h"

namespace {

class VelRmaGraphWalkTest : public HostTest {
 protected:
  static Texts TypesOf(const VelRmaGraphWalk& iWalk) {
    Texts types;
    for (const VelIRshShader_var& hShader : iWalk.shaders) types.push_back(TypeOfShader(hShader.Get()));
    return types;
  }
  static Texts NamesOf(const VelRmaGraphWalk& iWalk) {
    Texts names;
    for (const VelIRshParameter_var& hParameter : iWalk.parameters) names.push_back(NameOfParameter(hParameter.Get()));
    return names;
  }
};

TEST_F(VelRmaGraphWalkTest, NodesAndConnectedShaders_AreFoundOnceEach) {
  const VelIRshShader_var hRoot = MakeShader("Root");
  const VelIRshShader_var hNode = AddNode(hRoot, "Node");
  const VelIRshShader_var hDeep = AddNode(hNode, "Deep");
  const VelIRshShader_var hElsewhere = MakeShader("Elsewhere");
  EXPECT_EQ(Add(hRoot, "a", "VelRmaScalar")->SetConnection(hNode.Get()), S_OK);
  EXPECT_EQ(Add(hRoot, "b", "VelRmaScalar")->SetConnection(hElsewhere.Get()), S_OK);
  EXPECT_EQ(Add(hNode, "c", "VelRmaScalar")->SetConnection(hElsewhere.Get()), S_OK);
  EXPECT_EQ(Add(hElsewhere, "d", "VelRmaScalar")->SetConnection(hRoot.Get()), S_OK);
  Add(hDeep, "e", "VelRmaScalar");
  const VelIRenderingMaterial_var hMaterial = MakeMaterial(hRoot);
  const VelRmaGraphWalk walk = VelRmaGraphWalk::Of(*hMaterial);
  EXPECT_EQ(TypesOf(walk), (Texts{"Root", "Node", "Elsewhere", "Deep"}));
  EXPECT_EQ(NamesOf(walk), (Texts{"a", "b", "c", "d", "e"}));
}

TEST_F(VelRmaGraphWalkTest, WithoutShaderOrMaterial_NothingIsFound) {
  const VelIRshShader_var hShader = MakeShader("Root");
  const VelIRenderingMaterial_var hMaterial = MakeMaterial(hShader);
  EXPECT_EQ(hMaterial->SetShader(nullptr), S_OK);
  EXPECT_EQ(TypesOf(VelRmaGraphWalk::Of(*hMaterial)), Texts{});
  EXPECT_EQ(TypesOf(VelRmaGraphWalk::Of(*hShader)), Texts{});
}

TEST_F(VelRmaGraphWalkTest, Depth_CostsNoStack) {
  const VelIRshShader_var hRoot = MakeShader("Root");
  VelIRshShader_var hLast = hRoot;
  for (int i = 0; i < 5000; ++i) hLast = AddNode(hLast, "Node");
  const VelIRenderingMaterial_var hMaterial = MakeMaterial(hRoot);
  EXPECT_EQ(VelRmaGraphWalk::Of(*hMaterial).shaders.size(), 5001U);
}

}  // namespace
