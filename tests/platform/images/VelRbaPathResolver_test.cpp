// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRbaPathResolver_test.cpp The resolution of paths: whom it is asked of, and what is said when there is
/// nobody.
#include "platform/images/VelRbaPathResolver.h"

#include "platform/images/VelRbaImageServices.h"
#include "tests/RenderingShader/fixtures/FakeImageServices.h"
#include "tests/platform/documents/MissingProviderTest.h"

namespace {

class VelRbaPathResolverTest : public MissingProviderTest {
 protected:
  void SetUp() override {
    MissingProviderTest::SetUp();
    VelRbaImageServices::ResetWarning();
  }

  /// @return what a path is resolved to, "(untouched)" where the call left the text alone
  static std::string Resolved(const char* iPath, HRESULT iExpected) {
    VelUnicodeString path("(untouched)");
    EXPECT_EQ(VelRbaPathResolver::Resolve(iPath, path), iExpected);
    return path.CString();
  }
};

TEST_F(VelRbaPathResolverTest, Resolve_GivesThePathOfTheProvider) {
  FakeImageServices provider;
  provider.resolvedPaths = {{"${TEXTURES}/wood.png", "/home/textures/wood.png"}};
  EXPECT_EQ(Resolved("${TEXTURES}/wood.png", S_OK), "/home/textures/wood.png");
  EXPECT_EQ(Resolved("/stone.png", S_OK), "/stone.png");
  EXPECT_EQ(provider.Take(), (Texts{"ResolvePath(${TEXTURES}/wood.png)", "ResolvePath(/stone.png)"}));
  EXPECT_EQ(Take(), Texts{});
}

TEST_F(VelRbaPathResolverTest, Resolve_OfATextIntoItself_ReplacesIt) {
  FakeImageServices provider;
  provider.resolvedPaths = {{"wood.png", "/home/textures/wood.png"}};
  VelUnicodeString path("wood.png");
  EXPECT_EQ(VelRbaPathResolver::Resolve(path, path), S_OK);
  EXPECT_STREQ(path.CString(), "/home/textures/wood.png");
}

TEST_F(VelRbaPathResolverTest, Resolve_WhenTheProviderFailsHalfWay_LeavesThePathAlone) {
  FakeImageServices provider;
  provider.resolveCode = E_UNEXPECTED;
  EXPECT_EQ(Resolved("wood.png", E_UNEXPECTED), "(untouched)");
  EXPECT_EQ(provider.Take(), Texts{"ResolvePath(wood.png)"});
}

TEST_F(VelRbaPathResolverTest, WithoutProvider_EveryCallFailsAndTheFirstOfAllImageServicesWarns) {
  EXPECT_EQ(Resolved("wood.png", E_FAIL), "(untouched)");
  EXPECT_EQ(Take(),
            Texts{"VelRbaImageServices: The service is not available: the library VelPlatformImages is missing, "
                  "or no dictionary names it"});
  EXPECT_EQ(Resolved("wood.png", E_FAIL), "(untouched)");
  EXPECT_EQ(VelRbaImageServices::CreatePixelImageFromFullPath("/wood.png", {}, 72), nullptr);
  EXPECT_EQ(Take(), Texts{});
}

}  // namespace
