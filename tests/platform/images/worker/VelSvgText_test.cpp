// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSvgText_test.cpp Texts in files, packed and not.
#include "platform/images/worker/VelSvgText.h"

#include <zlib.h>

#include <span>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "platform/images/pixels/VelImageSource.h"
#include "tests/platform/images/worker/SvgPicture.h"

namespace {

std::string Pack(std::string_view iText) {
  constexpr int asGzip = 16;
  z_stream stream{};
  EXPECT_EQ(deflateInit2(&stream, Z_BEST_SPEED, Z_DEFLATED, MAX_WBITS + asGzip, 9, Z_DEFAULT_STRATEGY), Z_OK);
  std::string packed(deflateBound(&stream, iText.size()), '\0');
  stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(iText.data()));
  stream.avail_in = static_cast<uInt>(iText.size());
  stream.next_out = reinterpret_cast<Bytef*>(packed.data());
  stream.avail_out = static_cast<uInt>(packed.size());
  EXPECT_EQ(deflate(&stream, Z_FINISH), Z_STREAM_END);
  packed.resize(packed.size() - stream.avail_out);
  deflateEnd(&stream);
  return packed;
}

struct Text {
  HRESULT code;
  std::string text;
  std::string cause;

  explicit Text(std::string_view iFile) : code(E_FAIL) {
    VelMemoryImageSource source(std::as_bytes(std::span(iFile)));
    code = VelSvgText::Read(source, text, cause);
  }
};

constexpr const char* damaged = "is a damaged or incomplete gzip file";
constexpr const char* tooLong = "unpacks to more than 33554432 bytes";

TEST(VelSvgText, PackedAndPlainTexts_AreTheSame) {
  const std::string text = SvgPicture::TextOf("<rect width='4' height='4' fill='red'/>");
  EXPECT_EQ(Text(text).text, text);
  EXPECT_EQ(Text(Pack(text)).text, text);
  EXPECT_EQ(Painting::Difference(Painting(16, 16).Rectangle(0, 0, 4, 4, red), SvgPicture(Pack(text)).picture), "");
  EXPECT_EQ(Text("").code, S_OK);
  EXPECT_EQ(Text(Pack("")).text, "");
}

TEST(VelSvgText, ATextOfAllBytesThatThereMayBe_IsRead) {
  const std::string text(VelSvgText::mostBytes, ' ');
  EXPECT_EQ(Text(text).text.size(), text.size());
  EXPECT_EQ(Text(Pack(text)).text.size(), text.size());
  EXPECT_EQ(Text(text + " ").cause, "has 33554433 bytes; expected at most 33554432");
  EXPECT_EQ(Text(Pack(text + " ")).cause, tooLong);
}

TEST(VelSvgText, AFileThatUnpacksWithoutEnd_IsRefused) {
  EXPECT_EQ(Text(Pack(std::string(std::size_t{64} * 1024 * 1024, ' '))).cause, tooLong);
}

TEST(VelSvgText, CutAndDamagedFiles_AreRefused) {
  const std::string packed = Pack(SvgPicture::TextOf("<rect width='4' height='4' fill='red'/>"));
  for (std::size_t length = 2; length < packed.size(); ++length) {
    EXPECT_EQ(Text(std::string_view(packed).substr(0, length)).cause, damaged) << length;
  }
  EXPECT_EQ(Text(packed + "x").cause, damaged);
  std::string changed = packed;
  changed[changed.size() / 2] = static_cast<char>(changed[changed.size() / 2] ^ 0x10);
  EXPECT_EQ(Text(changed).code, E_FAIL);
}

TEST(VelSvgText, WhatIsPackedTwice_IsNoSvgFile) {
  const SvgPicture drawn(Pack(Pack(SvgPicture::TextOf(""))));
  EXPECT_EQ(drawn.code, E_FAIL);
  EXPECT_TRUE(drawn.cause.starts_with("is no SVG file: line 1, column ")) << drawn.cause;
}

}  // namespace
