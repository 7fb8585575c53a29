// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageKind_test.cpp By what the formats of image files are known.
#include "platform/images/pixels/VelImageKind.h"

#include <gtest/gtest.h>

#include <span>
#include <string>
#include <string_view>

#include "platform/images/pixels/VelImageSource.h"

namespace {

using namespace std::string_view_literals;

VelImageKind KindOf(std::string_view iBytes, std::string_view iExtension) {
  VelMemoryImageSource source(std::as_bytes(std::span(iBytes)));
  return RecognizeImageKind(source, iExtension);
}

struct Case {
  const char* name;
  std::string_view bytes;
  std::string_view extension;
  VelImageKind expected;
};

TEST(VelImageKind, Content_TellsTheFormatWhateverTheExtension) {
  const Case cases[] = {
      {"PNG", "\x89PNG\r\n\x1A\n...."sv, "jpg", VelImageKind::Png},
      {"JPEG", "\xFF\xD8\xFF\xE0...."sv, "", VelImageKind::Jpeg},
      {"little-endian TIFF", "II*\0\x08\0\0\0"sv, "png", VelImageKind::Tiff},
      {"big-endian TIFF", "MM\0*\0\0\0\x08"sv, "tif", VelImageKind::Tiff},
      {"big TIFF", "II+\0\x08\0\0\0"sv, "tif", VelImageKind::Tiff},
      {"EXR", "\x76\x2F\x31\x01\x02\0\0\0"sv, "hdr", VelImageKind::Exr},
      {"GIF of 1987", "GIF87a...."sv, "", VelImageKind::Gif},
      {"GIF of 1989", "GIF89a...."sv, "svg", VelImageKind::Gif},
      {"WebP", "RIFF\x10\0\0\0WEBPVP8L"sv, "", VelImageKind::WebP},
      {"HDR", "#?RADIANCE\n"sv, "", VelImageKind::Hdr},
      {"HDR by its other name", "#?RGBE\n"sv, "", VelImageKind::Hdr},
      {"icon", "\0\0\1\0\1\0"sv, "", VelImageKind::Ico},
      {"BMP", "BM\x46\0\0\0"sv, "tga", VelImageKind::Bmp},
      {"ASCII PBM", "P1\n1 1\n0\n"sv, "", VelImageKind::Pnm},
      {"binary PPM", "P6 1 1 255\n..."sv, "", VelImageKind::Pnm},
      {"PNM with a comment", "P5#c\n"sv, "", VelImageKind::Pnm},
      {"SVG", "<svg xmlns='http://www.w3.org/2000/svg'/>"sv, "", VelImageKind::Svg},
      {"SVG with a prefix", "<?xml version='1.0'?>\n<s:svg xmlns:s='http://www.w3.org/2000/svg'/>"sv, "png",
       VelImageKind::Svg},
      {"SVG behind a byte order mark and blanks", "\xEF\xBB\xBF \r\n<!-- c --><svg/>"sv, "", VelImageKind::Svg},
      {"compressed SVG", "\x1F\x8B\x08"sv, "", VelImageKind::Svg},
      {"TGA by its extension", "\0\0\2\0\0\0\0\0\0\0\0\0\1\0\1\0\x18\0..."sv, "TGA", VelImageKind::Tga},
      {"SVG in UTF-16 by its extension", "\xFF\xFE<\0s\0v\0g\0"sv, "Svg", VelImageKind::Svg},
  };
  for (const Case& test : cases) EXPECT_EQ(KindOf(test.bytes, test.extension), test.expected) << test.name;
}

TEST(VelImageKind, WhatIsOfNoAcceptedFormat_IsUnknown) {
  const Case cases[] = {{"nothing", "", "png", VelImageKind::Unknown},
                        {"a letter", "P", "", VelImageKind::Unknown},
                        {"text that begins as PNM", "P1X", "", VelImageKind::Unknown},
                        {"no such PNM", "P8\n", "", VelImageKind::Unknown},
                        {"half a mark", "\x89PNG\r\n", "png", VelImageKind::Unknown},
                        {"RIFF of sounds", "RIFF\x10\0\0\0WAVE"sv, "", VelImageKind::Unknown},
                        {"HTML", "<html><body/></html>", "html", VelImageKind::Unknown},
                        {"text that names an SVG", "see <svg> there", "txt", VelImageKind::Unknown},
                        {"blanks", "   \n\n", "", VelImageKind::Unknown},
                        {"program",
                         "\x7F"
                         "ELF\2\1\1",
                         "png", VelImageKind::Unknown}};
  for (const Case& test : cases) EXPECT_EQ(KindOf(test.bytes, test.extension), test.expected) << test.name;
}

TEST(VelImageKind, Names_AreThoseThatPeopleUse) {
  EXPECT_STREQ(NameOfImageKind(VelImageKind::Svg), "SVG");
  EXPECT_STREQ(NameOfImageKind(VelImageKind::Exr), "EXR");
  EXPECT_STREQ(NameOfImageKind(VelImageKind::WebP), "WebP");
  EXPECT_STREQ(NameOfImageKind(static_cast<VelImageKind>(99)), "unknown");
}

}  // namespace
