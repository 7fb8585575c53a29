// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterTexture_DefaultSlot_test.cpp What a texture reads of the appearance's entry of the slot into
/// which it is plugged.
#include <optional>

#include "RenderingShader/VelRshModel.m/src/parameters/VelRshParameterTexture.h"
#include "platform/images/VelPixelImage.h"
#include "tests/RenderingShader/RshModelTest.h"
#include "tests/RenderingShader/fixtures/FakeRenderingMaterial.h"

namespace {

/// A texture "tex" in a shader below a material's shader below an appearance whose cache answers.
class VelRshParameterTextureDefaultSlotTest : public RshModelTest {
 protected:
  void SetUp() override {
    RshModelTest::SetUp();
    bindings_.emplace();
    hAppearance_ = FakeRenderingMaterial::Create(*hContainer_);
    hMaterial_ = MakeShader();
    Cache().isOffered = true;
    EXPECT_EQ(FakeRenderingMaterial::Of(*hAppearance_).SetShader(hMaterial_.Get()), S_OK);
    hShader_ = AddNode(hMaterial_);
    hTexture_ = Add(hShader_, "tex", "VelRmaTexture");
    VelPixelImage* image =
        VelPixelImage::Create(1, 1, VelPixelImage::Format::Rgba8, VelPixelImage::ColorSpace::Linear, pixels);
    for (std::uint32_t slot = 0; slot <= 12; ++slot) {
      Cache().entries[slot] = {VelUnicodeString(std::to_string(slot)), VelBaseUnknown_var(image)};
    }
    image->Release();
  }
  void TearDown() override {
    hTexture_ = nullptr;
    hShader_ = nullptr;
    hMaterial_ = nullptr;
    hAppearance_ = nullptr;
    hContainer_ = nullptr;
    bindings_.reset();
    RshModelTest::TearDown();
  }

  FakeAppearanceCache& Cache() { return FakeRenderingMaterial::Of(*hAppearance_).cache; }

  // The component exports the two reads, but not what a sanitizer would know the class by.
  __attribute__((no_sanitize("vptr"))) HRESULT ReadPath(VelUnicodeString& oPath) {
    return static_cast<VelRshParameterTexture*>(hTexture_->GetImpl())->GetCachedPath(oPath);
  }
  __attribute__((no_sanitize("vptr"))) HRESULT ReadImage(VelPixelImage** oImage) {
    return static_cast<VelRshParameterTexture*>(hTexture_->GetImpl())->GetCachedImage(oImage);
  }

  /// Adds a parameter to the material's shader.
  VelIRshParameter_var AddSlot(const char* iName) { return Add(hMaterial_, iName, "VelRmaColor"); }
  void Plug(const char* iName) { EXPECT_EQ(AddSlot(iName)->SetConnection(hShader_.Get()), S_OK); }

  /// Reads both, which have to agree.
  /// @param[in] iSlot the slot whose data are there; 0 for none
  void ExpectSlot(std::uint32_t iSlot) {
    VelUnicodeString path("before");
    static_cast<void>(Cache().Take());
    EXPECT_EQ(ReadPath(path), iSlot != 0 ? S_OK : E_FAIL);
    EXPECT_EQ(path, VelUnicodeString(iSlot != 0 ? std::to_string(iSlot) : std::string()));
    VelPixelImage* image = Before();
    EXPECT_EQ(ReadImage(&image), iSlot != 0 ? S_OK : E_FAIL);
    EXPECT_EQ(image != nullptr, iSlot != 0);
    const std::string slot = std::to_string(iSlot);
    EXPECT_EQ(Cache().Take(), iSlot != 0 ? (Texts{"GetPath(" + slot + ")", "GetImage(" + slot + ")"}) : Texts{});
    if (image != nullptr) image->Release();
  }

  /// A pointer that is not null and never followed.
  VelPixelImage* Before() { return VelPixelImage::From(Cache().entries[1].image.Get()); }

  static constexpr std::byte pixels[4] = {};
  std::optional<FakeRenderingMaterialBindings> bindings_;
  VelISpecObject_var hAppearance_;
  VelIRshShader_var hMaterial_;
  VelIRshShader_var hShader_;
  VelIRshParameter_var hTexture_;
};

TEST_F(VelRshParameterTextureDefaultSlotTest, EachDefaultSlot_HasItsNumber) {
  const struct {
    const char* parameter;
    std::uint32_t slot;
  } cases[] = {{"default_slot_normal", 1},
               {"default_slot_height", 2},
               {"default_slot_opacity", 3},
               {"default_slot_ambient_occlusion", 4},
               {"default_slot_diffuse_color", 5},
               {"default_slot_specular_color", 6},
               {"default_slot_specular_glossiness", 7},
               {"default_slot_specular_anisotropy_direction", 8},
               {"default_slot_transparency", 9},
               {"default_slot_clarity", 10},
               {"default_slot_emissive_color", 11}};
  for (const auto& test : cases) {
    SCOPED_TRACE(test.parameter);
    const VelIRshParameter_var hSlot = AddSlot(test.parameter);
    EXPECT_EQ(hSlot->SetConnection(hShader_.Get()), S_OK);
    ExpectSlot(test.slot);
    EXPECT_EQ(hSlot->SetConnection(nullptr), S_OK);
    ExpectSlot(0);
    EXPECT_TRUE(SUCCEEDED(hMaterial_->AddNode(hShader_.Get())));
  }
}

TEST_F(VelRshParameterTextureDefaultSlotTest, OtherNames_AreNoSlot) {
  for (const char* name : {"diffuse", "default_slot_", "default_slot_Normal", "default_slot_normal ", ""}) {
    SCOPED_TRACE(name);
    Plug(name);
    ExpectSlot(0);
  }
}

TEST_F(VelRshParameterTextureDefaultSlotTest, NoConnectionAndOneOfAnotherShader_AreNoSlot) {
  ExpectSlot(0);  // no parameters
  static_cast<void>(AddSlot("default_slot_normal"));
  ExpectSlot(0);
  EXPECT_EQ(AddSlot("default_slot_height")->SetConnection(AddNode(hMaterial_).Get()), S_OK);
  ExpectSlot(0);
  Plug("default_slot_clarity");
  ExpectSlot(10);
}

TEST_F(VelRshParameterTextureDefaultSlotTest, UnknownNameBeforeAKnownOne_IsPassedOver) {
  Plug("diffuse");
  const VelIRshParameter_var hNameless(Make("VelRmaColor"));
  EXPECT_EQ(hMaterial_->AppendParameter(hNameless.Get()), S_OK);
  EXPECT_EQ(hNameless->SetConnection(hShader_.Get()), E_FAIL) << "connected, but the host cannot be told of whom";
  EXPECT_TRUE(ConnectionOf(hNameless));
  ExpectSlot(0);
  Plug("default_slot_transparency");
  ExpectSlot(9);
}

TEST_F(VelRshParameterTextureDefaultSlotTest, FirstKnownNameInTheListsOrder_Decides) {
  const VelIRshParameter_var hFirst = AddSlot("default_slot_emissive_color");
  Plug("default_slot_normal");
  ExpectSlot(1);
  EXPECT_EQ(hFirst->SetConnection(hShader_.Get()), S_OK);
  ExpectSlot(11);
}

TEST_F(VelRshParameterTextureDefaultSlotTest, MissingFathers_AreFailures) {
  Plug("default_slot_height");
  ExpectSlot(2);
  const VelISpecObject_var hMaterial(hMaterial_);
  EXPECT_EQ(FakeRenderingMaterial::Of(*hAppearance_).SetShader(nullptr), S_OK);
  ExpectSlot(0);
  EXPECT_EQ(FakeRenderingMaterial::Of(*hAppearance_).SetShader(hMaterial_.Get()), S_OK);
  ExpectSlot(2);
  EXPECT_EQ(Access(hMaterial)->RemoveComponent(nodes_, VelISpecObject_var(hShader_).Get()), S_OK);
  ExpectSlot(0);
  EXPECT_EQ(Access(hMaterial)->AppendComponent(nodes_, VelISpecObject_var(hShader_).Get()), S_OK);
  ExpectSlot(2);
  const VelISpecObject_var hShader(hShader_);
  EXPECT_EQ(Access(hShader)->RemoveComponent(parameters_, VelISpecObject_var(hTexture_).Get()), S_OK);
  ExpectSlot(0);
}

TEST_F(VelRshParameterTextureDefaultSlotTest, AppearanceWithoutCache_IsAFailure) {
  Plug("default_slot_height");
  Cache().isOffered = false;
  ExpectSlot(0);
}

/// Whoever stands in the place of the material's shader is a shader, too, or there is no slot.
TEST_F(VelRshParameterTextureDefaultSlotTest, FathersThatAreNoShaders_AreFailures) {
  const VelISpecObject_var hTexture = Make("VelRmaTexture");
  EXPECT_EQ(Access(hAppearance_)->AppendComponent(Key("Shader", VelSpecAttrKind::Components), hTexture.Get()), S_OK);
  hTexture_ = VelIRshParameter_var(hTexture);
  ExpectSlot(0);
}

TEST_F(VelRshParameterTextureDefaultSlotTest, CodeOfTheCache_IsTheAnswer) {
  Plug("default_slot_height");
  Cache().getPathCode = E_INVALIDARG;
  Cache().getImageCode = E_UNEXPECTED;
  VelUnicodeString path("before");
  EXPECT_EQ(ReadPath(path), E_INVALIDARG);
  EXPECT_TRUE(path.IsEmpty());
  VelPixelImage* image = Before();
  EXPECT_EQ(ReadImage(&image), E_UNEXPECTED);
  EXPECT_EQ(image, nullptr);
  Cache().getPathCode = S_FALSE;
  EXPECT_EQ(ReadPath(path), S_OK);
  Cache().getPathCode = Cache().getImageCode = S_OK;
  Cache().entries.erase(2);
  path = "before";
  EXPECT_EQ(ReadPath(path), E_FAIL);
  EXPECT_TRUE(path.IsEmpty());
  EXPECT_EQ(ReadImage(&image), E_FAIL);
  EXPECT_EQ(image, nullptr);
}

TEST_F(VelRshParameterTextureDefaultSlotTest, EntryWithoutImage_IsASuccess) {
  Plug("default_slot_height");
  Cache().entries[2] = {"path", nullptr};
  VelPixelImage* image = Before();
  EXPECT_EQ(ReadImage(&image), S_OK);
  EXPECT_EQ(image, nullptr);
  EXPECT_EQ(ReadImage(nullptr), E_FAIL);
}

}  // namespace
