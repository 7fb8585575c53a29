// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaShippedTypes_test.cpp The types that come with the system: what they have, and what they do together.
#include <algorithm>
#include <filesystem>

#include <stdlib.h>

#include "RenderingShader/VelRshModel.m/include/VelRshParameterServices.h"
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterCollection.h"
#include "RenderingShader/VelRshModel.m/include/VelRshTranslatorParameter.h"
#include "RenderingShader/interfaces/VelIRshParameterImmLayout.h"
#include "host/refresh/VelIRmaRefresh.h"
#include "platform/documents/VelRbaDocumentServices.h"
#include "platform/featuremodeler/VelOsmSUHandler.h"
#include "platform/images/VelPixelImage.h"
#include "platform/materials/VelIRenderingMaterial.h"
#include "platform/materials/VelIRmaAppearanceCache.h"
#include "platform/materials/VelRbaFloatShaderModifyNotification.h"
#include "platform/objectmodeler/VelObject.h"
#include "platform/viewer/VelIRmaVisuTextureCoordinateTransformation.h"
#include "tests/host/shadertypes/ShaderTypesTest.h"

namespace {

using Tag = VelIRshParameterPrivate::Tag;

constexpr const char* materials[] = {"BasicMaterial", "CarPaintG2",   "CustomShader",
                                     "MPM_surface",   "mia_material", "mia_phen_material"};
constexpr const char* textures[] = {"vel_phen_bump", "vel_phen_scalar", "vel_phen_texture"};
constexpr std::uint32_t diffuseSlot = 5;
constexpr std::uint32_t normalSlot = 1;

constexpr const char* square =
    "<svg xmlns='http://www.w3.org/2000/svg' width='2' height='2'><g id='all'><rect width='2' height='2' "
    "fill='#ff0000'/></g></svg>";

class VelRmaShippedTypesTest : public ShaderTypesTest {
 protected:
  void SetUp() override {
    ShaderTypesTest::SetUp();
    ::setenv("XDG_CACHE_HOME", folder_.Path("cache").c_str(), 1);
    ASSERT_EQ(Start(), S_OK);
  }
  void TearDown() override {
    ShaderTypesTest::TearDown();
    ::unsetenv("XDG_CACHE_HOME");
  }

  static std::vector<const char*> AllTypes() {
    std::vector<const char*> all(std::begin(materials), std::end(materials));
    all.insert(all.end(), std::begin(textures), std::end(textures));
    return all;
  }

  static std::vector<VelIRshParameter_var> All(const VelIRshShader_var& iShader) {
    return VelRshReaderParameterCollection()(*iShader);
  }

  static std::string StartUpOf(const VelIRshParameter_var& iParameter) {
    VelString type;
    EXPECT_EQ(iParameter->GetType(type), S_OK);
    return type.CString();
  }

  VelIRenderingMaterial_var MakeMaterial(const VelIRshShader_var& iShader) {
    VelBaseUnknown_var hMade;
    const VelOsmSUHandler handler("VelRmaRenderingMaterial", "", "VelRmaMaterialCatalog.feat");
    EXPECT_EQ(handler.Instanciate(*hContainer_, "", VelIRenderingMaterial::InterfaceId(), hMade.Receive()), S_OK);
    VelIRenderingMaterial_var hMaterial(hMade);
    EXPECT_EQ(hMaterial->SetShader(iShader.Get()), S_OK);
    return hMaterial;
  }

  /// @return a new shader of a texture's type with a drawing, in the nodes of another shader
  VelIRshShader_var AddTexture(const VelIRshShader_var& iShader, const char* iType) {
    VelIRshShader_var hTexture = Create(iType);
    EXPECT_EQ(iShader->AddNode(hTexture.Get()), S_OK);
    const VelIPLMDmtDocument_var hDocument =
        VelRbaDocumentServices::CreateFromFile(VelUnicodeString(folder_.Write("square.svg", square)));
    EXPECT_EQ(Find(hTexture, "tex")->SetValue(static_cast<VelBaseUnknown*>(hDocument.Get())), S_OK);
    return hTexture;
  }

  /// @return the width of the picture in a channel, 0 for none
  static int WidthIn(const VelIRenderingMaterial_var& iMaterial, std::uint32_t iSlot) {
    VelPixelImage* image = nullptr;
    if (FAILED(VelIRmaAppearanceCache_var(iMaterial)->GetImage(iSlot, &image)) || image == nullptr) return 0;
    const auto hImage = VelBaseUnknown_var::Adopt(image);
    return image->GetWidth();
  }

  static void ExpectEveryValueIsThere(const VelIRshShader_var& iShader) {
    for (const VelIRshParameter_var& hParameter : All(iShader)) {
      if (StartUpOf(hParameter) == "VelRmaTexture") continue;
      EXPECT_TRUE(HasOwnValue(hParameter)) << LabelOf(hParameter.Get());
    }
  }
};

TEST_F(VelRmaShippedTypesTest, TheBuildHasEveryTypeThatTheSourcesHave) {
  const std::filesystem::path built = VEL_TEST_LIBRARY_FOLDER "/../share/velrsh/shaders";
  std::size_t count = 0;
  for (const auto& entry : std::filesystem::directory_iterator(VEL_TEST_SHADER_TYPES)) {
    const std::string stem = entry.path().stem().string();
    const auto isType = [&](const char* iType) { return stem == iType; };
    const std::vector<const char*> all = AllTypes();
    EXPECT_TRUE(std::any_of(all.begin(), all.end(), isType)) << stem;
    EXPECT_TRUE(std::filesystem::exists(built / entry.path().filename())) << stem;
    ++count;
  }
  EXPECT_EQ(count, AllTypes().size());
}

TEST_F(VelRmaShippedTypesTest, EachType_MakesShadersThatHaveAllTheirValuesAndCanBeCopied) {
  for (const char* type : AllTypes()) {
    SCOPED_TRACE(type);
    const VelIRshShader_var hShader = Create(type);
    ASSERT_TRUE(hShader);
    EXPECT_GT(All(hShader).size(), 10U);
    ExpectEveryValueIsThere(hShader);
    VelIRshShader_var hCopy;
    EXPECT_EQ(Manager().CreateShaderCopy(hContainer_, hShader.Get(), hCopy.Receive()), S_OK);
    EXPECT_EQ(ParametersOf(hCopy), ParametersOf(hShader));
    EXPECT_EQ(Manager().UpgradeShader(hShader.Get()), S_OK);
    EXPECT_EQ(hShader->SetVersion(77), S_OK);
    EXPECT_EQ(Manager().UpgradeShader(hShader.Get()), S_OK);
    EXPECT_EQ(ParametersOf(hShader), ParametersOf(hCopy));
    ExpectEveryValueIsThere(hShader);
  }
  EXPECT_EQ(TakeErrors(), Texts{});
}

TEST_F(VelRmaShippedTypesTest, EachParameter_HasALabelInBothLanguagesAndALayout) {
  for (const char* language : {"en", "de"}) {
    VelMsgCatalog::SetLanguage(language);
    for (const char* type : AllTypes()) {
      const VelIRshShader_var hShader = Create(type);
      EXPECT_NE(DisplayName(type), type);
      for (const VelIRshParameter_var& hParameter : All(hShader)) {
        VelString name;
        EXPECT_EQ(hParameter->GetName(name), S_OK);
        EXPECT_NE(LabelOf(hParameter.Get()), name.CString()) << type << " " << name.CString();
        VelString shown;
        EXPECT_EQ(VelIRshParameterImmLayout_var(hParameter)->GetShown(shown), S_OK) << name.CString();
        EXPECT_EQ(shown, "Yes");
      }
    }
  }
  EXPECT_EQ(DisplayName("CarPaintG2"), "Autolack");
}

TEST_F(VelRmaShippedTypesTest, EachType_HasTheParametersThatMappingsFollow) {
  struct Case {
    const char* name;
    Tag tag;
  };
  constexpr Case cases[] = {{"scale_u", Tag::ScaleU},
                            {"scale_v", Tag::ScaleV},
                            {"offset_u", Tag::OffsetU},
                            {"offset_v", Tag::OffsetV},
                            {"angle", Tag::Angle},
                            {"flip_u", Tag::FlipU},
                            {"flip_v", Tag::FlipV},
                            {"repeat_u", Tag::RepeatU},
                            {"repeat_v", Tag::RepeatV},
                            {"mapping_behavior", Tag::MappingBehavior},
                            {"projector_function", Tag::ProjectorFunction}};
  for (const char* type : AllTypes()) {
    SCOPED_TRACE(type);
    const VelIRshShader_var hShader = Create(type);
    for (const Case& test : cases) {
      const VelIRshParameterPrivate_var hParameter(Find(hShader, test.name));
      EXPECT_EQ(hParameter->HasTag(test.tag), S_OK) << test.name;
      EXPECT_EQ(hParameter->HasTag(Tag::Mapping), S_OK) << test.name;
    }
    EXPECT_EQ(VelIRshParameterPrivate_var(Find(hShader, "dpi"))->HasTag(Tag::Dpi), S_OK);
    EXPECT_EQ(VelIRshParameterPrivate_var(Find(hShader, "group_names"))->HasTag(Tag::Svggroup), S_OK);
    const VelIRmaVisuTextureCoordinateTransformation_var hMapping(hShader);
    Vel3x3Matrix transformation;
    EXPECT_EQ(hMapping->GetTransformation(transformation), S_OK);
    for (const std::string& error : TakeErrors()) {
      EXPECT_EQ(error.find("VelRshReaderMappingScale: "), 0U) << error << ": a shader without a material alone";
    }
  }
}

TEST_F(VelRmaShippedTypesTest, EachMaterial_HasAColorThatATextureCanFeed) {
  for (const char* type : materials) {
    SCOPED_TRACE(type);
    const VelIRshShader_var hShader = Create(type);
    const auto parameters = All(hShader);
    const auto diffuse = std::find_if(parameters.begin(), parameters.end(), [](const VelIRshParameter_var& iParameter) {
      return VelRshParameterServices::ComputeParameterSlot(*iParameter) == diffuseSlot;
    });
    ASSERT_NE(diffuse, parameters.end());
    const VelIRenderingMaterial_var hMaterial = MakeMaterial(hShader);
    const VelIRmaRefresh_var hRefresh(VelObject::Create("VelRmaRefresh", nullptr));
    ASSERT_EQ(hRefresh->Attach(hMaterial.Get()), S_OK);
    const VelIRshShader_var hTexture = AddTexture(hShader, "vel_phen_texture");
    EXPECT_EQ((*diffuse)->SetConnection(hTexture.Get()), S_OK);
    EXPECT_EQ(hRefresh->Flush(), S_OK);
    EXPECT_EQ(WidthIn(hMaterial, diffuseSlot), 2);
    EXPECT_TRUE(VelRshParameterServices::IsTexturePresent(hShader.Get()));
    EXPECT_TRUE(VelRshParameterServices::IsSVGMapPresent(hShader.Get()));
    const std::int32_t dpi = 192;
    EXPECT_EQ(Find(hShader, "dpi")->SetValue(&dpi), S_OK);
    EXPECT_EQ(hRefresh->Flush(), S_OK);
    EXPECT_EQ(WidthIn(hMaterial, diffuseSlot), 4);
  }
  EXPECT_EQ(TakeErrors(), Texts{});
}

TEST_F(VelRmaShippedTypesTest, CustomShader_FillsEveryChannelThatATextureIsConnectedTo) {
  const VelIRshShader_var hShader = Create("CustomShader");
  const VelIRenderingMaterial_var hMaterial = MakeMaterial(hShader);
  const VelIRmaRefresh_var hRefresh(VelObject::Create("VelRmaRefresh", nullptr));
  ASSERT_EQ(hRefresh->Attach(hMaterial.Get()), S_OK);
  std::vector<std::uint32_t> slots;
  for (const VelIRshParameter_var& hParameter : All(hShader)) {
    const std::uint32_t slot = VelRshParameterServices::ComputeParameterSlot(*hParameter);
    if (slot == 0) continue;
    slots.push_back(slot);
    const VelIRshShader_var hTexture = AddTexture(hShader, "vel_phen_texture");
    EXPECT_EQ(hParameter->SetConnection(hTexture.Get()), S_OK);
    EXPECT_EQ(hRefresh->Flush(), S_OK);
    EXPECT_EQ(WidthIn(hMaterial, slot), 2) << slot;
  }
  std::sort(slots.begin(), slots.end());
  EXPECT_EQ(slots, (std::vector<std::uint32_t>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}));
  EXPECT_EQ(TakeErrors(), Texts{});
}

TEST_F(VelRmaShippedTypesTest, AMappingValue_ReachesTheConnectedTexture) {
  const VelIRshShader_var hShader = Create("CustomShader");
  const VelIRenderingMaterial_var hMaterial = MakeMaterial(hShader);
  const VelIRshShader_var hTexture = AddTexture(hShader, "vel_phen_texture");
  EXPECT_EQ(Find(hShader, "default_slot_diffuse_color")->SetConnection(hTexture.Get()), S_OK);
  const float scale = 3.0F;
  EXPECT_EQ(Find(hShader, "scale_u")->SetValue(&scale), S_OK);
  EXPECT_EQ(ScalarOf(hTexture, "scale_u"), 3.0F);
  EXPECT_EQ(ScalarOf(hTexture, "scale_v"), 1.0F);
}

TEST_F(VelRmaShippedTypesTest, ABumpLevel_ReachesTheConnectedBump) {
  const VelIRshShader_var hShader = Create("MPM_surface");
  const VelIRenderingMaterial_var hMaterial = MakeMaterial(hShader);
  const VelIRshShader_var hBump = AddTexture(hShader, "vel_phen_bump");
  const VelIRshParameter_var hNormal = Find(hShader, "default_slot_normal");
  EXPECT_EQ(hNormal->SetConnection(hBump.Get()), S_OK);
  EXPECT_EQ(VelIRshParameterPrivate_var(hNormal)->UpdateConnection(), S_OK);
  EXPECT_EQ(WidthIn(hMaterial, normalSlot), 2);
  const VelRshTranslatorParameter translate;
  EXPECT_TRUE(translate(VelRbaFloatShaderModifyNotification("default_sp_bump", Find(hShader, "default_sp_bump").Get(),
                                                            VelIRshParameter::InterfaceId(), 0.0, 0.5)));
  EXPECT_EQ(ScalarOf(hBump, "bump"), 0.5F);
}

TEST_F(VelRmaShippedTypesTest, ACopyOfMiaMaterial_IsAMiaPhenMaterialThatIsReadAlike) {
  const VelIRshShader_var hShader = Create("mia_material");
  VelIRshShader_var hCopy;
  ASSERT_EQ(Manager().CreateShaderCopy(hContainer_, hShader.Get(), hCopy.Receive()), S_OK);
  VelString type;
  EXPECT_EQ(hCopy->GetType(type), S_OK);
  EXPECT_EQ(type, "mia_phen_material");
  const VelIRshShader_var hOwn = Create("mia_phen_material");
  const Texts own = ParametersOf(hOwn);
  for (const VelIRshParameter_var& hParameter : All(hShader)) {
    VelString name;
    EXPECT_EQ(hParameter->GetName(name), S_OK);
    SCOPED_TRACE(name.CString());
    EXPECT_EQ(StartUpOf(Find(hOwn, name.CString())), StartUpOf(hParameter));
    for (const char* word : {".Tag", ".SlotIdentifier", ".Label", ".Layout", ".DefaultValue"}) {
      EXPECT_EQ(Value("mia_phen_material", (name + word).CString()), Value("mia_material", (name + word).CString()));
    }
  }
}

}  // namespace
