// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRbaImageFiles_test.cpp Images written into files: they read back as they were, and refusals leave no file.
#include "platform/images/VelRbaImageFiles.h"

#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <filesystem>

#include "platform/base/VelCallOnExit.h"
#include "platform/images/VelPixelImage.h"
#include "platform/objectmodeler/VelDictionary.h"
#include "tests/platform/base/system/VelTemporaryFolder.h"
#include "tests/platform/documents/MissingProviderTest.h"

namespace {

namespace fs = std::filesystem;
using Format = VelPixelImage::Format;
using ColorSpace = VelPixelImage::ColorSpace;

constexpr const char* dictionary = VEL_TEST_LIBRARY_FOLDER "/dictionaries/VelPlatformImages.dictionary";

class VelRbaImageFilesTest : public MissingProviderTest {
 protected:
  void SetUp() override {
    MissingProviderTest::SetUp();
    VelRbaImageFiles::ResetWarning();
    ASSERT_EQ(VelDictionary::LoadFile(dictionary), S_OK);
  }
  void TearDown() override {
    VelPlatformTerminate();
    static_cast<void>(VelDictionary::Unload(dictionary));
    MissingProviderTest::TearDown();
  }

  /// Two pixels beside each other.
  template <class Component>
  static VelBaseUnknown_var Make(Format iFormat, const std::array<Component, 8>& iPixels) {
    return VelBaseUnknown_var::Adopt(
        VelPixelImage::Create(2, 1, iFormat, ColorSpace::Srgb, std::as_bytes(std::span(iPixels))));
  }
  static VelBaseUnknown_var Bytes() { return Make<std::uint8_t>(Format::Rgba8, {255, 0, 0, 255, 1, 2, 3, 4}); }
  static VelBaseUnknown_var Floats() { return Make<float>(Format::Rgba32F, {1, 0.5F, 0.25F, 1, 2, 4, 8, 1}); }

  static HRESULT Write(const VelBaseUnknown_var& iImage, const std::string& iPath) {
    return VelRbaImageFiles::Write(VelPixelImage::From(iImage.Get()), VelUnicodeString(iPath));
  }

  static void ExpectToReadBack(const VelBaseUnknown_var& iImage, const std::string& iPath) {
    const auto hRead = VelBaseUnknown_var::Adopt(VelPixelImage::CreateFromFile(VelUnicodeString(iPath)));
    const VelPixelImage* const written = VelPixelImage::From(iImage.Get());
    const VelPixelImage* const read = VelPixelImage::From(hRead.Get());
    ASSERT_NE(read, nullptr);
    EXPECT_EQ(read->GetFormat(), written->GetFormat());
    EXPECT_TRUE(std::ranges::equal(read->GetPixels(), written->GetPixels()));
  }

  VelTemporaryFolder folder_;
};

TEST_F(VelRbaImageFilesTest, Write_ABytesImageAsPngAndFloatsAsExr_ReadsBackThePixels) {
  EXPECT_EQ(Write(Bytes(), folder_.Path("bytes.png")), S_OK);
  EXPECT_EQ(Write(Floats(), folder_.Path("floats.EXR")), S_OK);
  EXPECT_EQ(Take(), Texts{});
  ExpectToReadBack(Bytes(), folder_.Path("bytes.png"));
  ExpectToReadBack(Floats(), folder_.Path("floats.EXR"));
}

TEST_F(VelRbaImageFilesTest, Write_OverAFile_ReplacesIt) {
  const std::string path = folder_.Write("old.png", "what was there");
  EXPECT_EQ(Write(Bytes(), path), S_OK);
  ExpectToReadBack(Bytes(), path);
}

TEST_F(VelRbaImageFilesTest, Write_LetsOthersReadAsFarAsTheMaskDoes) {
  const mode_t before = ::umask(0022);
  EXPECT_EQ(Write(Bytes(), folder_.Path("a.png")), S_OK);
  ::umask(before);
  EXPECT_EQ(fs::status(folder_.Path("a.png")).permissions(), fs::perms{0644});
}

TEST_F(VelRbaImageFilesTest, Write_OfAnotherExtension_IsRefusedAndSaysWhichIsExpected) {
  struct Case {
    const char* name;
    VelBaseUnknown_var image;
    const char* file;
    const char* cause;
  };
  for (const Case& one : {
           Case{"bytes", Bytes(), "a.jpg", "the extension is 'jpg', expected 'png'"},
           Case{"bytes as floats", Bytes(), "a.exr", "the extension is 'exr', expected 'png'"},
           Case{"floats", Floats(), "a.png", "the extension is 'png', expected 'exr'"},
           Case{"none", Bytes(), "a", "the extension is '', expected 'png'"},
       }) {
    const std::string path = folder_.Path(one.file);
    EXPECT_EQ(Write(one.image, path), E_INVALIDARG) << one.name;
    EXPECT_EQ(Take(), (Texts{"error: VelRbaImageFiles: '" + path + "' is not written: " + one.cause +
                             " for pixels of this kind"}))
        << one.name;
    EXPECT_FALSE(fs::exists(path)) << one.name;
  }
  EXPECT_EQ(Write(nullptr, folder_.Path("a.png")), E_INVALIDARG);
  EXPECT_EQ(Take(), Texts{});
}

TEST_F(VelRbaImageFilesTest, Write_IntoNoFolder_FailsAndNamesPathAndCause) {
  const std::string path = folder_.Path("missing/a.png");
  EXPECT_EQ(Write(Bytes(), path), E_FAIL);
  const Texts told = Take();
  ASSERT_EQ(told.size(), 1U);
  EXPECT_EQ(told[0].find("error: VelRbaImageFiles: '" + path + "' is not written: "), 0U) << told[0];
}

TEST_F(VelRbaImageFilesTest, Write_WithoutProvider_FailsAndSaysSoOnce) {
  ASSERT_EQ(VelDictionary::Unload(dictionary), S_OK);
  EXPECT_EQ(Write(Bytes(), folder_.Path("a.png")), E_FAIL);
  EXPECT_EQ(Write(Bytes(), folder_.Path("a.png")), E_FAIL);
  const Texts told = Take();
  ASSERT_EQ(told.size(), 1U);
  EXPECT_EQ(told[0].find("VelRbaImageFiles: "), 0U) << told[0];
}

}  // namespace
