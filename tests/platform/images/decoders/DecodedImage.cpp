// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file DecodedImage.cpp Runs a decoder and keeps what it told.
#include "tests/platform/images/decoders/DecodedImage.h"

#include <cstddef>
#include <cstring>
#include <span>

#include <gtest/gtest.h>

#include "platform/images/decoders/VelImageDecoders.h"
#include "platform/images/pixels/VelImageSource.h"

DecodedImage DecodedImage::Of(VelImageKind iKind, const std::string& iBytes) {
  VelMemoryImageSource source(std::as_bytes(std::span<const char>(iBytes)));
  DecodedImage decoded{E_UNEXPECTED, {}, {}};
  decoded.result = DecodeImage(iKind, source, decoded.image, decoded.cause);
  EXPECT_TRUE(decoded.result == S_OK || decoded.result == E_FAIL);
  EXPECT_EQ(decoded.result == S_OK, decoded.cause.empty()) << decoded.cause;
  EXPECT_EQ(decoded.result == S_OK, !decoded.image.IsEmpty()) << decoded.cause;
  return decoded;
}

std::string DecodedImage::Size() const {
  if (image.IsEmpty()) return cause;
  return std::to_string(image.GetWidth()) + "x" + std::to_string(image.GetHeight());
}

std::vector<int> DecodedImage::Bytes() const {
  std::vector<int> bytes;
  if (image.GetFormat() != VelPixelImage::Format::Rgba8) return bytes;
  for (const std::byte byte : image.Bytes()) bytes.push_back(std::to_integer<int>(byte));
  return bytes;
}

std::vector<float> DecodedImage::Floats() const {
  if (image.GetFormat() != VelPixelImage::Format::Rgba32F) return {};
  std::vector<float> floats(image.Bytes().size() / sizeof(float));
  if (!floats.empty()) std::memcpy(floats.data(), image.Bytes().data(), image.Bytes().size());
  return floats;
}

std::string DecodedImage::Letters() const {
  std::string letters;
  const std::vector<int> bytes = Bytes();
  const auto rowLength = static_cast<std::size_t>(image.GetWidth()) * 4;
  for (std::size_t i = 0; i < bytes.size(); i += 4) {
    if (i != 0 && i % rowLength == 0) letters += '/';
    letters += static_cast<char>(bytes[i]);
  }
  return letters;
}

void ExpectNoImageOfBeginnings(VelImageKind iKind, const std::string& iFile, std::size_t iStep) {
  ASSERT_EQ(DecodedImage::Of(iKind, iFile).result, S_OK);
  for (std::size_t length = 0; length < iFile.size(); length += iStep) {
    EXPECT_EQ(DecodedImage::Of(iKind, iFile.substr(0, length)).result, E_FAIL) << length << " of " << iFile.size();
  }
}
