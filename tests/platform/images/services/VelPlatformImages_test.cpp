// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelPlatformImages_test.cpp The image services behind the dictionary, on real files.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <array>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "platform/base/VelCallOnExit.h"
#include "platform/configuration/VelRbaConfiguration.h"
#include "platform/images/VelPixelImage.h"
#include "platform/images/VelRbaImageServices.h"
#include "platform/images/VelRbaPathResolver.h"
#include "platform/objectmodeler/VelDictionary.h"
#include "tests/RenderingShader/fixtures/FakeDocument.h"
#include "tests/platform/base/system/VelTemporaryFolder.h"
#include "tests/platform/documents/MissingProviderTest.h"

namespace {

namespace fs = std::filesystem;

constexpr const char* dictionary = VEL_TEST_LIBRARY_FOLDER "/dictionaries/VelPlatformImages.dictionary";

/// Two squares side by side, of 2 x 2 pixels each.
constexpr const char* squares =
    "<svg xmlns='http://www.w3.org/2000/svg' width='4' height='2'>"
    "<g id='left'><rect width='2' height='2' fill='#ff0000'/></g>"
    "<g id='right'><rect x='2' width='2' height='2' fill='#0000ff'/></g></svg>";

/// One green pixel.
const std::string greenGif("GIF89a\1\0\1\0\x80\0\0\0\xFF\0\0\0\0,\0\0\0\0\1\0\1\0\0\2\2\x44\1\0;", 35);

/// Two pixels, 1 0.5 0.25 and 2 1 0.5, each of three mantissas and an exponent.
const std::string twoFloatsHdr("#?RADIANCE\nFORMAT=32-bit_rle_rgbe\n\n-Y 1 +X 2\n\x80\x40\x20\x81\x80\x40\x20\x82", 53);

using Pixel = std::array<int, 4>;
constexpr Pixel red{255, 0, 0, 255};
constexpr Pixel blue{0, 0, 255, 255};
constexpr Pixel nothing{0, 0, 0, 0};

Pixel PixelOf(const VelPixelImage& iImage, int iColumn, int iRow) {
  const std::byte* bytes =
      iImage.GetPixels().data() + static_cast<std::ptrdiff_t>((iRow * iImage.GetWidth() + iColumn) * 4);
  return {std::to_integer<int>(bytes[0]), std::to_integer<int>(bytes[1]), std::to_integer<int>(bytes[2]),
          std::to_integer<int>(bytes[3])};
}

class VelPlatformImagesTest : public MissingProviderTest {
 protected:
  void SetUp() override {
    MissingProviderTest::SetUp();
    VelRbaConfiguration::Clear();
    ASSERT_EQ(VelDictionary::LoadFile(dictionary), S_OK);
    ::setenv("XDG_CACHE_HOME", folder_.Path("cache").c_str(), 1);
  }
  void TearDown() override {
    VelPlatformTerminate();
    EXPECT_EQ(VelDictionary::Unload(dictionary), S_OK);
    ::unsetenv("XDG_CACHE_HOME");
    VelRbaConfiguration::Clear();
    MissingProviderTest::TearDown();
  }

  static VelListValVelUnicodeString Groups(std::initializer_list<const char*> iNames) {
    VelListValVelUnicodeString groups;
    for (const char* name : iNames) groups.Append(VelUnicodeString(name));
    return groups;
  }

  /// @return the image, empty when there is none
  static VelBaseUnknown_var Load(const std::string& iPath, const VelListValVelUnicodeString& iGroups = {},
                                 int iDpi = 96) {
    return VelBaseUnknown_var::Adopt(
        VelRbaImageServices::CreatePixelImageFromFullPath(VelUnicodeString(iPath), iGroups, iDpi));
  }

  /// Converts, and expects the path to change on S_OK alone.
  static HRESULT Convert(std::string& ioPath, int iDpi = 96) {
    VelUnicodeString path(ioPath);
    const HRESULT code = VelRbaImageServices::ConvertUnsupportedTexture(path, {}, iDpi);
    EXPECT_EQ(code == S_OK, path != VelUnicodeString(ioPath));
    ioPath = path.View();
    return code;
  }

  VelTemporaryFolder folder_;
};

/// @return true when a library of that name is mapped into this process
bool IsMapped(const std::string& iLibrary) {
  std::ifstream maps("/proc/self/maps");
  const std::string text{std::istreambuf_iterator<char>(maps), {}};
  return text.find(iLibrary) != std::string::npos;
}

TEST_F(VelPlatformImagesTest, TheLibrary_IsOpenedByTheFirstImageAndMapsNoRendererOfSvg) {
  EXPECT_EXIT(
      {
        for (const char* library : {"libVelPlatformImages", "libpng", "libtiff", "libOpenEXR"}) {
          EXPECT_FALSE(IsMapped(library)) << library;
        }
        EXPECT_TRUE(Load(folder_.Write("a.svg", squares)));
        EXPECT_TRUE(IsMapped("libVelPlatformImages"));
        for (const char* library : {"librsvg", "libcairo", "libgdk_pixbuf", "libglib"}) {
          EXPECT_FALSE(IsMapped(library)) << library;
        }
        std::exit(HasFailure() ? 1 : 0);
      },
      ::testing::ExitedWithCode(0), "");
}

TEST_F(VelPlatformImagesTest, AnSvgFile_IsDrawnAtItsResolution) {
  const std::string path = folder_.Write("a.svg", squares);
  const VelBaseUnknown_var hPlain = Load(path);
  ASSERT_TRUE(hPlain);
  const VelPixelImage& plain = *VelPixelImage::From(hPlain.Get());
  ASSERT_EQ(plain.GetWidth(), 4);
  ASSERT_EQ(plain.GetHeight(), 2);
  EXPECT_EQ(plain.GetColorSpace(), VelPixelImage::ColorSpace::Srgb);
  for (int column = 0; column < 4; ++column) EXPECT_EQ(PixelOf(plain, column, 1), column < 2 ? red : blue);
  const VelBaseUnknown_var hFine = Load(path, {}, 288);
  ASSERT_TRUE(hFine);
  EXPECT_EQ(VelPixelImage::From(hFine.Get())->GetWidth(), 12);
  EXPECT_EQ(VelPixelImage::From(hFine.Get())->GetHeight(), 6);
  EXPECT_EQ(PixelOf(*VelPixelImage::From(hFine.Get()), 5, 5), red);
  EXPECT_EQ(PixelOf(*VelPixelImage::From(hFine.Get()), 6, 0), blue);
  EXPECT_EQ(Take(), Texts{});
}

TEST_F(VelPlatformImagesTest, Groups_ChooseWhatIsDrawnInPlace) {
  const std::string path = folder_.Write("a.svg", squares);
  const VelBaseUnknown_var hRight = Load(path, Groups({"right", "unknown", "right"}));
  ASSERT_TRUE(hRight);
  EXPECT_EQ(PixelOf(*VelPixelImage::From(hRight.Get()), 1, 0), nothing);
  EXPECT_EQ(PixelOf(*VelPixelImage::From(hRight.Get()), 2, 0), blue);
  EXPECT_EQ(Take(), Texts{});
}

TEST_F(VelPlatformImagesTest, UnknownGroups_DrawNothingAndAreListedOnce) {
  const std::string path = folder_.Write("a.svg", squares);
  const VelBaseUnknown_var hEmpty = Load(path, Groups({"up", "down"}));
  ASSERT_TRUE(hEmpty);
  for (int column = 0; column < 4; ++column) EXPECT_EQ(PixelOf(*VelPixelImage::From(hEmpty.Get()), column, 0), nothing);
  EXPECT_EQ(Take(), Texts{"VelRbaImageServices: The image of '" + path +
                          "' is empty, since the file has none of the groups 'down', 'up'"});
}

TEST_F(VelPlatformImagesTest, UnknownGroups_AreAllListedHoweverManyTheyAre) {
  const std::string path = folder_.Write("a.svg", squares);
  VelListValVelUnicodeString groups;
  std::string names;
  for (int i = 10'000; i < 20'000; ++i) {
    groups.Append(VelUnicodeString(std::to_string(i)));
    names += (names.empty() ? "'" : ", '") + std::to_string(i) + "'";
  }
  EXPECT_TRUE(Load(path, groups));
  EXPECT_TRUE(Take() == Texts{"VelRbaImageServices: The image of '" + path +
                              "' is empty, since the file has none of the groups " + names});
  const std::string longName(20'000, 'x');
  EXPECT_TRUE(Load(path, Groups({longName.c_str()})));
  EXPECT_EQ(Take().size(), 1U);
}

TEST_F(VelPlatformImagesTest, Warnings_StayOnOneLineWhateverIsInPathsAndNames) {
  EXPECT_FALSE(Load("/nowhere\n[error] a\x1B[31m\x7F.svg"));
  EXPECT_EQ(Take(), Texts{"VelRbaImageServices: No image of '/nowhere?[error] a?[31m?.svg': no such file"});
  const std::string path = folder_.Write("b\n.svg", squares);
  EXPECT_TRUE(Load(path, Groups({"\t\xC3\xB6\n"})));
  EXPECT_EQ(Take(), Texts{"VelRbaImageServices: The image of '" + folder_.Path("b?.svg") +
                          "' is empty, since the file has none of the groups '?\xC3\xB6?'"});
}

TEST_F(VelPlatformImagesTest, TheSameRequest_IsAnsweredWithTheSameImage) {
  const std::string path = folder_.Write("a.svg", squares);
  const VelBaseUnknown_var hFirst = Load(path, Groups({"left", "right"}));
  EXPECT_EQ(Load(path, Groups({"right", "left", "left"})).Get(), hFirst.Get());
  EXPECT_NE(Load(path, Groups({"right", "left"}), 97).Get(), hFirst.Get());
  EXPECT_NE(Load(path, Groups({"right"})).Get(), hFirst.Get());
  std::string other(squares);
  other.replace(other.find("#ff0000"), 7, "#00ff00");
  folder_.Write("a.svg", other);
  const VelBaseUnknown_var hOther = Load(path, Groups({"left", "right"}));
  EXPECT_EQ(PixelOf(*VelPixelImage::From(hOther.Get()), 0, 0), (Pixel{0, 255, 0, 255}));
}

TEST_F(VelPlatformImagesTest, AFile_IsReadByItsContent) {
  const VelBaseUnknown_var hGif = VelBaseUnknown_var::Adopt(
      VelPixelImage::CreateFromFile(VelUnicodeString(folder_.Write("odd.png", greenGif)), 1, 0));
  ASSERT_TRUE(hGif);
  EXPECT_EQ(PixelOf(*VelPixelImage::From(hGif.Get()), 0, 0), (Pixel{0, 255, 0, 255}));
  const VelBaseUnknown_var hFloats = Load(folder_.Write("two.hdr", twoFloatsHdr));
  ASSERT_TRUE(hFloats);
  const VelPixelImage& floats = *VelPixelImage::From(hFloats.Get());
  ASSERT_EQ(floats.GetFormat(), VelPixelImage::Format::Rgba32F);
  EXPECT_EQ(floats.GetColorSpace(), VelPixelImage::ColorSpace::Linear);
  const auto* values = reinterpret_cast<const float*>(floats.GetPixels().data());
  const float expected[] = {1.0F, 0.5F, 0.25F, 1.0F, 2.0F, 1.0F, 0.5F, 1.0F};
  for (int i = 0; i < 8; ++i) EXPECT_EQ(values[i], expected[i]) << i;
}

TEST_F(VelPlatformImagesTest, WhatGivesNoImage_IsNullWithOneWarning) {
  ASSERT_EQ(::mkfifo(folder_.Path("fifo.svg").c_str(), 0600), 0);
  const std::string good = folder_.Write("good.svg", squares);
  struct Case {
    std::string path;
    int dpi;
    const char* cause;  ///< The beginning of it.
  };
  const Case cases[] = {{folder_.Path("gone.svg"), 96, "no such file"},
                        {folder_.Path(), 96, "is a folder"},
                        {folder_.Path("fifo.svg"), 96, "is not a regular file"},
                        {folder_.Write("empty.svg", ""), 96, "is empty"},
                        {folder_.Write("text.txt", "text"), 96, "is of no accepted format"},
                        {folder_.Write("cut.svg", std::string(squares).substr(0, 100)), 96, "is"},
                        {folder_.Write("cut.gif", greenGif.substr(0, 30)), 96, "is"},
                        {folder_.Write("cut.png", "\x89PNG\r\n\x1A\n"), 96, "is"},
                        {good, 0, "it was asked for at 0 dpi; expected 1 to 4800"},
                        {good, -72, "it was asked for at -72 dpi; expected 1 to 4800"},
                        {good, 4801, "it was asked for at 4801 dpi; expected 1 to 4800"},
                        {"", 96, "no such file"}};
  for (const Case& test : cases) {
    SCOPED_TRACE(test.path);
    EXPECT_FALSE(Load(test.path, {}, test.dpi));
    const Texts warnings = Take();
    ASSERT_EQ(warnings.size(), 1U);
    EXPECT_EQ(warnings[0].find("VelRbaImageServices: No image of '" + test.path + "': " + test.cause), 0U)
        << warnings[0];
  }
}

TEST_F(VelPlatformImagesTest, Convert_LeavesWhatTheRendererReads) {
  const std::string png("\x89PNG\r\n\x1A\n", 8);
  struct Case {
    const char* name;
    std::string bytes;
  };
  const Case cases[] = {{"a.png", png},
                        {"a.PNG", png},
                        {"a.jpg", "\xFF\xD8\xFF"},
                        {"a.jpeg", "\xFF\xD8\xFF"},
                        {"a.bmp", "BM"},
                        {"a.tga", "anything"},
                        {"a.tif", std::string("II*\0", 4)},
                        {"a.tiff", std::string("MM\0*", 4)},
                        {"a.hdr", "#?RADIANCE"},
                        {"a.exr", "\x76\x2F\x31\x01"}};
  for (const Case& test : cases) {
    std::string path = folder_.Write(test.name, test.bytes);
    EXPECT_EQ(Convert(path), S_FALSE) << test.name;
  }
  EXPECT_EQ(Take(), Texts{});
  EXPECT_FALSE(fs::exists(folder_.Path("cache")));
}

TEST_F(VelPlatformImagesTest, Convert_PutsAPngFileInTheUsersCache) {
  for (const auto& [name, bytes] :
       {std::pair{"a.svg", std::string(squares)}, std::pair{"a.gif", greenGif}, std::pair{"odd.png", greenGif}}) {
    SCOPED_TRACE(name);
    const std::string source = folder_.Write(name, bytes);
    std::string converted = source;
    ASSERT_EQ(Convert(converted), S_OK);
    EXPECT_EQ(converted.find(folder_.Path("cache/velrsh/images/v1/")), 0U) << converted;
    EXPECT_EQ(fs::path(converted).extension(), ".png");
    const VelBaseUnknown_var hSource = Load(source);
    const VelBaseUnknown_var hConverted = Load(converted);
    ASSERT_TRUE(hConverted);
    const auto expected = VelPixelImage::From(hSource.Get())->GetPixels();
    const auto pixels = VelPixelImage::From(hConverted.Get())->GetPixels();
    EXPECT_TRUE(std::equal(pixels.begin(), pixels.end(), expected.begin(), expected.end()));
    std::string again = source;
    EXPECT_EQ(Convert(again), S_OK);
    EXPECT_EQ(again, converted);
  }
  EXPECT_EQ(Take(), Texts{});
}

TEST_F(VelPlatformImagesTest, Convert_PutsFloatsInAnExrFile) {
  const std::string source = folder_.Write("two.pic", twoFloatsHdr);
  std::string converted = source;
  ASSERT_EQ(Convert(converted), S_OK);
  EXPECT_EQ(fs::path(converted).extension(), ".exr");
  const VelBaseUnknown_var hConverted = Load(converted);
  ASSERT_TRUE(hConverted);
  const auto* values = reinterpret_cast<const float*>(VelPixelImage::From(hConverted.Get())->GetPixels().data());
  EXPECT_EQ(values[4], 2.0F);
}

TEST_F(VelPlatformImagesTest, Convert_GivesEachResolutionAFileOfItsOwn) {
  const std::string source = folder_.Write("a.svg", squares);
  std::string plain = source;
  std::string fine = source;
  ASSERT_EQ(Convert(plain, 96), S_OK);
  ASSERT_EQ(Convert(fine, 192), S_OK);
  EXPECT_NE(plain, fine);
  EXPECT_EQ(VelPixelImage::From(Load(fine).Get())->GetWidth(), 8);
}

TEST_F(VelPlatformImagesTest, Convert_MakesADamagedFileOfTheCacheAnew) {
  std::string converted = folder_.Write("a.svg", squares);
  const std::string source = converted;
  ASSERT_EQ(Convert(converted), S_OK);
  const auto size = fs::file_size(converted);
  fs::resize_file(converted, size - 5);
  std::string again = source;
  EXPECT_EQ(Convert(again), S_OK);
  EXPECT_EQ(again, converted);
  EXPECT_EQ(fs::file_size(converted), size);
}

TEST_F(VelPlatformImagesTest, Convert_ThatFails_LeavesThePathAndWarnsOnce) {
  folder_.Write("file", "");
  struct Case {
    const char* name;
    std::string path;
    std::string cache;
    const char* cause;
  };
  const Case cases[] = {
      {"missing", folder_.Path("gone.png"), folder_.Path("cache"), "no such file"},
      {"damaged", folder_.Write("cut.svg", "<svg"), folder_.Path("cache"), "is"},
      {"cache that is no folder", folder_.Write("a.svg", squares), folder_.Path("file"), "cannot be converted to '"}};
  for (const Case& test : cases) {
    SCOPED_TRACE(test.name);
    ::setenv("XDG_CACHE_HOME", test.cache.c_str(), 1);
    std::string path = test.path;
    EXPECT_EQ(Convert(path), E_FAIL);
    const Texts warnings = Take();
    ASSERT_EQ(warnings.size(), 1U);
    EXPECT_EQ(warnings[0].find("VelRbaImageServices: No image of '" + test.path + "': " + test.cause), 0U)
        << warnings[0];
  }
}

TEST_F(VelPlatformImagesTest, WithoutAFolderForCaches_TheImageIsDeliveredAndThePathStays) {
  const char* home = std::getenv("HOME");
  const std::string homeBefore = home != nullptr ? home : "/";
  ::unsetenv("XDG_CACHE_HOME");
  ::unsetenv("HOME");
  std::string path = folder_.Write("a.svg", squares);
  EXPECT_TRUE(Load(path));
  EXPECT_EQ(Convert(path), E_FAIL);
  EXPECT_EQ(Take(), Texts{"VelRbaImageServices: No image of '" + path +
                          "': cannot be converted: there is no folder for caches; expected XDG_CACHE_HOME or HOME to "
                          "tell it"});
  ::setenv("HOME", homeBefore.c_str(), 1);
}

TEST_F(VelPlatformImagesTest, GetProjectionPath_GivesTheDocumentAFile) {
  const FakeDocumentBindings bindings;
  VelIPLMDmtDocument_var hDocument = FakeDocument::Create();
  FakeDocument& document = FakeDocument::Of(*hDocument);
  document.identifier.value = "1";
  document.name.value = "squares";
  document.format.value = "svg";
  document.content.value = squares;
  VelUnicodeString path;
  ASSERT_EQ(VelRbaImageServices::GetProjectionPath(hDocument.Get(), path), S_OK);
  EXPECT_EQ(fs::path(std::string(path.View())).filename(), "squares.svg");
  EXPECT_TRUE(Load(std::string(path.View())));
  const VelBaseUnknown_var hOther = Load(std::string(path.View()));
  EXPECT_EQ(VelRbaImageServices::GetProjectionPath(hOther.Get(), path), E_FAIL);
}

TEST_F(VelPlatformImagesTest, Resolve_KnowsSymbolsAndSearchFolders) {
  folder_.Write("a.png", "");
  ASSERT_EQ(VelRbaConfiguration::SetValue("Paths", "HERE", VelString(folder_.Path())), S_OK);
  ASSERT_EQ(VelRbaConfiguration::SetValue("Paths", "SearchFolders", "${HERE}"), S_OK);
  VelUnicodeString path;
  EXPECT_EQ(VelRbaPathResolver::Resolve("${HERE}/x.png", path), S_OK);
  EXPECT_EQ(path.View(), folder_.Path("x.png"));
  EXPECT_EQ(VelRbaPathResolver::Resolve("a.png", path), S_OK);
  EXPECT_EQ(path.View(), folder_.Path("a.png"));
}

}  // namespace
