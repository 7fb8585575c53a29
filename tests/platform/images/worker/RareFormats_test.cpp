// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file RareFormats_test.cpp Files of the rarer formats, whole, cut and too large.
#include <webp/encode.h>
#include <zlib.h>

#include <cstring>
#include <span>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/images/pixels/VelImageSource.h"
#include "platform/images/worker/VelImageWorkerOrder.h"
#include "platform/images/worker/VelWorkerPicture.h"
#include "tests/platform/images/worker/Painting.h"
#include "tests/platform/images/worker/RareFiles.h"

namespace {

using namespace RareFiles;

using Format = VelPixelImage::Format;
using ColorSpace = VelPixelImage::ColorSpace;

/// A file once it is decoded, or why it is not.
struct Decoded {
  HRESULT code = E_FAIL;
  VelWorkerPicture picture;
  std::string cause;

  Decoded(VelImageKind iKind, std::string_view iFile) {
    VelImageWorkerOrder order;
    order.kind = iKind;
    VelMemoryImageSource source(std::as_bytes(std::span(iFile)));
    std::vector<std::string> unknown;
    code = order.Carry(source, picture, unknown, cause);
  }

  Painting Bytes() {
    if (FAILED(code) || picture.GetFormat() != Format::Rgba8) return {};
    return {picture.GetWidth(), picture.GetHeight(), picture.Bytes()};
  }

  std::vector<float> Floats() {
    std::vector<float> floats;
    if (FAILED(code) || picture.GetFormat() != Format::Rgba32F) return floats;
    floats.resize(picture.Bytes().size() / sizeof(float));
    std::memcpy(floats.data(), picture.Bytes().data(), picture.Bytes().size());
    return floats;
  }
};

// Two rows of two pixels, as files keep them from the lowest row, blue first: red, lime above blue, white.
constexpr std::string_view lowestFirst24 = "\xFF\0\0\xFF\xFF\xFF\0\0\0\0\xFF\0\xFF\0\0\0"sv;
constexpr std::string_view lowestFirst24Packed = "\xFF\0\0\xFF\xFF\xFF\0\0\xFF\0\xFF\0"sv;
constexpr std::string_view highestFirst24Packed = "\0\0\xFF\0\xFF\0\xFF\0\0\xFF\xFF\xFF"sv;

Painting FourColors() {
  return Painting(2, 2)
      .Rectangle(0, 0, 1, 1, red)
      .Rectangle(1, 0, 1, 1, green)
      .Rectangle(0, 1, 1, 1, blue)
      .Rectangle(1, 1, 1, 1, white);
}

Painting Row(const std::vector<Paint>& iPaints) {
  Painting painting(static_cast<int>(iPaints.size()), 1);
  for (int x = 0; x < painting.Width(); ++x) painting.At(x, 0) = iPaints[static_cast<std::size_t>(x)];
  return painting;
}

std::string PngChunk(std::string_view iName, std::string_view iBytes) {
  const auto big = [](std::uint64_t iNumber) {
    const std::string little = Long(iNumber);
    return std::string(little.rbegin(), little.rend());
  };
  const std::string named = std::string(iName) + std::string(iBytes);
  const auto* bytes = reinterpret_cast<const Bytef*>(named.data());
  return big(iBytes.size()) + named + big(crc32(0, bytes, static_cast<uInt>(named.size())));
}

/// Two pixels, half transparent red and opaque blue.
std::string Png() {
  constexpr std::string_view rows = "\0\xFF\0\0\x80\0\0\xFF\xFF"sv;
  std::string packed(compressBound(rows.size()), '\0');
  uLongf length = packed.size();
  compress(reinterpret_cast<Bytef*>(packed.data()), &length, reinterpret_cast<const Bytef*>(rows.data()), rows.size());
  packed.resize(length);
  return "\x89PNG\r\n\x1A\n"s + PngChunk("IHDR", "\0\0\0\2\0\0\0\1\x08\6\0\0\0"sv) + PngChunk("IDAT", packed) +
         PngChunk("IEND", "");
}

/// The chunks of a picture without loss, as the encoder of the format makes them.
std::string WebPChunks(int iWidth, int iHeight, std::string_view iRgba) {
  std::uint8_t* bytes = nullptr;
  const std::size_t length =
      WebPEncodeLosslessRGBA(reinterpret_cast<const std::uint8_t*>(iRgba.data()), iWidth, iHeight, 4 * iWidth, &bytes);
  const std::string file(reinterpret_cast<const char*>(bytes), length);
  WebPFree(bytes);
  return file.substr(12);
}

std::string WebPFrame(int iX, int iY, int iWidth, int iHeight, std::string_view iChunks) {
  const auto three = [](int iNumber) { return Number(static_cast<std::uint64_t>(iNumber), 3); };
  return Chunk("ANMF", three(iX / 2) + three(iY / 2) + three(iWidth - 1) + three(iHeight - 1) + three(100) +
                           Number(0, 1) + std::string(iChunks));
}

/// On a ground of 4 x 1: red, lime at 2, 0; then a frame that covers all.
std::string WebPAnimation() {
  const std::string first = WebPChunks(2, 1, "\xFF\0\0\xFF\0\xFF\0\x40"sv);
  const std::string second = WebPChunks(4, 1, "\0\0\xFF\xFF\0\0\xFF\xFF\0\0\xFF\xFF\0\0\xFF\xFF"sv);
  return WebP(Chunk("VP8X", "\x12\0\0\0"s + Number(3, 3) + Number(0, 3)) + Chunk("ANIM", Long(0) + Word(0)) +
              WebPFrame(2, 0, 2, 1, first) + WebPFrame(0, 0, 4, 1, second));
}

struct Case {
  const char* name;
  VelImageKind kind;
  std::string file;
  Painting expected;
};

const Paint halfRed{1, 0, 0, 128 / 255.0};
const Paint nothing{0, 0, 0, 0};

std::vector<Case> BitmapCases() {
  using Kind = VelImageKind;
  return {
      {"24 bits", Kind::Bmp, Bmp(2, 2, 24, "", lowestFirst24), FourColors()},
      {"from the top", Kind::Bmp, Bmp(2, -2, 24, "", "\0\0\xFF\0\xFF\0\0\0\xFF\0\0\xFF\xFF\xFF\0\0"sv), FourColors()},
      {"one bit", Kind::Bmp, Bmp(2, 1, 1, "\0\0\xFF\0\xFF\0\0\0"sv, "\x40\0\0\0"sv), Row({red, blue})},
      {"8 bits", Kind::Bmp, Bmp(2, 1, 8, "\0\0\xFF\0\xFF\0\0\0"s + std::string(1016, '\0'), "\1\0\0\0"sv),
       Row({blue, red})},
      {"16 bits", Kind::Bmp, Bmp(2, 1, 16, "", "\0\x7C\x1F\0"sv), Row({red, blue})},
      {"32 bits", Kind::Bmp, Bmp(2, 1, 32, "", "\0\0\xFF\0\xFF\0\0\0"sv), Row({red, blue})},
      {"runs", Kind::Bmp, Bmp(3, 1, 8, "\0\0\xFF\0\xFF\0\0\0"s + std::string(1016, '\0'), "\2\0\1\1\0\0\0\1"sv, 1),
       Row({red, red, blue})},
      {"24 bits", Kind::Tga, Tga(2, 2, 2, 24, 0, "", lowestFirst24Packed), FourColors()},
      {"from the top", Kind::Tga, Tga(2, 2, 2, 24, 0x20, "", highestFirst24Packed), FourColors()},
      {"32 bits", Kind::Tga, Tga(2, 2, 1, 32, 8, "", "\0\0\xFF\x80\xFF\0\0\xFF"sv), Row({halfRed, blue})},
      {"gray", Kind::Tga, Tga(3, 2, 1, 8, 0, "", "\0\xFF"sv), Row({black, white})},
      {"indexed", Kind::Tga, Tga(1, 2, 1, 8, 0, "\0\0\xFF\xFF\0\0"sv, "\1\0"sv), Row({blue, red})},
      {"runs", Kind::Tga, Tga(10, 3, 1, 24, 0, "", "\x81\0\0\xFF\0\xFF\0\0"sv), Row({red, red, blue})},
  };
}

std::vector<Case> OtherCases() {
  using Kind = VelImageKind;
  const std::string smallIcon(4 * 1, '\x7F');
  const std::string icon = "\0\0\xFF\x80\xFF\0\0\xFF"s;
  return {
      {"bits as text", Kind::Pnm, "P1\n# a comment\n2 2\n1 0\n01\n",
       Painting(2, 2).Rectangle(0, 0, 2, 2, white).Rectangle(0, 0, 1, 1, black).Rectangle(1, 1, 1, 1, black)},
      {"gray as text", Kind::Pnm, "P2 2 1 3 0 3\n", Row({black, white})},
      {"colour as text", Kind::Pnm, "P3\n2 1\n255\n255 0 0  0 255 0\n", Row({red, green})},
      {"bits", Kind::Pnm, "P4 2 1\n\x80"s, Row({black, white})},
      {"gray", Kind::Pnm, "P5 2 1 255\n\0\xFF"s, Row({black, white})},
      {"colour", Kind::Pnm, "P6 2 1 255\n\xFF\0\0\0\0\xFF"s, Row({red, blue})},
      {"one frame", Kind::Gif, Gif(2, 2, GifFrame(0, 0, 2, 2, {1, 2, 3, 0})),
       FourColors().Rectangle(1, 1, 1, 1, black)},
      {"transparent", Kind::Gif, Gif(2, 1, GifTransparency(2) + GifFrame(0, 0, 2, 1, {1, 2})), Row({red, nothing})},
      {"animation", Kind::Gif, Gif(2, 1, GifFrame(0, 0, 2, 1, {1, 3}) + GifFrame(0, 0, 2, 1, {2, 2})),
       Row({red, blue})},
      {"a frame in a part of the screen", Kind::Gif, Gif(3, 1, GifFrame(1, 0, 2, 1, {1, 3})),
       Row({nothing, red, blue})},
      {"32 bits", Kind::Ico, Ico({Icon32(2, 1, icon)}), Row({halfRed, blue})},
      {"the largest", Kind::Ico, Ico({Icon32(1, 1, smallIcon), Icon32(2, 1, icon), Icon32(1, 1, smallIcon)}),
       Row({halfRed, blue})},
      {"PNG", Kind::Ico, Ico({Icon32(1, 1, smallIcon), {2, 1, 32, Png()}}), Row({halfRed, blue})},
      {"24 bits and a mask", Kind::Ico,
       Ico({{2, 1, 24, BitmapHeader(2, 2, 24) + "\0\0\xFF\0\0\0\0\0"s + "\x40\0\0\0"s}}), Row({red, nothing})},
      {"without loss", Kind::WebP, WebP(WebPChunks(2, 1, "\xFF\0\0\x80\0\0\xFF\xFF"sv)), Row({halfRed, blue})},
      {"animation", Kind::WebP, WebPAnimation(), Row({nothing, nothing, red, {0, 1, 0, 64 / 255.0}})},
  };
}

std::vector<Case> Cases() {
  std::vector<Case> cases = BitmapCases();
  for (Case& one : OtherCases()) cases.push_back(std::move(one));
  return cases;
}

TEST(RareFormats, WholeFiles_AreDecodedPixelByPixel) {
  for (const Case& one : Cases()) {
    Decoded decoded(one.kind, one.file);
    EXPECT_EQ(decoded.code, S_OK) << NameOfImageKind(one.kind) << " " << one.name << ": " << decoded.cause;
    EXPECT_EQ(decoded.picture.GetColorSpace(), ColorSpace::Srgb);
    EXPECT_EQ(Painting::Difference(one.expected, decoded.Bytes(), 0), "")
        << NameOfImageKind(one.kind) << " " << one.name;
  }
}

TEST(RareFormats, CutFiles_AreRefusedWhereverTheyAreCut) {
  for (const Case& one : Cases()) {
    // The blank at the end of a text says nothing of the picture.
    const std::size_t spare = one.file.ends_with('\n') ? 1 : 0;
    for (std::size_t length = 0; length < one.file.size() - spare; ++length) {
      const Decoded decoded(one.kind, std::string_view(one.file).substr(0, length));
      EXPECT_EQ(decoded.code, E_FAIL) << NameOfImageKind(one.kind) << " " << one.name << " cut to " << length;
      EXPECT_FALSE(decoded.cause.empty());
    }
  }
}

TEST(RareFormats, FilesOfAnotherKind_AreRefused) {
  for (const Case& one : Cases()) {
    if (one.kind == VelImageKind::Tga) continue;
    for (const Case& other : Cases()) {
      if (other.kind == one.kind || other.kind == VelImageKind::Tga) continue;
      const Decoded decoded(other.kind, one.file);
      EXPECT_EQ(decoded.code, E_FAIL) << NameOfImageKind(one.kind) << " as " << NameOfImageKind(other.kind);
    }
  }
  for (const VelImageKind kind : {VelImageKind::Unknown, VelImageKind::Png, VelImageKind::Jpeg, VelImageKind::Tiff,
                                  VelImageKind::Exr, static_cast<VelImageKind>(99)}) {
    EXPECT_EQ(Decoded(kind, "x").code, E_INVALIDARG) << NameOfImageKind(kind);
  }
}

TEST(RareFormats, FilesThatTellOfHugePictures_AreRefusedByTheirHeads) {
  const struct {
    VelImageKind kind;
    std::string file;
    const char* size;
  } cases[] = {
      {VelImageKind::Bmp, Bmp(100000, 100000, 24, "", ""), "100000 x 100000"},
      {VelImageKind::Bmp, Bmp(0x7FFFFFFF, -0x7FFFFFFF - 1, 24, "", ""), "2147483647 x 2147483648"},
      {VelImageKind::Bmp, Bmp(16384, 4097, 24, "", ""), "16384 x 4097"},
      {VelImageKind::Gif, Gif(65535, 65535, GifFrame(0, 0, 1, 1, {0})), "65535 x 65535"},
      {VelImageKind::Tga, Tga(2, 65535, 65535, 24, 0, "", ""), "65535 x 65535"},
      {VelImageKind::Pnm, "P6 100000 100000 255\n", "100000 x 100000"},
      {VelImageKind::Pnm, "P6 99999999999999999999 1 255\n", "1000000 x 1"},
      {VelImageKind::Ico, Ico({{0, 0, 32, BitmapHeader(100000, 200000, 32)}}), "100000 x 100000"},
      {VelImageKind::Hdr, Hdr(100000, 100000, ""), "100000 x 100000"},
      {VelImageKind::WebP,
       WebP(Chunk("VP8X", "\0\0\0\0"s + Number(16384, 3) + Number(0, 3)) + WebPChunks(1, 1, "\xFF\0\0\xFF"sv)),
       nullptr},
  };
  for (const auto& one : cases) {
    const Decoded decoded(one.kind, one.file);
    EXPECT_EQ(decoded.code, E_FAIL) << NameOfImageKind(one.kind);
    if (one.size == nullptr) continue;
    EXPECT_EQ(decoded.cause, "has "s + one.size + " pixels; expected 1 to 16384 a side and at most 67108864 in all");
  }
}

TEST(RareFormats, FilesWithoutAPicture_AreRefused) {
  const struct {
    VelImageKind kind;
    std::string file;
    const char* cause;
  } cases[] = {
      {VelImageKind::Bmp, Bmp(1, 1, 24, "", "1234", 5), "is no BMP file that is read: its compression is not known"},
      {VelImageKind::Bmp, Bmp(1, 1, 0, "", "1234"), "is no BMP file that is read: it ends before its picture does"},
      {VelImageKind::Bmp, Bmp(1, 1, 24, "", "\0\1"sv, 1),
       "is no BMP file that is read: its runs do not fit its pixels"},
      {VelImageKind::Gif, Gif(1, 1, ""), "is no GIF file that is read: it has no picture"},
      {VelImageKind::Gif, Gif(1, 1, "x"), "is no GIF file that is read: it has a part that is not known"},
      {VelImageKind::Gif, Gif(1, 1, GifFrame(0, 0, 2, 1, {0, 0})),
       "is no GIF file that is read: its picture is larger than it says"},
      {VelImageKind::Ico, Ico({}), "is no ICO file that is read: it has no picture"},
      {VelImageKind::Pnm, "P7 1 1 1\n", "is no PNM file that is read: its head is not known"},
      {VelImageKind::Pnm, "P5 1 1 65536\n12", "is no PNM file that is read: its largest value is not 1 to 65535"},
      {VelImageKind::Tga, Tga(4, 1, 1, 24, 0, "", "123"), "is no TGA file that is read: its head is not known"},
      {VelImageKind::Tga, Tga(2, 1, 1, 8, 0, "", "123"), "is no TGA file that is read: its head is not known"},
      {VelImageKind::Hdr, "#?RADIANCE\n\n+Y 1 +X 1\n1234", "is no HDR file that is read: its head is not known"},
  };
  for (const auto& one : cases) EXPECT_EQ(Decoded(one.kind, one.file).cause, one.cause);
}

TEST(RareFormats, RadianceFiles_AreDecodedToFloats) {
  const std::vector<float> expected{1, 0.5F, 0.25F, 1, 0, 0, 0, 1};
  Decoded plain(VelImageKind::Hdr, Hdr(2, 1, "\x80\x40\x20\x81\0\0\0\0"sv));
  EXPECT_EQ(plain.cause, "");
  EXPECT_EQ(plain.Floats(), expected);
  EXPECT_EQ(plain.picture.GetColorSpace(), ColorSpace::Linear);
  // Eight pixels of 512, 0, 0 and then of 0, 512, 0, by runs and by single values.
  const std::string row = "\2\2\0\x08"s + "\x88\x80"s + "\x88\0"s + "\x08\0\0\0\0\0\0\0\0"s + "\x88\x8A"s;
  Decoded runs(VelImageKind::Hdr, Hdr(8, 1, row));
  std::vector<float> rowExpected;
  for (int x = 0; x < 8; ++x) rowExpected.insert(rowExpected.end(), {512, 0, 0, 1});
  EXPECT_EQ(runs.cause, "");
  EXPECT_EQ(runs.Floats(), rowExpected);
}

TEST(RareFormats, CutRadianceFiles_AreRefusedWhereverTheyAreCut) {
  for (const std::string& file :
       {Hdr(2, 1, "\x80\x40\x20\x81\0\0\0\0"sv), Hdr(8, 1, "\2\2\0\x08\x88\x80\x88\0\x08\0\0\0\0\0\0\0\0\x88\x8A"sv)}) {
    for (std::size_t length = 0; length < file.size(); ++length) {
      EXPECT_EQ(Decoded(VelImageKind::Hdr, std::string_view(file).substr(0, length)).code, E_FAIL) << length;
    }
  }
}

}  // namespace
