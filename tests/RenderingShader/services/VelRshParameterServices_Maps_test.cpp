// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterServices_Maps_test.cpp The textures among what is connected to a shader's shown parameters.
#include "RenderingShader/VelRshModel.m/include/VelRshParameterServices.h"
#include "tests/RenderingShader/RshModelTest.h"
#include "tests/RenderingShader/fixtures/FakeDocument.h"
#include "tests/RenderingShader/fixtures/FakeImageServices.h"
#include "tests/RenderingShader/fixtures/FakeRenderingMaterial.h"
#include "tests/RenderingShader/model/fixtures/VelTestConnectedShader.h"
#include "tests/RenderingShader/parameters/fixtures/FakeParameterLayout.h"
#include "tests/RenderingShader/services/fixtures/VelTestListingShader.h"

namespace {

using Services = VelRshParameterServices;

class VelRshParameterServicesMapsTest : public RshModelTest {
 protected:
  void SetUp() override {
    RshModelTest::SetUp();
    hShader_ = MakeShader();
  }
  void TearDown() override {
    hShader_ = nullptr;
    RshModelTest::TearDown();
  }

  /// Adds a parameter that is connected to a shader.
  VelIRshShader_var Connect(const char* iType, const char* iStartUp = "VelRmaColor") {
    VelIRshShader_var hMap = MakeShader(iType);
    EXPECT_EQ(Add(hShader_, "input", iStartUp)->SetConnection(hMap.Get()), S_OK);
    return hMap;
  }

  /// Gives a map a texture whose document is projected to a path.
  void SetTexture(const VelIRshShader_var& iMap, const char* iPath, const char* iName = "tex",
                  const char* iStartUp = "VelRmaTexture") {
    const VelIPLMDmtDocument_var hDocument = FakeDocument::Create();
    images_.SetProjectionPathOf(*hDocument, iPath);
    EXPECT_EQ(Add(iMap, iName, iStartUp)->SetValue(hDocument.Get()), S_OK);
  }

  static void Show(const char* iKind, const char* iShown) {
    FakeParameterLayouts::Current().kind = {iKind, S_OK};
    FakeParameterLayouts::Current().shown = {iShown, S_OK};
  }

  bool HasTexture() { return Services::IsTexturePresent(hShader_.Get()); }
  bool HasSvg() { return Services::IsSVGMapPresent(hShader_.Get()); }

  VelIRshShader_var hShader_;
  const FakeDocumentBindings documents_;
  FakeImageServices images_;
};

TEST_F(VelRshParameterServicesMapsTest, NullAndShadersThatDoNotList_HaveNone) {
  EXPECT_FALSE(Services::IsTexturePresent(nullptr));
  EXPECT_FALSE(Services::IsSVGMapPresent(nullptr));
  FakeParameterLayouts layouts;
  Show("texture", "Yes");
  EXPECT_FALSE(HasTexture()) << "no parameters";
  const FakeRenderingMaterialBindings materials;
  const VelTestConnectedShaderBindings shaders;
  const VelIRshShader_var hForeign(FakeRenderingMaterial::Create(*hContainer_));
  EXPECT_FALSE(Services::IsTexturePresent(hForeign.Get()));
  EXPECT_FALSE(Services::IsSVGMapPresent(hForeign.Get()));
  VelTestListingShaders boxes;
  boxes.givesList = false;
  const VelIRshShader_var hBox(VelTestListingShaders::CreateBox(*hContainer_));
  EXPECT_FALSE(Services::IsTexturePresent(hBox.Get()));
  EXPECT_FALSE(Services::IsSVGMapPresent(hBox.Get()));
}

TEST_F(VelRshParameterServicesMapsTest, Parameter_CountsWhereItsLayoutShowsIt) {
  SetTexture(Connect("vel_phen_texture"), "/a.svg");
  EXPECT_FALSE(HasTexture()) << "no layout";
  EXPECT_FALSE(HasSvg()) << "no layout";
  FakeParameterLayouts layouts;
  const struct {
    const char* kind;
    const char* shown;
    bool counts;
  } cases[] = {{"texture", "Yes", true},   {"", "Yes", true},         {"none ", "Yes", true},
               {"nonesuch", "Yes", true},  {"none", "Yes", false},    {"None", "Yes", false},
               {"NONE", "Yes", false},     {"nOnE", "Yes", false},    {"texture", "No", false},
               {"texture", "yes", false},  {"texture", "YES", false}, {"texture", "", false},
               {"texture", "Yes ", false}, {"texture", "1", false},   {"None", "No", false}};
  for (const auto& test : cases) {
    Show(test.kind, test.shown);
    EXPECT_EQ(HasTexture(), test.counts) << test.kind << ", " << test.shown;
    EXPECT_EQ(HasSvg(), test.counts) << test.kind << ", " << test.shown;
  }
}

TEST_F(VelRshParameterServicesMapsTest, LayoutThatCannotBeRead_IsNoKindAndNotShown) {
  SetTexture(Connect("vel_phen_texture"), "/a.svg");
  FakeParameterLayouts layouts;
  Show("none", "Yes");
  layouts.kind.code = E_FAIL;
  EXPECT_TRUE(HasTexture());
  Show("texture", "Yes");
  layouts.shown.code = E_FAIL;
  EXPECT_FALSE(HasTexture());
}

TEST_F(VelRshParameterServicesMapsTest, ConnectedShader_CountsByItsType) {
  FakeParameterLayouts layouts;
  Show("texture", "Yes");
  const struct {
    const char* type;
    bool counts;
  } cases[] = {{"vel_phen_scalar", true},   {"vel_phen_texture", true},   {"vel_phen_color", false},
               {"Vel_Phen_Texture", false}, {"vel_phen_texture ", false}, {"vel_phen", false},
               {"BasicMaterial", false}};
  for (const auto& test : cases) {
    hShader_ = MakeShader();
    Add(hShader_, "unconnected", "VelRmaColor");
    EXPECT_FALSE(HasTexture());
    SetTexture(Connect(test.type), "/a.svg");
    EXPECT_EQ(HasTexture(), test.counts) << test.type;
    EXPECT_EQ(HasSvg(), test.counts) << test.type;
  }
}

TEST_F(VelRshParameterServicesMapsTest, ConnectedShaderWhoseTypeCannotBeRead_DoesNotCount) {
  FakeParameterLayouts layouts;
  Show("texture", "Yes");
  VelTestListingShaders boxes;
  boxes.type = {"vel_phen_texture", S_OK};
  const VelIRshShader_var hBox(VelTestListingShaders::CreateBox(*hContainer_));
  EXPECT_EQ(Add(hShader_, "input", "VelRmaColor")->SetConnection(hBox.Get()), S_OK);
  EXPECT_TRUE(HasTexture());
  EXPECT_FALSE(HasSvg()) << "it has no parameter";
  boxes.type.code = E_FAIL;
  EXPECT_FALSE(HasTexture());
}

TEST_F(VelRshParameterServicesMapsTest, Texture_IsAnSvgMapByTheExtensionOfItsPath) {
  FakeParameterLayouts layouts;
  Show("texture", "Yes");
  const struct {
    const char* path;
    bool counts;
  } cases[] = {{"/a.svg", true},      {"/a.SVG", true},    {"a.sVg", true},    {"C:\\b\\a.svg", true},
               {"/a.b.svg", true},    {"/a.png", false},   {"/a", false},      {"/svg", false},
               {"/.svg", false},      {"/a.svg/b", false}, {"/a.svgz", false}, {"/a.svg ", false},
               {"/a.svg.png", false}, {"", false}};
  for (const auto& test : cases) {
    hShader_ = MakeShader();
    SetTexture(Connect("vel_phen_texture"), test.path);
    EXPECT_EQ(HasSvg(), test.counts) << test.path;
    EXPECT_TRUE(HasTexture()) << test.path;
  }
}

TEST_F(VelRshParameterServicesMapsTest, Texture_IsTheFirstParameterOfItsName) {
  FakeParameterLayouts layouts;
  Show("texture", "Yes");
  const VelIRshShader_var hMap = Connect("vel_phen_texture");
  EXPECT_FALSE(HasSvg()) << "no parameter";
  SetTexture(hMap, "/a.svg", "Tex");
  SetTexture(hMap, "/a.svg", "tex2");
  EXPECT_FALSE(HasSvg()) << "other names";
  SetTexture(hMap, "/a.png");
  SetTexture(hMap, "/a.svg");
  EXPECT_FALSE(HasSvg()) << "the second one";
}

TEST_F(VelRshParameterServicesMapsTest, TextureWithoutADocumentOrAPath_IsNoSvgMap) {
  FakeParameterLayouts layouts;
  Show("texture", "Yes");
  const VelIRshShader_var hEmpty = Connect("vel_phen_texture");
  Add(hEmpty, "tex", "VelRmaTexture");
  const VelIRshShader_var hScalar = Connect("vel_phen_texture");
  Add(hScalar, "tex", "VelRmaScalar");
  EXPECT_FALSE(HasSvg());
  EXPECT_EQ(images_.projectionCalls, 0);
  SetTexture(Connect("vel_phen_texture"), "/a.svg");
  images_.projectionPath.code = E_FAIL;
  images_.projectionCalls = 0;
  EXPECT_FALSE(HasSvg()) << "the projection fails";
  EXPECT_EQ(images_.projectionCalls, 1);
  images_.projectionPath.code = S_OK;
  EXPECT_TRUE(HasSvg());
}

TEST_F(VelRshParameterServicesMapsTest, Search_GoesOnToTheFirstThatFits) {
  FakeParameterLayouts layouts;
  Show("texture", "Yes");
  Add(hShader_, "unconnected", "VelRmaColor");
  SetTexture(Connect("BasicMaterial"), "/a.svg");
  EXPECT_FALSE(HasTexture());
  SetTexture(Connect("vel_phen_texture"), "/a.png");
  EXPECT_TRUE(HasTexture());
  EXPECT_FALSE(HasSvg());
  SetTexture(Connect("vel_phen_scalar", "VelRmaVoid"), "/a.svg");
  SetTexture(Connect("vel_phen_texture"), "/b.svg");
  images_.projectionCalls = 0;
  EXPECT_TRUE(HasSvg());
  EXPECT_EQ(images_.projectionCalls, 2) << "the third one is not looked at";
  images_.projectionCalls = 0;
  EXPECT_TRUE(HasTexture());
  EXPECT_EQ(images_.projectionCalls, 0) << "no path is asked for";
}

}  // namespace
