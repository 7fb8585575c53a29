// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelPlatformImages_Hostile_test.cpp Files and helper programs that are made to do harm, and the image services.
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <zlib.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <vector>

#include "platform/base/VelCallOnExit.h"
#include "platform/base/system/VelSystemSandbox.h"
#include "platform/images/VelPixelImage.h"
#include "platform/images/VelRbaImageServices.h"
#include "platform/objectmodeler/VelDictionary.h"
#include "tests/platform/base/system/VelTemporaryFolder.h"
#include "tests/platform/documents/MissingProviderTest.h"
#include "tests/platform/images/decoders/ExrBytes.h"
#include "tests/platform/images/decoders/FileBytes.h"
#include "tests/platform/images/decoders/PngBytes.h"
#include "tests/platform/images/decoders/TiffBytes.h"
#include "tests/platform/images/worker/RareFiles.h"

namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

constexpr const char* dictionary = VEL_TEST_LIBRARY_FOLDER "/dictionaries/VelPlatformImages.dictionary";
constexpr auto mostSeconds = std::chrono::seconds(10);
constexpr long mostMebibytes = 512;

struct Case {
  const char* name;  ///< Of the file.
  std::string bytes;
  const char* cause;  ///< The beginning of it.
};

std::string Repeat(std::string_view iText, std::size_t iCount) {
  std::string text;
  text.reserve(iText.size() * iCount);
  for (std::size_t i = 0; i < iCount; ++i) text += iText;
  return text;
}

std::string Svg(std::string_view iElements, int iSide = 16) {
  const std::string side = std::to_string(iSide);
  return "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' width='" + side +
         "' height='" + side + "'>" + std::string(iElements) + "</svg>";
}

/// Bytes of no meaning, the same each time; none of them is the beginning of a format.
std::string Noise(std::size_t iCount) {
  std::string bytes;
  std::uint32_t state = 12345;
  for (std::size_t i = 0; i < iCount; ++i) {
    state = state * 1'664'525 + 1'013'904'223;
    bytes.push_back(static_cast<char>(state >> 24U));
  }
  return bytes;
}

std::string GrowingEntities() {
  std::string text = "<!DOCTYPE svg [<!ENTITY a0 'ha'>";
  for (int i = 1; i < 10; ++i) {
    text += "<!ENTITY a" + std::to_string(i) + " '" + Repeat("&a" + std::to_string(i - 1) + ";", 10) + "'>";
  }
  return text + "]><svg><title>&a9;</title></svg>";
}

/// An SVG file that never comes to its root.
std::string PackedBlanks() {
  constexpr int asGzip = 16;
  std::string blanks(std::size_t{40} << 20U, ' ');
  std::string packed(std::size_t{1} << 20U, '\0');
  z_stream stream{};
  EXPECT_EQ(deflateInit2(&stream, Z_BEST_SPEED, Z_DEFLATED, MAX_WBITS + asGzip, 9, Z_DEFAULT_STRATEGY), Z_OK);
  stream.next_in = reinterpret_cast<Bytef*>(blanks.data());
  stream.avail_in = static_cast<uInt>(blanks.size());
  stream.next_out = reinterpret_cast<Bytef*>(packed.data());
  stream.avail_out = static_cast<uInt>(packed.size());
  EXPECT_EQ(deflate(&stream, Z_FINISH), Z_STREAM_END);
  packed.resize(packed.size() - stream.avail_out);
  deflateEnd(&stream);
  return packed;
}

/// A JPEG file that claims another size.
std::string ResizedJpeg(int iWidth, int iHeight) {
  constexpr std::size_t sizeOffset = 5;  // Behind the mark, its length and the depth.
  std::string file = ReadTestFile("baseline.jpg");
  return file.replace(
      file.find("\xFF\xC0") + sizeOffset, 4,
      BigEndian(static_cast<std::uint64_t>(iHeight), 2) + BigEndian(static_cast<std::uint64_t>(iWidth), 2));
}

class VelPlatformImagesHostileTest : public MissingProviderTest {
 protected:
  void SetUp() override {
    MissingProviderTest::SetUp();
    ASSERT_EQ(VelDictionary::LoadFile(dictionary), S_OK);
    ::setenv("XDG_CACHE_HOME", folder_.Path("cache").c_str(), 1);
  }
  /// The limits hold for the host and, once it has ended, for the helper program with all its copies.
  void TearDown() override {
    VelPlatformTerminate();
    ExpectLittleMemory(RUSAGE_SELF);
    ExpectLittleMemory(RUSAGE_CHILDREN);
    EXPECT_EQ(VelDictionary::Unload(dictionary), S_OK);
    ::unsetenv("XDG_CACHE_HOME");
    ::unsetenv("VEL_IMAGE_WORKER");
    MissingProviderTest::TearDown();
  }

  static void ExpectLittleMemory(int iWhose) {
    rusage usage{};
    ASSERT_EQ(::getrusage(iWhose, &usage), 0);
    if (!VelSystemSandbox::isSanitized) {
      EXPECT_LT(usage.ru_maxrss / 1024, mostMebibytes);
    }
  }

  static VelBaseUnknown_var Load(const std::string& iPath) {
    return VelBaseUnknown_var::Adopt(
        VelRbaImageServices::CreatePixelImageFromFullPath(VelUnicodeString(iPath), {}, 96));
  }

  static HRESULT Convert(const std::string& iPath) {
    VelUnicodeString path(iPath);
    const HRESULT code = VelRbaImageServices::ConvertUnsupportedTexture(path, {}, 96);
    EXPECT_EQ(code == S_OK, path != VelUnicodeString(iPath));
    return code;
  }

  /// Expects one warning, which names the file and begins to tell this cause.
  void ExpectWarning(const std::string& iPath, const std::string& iCause) {
    const Texts warnings = Take();
    ASSERT_EQ(warnings.size(), 1U);
    EXPECT_TRUE(warnings[0].starts_with("VelRbaImageServices: No image of '" + iPath + "': " + iCause)) << warnings[0];
  }

  /// Expects no image, one warning and no long wait.
  void ExpectNoImage(const std::string& iPath, const std::string& iCause) {
    const auto begin = Clock::now();
    EXPECT_FALSE(Load(iPath));
    EXPECT_LT(Clock::now() - begin, mostSeconds);
    ExpectWarning(iPath, iCause);
  }

  /// As ExpectNoImage, and that nothing is made of the file either, where it is not left as it is.
  void ExpectRefused(const Case& iCase) {
    SCOPED_TRACE(iCase.name);
    const std::string path = folder_.Write(iCase.name, iCase.bytes);
    ExpectNoImage(path, iCase.cause);
    const HRESULT code = Convert(path);
    if (code == S_FALSE) return;
    EXPECT_EQ(code, E_FAIL);
    ExpectWarning(path, iCase.cause);
  }

  /// Expects the services to work.
  void ExpectAlive() {
    EXPECT_TRUE(Load(folder_.Write("good.svg", Svg("<rect width='4' height='4'/>"))));
    EXPECT_EQ(Take(), Texts{});
  }

  /// @return the file that the services make of another one
  std::string Converted(const char* iName, std::string_view iBytes) {
    VelUnicodeString path(folder_.Write(iName, iBytes));
    EXPECT_EQ(VelRbaImageServices::ConvertUnsupportedTexture(path, {}, 96), S_OK);
    return folder_.Read(std::string(path.View()));
  }

  /// A file of each format, of several kilobytes where it can be had, none of which has anything behind its image.
  std::vector<Case> WholeFiles() {
    const std::string pixels = Noise(std::size_t{3} * 48 * 48);
    const std::string clouds =
        "<filter id='f'><feTurbulence baseFrequency='0.4'/></filter><rect width='48' height='48' "
        "filter='url(#f)'/>";
    return {
        {"a.svg", Svg(Repeat("<g id='g'><path d='M0 0L9 4z' style='fill:red'/></g>", 100)), ""},
        {"a.png", Converted("clouds.svg", Svg(clouds, 48)), ""},
        {"a.exr", Converted("floats.pic", RareFiles::Hdr(32, 16, Noise(std::size_t{4} * 32 * 16))), ""},
        {"a.jpg", ReadTestFile("baseline.jpg"), ""},
        {"a.tif", TiffBytes{48, 48, 8, 3, 2, {pixels}, {}}.File(), ""},
        {"a.bmp", RareFiles::Bmp(48, 48, 24, "", pixels), ""},
        {"a.tga", RareFiles::Tga(2, 48, 48, 24, 0, "", pixels), ""},
        {"a.pnm", "P6 48 48 255\n" + pixels, ""},
        {"a.gif", RareFiles::Gif(20, 20, RareFiles::GifFrame(0, 0, 20, 20, std::vector<int>(400, 1))), ""},
        {"a.ico", RareFiles::Ico({RareFiles::Icon32(32, 32, Noise(std::size_t{4} * 32 * 32))}), ""},
        {"a.hdr", RareFiles::Hdr(32, 16, Noise(std::size_t{4} * 32 * 16)), ""},
    };
  }

  VelTemporaryFolder folder_;
};

TEST_F(VelPlatformImagesHostileTest, AFileThatIsCut_IsNoImageWhereverItIsCut) {
  constexpr std::size_t kilobyte = 1024;
  for (const Case& whole : WholeFiles()) {
    SCOPED_TRACE(whole.name);
    EXPECT_TRUE(Load(folder_.Write(whole.name, whole.bytes)));
    EXPECT_EQ(Take(), Texts{});
    const std::size_t step = whole.bytes.size() > 3 * kilobyte ? kilobyte : whole.bytes.size() / 8;
    for (std::size_t length = 0; length < whole.bytes.size(); length += step) {
      SCOPED_TRACE(length);
      ExpectNoImage(folder_.Write(whole.name, whole.bytes.substr(0, length)), length == 0 ? "is empty" : "");
    }
  }
}

TEST_F(VelPlatformImagesHostileTest, AFileOfNoFormat_IsRefusedUnderEveryName) {
  const std::string noise = Noise(5000);
  for (const char* name :
       {"n.png", "n.jpg", "n.tif", "n.exr", "n.bmp", "n.gif", "n.pnm", "n.ico", "n.hdr", "n.webp", "n"}) {
    ExpectRefused({name, noise, "is of no accepted format"});
  }
  ExpectRefused({"n.svg", noise, "is no SVG file: line 1, column "});
  ExpectRefused({"n.svgz", noise, "is no SVG file: line 1, column "});
  ExpectRefused({"n.tga", noise, ""});
}

TEST_F(VelPlatformImagesHostileTest, AClaimOfAHugeImage_IsNotBelieved) {
  const std::string head = ExrBytes{0, 0, 99999, 99999, {{"Y"}}, {std::string(4, '\0')}}.File();
  const Case cases[] = {
      {"h.png", PngBytes{100000, 100000, 8, 6, false, "", "x"}.File(), ""},
      {"h.jpg", ResizedJpeg(65500, 65500), "claims 6436161024 bytes of pixels"},
      {"h.tif", TiffBytes{100000, 100000, 8, 4, 2, {"abcd"}, {}}.File(), "has 100000 x 100000 pixels; expected"},
      {"h.exr", head, "is a damaged OpenEXR file: The width of the data window exceeds"},
      {"h.svg", Svg("", 100000), "has 100000 x 100000 pixels at 96 dpi; expected at most 16384 a side"},
      {"h.bmp", RareFiles::Bmp(100000, 100000, 24, "", ""), "has 100000 x 100000 pixels; expected"},
      {"h.gif", RareFiles::Gif(65535, 65535, RareFiles::GifFrame(0, 0, 1, 1, {0})), "has 65535 x 65535 pixels"},
      {"h.tga", RareFiles::Tga(2, 65535, 65535, 24, 0, "", ""), "has 65535 x 65535 pixels; expected"},
      {"h.pnm", "P6 100000 100000 255\n", "has 100000 x 100000 pixels; expected"},
      {"h.ico", RareFiles::Ico({{0, 0, 32, RareFiles::BitmapHeader(100000, 200000, 32)}}), "has 100000 x 100000"},
      {"h.hdr", RareFiles::Hdr(100000, 100000, ""), "has 100000 x 100000 pixels; expected"},
  };
  for (const Case& one : cases) ExpectRefused(one);
  ExpectAlive();
}

TEST_F(VelPlatformImagesHostileTest, AnSvgFileThatGrows_IsRefused) {
  const Case cases[] = {
      {"entities.svg", GrowingEntities(), "is no SVG file: "},
      {"deep.svg", Svg(Repeat("<g>", 100'000) + Repeat("</g>", 100'000)), "has too many elements inside each other"},
      {"million.svg", Svg(Repeat("<g/>", 1'000'000)), "has too many elements"},
      {"endless.svgz", PackedBlanks(), "unpacks to more than 33554432 bytes"},
      {"large.svg", Svg("") + std::string(std::size_t{32} << 20U, ' '), "has 33554"},
      {"secret.svg", "<!DOCTYPE svg [<!ENTITY e SYSTEM 'file:///etc/passwd'>]>" + Svg("&e;"),
       "is no SVG file that can be drawn: "},
  };
  for (const Case& one : cases) ExpectRefused(one);
  ExpectAlive();
}

TEST_F(VelPlatformImagesHostileTest, ADrawingThatTakesTooLong_IsGivenUp) {
  const std::string path = folder_.Write(
      "slow.svg", Svg("<filter id='f'>" + Repeat("<feTurbulence baseFrequency='0.01' numOctaves='16'/>", 200) +
                          "</filter><rect width='2048' height='2048' filter='url(#f)'/>",
                      2048));
  ExpectNoImage(path, "is not drawn: the drawing took more than 8 s");
  ExpectAlive();
}

TEST_F(VelPlatformImagesHostileTest, OtherFiles_AreNotReadForAPicture) {
  folder_.Write("secret.svg", Svg("<rect id='r' width='16' height='16' fill='red'/>"));
  const std::string beside = folder_.Path("secret.svg");
  const std::string folder = fs::path(folder_.Path()).filename().string();
  for (const std::string& reference : {"file://" + beside, beside, std::string("secret.svg"),
                                       "../" + folder + "/secret.svg", std::string("http://localhost/secret.svg")}) {
    SCOPED_TRACE(reference);
    const VelBaseUnknown_var hImage = Load(
        folder_.Write("a.svg", Svg("<image xlink:href='" + reference + "' width='16' height='16'/><use xlink:href='" +
                                   reference + "#r'/><style>@import url('" + reference + "');</style>")));
    ASSERT_TRUE(hImage);
    const auto pixels = VelPixelImage::From(hImage.Get())->GetPixels();
    EXPECT_TRUE(std::ranges::all_of(pixels, [](std::byte iByte) { return iByte == std::byte{0}; }));
    EXPECT_EQ(Take(), Texts{});
  }
}

TEST_F(VelPlatformImagesHostileTest, HostileDataInTheFileItself_IsAnsweredInTime) {
  const std::string inside =
      "%3Csvg xmlns='http://www.w3.org/2000/svg' width='100000' height='100000'%3E" + Repeat("%3Cg%3E", 10'000);
  const VelBaseUnknown_var hImage = Load(folder_.Write(
      "data.svg", Svg("<rect width='1' height='1'/><image width='16' height='16' xlink:href=\"data:image/svg+xml," +
                      inside + "\"/>")));
  EXPECT_EQ(Take().size(), hImage ? 0U : 1U);
  ExpectAlive();
}

TEST_F(VelPlatformImagesHostileTest, WhatIsNoFileToRead_IsRefusedWithoutWaiting) {
  ASSERT_EQ(::mkfifo(folder_.Path("fifo.svg").c_str(), 0600), 0);
  ASSERT_TRUE(fs::create_directory(folder_.Path("folder.svg")));
  fs::create_symlink("loop.svg", folder_.Path("loop.svg"));
  const std::pair<const char*, const char*> cases[] = {{"fifo.svg", "is not a regular file"},
                                                       {"folder.svg", "is a folder"},
                                                       {"loop.svg", "too many symbolic links"},
                                                       {"gone.svg", "no such file"}};
  for (const auto& [name, cause] : cases) {
    ExpectNoImage(folder_.Path(name), cause);
    EXPECT_EQ(Convert(folder_.Path(name)), E_FAIL);
    ExpectWarning(folder_.Path(name), cause);
  }
  ExpectRefused({"empty.svg", "", "is empty"});
}

TEST_F(VelPlatformImagesHostileTest, AFileThatMayNotBeRead_IsRefused) {
  const std::string path = folder_.Write("closed.svg", Svg(""));
  ASSERT_EQ(::chmod(folder_.Path().c_str(), 0755), 0);
  ASSERT_EQ(::chmod(path.c_str(), 0), 0);
  EXPECT_TRUE(Load(folder_.Write("open.svg", Svg(""))));
  const pid_t process = ::fork();
  if (process == 0) {
    // Nothing is closed to the superuser.
    constexpr uid_t nobody = 65534;
    if (::geteuid() == 0 && ::seteuid(nobody) != 0) ::_exit(2);
    ExpectNoImage(path, "permission denied");
    EXPECT_EQ(Convert(path), E_FAIL);
    ExpectWarning(path, "permission denied");
    ::_exit(HasFailure() ? 1 : 0);
  }
  int status = -1;
  ASSERT_EQ(::waitpid(process, &status, 0), process);
  EXPECT_EQ(status, 0);
}

TEST_F(VelPlatformImagesHostileTest, AHelperProgramThatFails_CostsOneWarningAndTheNextRequestIsAnswered) {
  struct Failure {
    std::string program;
    const char* file;  ///< In which the program of the tests reads what it is to do.
    std::string cause;
  };
  const std::string notExecutable = folder_.Write("program", "text");
  const Failure failures[] = {
      {folder_.Path("gone"), "draw", "is missing: looked in '" + folder_.Path("gone") + "'"},
      {notExecutable, "draw", "cannot be started from '" + notExecutable + "': "},
      {VEL_TEST_IMAGE_WORKER, "die", "was ended by signal 9"},
      {VEL_TEST_IMAGE_WORKER, "exit", "ended with code 7"},
      {VEL_TEST_IMAGE_WORKER, "garbage", "sent 9 bytes, where a reply has at least 40"},
      {VEL_TEST_IMAGE_WORKER, "huge-size", "sent a picture of 100000 x 100000 pixels, which is no size of an image"},
      {VEL_TEST_IMAGE_WORKER, "unsealed", "sent a picture whose shared memory is not sealed against writing"},
  };
  for (const Failure& failure : failures) {
    SCOPED_TRACE(failure.cause);
    VelPlatformTerminate();
    ::setenv("VEL_IMAGE_WORKER", failure.program.c_str(), 1);
    ExpectNoImage(folder_.Write("asked.svg", failure.file), "the helper program velrsh-image-worker " + failure.cause);
    ::unsetenv("VEL_IMAGE_WORKER");
    ExpectAlive();
  }
}

}  // namespace
