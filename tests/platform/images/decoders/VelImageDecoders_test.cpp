// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageDecoders_test.cpp Which kinds are decoded here.
#include "platform/images/decoders/VelImageDecoders.h"

#include <gtest/gtest.h>

#include "platform/images/pixels/VelImageSource.h"
#include "tests/platform/images/decoders/DecodedImage.h"

namespace {

TEST(VelImageDecoders, OnlyTheFormatsOfThisProcess_AreDecoded) {
  struct Case {
    VelImageKind kind;
    bool expected;
  };
  const Case cases[] = {
      {VelImageKind::Unknown, false}, {VelImageKind::Svg, false}, {VelImageKind::Png, true},
      {VelImageKind::Jpeg, true},     {VelImageKind::Tiff, true}, {VelImageKind::Exr, true},
      {VelImageKind::Bmp, false},     {VelImageKind::Gif, false}, {VelImageKind::Tga, false},
      {VelImageKind::Pnm, false},     {VelImageKind::Ico, false}, {VelImageKind::Hdr, false},
      {VelImageKind::WebP, false},
  };
  for (const Case& example : cases) {
    EXPECT_EQ(CanDecode(example.kind), example.expected) << NameOfImageKind(example.kind);
    const DecodedImage decoded = DecodedImage::Of(example.kind, "no image");
    EXPECT_EQ(decoded.result, E_FAIL);
    EXPECT_EQ(decoded.cause.ends_with("which is not decoded in this process"), !example.expected) << decoded.cause;
  }
}

TEST(VelImageDecoders, AfterAFailure_TheImageBeforeIsGone) {
  std::string cause;
  VelPixelBuffer image;
  for (const VelImageKind kind :
       {VelImageKind::Png, VelImageKind::Jpeg, VelImageKind::Tiff, VelImageKind::Exr, VelImageKind::Gif}) {
    ASSERT_EQ(image.Allocate(2, 2, VelPixelImage::Format::Rgba8, cause), S_OK);
    VelMemoryImageSource source({});
    EXPECT_EQ(DecodeImage(kind, source, image, cause), E_FAIL);
    EXPECT_TRUE(image.IsEmpty()) << NameOfImageKind(kind);
  }
}

}  // namespace
