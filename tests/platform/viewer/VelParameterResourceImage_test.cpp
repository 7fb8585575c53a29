// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelParameterResourceImage_test.cpp The image that drives a parameter, by the attributes of features alone.
#include "platform/viewer/VelIRmaVisuResourceImage.h"

#include <string_view>

#include "platform/objectmodeler/VelObject.h"
#include "tests/platform/featuremodeler/FeatureModelerTest.h"

namespace {

constexpr const char* startUps[] = {"VelRmaVoid",    "VelRmaBoolean",      "VelRmaColor",    "VelRmaScalar",
                                    "VelRmaInteger", "VelRmaString",       "VelRmaVector",   "VelRmaTexture",
                                    "VelRmaMatrix",  "VelRmaLightProfile", "VelRmaParameter"};

class VelParameterResourceImageTest : public FeatureModelerTest {
 protected:
  /// @return a new document, which the feature then holds
  static VelBaseUnknown_var SetDocument(const VelISpecObject_var& iFeature) {
    const VelBaseUnknown_var hDocument = VelObject::Create("VelTestResourceDocument", nullptr);
    EXPECT_EQ(Access(iFeature)->SetDocument(Key("Value", VelSpecAttrKind::Document), hDocument.Get()), S_OK);
    return hDocument;
  }

  VelISpecObject_var AddParameter(const VelISpecObject_var& iShader, const char* iName,
                                  const char* iStartUp = "VelRmaTexture") {
    VelISpecObject_var hParameter = Make(iStartUp);
    EXPECT_EQ(Access(hParameter)->SetText(Key("Name", VelSpecAttrKind::Text), iName), S_OK);
    EXPECT_EQ(Access(iShader)->AppendComponent(parameters_, hParameter.Get()), S_OK);
    return hParameter;
  }

  void Connect(const VelISpecObject_var& iParameter, const VelISpecObject_var& iShader) {
    EXPECT_EQ(Access(iParameter)->SetReference(node_, iShader.Get()), S_OK);
  }

  static bool Offers(const VelISpecObject_var& iFeature) {
    return static_cast<bool>(VelIRmaVisuResourceImage_var(iFeature));
  }

  /// @return true when the feature gives that document as its image
  static bool Gives(const VelISpecObject_var& iFeature, const VelBaseUnknown_var& iDocument) {
    const VelIRmaVisuResourceImage_var hImage(iFeature);
    VelBaseUnknown_var hResource;
    return hImage && hImage->GetResourceImage(hResource.Receive()) == S_OK && hResource->IsEqual(iDocument.Get());
  }
};

TEST_F(VelParameterResourceImageTest, ParameterWithoutADocument_Declines) {
  for (const char* startUp : startUps) EXPECT_FALSE(Offers(Make(startUp))) << startUp;
  EXPECT_FALSE(Offers(Make("VelRmaShader")));
}

TEST_F(VelParameterResourceImageTest, Texture_GivesItsDocument) {
  const VelISpecObject_var hTexture = Make("VelRmaTexture");
  const VelBaseUnknown_var hDocument = SetDocument(hTexture);
  EXPECT_TRUE(Gives(hTexture, hDocument));
}

TEST_F(VelParameterResourceImageTest, LightProfile_IsNoImage) {
  const VelISpecObject_var hLight = Make("VelRmaLightProfile");
  SetDocument(hLight);
  EXPECT_FALSE(Offers(hLight));
  const VelISpecObject_var hShader = Make("VelRmaShader");
  SetDocument(AddParameter(hShader, "tex", "VelRmaLightProfile"));
  const VelISpecObject_var hParameter = Make("VelRmaScalar");
  Connect(hParameter, hShader);
  EXPECT_FALSE(Offers(hParameter));
}

TEST_F(VelParameterResourceImageTest, ConnectedParameter_GivesTheTextureOfItsShader) {
  const VelISpecObject_var hShader = Make("VelRmaShader");
  SetDocument(AddParameter(hShader, "Tex"));
  AddParameter(hShader, "other", "VelRmaScalar");
  const VelBaseUnknown_var hDocument = SetDocument(AddParameter(hShader, "tex"));
  SetDocument(AddParameter(hShader, "tex"));
  for (const char* startUp : startUps) {
    const VelISpecObject_var hParameter = Make(startUp);
    Connect(hParameter, hShader);
    EXPECT_TRUE(Gives(hParameter, hDocument)) << startUp;
  }
}

TEST_F(VelParameterResourceImageTest, ShaderWhoseTextureHasNone_DrivesNothing) {
  const VelISpecObject_var hShader = Make("VelRmaShader");
  const VelISpecObject_var hParameter = Make("VelRmaScalar");
  Connect(hParameter, hShader);
  EXPECT_FALSE(Offers(hParameter)) << "no parameters";
  SetDocument(AddParameter(hShader, "Tex"));
  EXPECT_FALSE(Offers(hParameter)) << "another name";
  EXPECT_EQ(Access(hShader)->AppendComponent(parameters_, Make("VelRmaTexture").Get()), S_OK);
  EXPECT_FALSE(Offers(hParameter)) << "no name";
  AddParameter(hShader, "tex");
  SetDocument(AddParameter(hShader, "tex"));
  EXPECT_FALSE(Offers(hParameter)) << "the first one counts";
}

TEST_F(VelParameterResourceImageTest, TextureOfAShader_MustBeOne) {
  for (const char* startUp : startUps) {
    if (std::string_view(startUp) == "VelRmaTexture") continue;
    const VelISpecObject_var hShader = Make("VelRmaShader");
    AddParameter(hShader, "tex", startUp);
    const VelISpecObject_var hParameter = Make("VelRmaScalar");
    Connect(hParameter, hShader);
    EXPECT_FALSE(Offers(hParameter)) << startUp;
  }
}

TEST_F(VelParameterResourceImageTest, OwnDocument_ComesBeforeTheConnection) {
  const VelISpecObject_var hShader = Make("VelRmaShader");
  const VelBaseUnknown_var hConnected = SetDocument(AddParameter(hShader, "tex"));
  const VelISpecObject_var hTexture = Make("VelRmaTexture");
  Connect(hTexture, hShader);
  EXPECT_TRUE(Gives(hTexture, hConnected)) << "it has none of its own";
  EXPECT_TRUE(Gives(hTexture, SetDocument(hTexture)));
}

TEST_F(VelParameterResourceImageTest, ConnectionOfTheTextureItself_IsNotFollowed) {
  const VelISpecObject_var hInner = Make("VelRmaShader");
  SetDocument(AddParameter(hInner, "tex"));
  const VelISpecObject_var hShader = Make("VelRmaShader");
  Connect(AddParameter(hShader, "tex"), hInner);
  const VelISpecObject_var hParameter = Make("VelRmaScalar");
  Connect(hParameter, hShader);
  EXPECT_FALSE(Offers(hParameter));
}

TEST_F(VelParameterResourceImageTest, Answer_IsDecidedAnewByEachQuery) {
  const VelISpecObject_var hShader = Make("VelRmaShader");
  const VelISpecObject_var hTexture = AddParameter(hShader, "tex");
  const VelISpecObject_var hParameter = Make("VelRmaScalar");
  EXPECT_FALSE(Offers(hParameter));
  Connect(hParameter, hShader);
  EXPECT_FALSE(Offers(hParameter));
  SetDocument(hTexture);
  EXPECT_TRUE(Offers(hParameter));
  EXPECT_EQ(Access(hParameter)->ResetReference(node_), S_OK);
  EXPECT_FALSE(Offers(hParameter));
}

TEST_F(VelParameterResourceImageTest, LostImage_IsAFailureWithNull) {
  const VelISpecObject_var hShader = Make("VelRmaShader");
  SetDocument(AddParameter(hShader, "tex"));
  const VelISpecObject_var hParameter = Make("VelRmaScalar");
  Connect(hParameter, hShader);
  const VelIRmaVisuResourceImage_var hImage(hParameter);
  ASSERT_TRUE(hImage);
  EXPECT_EQ(hImage->GetResourceImage(nullptr), E_INVALIDARG);
  EXPECT_EQ(Access(hParameter)->ResetReference(node_), S_OK);
  VelBaseUnknown* resource = hParameter.Get();
  EXPECT_EQ(hImage->GetResourceImage(&resource), E_FAIL);
  EXPECT_EQ(resource, nullptr);
}

TEST_F(VelParameterResourceImageTest, ClosedParameter_AnswersNothing) {
  const VelISpecObject_var hTexture = Make("VelRmaTexture");
  SetDocument(hTexture);
  const VelIRmaVisuResourceImage_var hImage(hTexture);
  ASSERT_TRUE(hImage);
  EXPECT_EQ(LifeCycleObject_var(hTexture)->remove(), S_OK);
  VelBaseUnknown* resource = hImage.Get();
  EXPECT_EQ(hImage->GetResourceImage(&resource), E_FAIL);
  EXPECT_EQ(resource, nullptr);
  EXPECT_FALSE(Offers(hTexture));
}

}  // namespace
