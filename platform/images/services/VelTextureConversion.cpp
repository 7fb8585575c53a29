// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTextureConversion.cpp Finds the converted file, or loads the image and writes it.
#include "platform/images/services/VelTextureConversion.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "platform/images/VelPixelImage.h"
#include "platform/images/encoders/VelExrEncoder.h"
#include "platform/images/encoders/VelPngEncoder.h"
#include "platform/images/services/VelConvertedFiles.h"
#include "platform/images/services/VelImageInput.h"
#include "platform/images/services/VelImageLoader.h"

namespace {

struct Accepted {
  VelImageKind kind;
  std::string_view extension;
};

constexpr std::array accepted{
    Accepted{VelImageKind::Png, "png"},   Accepted{VelImageKind::Jpeg, "jpg"}, Accepted{VelImageKind::Jpeg, "jpeg"},
    Accepted{VelImageKind::Bmp, "bmp"},   Accepted{VelImageKind::Tga, "tga"},  Accepted{VelImageKind::Tiff, "tif"},
    Accepted{VelImageKind::Tiff, "tiff"}, Accepted{VelImageKind::Hdr, "hdr"},  Accepted{VelImageKind::Exr, "exr"},
};

bool IsAccepted(const VelImageInput& iInput) {
  return std::any_of(accepted.begin(), accepted.end(), [&](const Accepted& iAccepted) {
    return iAccepted.kind == iInput.GetKind() && iAccepted.extension == iInput.GetExtension();
  });
}

HRESULT Encode(const VelPixelImage& iImage, std::string& oBytes, std::string_view& oFormat, std::string& oCause) {
  const bool isFloat = iImage.GetFormat() == VelPixelImage::Format::Rgba32F;
  oFormat = isFloat ? "exr" : "png";
  return isFloat ? VelExrEncoder::Encode(iImage, oBytes, oCause) : VelPngEncoder::Encode(iImage, oBytes, oCause);
}

}  // namespace

HRESULT VelTextureConversion::Convert(const std::string& iPath, const VelDrawingOptions& iOptions, std::string& oPath,
                                      std::vector<std::string>& oUnknownGroups, std::string& oCause) {
  VelImageInput input;
  VEL_RETURN_IF_FAILED(input.Open(iPath, oCause));
  if (IsAccepted(input)) return S_FALSE;
  VelConvertedFiles* const files = VelConvertedFiles::OfUser();
  if (files == nullptr) {
    oCause = "cannot be converted: there is no folder for caches; expected XDG_CACHE_HOME or HOME to tell it";
    return E_FAIL;
  }
  const std::string key = input.KeyOf("converted", iOptions);
  for (const std::string_view format : {"png", "exr"}) {
    if (files->Find(key, format, oPath) == S_OK) return S_OK;
  }
  VelPixelImage* const image = VelImageLoader::Load(input, iOptions, oUnknownGroups, oCause);
  if (image == nullptr) return E_FAIL;
  std::string bytes;
  std::string_view format;
  const HRESULT code = Encode(*image, bytes, format, oCause);
  image->Release();
  return SUCCEEDED(code) ? files->Keep(key, format, bytes, oPath, oCause) : code;
}
