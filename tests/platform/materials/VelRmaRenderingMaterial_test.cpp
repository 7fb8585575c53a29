// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaRenderingMaterial_test.cpp The rendering material: its shader, its figures, its textures.
#include <limits>
#include <string>
#include <vector>

#include "platform/events/VelIModelEvents.h"
#include "platform/images/VelPixelImage.h"
#include "platform/materials/VelIPlasticMaterial.h"
#include "platform/materials/VelIRenderingMaterial.h"
#include "platform/materials/VelIRmaAppearanceCache.h"
#include "platform/materials/VelIRmaDimension2D.h"
#include "platform/materials/VelIRmaEventPropagationControl.h"
#include "platform/materials/VelIRmaMaterialFigures.h"
#include "platform/materials/VelParmDictionary.h"
#include "platform/materials/VelRmaImageBudget.h"
#include "platform/objectmodeler/VelBaseUnknown_WR.h"
#include "tests/RenderingShader/fixtures/FakeImageServices.h"
#include "tests/platform/featuremodeler/FeatureModelerTest.h"

namespace {

class VelRmaRenderingMaterialTest : public FeatureModelerTest {
 protected:
  void SetUp() override {
    FeatureModelerTest::SetUp();
    hMaterial_ = MakeMaterial();
    hCache_ = VelIRmaAppearanceCache_var(hMaterial_);
    ASSERT_TRUE(hCache_);
  }
  void TearDown() override {
    VelRmaImageBudget::Set(VelRmaImageBudget::defaultBytes);
    hCache_ = nullptr;
    hMaterial_ = nullptr;
    FeatureModelerTest::TearDown();
    EXPECT_EQ(VelRmaImageBudget::HeldBytes(), 0U);
  }

  VelIRenderingMaterial_var MakeMaterial() {
    VelBaseUnknown_var hMade;
    const VelOsmSUHandler handler("VelRmaRenderingMaterial", "", "VelRmaMaterialCatalog.feat");
    EXPECT_EQ(handler.Instanciate(*hContainer_, "", VelIRenderingMaterial::InterfaceId(), hMade.Receive()), S_OK);
    return VelIRenderingMaterial_var(hMade);
  }

  /// An image of 16 x 16 pixels, which are 1,024 bytes.
  static VelBaseUnknown_var MakeImage() {
    const std::vector<std::byte> pixels(VelPixelImage::ByteCount(16, 16, VelPixelImage::Format::Rgba8));
    return VelBaseUnknown_var::Adopt(
        VelPixelImage::Create(16, 16, VelPixelImage::Format::Rgba8, VelPixelImage::ColorSpace::Srgb, pixels));
  }

  static HRESULT SetEntry(const VelIRmaAppearanceCache_var& iCache, std::uint32_t iSlot, const char* iPath,
                          const VelBaseUnknown_var& iImage) {
    return iCache->SetEntry(iSlot, iPath, VelPixelImage::From(iImage.Get()));
  }

  static VelBaseUnknown_var ImageOf(const VelIRmaAppearanceCache_var& iCache, std::uint32_t iSlot) {
    VelPixelImage* image = nullptr;
    EXPECT_EQ(iCache->GetImage(iSlot, &image), S_OK);
    return VelBaseUnknown_var::Adopt(image);
  }

  VelIRenderingMaterial_var hMaterial_;
  VelIRmaAppearanceCache_var hCache_;
};

TEST_F(VelRmaRenderingMaterialTest, NewMaterial_AnswersWhatEveryMaterialDoes_AndNotWhatNeedsFigures) {
  EXPECT_TRUE(VelIRmaEventPropagationControl_var(hMaterial_));
  EXPECT_TRUE(VelIModelEvents_var(hMaterial_));
  EXPECT_TRUE(VelIRmaMaterialFigures_var(hMaterial_));
  EXPECT_FALSE(VelIPlasticMaterial_var(hMaterial_));
  EXPECT_FALSE(VelIRmaDimension2D_var(hMaterial_));
  double factor = 7.0;
  EXPECT_EQ(hMaterial_->GetScaleFactor(factor), E_FAIL);
  EXPECT_EQ(factor, 7.0);
}

TEST_F(VelRmaRenderingMaterialTest, Version_OrPlasticScale_MakesItAPlasticMaterial) {
  EXPECT_EQ(VelIRmaMaterialFigures_var(hMaterial_)->SetVersion(417), S_OK);
  const VelIPlasticMaterial_var hPlastic(hMaterial_);
  ASSERT_TRUE(hPlastic);
  std::uint32_t version = 0;
  double scale = 7.0;
  EXPECT_EQ(hPlastic->GetVersion(version), S_OK);
  EXPECT_EQ(version, 417U);
  EXPECT_EQ(hPlastic->GetScale(scale), E_FAIL) << "it was given none";
  EXPECT_EQ(scale, 7.0);

  const VelIRenderingMaterial_var hOther = MakeMaterial();
  EXPECT_EQ(VelIRmaMaterialFigures_var(hOther)->SetPlasticScale(2.5), S_OK);
  const VelIPlasticMaterial_var hScaled(hOther);
  ASSERT_TRUE(hScaled);
  EXPECT_EQ(hScaled->GetScale(scale), S_OK);
  EXPECT_EQ(scale, 2.5);
  version = 7;
  EXPECT_EQ(hScaled->GetVersion(version), E_FAIL);
  EXPECT_EQ(version, 7U);
}

struct UnitCase {
  const char* symbol;
  float width;   ///< Of a quarter of a metre.
  float height;  ///< Of two metres.
};

const UnitCase unitCases[] = {
    {"MM", 250.0F, 2000.0F},          {"CM", 25.0F, 200.0F},    {"M", 0.25F, 2.0F},
    {"IN", 9.842519685F, 78.740157F}, {"KM", 0.00025F, 0.002F},
};

TEST_F(VelRmaRenderingMaterialTest, Size_IsKeptInMetresAndReadInAnyUnit) {
  const VelIRmaMaterialFigures_var hFigures(hMaterial_);
  EXPECT_EQ(hFigures->SetSize(*VelParmDictionary::FindUnit("CM"), 25.0, 200.0), S_OK);
  const VelIRmaDimension2D_var hSize(hMaterial_);
  ASSERT_TRUE(hSize);
  for (const UnitCase& each : unitCases) {
    float width = 0.0F;
    float height = 0.0F;
    EXPECT_EQ(hSize->GetSize(*VelParmDictionary::FindUnit(each.symbol), width, height), S_OK);
    EXPECT_FLOAT_EQ(width, each.width) << each.symbol;
    EXPECT_FLOAT_EQ(height, each.height) << each.symbol;
  }
}

TEST_F(VelRmaRenderingMaterialTest, SizeThatIsNone_IsRefused) {
  const VelIRmaMaterialFigures_var hFigures(hMaterial_);
  const VelUnit& metre = *VelParmDictionary::FindUnit("M");
  EXPECT_EQ(hFigures->SetSize(metre, 0.0, 1.0), E_INVALIDARG);
  EXPECT_EQ(hFigures->SetSize(metre, 1.0, -1.0), E_INVALIDARG);
  EXPECT_EQ(hFigures->SetSize(metre, 1.0, std::numeric_limits<double>::quiet_NaN()), E_INVALIDARG);
  EXPECT_FALSE(VelIRmaDimension2D_var(hMaterial_));
}

TEST_F(VelRmaRenderingMaterialTest, ScaleFactor_IsReadBack) {
  EXPECT_EQ(VelIRmaMaterialFigures_var(hMaterial_)->SetScaleFactor(0.5), S_OK);
  double factor = 0.0;
  EXPECT_EQ(hMaterial_->GetScaleFactor(factor), S_OK);
  EXPECT_EQ(factor, 0.5);
}

TEST_F(VelRmaRenderingMaterialTest, Shader_IsAggregated_AndGivenBack) {
  const VelISpecObject_var hShader = Make("VelRmaShader", "shader");
  const VelISpecObject_var hOther = Make("VelRmaShader", "other");
  VelBaseUnknown_var hCarried;
  EXPECT_EQ(hMaterial_->GetShader(nullptr), E_INVALIDARG);
  EXPECT_EQ(hMaterial_->GetShader(hCarried.Receive()), E_FAIL);
  EXPECT_EQ(hMaterial_->SetShader(nullptr), S_FALSE);
  EXPECT_EQ(hMaterial_->SetShader(hShader.Get()), S_OK);
  EXPECT_EQ(hMaterial_->SetShader(hShader.Get()), S_FALSE);
  ASSERT_EQ(hMaterial_->GetShader(hCarried.Receive()), S_OK);
  EXPECT_TRUE(hCarried->IsEqual(hShader.Get()));
  VelISpecObject_var hFather;
  ASSERT_EQ(hShader->GetFather(hFather.Receive()), S_OK);
  EXPECT_TRUE(hFather->IsEqual(hMaterial_.Get()));
  EXPECT_EQ(hMaterial_->SetShader(hOther.Get()), S_OK);
  EXPECT_EQ(hShader->GetFather(hFather.Receive()), E_FAIL) << "the one before has no father any more";
  EXPECT_EQ(hMaterial_->SetShader(nullptr), S_OK);
  EXPECT_EQ(hMaterial_->GetShader(hCarried.Receive()), E_FAIL);
}

TEST_F(VelRmaRenderingMaterialTest, ShaderOfAnotherFather_IsRefusedWithNothingChanged) {
  const VelISpecObject_var hShader = Make("VelRmaShader", "shader");
  const VelISpecObject_var hNode = Make("VelRmaShader", "node");
  ASSERT_EQ(Access(hShader)->AppendComponent(nodes_, hNode.Get()), S_OK);
  EXPECT_EQ(hMaterial_->SetShader(hShader.Get()), S_OK);
  EXPECT_EQ(hMaterial_->SetShader(hNode.Get()), E_FAIL);
  VelBaseUnknown_var hCarried;
  ASSERT_EQ(hMaterial_->GetShader(hCarried.Receive()), S_OK);
  EXPECT_TRUE(hCarried->IsEqual(hShader.Get()));
}

TEST_F(VelRmaRenderingMaterialTest, Slots_Are1To11) {
  VelUnicodeString path("left over");
  VelPixelImage* image = nullptr;
  for (const std::uint32_t slot : {0U, 12U, 0xFFFFFFFFU}) {
    EXPECT_EQ(hCache_->SetEntry(slot, "a.png", nullptr), E_INVALIDARG) << slot;
    EXPECT_EQ(hCache_->GetPath(slot, path), E_FAIL) << slot;
    EXPECT_TRUE(path.IsEmpty());
    EXPECT_EQ(hCache_->GetImage(slot, &image), E_FAIL) << slot;
  }
  EXPECT_EQ(hCache_->ResetEntry(0), S_FALSE);
  EXPECT_EQ(hCache_->ResetEntry(12), E_INVALIDARG);
  EXPECT_EQ(hCache_->GetImage(1, nullptr), E_INVALIDARG);
  for (std::uint32_t slot = 1; slot <= 11; ++slot) {
    const std::string written = "slot" + std::to_string(slot);
    EXPECT_EQ(hCache_->ResetEntry(slot), S_FALSE);
    EXPECT_EQ(hCache_->SetEntry(slot, VelUnicodeString(std::string_view(written)), nullptr), S_OK);
  }
  for (std::uint32_t slot = 1; slot <= 11; ++slot) {
    EXPECT_EQ(hCache_->GetPath(slot, path), S_OK);
    EXPECT_EQ(std::string(path.View()), "slot" + std::to_string(slot));
    EXPECT_EQ(hCache_->ResetEntry(slot), S_OK);
    EXPECT_EQ(hCache_->GetPath(slot, path), E_FAIL);
  }
}

TEST_F(VelRmaRenderingMaterialTest, Entry_ReferencesItsImageUntilItIsReplacedOrReset) {
  VelBaseUnknown_var hImage = MakeImage();
  const VelBaseUnknown_WR weak(hImage.Get());
  EXPECT_EQ(SetEntry(hCache_, 3, "a.png", hImage), S_OK);
  hImage = nullptr;
  EXPECT_NE(weak.Get(), nullptr);
  EXPECT_EQ(ImageOf(hCache_, 3)->GetComponent(), weak.Get());
  EXPECT_EQ(VelRmaImageBudget::HeldBytes(), 1024U);
  EXPECT_EQ(SetEntry(hCache_, 3, "", nullptr), S_OK);
  EXPECT_EQ(weak.Get(), nullptr);
  EXPECT_EQ(VelRmaImageBudget::HeldBytes(), 0U);
  EXPECT_EQ(ImageOf(hCache_, 3), nullptr) << "an entry of a path alone";
}

TEST_F(VelRmaRenderingMaterialTest, ImageSetAgainInItsOwnSlot_Survives) {
  EXPECT_EQ(SetEntry(hCache_, 3, "a.png", MakeImage()), S_OK);
  VelPixelImage* image = nullptr;
  ASSERT_EQ(hCache_->GetImage(3, &image), S_OK);
  image->Release();
  EXPECT_EQ(hCache_->SetEntry(3, "b.png", image), S_OK);
  EXPECT_EQ(ImageOf(hCache_, 3)->GetComponent(), image->GetComponent());
}

TEST_F(VelRmaRenderingMaterialTest, BeyondTheBudget_TheImageUsedLongestAgoIsDroppedAndLoadedAgain) {
  FakeImageServices services;
  const VelIRenderingMaterial_var hOther = MakeMaterial();
  const VelIRmaAppearanceCache_var hOtherCache(hOther);
  VelRmaImageBudget::Set(3 * 1024);
  EXPECT_EQ(SetEntry(hCache_, 1, "one.png", MakeImage()), S_OK);
  EXPECT_EQ(SetEntry(hOtherCache, 1, "two.png", MakeImage()), S_OK);
  EXPECT_EQ(SetEntry(hCache_, 2, "three.png", MakeImage()), S_OK);
  EXPECT_NE(ImageOf(hCache_, 1), nullptr) << "used again, so the second is the oldest now";
  services.Take();
  EXPECT_EQ(SetEntry(hCache_, 3, "four.png", MakeImage()), S_OK);
  EXPECT_EQ(VelRmaImageBudget::HeldBytes(), 3U * 1024U);
  EXPECT_NE(ImageOf(hCache_, 1), nullptr);
  EXPECT_NE(ImageOf(hCache_, 2), nullptr);
  EXPECT_TRUE(services.Take().empty()) << "those are held";
  EXPECT_NE(ImageOf(hOtherCache, 1), nullptr);
  EXPECT_EQ(services.Take().size(), 1U) << "this one was loaded again";
  VelUnicodeString path;
  EXPECT_EQ(hOtherCache->GetPath(1, path), S_OK);
  EXPECT_EQ(path, "two.png");
}

TEST_F(VelRmaRenderingMaterialTest, DroppedImageThatCannotBeLoaded_IsAskedForAgainNextTime) {
  FakeImageServices services;
  EXPECT_EQ(SetEntry(hCache_, 1, "one.png", MakeImage()), S_OK);
  EXPECT_EQ(SetEntry(hCache_, 2, "two.png", MakeImage()), S_OK);
  VelRmaImageBudget::Set(0);
  services.givesImages = false;
  EXPECT_EQ(ImageOf(hCache_, 1), nullptr);
  services.givesImages = true;
  EXPECT_NE(ImageOf(hCache_, 1), nullptr);
}

TEST_F(VelRmaRenderingMaterialTest, ImageWithoutAPath_IsNeverDropped) {
  EXPECT_EQ(SetEntry(hCache_, 1, "", MakeImage()), S_OK);
  EXPECT_EQ(SetEntry(hCache_, 2, "two.png", MakeImage()), S_OK);
  VelRmaImageBudget::Set(0);
  EXPECT_EQ(VelRmaImageBudget::HeldBytes(), 2U * 1024U) << "the last one used is kept as well";
  EXPECT_NE(ImageOf(hCache_, 1), nullptr);
}

TEST_F(VelRmaRenderingMaterialTest, ImageOfAVectorFile_IsNeverDropped) {
  for (const char* path : {"/a/one.svg", "/a/one.SVGZ"}) {
    VelRmaImageBudget::Set(VelRmaImageBudget::defaultBytes);
    EXPECT_EQ(SetEntry(hCache_, 1, path, MakeImage()), S_OK);
    EXPECT_EQ(SetEntry(hCache_, 2, "two.png", MakeImage()), S_OK);
    VelRmaImageBudget::Set(0);
    EXPECT_EQ(VelRmaImageBudget::HeldBytes(), 2U * 1024U) << "its path does not tell how it was drawn";
  }
}

TEST_F(VelRmaRenderingMaterialTest, ClosedMaterial_LetsItsImagesGo) {
  EXPECT_EQ(SetEntry(hCache_, 1, "one.png", MakeImage()), S_OK);
  EXPECT_EQ(LifeCycleObject_var(hMaterial_)->remove(), S_OK);
  EXPECT_EQ(VelRmaImageBudget::HeldBytes(), 0U);
  VelUnicodeString path;
  EXPECT_EQ(hCache_->GetPath(1, path), E_FAIL);
}

}  // namespace
