// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageDecoders.cpp The table of the decoders.
#include "platform/images/decoders/VelImageDecoders.h"

#include <algorithm>
#include <array>

#include "platform/images/decoders/VelExrDecoder.h"
#include "platform/images/decoders/VelJpegDecoder.h"
#include "platform/images/decoders/VelPngDecoder.h"
#include "platform/images/decoders/VelTiffDecoder.h"
#include "platform/images/pixels/VelPixelBuffer.h"

namespace {

struct Decoder {
  VelImageKind kind;
  HRESULT (*decode)(VelImageSource& ioSource, VelPixelBuffer& oImage, std::string& oCause);
};

constexpr std::array decoders{
    Decoder{VelImageKind::Png, VelPngDecoder::Decode},
    Decoder{VelImageKind::Jpeg, VelJpegDecoder::Decode},
    Decoder{VelImageKind::Tiff, VelTiffDecoder::Decode},
    Decoder{VelImageKind::Exr, VelExrDecoder::Decode},
};

const Decoder* Find(VelImageKind iKind) noexcept {
  const auto* found =
      std::find_if(decoders.begin(), decoders.end(), [=](const Decoder& iKnown) { return iKnown.kind == iKind; });
  return found == decoders.end() ? nullptr : found;
}

}  // namespace

bool CanDecode(VelImageKind iKind) noexcept { return Find(iKind) != nullptr; }

HRESULT DecodeImage(VelImageKind iKind, VelImageSource& ioSource, VelPixelBuffer& oImage, std::string& oCause) {
  const Decoder* decoder = Find(iKind);
  if (decoder != nullptr) return decoder->decode(ioSource, oImage, oCause);
  oImage = VelPixelBuffer();
  oCause = std::string("is a file of the kind ") + NameOfImageKind(iKind) + ", which is not decoded in this process";
  return E_FAIL;
}
