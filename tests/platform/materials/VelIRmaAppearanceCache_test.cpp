// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIRmaAppearanceCache_test.cpp The textures that a material keeps: what every implementation owes its
/// callers.
#include "platform/materials/VelIRmaAppearanceCache.h"

#include "platform/featuremodeler/LifeCycleObject.h"
#include "tests/RenderingShader/fixtures/FakeImageServices.h"
#include "tests/RenderingShader/fixtures/FakeRenderingMaterial.h"
#include "tests/platform/featuremodeler/FeatureModelerTest.h"

namespace {

using Texts = std::vector<std::string>;

class VelIRmaAppearanceCacheTest : public FeatureModelerTest {
 protected:
  void SetUp() override {
    FeatureModelerTest::SetUp();
    hFeature_ = FakeRenderingMaterial::Create(*hContainer_);
    Fake().isOffered = true;
    hCache_ = VelIRmaAppearanceCache_var(hFeature_);
    ASSERT_TRUE(hCache_);
  }
  void TearDown() override {
    hCache_ = nullptr;
    hFeature_ = nullptr;
    FeatureModelerTest::TearDown();
  }

  FakeAppearanceCache& Fake() { return FakeRenderingMaterial::Of(*hFeature_).cache; }

  /// @return the path of a slot's entry; what a failed call leaves must be empty
  std::string PathOf(std::uint32_t iSlot, HRESULT iExpected) {
    VelUnicodeString path("(untouched)");
    EXPECT_EQ(hCache_->GetPath(iSlot, path), iExpected);
    return path.CString();
  }

  /// @return the image of a slot's entry
  VelBaseUnknown_var ImageOf(std::uint32_t iSlot, HRESULT iExpected) {
    VelPixelImage* image = nullptr;
    EXPECT_EQ(hCache_->GetImage(iSlot, &image), iExpected);
    return VelBaseUnknown_var::Adopt(image);
  }

  static VelPixelImage* Plain(const VelBaseUnknown_var& iImage) { return VelPixelImage::From(iImage.Get()); }

  FakeRenderingMaterialBindings bindings_;
  VelISpecObject_var hFeature_;
  VelIRmaAppearanceCache_var hCache_;
};

TEST_F(VelIRmaAppearanceCacheTest, AnEntry_IsItsPathAndItsImage) {
  const VelBaseUnknown_var hImage = VelBaseUnknown_var::Adopt(FakeImageServices::MakeImage());
  for (const std::uint32_t slot : {1U, 5U, 11U}) {
    SCOPED_TRACE(slot);
    EXPECT_EQ(hCache_->SetEntry(slot, "/wood.png", Plain(hImage)), S_OK);
    EXPECT_EQ(PathOf(slot, S_OK), "/wood.png");
    EXPECT_EQ(ImageOf(slot, S_OK).Get(), hImage.Get());
  }
  EXPECT_EQ(PathOf(2, E_FAIL), "");
  EXPECT_FALSE(ImageOf(2, E_FAIL));
  EXPECT_EQ(hCache_->GetImage(5, nullptr), E_INVALIDARG);
}

TEST_F(VelIRmaAppearanceCacheTest, AnEntry_ReferencesItsImageUntilItIsReplacedOrReset) {
  VelBaseUnknown_var hImage = VelBaseUnknown_var::Adopt(FakeImageServices::MakeImage());
  const VelBaseUnknown_WR watched(hImage.Get());
  EXPECT_EQ(hCache_->SetEntry(3, "/wood.png", Plain(hImage)), S_OK);
  hImage = nullptr;
  EXPECT_NE(watched.Get(), nullptr);
  EXPECT_EQ(ImageOf(3, S_OK).Get(), watched.Get());
  EXPECT_EQ(hCache_->SetEntry(3, "/stone.png", nullptr), S_OK);
  EXPECT_EQ(watched.Get(), nullptr);
  EXPECT_EQ(PathOf(3, S_OK), "/stone.png");
  EXPECT_FALSE(ImageOf(3, S_OK)) << "an entry of a path alone is an entry";
}

TEST_F(VelIRmaAppearanceCacheTest, AnEntryWithAnEmptyPath_IsOneToo) {
  EXPECT_EQ(hCache_->SetEntry(4, "", nullptr), S_OK);
  EXPECT_EQ(PathOf(4, S_OK), "");
}

TEST_F(VelIRmaAppearanceCacheTest, ResetEntry_TakesAwayThatEntryOnly) {
  EXPECT_EQ(hCache_->SetEntry(4, "/four.png", nullptr), S_OK);
  EXPECT_EQ(hCache_->SetEntry(5, "/five.png", nullptr), S_OK);
  EXPECT_EQ(hCache_->ResetEntry(4), S_OK);
  EXPECT_EQ(PathOf(4, E_FAIL), "");
  EXPECT_EQ(PathOf(5, S_OK), "/five.png");
  EXPECT_EQ(hCache_->ResetEntry(4), S_FALSE);
}

TEST_F(VelIRmaAppearanceCacheTest, OutsideTheSlots_NothingIsSetAndOnlyNoSlotMayBeReset) {
  struct Case {
    std::uint32_t slot;
    HRESULT reset;
  };
  for (const Case& row : {Case{0, S_FALSE}, Case{12, E_INVALIDARG}, Case{0xFFFFFFFFU, E_INVALIDARG}}) {
    SCOPED_TRACE(row.slot);
    EXPECT_EQ(hCache_->SetEntry(row.slot, "/wood.png", nullptr), E_INVALIDARG);
    EXPECT_EQ(PathOf(row.slot, E_FAIL), "");
    EXPECT_FALSE(ImageOf(row.slot, E_FAIL));
    EXPECT_EQ(hCache_->ResetEntry(row.slot), row.reset);
  }
}

TEST_F(VelIRmaAppearanceCacheTest, ACacheThatIsToldToFail_ChangesNothingAndGivesNothing) {
  const VelBaseUnknown_var hImage = VelBaseUnknown_var::Adopt(FakeImageServices::MakeImage());
  EXPECT_EQ(hCache_->SetEntry(7, "/wood.png", Plain(hImage)), S_OK);
  Fake().setCode = E_UNEXPECTED;
  Fake().resetCode = E_NOINTERFACE;
  EXPECT_EQ(hCache_->SetEntry(7, "/stone.png", nullptr), E_UNEXPECTED);
  EXPECT_EQ(hCache_->ResetEntry(7), E_NOINTERFACE);
  EXPECT_EQ(PathOf(7, S_OK), "/wood.png");
  EXPECT_EQ(ImageOf(7, S_OK).Get(), hImage.Get());
  Fake().getPathCode = E_UNEXPECTED;
  Fake().getImageCode = E_NOINTERFACE;
  EXPECT_EQ(PathOf(7, E_UNEXPECTED), "");
  EXPECT_FALSE(ImageOf(7, E_NOINTERFACE));
}

TEST_F(VelIRmaAppearanceCacheTest, TheFake_RecordsWhatItIsAsked) {
  const VelBaseUnknown_var hImage = VelBaseUnknown_var::Adopt(FakeImageServices::MakeImage());
  EXPECT_EQ(hCache_->SetEntry(1, "/wood.png", Plain(hImage)), S_OK);
  EXPECT_EQ(hCache_->SetEntry(12, "", nullptr), E_INVALIDARG);
  EXPECT_EQ(PathOf(1, S_OK), "/wood.png");
  EXPECT_TRUE(ImageOf(1, S_OK));
  EXPECT_EQ(hCache_->ResetEntry(0), S_FALSE);
  EXPECT_EQ(Fake().Take(), (Texts{"SetEntry(1, /wood.png, image)", "SetEntry(12, , null)", "GetPath(1)", "GetImage(1)",
                                  "ResetEntry(0)"}));
  EXPECT_EQ(Fake().Take(), Texts{});
}

TEST_F(VelIRmaAppearanceCacheTest, ARemovedMaterial_FailsAndLetsItsImagesGo) {
  VelBaseUnknown_var hImage = VelBaseUnknown_var::Adopt(FakeImageServices::MakeImage());
  const VelBaseUnknown_WR watched(hImage.Get());
  EXPECT_EQ(hCache_->SetEntry(1, "/wood.png", Plain(hImage)), S_OK);
  hImage = nullptr;
  EXPECT_EQ(LifeCycleObject_var(hFeature_)->remove(), S_OK);
  EXPECT_EQ(watched.Get(), nullptr);
  EXPECT_EQ(hCache_->SetEntry(1, "/wood.png", nullptr), E_FAIL);
  EXPECT_EQ(hCache_->ResetEntry(1), E_FAIL);
}

}  // namespace
