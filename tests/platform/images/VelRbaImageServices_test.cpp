// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRbaImageServices_test.cpp The image services: whom they are asked of, and what is said when there is
/// nobody.
#include "platform/images/VelRbaImageServices.h"

#include "tests/RenderingShader/fixtures/FakeDocument.h"
#include "tests/RenderingShader/fixtures/FakeImageServices.h"
#include "tests/platform/documents/MissingProviderTest.h"

namespace {

class VelRbaImageServicesTest : public MissingProviderTest {
 protected:
  void SetUp() override {
    MissingProviderTest::SetUp();
    VelRbaImageServices::ResetWarning();
  }

  /// @return the path, "(untouched)" where the call left it alone
  static std::string PathOf(VelBaseUnknown* iDocument, HRESULT iExpected) {
    VelUnicodeString path("(untouched)");
    EXPECT_EQ(VelRbaImageServices::GetProjectionPath(iDocument, path), iExpected);
    return path.CString();
  }

  static VelListValVelUnicodeString Groups() {
    VelListValVelUnicodeString groups;
    groups.Append("rings");
    groups.Append("bark");
    return groups;
  }

  /// @return the path after the conversion
  static std::string Converted(HRESULT iExpected) {
    VelUnicodeString path("/textures/wood.svg");
    EXPECT_EQ(VelRbaImageServices::ConvertUnsupportedTexture(path, Groups(), 150), iExpected);
    return path.CString();
  }

  FakeDocumentBindings documents_;
};

TEST_F(VelRbaImageServicesTest, GetProjectionPath_GivesThePathOfTheProvider_EachDocumentItsOwn) {
  FakeImageServices provider;
  const VelIPLMDmtDocument_var hFirst = FakeDocument::Create();
  const VelIPLMDmtDocument_var hSecond = FakeDocument::Create();
  provider.SetProjectionPathOf(*hSecond, "/projection/stone.svg");
  EXPECT_EQ(PathOf(hFirst.Get(), S_OK), "/projection/wood.png");
  EXPECT_EQ(PathOf(hSecond->GetComponent(), S_OK), "/projection/stone.svg");
  EXPECT_EQ(provider.projectionCalls, 2);
  EXPECT_EQ(provider.Take(), (Texts{"GetProjectionPath(fake)", "GetProjectionPath(fake)"}));
  EXPECT_EQ(Take(), Texts{});
}

TEST_F(VelRbaImageServicesTest, GetProjectionPath_OfASuccessWithoutChange_IsOneToo) {
  FakeImageServices provider;
  provider.projectionPath = {"", S_FALSE};
  const VelIPLMDmtDocument_var hDocument = FakeDocument::Create();
  EXPECT_EQ(PathOf(hDocument.Get(), S_FALSE), "");
}

TEST_F(VelRbaImageServicesTest, GetProjectionPath_WhenTheProviderFailsHalfWay_LeavesThePathAlone) {
  FakeImageServices provider;
  provider.projectionPath.code = E_UNEXPECTED;
  const VelIPLMDmtDocument_var hDocument = FakeDocument::Create();
  EXPECT_EQ(PathOf(hDocument.Get(), E_UNEXPECTED), "(untouched)");
  EXPECT_EQ(provider.projectionCalls, 1);
  EXPECT_EQ(Take(), Texts{});
}

TEST_F(VelRbaImageServicesTest, GetProjectionPath_OfNoDocument_IsRefusedBeforeAnybodyIsAsked) {
  EXPECT_EQ(PathOf(nullptr, E_INVALIDARG), "(untouched)") << "without provider";
  const FakeImageServices provider;
  EXPECT_EQ(PathOf(nullptr, E_INVALIDARG), "(untouched)");
  EXPECT_EQ(provider.projectionCalls, 0);
  EXPECT_EQ(Take(), Texts{});
}

TEST_F(VelRbaImageServicesTest, CreatePixelImageFromFullPath_GivesTheImageOfTheProvider_WithOneReference) {
  FakeImageServices provider;
  VelPixelImage* image = VelRbaImageServices::CreatePixelImageFromFullPath("/textures/wood.svg", Groups(), 150);
  ASSERT_NE(image, nullptr);
  EXPECT_EQ(provider.lastImage.Get(), image);
  EXPECT_EQ(image->Release(), 0U);
  EXPECT_EQ(provider.lastImage.Get(), nullptr);
  EXPECT_EQ(provider.Take(), Texts{"CreatePixelImageFromFullPath(/textures/wood.svg, [rings;bark], 150)"});
  EXPECT_EQ(Take(), Texts{});
}

TEST_F(VelRbaImageServicesTest, CreatePixelImageFromFullPath_ThatTheProviderCannotMake_IsNull) {
  FakeImageServices provider;
  provider.givesImages = false;
  EXPECT_EQ(VelRbaImageServices::CreatePixelImageFromFullPath("/textures/wood.svg", {}, 72), nullptr);
  EXPECT_EQ(provider.Take(), Texts{"CreatePixelImageFromFullPath(/textures/wood.svg, [], 72)"});
  EXPECT_EQ(Take(), Texts{});
}

TEST_F(VelRbaImageServicesTest, ConvertUnsupportedTexture_ReplacesThePathOnlyWhereAFileWasMade) {
  struct Case {
    const char* name;
    HRESULT code;
    const char* expected;
  };
  const Case cases[] = {
      {"converted", S_OK, "/cache/converted.png"},
      {"needless", S_FALSE, "/textures/wood.svg"},
      {"failed", E_FAIL, "/textures/wood.svg"},
      {"failed otherwise", E_UNEXPECTED, "/textures/wood.svg"},
  };
  FakeImageServices provider;
  for (const Case& row : cases) {
    SCOPED_TRACE(row.name);
    provider.conversion.code = row.code;
    EXPECT_EQ(Converted(row.code), row.expected);
    EXPECT_EQ(provider.Take(), Texts{"ConvertUnsupportedTexture(/textures/wood.svg, [rings;bark], 150)"});
  }
  provider.conversion.code = S_OK;
  provider.brokenPaths = {"/textures/wood.svg"};
  EXPECT_EQ(Converted(E_FAIL), "/textures/wood.svg");
  EXPECT_EQ(Take(), Texts{});
}

TEST_F(VelRbaImageServicesTest, WithoutProvider_NoOperationWorksAndAllShareOneWarning) {
  EXPECT_EQ(Converted(E_FAIL), "/textures/wood.svg");
  EXPECT_EQ(Take(),
            Texts{"VelRbaImageServices: The service is not available: the library VelPlatformImages is missing, "
                  "or no dictionary names it"});
  EXPECT_EQ(VelRbaImageServices::CreatePixelImageFromFullPath("/textures/wood.svg", Groups(), 150), nullptr);
  EXPECT_EQ(Take(), Texts{});
}

TEST_F(VelRbaImageServicesTest, WithoutProvider_EveryCallFailsAndTheFirstWarns) {
  const VelIPLMDmtDocument_var hDocument = FakeDocument::Create();
  EXPECT_EQ(PathOf(hDocument.Get(), E_FAIL), "(untouched)");
  EXPECT_EQ(Take(),
            Texts{"VelRbaImageServices: The service is not available: the library VelPlatformImages is missing, "
                  "or no dictionary names it"});
  EXPECT_EQ(PathOf(hDocument.Get(), E_FAIL), "(untouched)");
  EXPECT_EQ(Take(), Texts{});
  VelRbaImageServices::ResetWarning();
  EXPECT_EQ(PathOf(hDocument.Get(), E_FAIL), "(untouched)");
  EXPECT_EQ(Take().size(), 1U);
}

TEST_F(VelRbaImageServicesTest, AProviderThatComesLater_IsFound) {
  const VelIPLMDmtDocument_var hDocument = FakeDocument::Create();
  EXPECT_EQ(PathOf(hDocument.Get(), E_FAIL), "(untouched)");
  const FakeImageServices provider;
  EXPECT_EQ(PathOf(hDocument.Get(), S_OK), "/projection/wood.png");
}

}  // namespace
