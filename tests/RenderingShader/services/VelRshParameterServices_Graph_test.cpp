// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterServices_Graph_test.cpp The parameters that are connected to a shader, and the channel of a
/// material that a parameter feeds.
#include <utility>

#include "RenderingShader/VelRshModel.m/include/VelRshParameterServices.h"
#include "platform/configuration/VelRbaConfiguration.h"
#include "platform/objectmodeler/VelObject.h"
#include "tests/RenderingShader/RshModelTest.h"
#include "tests/RenderingShader/model/fixtures/VelTestConnectedShader.h"
#include "tests/RenderingShader/services/fixtures/VelTestListingShader.h"

namespace {

using Services = VelRshParameterServices;

class VelRshParameterServicesGraphTest : public RshModelTest {
 protected:
  static VelIRshParameter_var Connect(const VelIRshShader_var& iShader, const char* iName, const char* iStartUp,
                                      const VelIRshShader_var& iTo) {
    VelIRshParameter_var hParameter = Add(iShader, iName, iStartUp);
    EXPECT_EQ(hParameter->SetConnection(iTo.Get()), S_OK) << iName;
    return hParameter;
  }

  /// Reads both overloads, which agree.
  static Texts ConnectedTo(const VelIRshShader_var& iShader) {
    Texts names = Take(Services::FindConnectedParameters(*iShader));
    EXPECT_EQ(Take(Services::FindConnectedParameters(std::as_const(*iShader))), names);
    return names;
  }

 private:
  static Texts Take(const VelListPtrVelBaseUnknown& iParameters) {
    Texts names;
    for (VelBaseUnknown* parameter : iParameters) {
      names.push_back(NameOfParameter(parameter));
      parameter->Release();
    }
    return names;
  }
};

TEST_F(VelRshParameterServicesGraphTest, FindConnectedParameters_AreInTheOrderInWhichTheConnectionsWereWritten) {
  const VelIRshShader_var hNode = MakeShader();
  const VelIRshShader_var hFirst = MakeShader();
  const VelIRshShader_var hSecond = MakeShader();
  EXPECT_EQ(ConnectedTo(hNode), Texts{});
  const VelIRshParameter_var hLate = Add(hFirst, "late", "VelRmaScalar");
  Connect(hSecond, "c", "VelRmaTexture", hNode);
  const VelIRshParameter_var hMoved = Connect(hFirst, "b", "VelRmaVoid", hNode);
  Connect(hFirst, "a", "VelRmaLightProfile", hNode);
  EXPECT_EQ(hLate->SetConnection(hNode.Get()), S_OK);
  Connect(hFirst, "other", "VelRmaScalar", hSecond);
  EXPECT_EQ(ConnectedTo(hNode), (Texts{"c", "b", "a", "late"}));
  EXPECT_EQ(hMoved->SetConnection(nullptr), S_OK);
  EXPECT_EQ(ConnectedTo(hNode), (Texts{"c", "a", "late"}));
  EXPECT_EQ(hMoved->SetConnection(hNode.Get()), S_OK);
  EXPECT_EQ(ConnectedTo(hNode), (Texts{"c", "a", "late", "b"}));
}

TEST_F(VelRshParameterServicesGraphTest, FindConnectedParameters_AreThoseThatLive) {
  const VelIRshShader_var hNode = MakeShader();
  const VelIRshShader_var hShader = MakeShader();
  Connect(hShader, "a", "VelRmaScalar", hNode);
  const VelIRshParameter_var hRemoved = Connect(hShader, "b", "VelRmaScalar", hNode);
  Connect(hShader, "c", "VelRmaScalar", hNode);
  EXPECT_EQ(LifeCycleObject_var(hRemoved)->remove(), S_OK);
  EXPECT_EQ(ConnectedTo(hNode), (Texts{"a", "c"}));
  EXPECT_EQ(LifeCycleObject_var(VelISpecObject_var(hNode))->remove(), S_OK);
  EXPECT_EQ(ConnectedTo(hNode), Texts{});
}

TEST_F(VelRshParameterServicesGraphTest, FindConnectedParameters_AreHandedOverWithOneReferenceEach) {
  const VelIRshShader_var hNode = MakeShader();
  const VelIRshParameter_var hParameter = Connect(MakeShader(), "a", "VelRmaScalar", hNode);
  const VelListPtrVelBaseUnknown connected = Services::FindConnectedParameters(*hNode);
  ASSERT_EQ(connected.Size(), 1);
  EXPECT_TRUE(IsSameObject(connected[1], hParameter.Get()));
  EXPECT_EQ(connected[1]->Release(), 0U);
}

TEST_F(VelRshParameterServicesGraphTest, FindConnectedParameters_NeedAFeatureAndNothingElseOfTheShader) {
  const VelTestListingShaders boxes;
  const VelIRshShader_var hBox(VelTestListingShaders::CreateBox(*hContainer_));
  Connect(MakeShader(), "a", "VelRmaScalar", hBox);
  EXPECT_EQ(ConnectedTo(hBox), Texts{"a"});
  const VelTestConnectedShaderBindings shaders;
  EXPECT_EQ(ConnectedTo(VelIRshShader_var(VelObject::Create("VelTestShaderOfNoFeature", nullptr))), Texts{});
}

TEST_F(VelRshParameterServicesGraphTest, Slot_IsTheNumberOfTheWholeTextWithCase) {
  const struct {
    const char* text;
    unsigned slot;
  } cases[] = {{"surface.normal", 1},
               {"surface.height", 2},
               {"surface.opacity", 3},
               {"surface.ambient-occlusion", 4},
               {"reflectance.diffuse.color", 5},
               {"reflectance.specular.color", 6},
               {"reflectance.specular.glossiness", 7},
               {"reflectance.anisotropy.orientation", 8},
               {"transmittance.specular.weight", 9},
               {"transmittance.specular.glossiness", 10},
               {"emittance.diffuse.color", 11},
               {"", 0},
               {"Surface.Normal", 0},
               {"surface.normal ", 0},
               {" surface.normal", 0},
               {"surface.normal\n", 0},
               {"surface.normals", 0},
               {"surface.norma", 0},
               {"EMITTANCE.DIFFUSE.COLOR", 0},
               {"emittance.diffuse.color\t", 0},
               {"1", 0}};
  const VelIRshShader_var hShader = MakeShader("Slotted");
  const VelIRshParameter_var hParameter = Add(hShader, "p", "VelRmaTexture");
  EXPECT_EQ(Services::ComputeParameterSlot(*hParameter), 0U) << "no value";
  for (const auto& test : cases) {
    ASSERT_TRUE(SUCCEEDED(VelRbaConfiguration::SetValue("Slotted", "p.SlotIdentifier", test.text)));
    EXPECT_EQ(Services::ComputeParameterSlot(*hParameter), test.slot) << test.text;
  }
}

TEST_F(VelRshParameterServicesGraphTest, Slot_IsReadUnderTheNameOfTheParameterInTheTypeOfItsShader) {
  for (const char* key : {"p.SlotIdentifier", ".SlotIdentifier"}) {
    ASSERT_EQ(VelRbaConfiguration::SetValue("Slotted", key, "surface.height"), S_OK);
  }
  ASSERT_EQ(VelRbaConfiguration::SetParent("Derived", "Slotted"), S_OK);
  const VelIRshShader_var hShader = MakeShader("Slotted");
  for (const char* startUp : {"VelRmaScalar", "VelRmaLightProfile", "VelRmaVoid", "VelRmaMatrix"}) {
    EXPECT_EQ(Services::ComputeParameterSlot(*Add(hShader, "p", startUp)), 2U) << startUp;
    EXPECT_EQ(Services::ComputeParameterSlot(*Add(hShader, "P", startUp)), 0U) << startUp;
    EXPECT_EQ(Services::ComputeParameterSlot(*Add(hShader, "q", startUp)), 0U) << startUp;
    EXPECT_EQ(Services::ComputeParameterSlot(*Add(hShader, "", startUp)), 2U) << startUp;
  }
  EXPECT_EQ(Services::ComputeParameterSlot(*Add(MakeShader("Derived"), "p", "VelRmaScalar")), 2U) << "inherited";
  EXPECT_EQ(Services::ComputeParameterSlot(*Add(MakeShader("slotted"), "p", "VelRmaScalar")), 0U);
  const VelIRshParameter_var hFree(Make("VelRmaScalar"));
  EXPECT_EQ(hFree->SetName("p"), S_OK);
  EXPECT_EQ(Services::ComputeParameterSlot(*hFree), 0U) << "no shader";
}

}  // namespace
