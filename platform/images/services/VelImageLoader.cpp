// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageLoader.cpp Looks into the cache, then decodes here or in the helper program.
#include "platform/images/services/VelImageLoader.h"

#include "platform/images/decoders/VelImageDecoders.h"
#include "platform/images/drawing/VelImageWorker.h"
#include "platform/images/pixels/VelImageSource.h"
#include "platform/images/pixels/VelPixelBuffer.h"
#include "platform/images/services/VelImageInput.h"
#include "platform/images/services/VelPixelCache.h"

namespace {

HRESULT Decode(const VelImageInput& iInput, const VelDrawingOptions& iOptions, VelPixelBuffer& oPixels,
               std::vector<std::string>& oUnknownGroups, std::string& oCause) {
  if (!CanDecode(iInput.GetKind())) {
    return VelImageWorker::Draw(iInput.GetKind(), iInput.GetFile(), iOptions.groups, iOptions.dpi, oPixels,
                                oUnknownGroups, oCause);
  }
  VelFileImageSource source(iInput.GetFile());
  return DecodeImage(iInput.GetKind(), source, oPixels, oCause);
}

}  // namespace

VelPixelImage* VelImageLoader::Load(const VelImageInput& iInput, const VelDrawingOptions& iOptions,
                                    std::vector<std::string>& oUnknownGroups, std::string& oCause) {
  VelPixelCache& cache = VelPixelCache::OfProcess();
  const std::string key = iInput.KeyOf("pixels", iOptions);
  if (VelPixelImage* image = cache.Find(key)) return image;
  VelPixelBuffer pixels;
  if (FAILED(Decode(iInput, iOptions, pixels, oUnknownGroups, oCause))) return nullptr;
  VelPixelImage* image = pixels.TakeImage();
  if (image != nullptr) cache.Keep(key, *image);
  return image;
}
