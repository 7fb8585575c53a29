// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelWebPDecoding.cpp Decodes by libwebp, into the place where the pixels stay.
#include "platform/images/worker/VelWebPDecoding.h"

#include <webp/decode.h>
#include <webp/demux.h>

#include <cstddef>
#include <cstdint>
#include <memory>

#include "platform/images/worker/VelWorkerPicture.h"

namespace {

using Demuxer = std::unique_ptr<WebPDemuxer, decltype(&WebPDemuxDelete)>;

HRESULT RefuseDamage(std::string& oCause) {
  oCause = "is a damaged or incomplete WebP file";
  return E_FAIL;
}

HRESULT DecodeFrame(const WebPIterator& iFrame, VelWorkerPicture& ioPicture, std::string& oCause) {
  const bool isInside = iFrame.x_offset >= 0 && iFrame.y_offset >= 0 &&
                        iFrame.x_offset + iFrame.width <= ioPicture.GetWidth() &&
                        iFrame.y_offset + iFrame.height <= ioPicture.GetHeight();
  if (!isInside || iFrame.complete == 0) return RefuseDamage(oCause);
  const std::size_t stride = 4 * static_cast<std::size_t>(ioPicture.GetWidth());
  const auto bytes = ioPicture.Bytes().subspan(static_cast<std::size_t>(iFrame.y_offset) * stride +
                                               4 * static_cast<std::size_t>(iFrame.x_offset));
  const std::uint8_t* decoded =
      WebPDecodeRGBAInto(iFrame.fragment.bytes, iFrame.fragment.size, reinterpret_cast<std::uint8_t*>(bytes.data()),
                         bytes.size(), static_cast<int>(stride));
  return decoded != nullptr ? S_OK : RefuseDamage(oCause);
}

}  // namespace

HRESULT VelWebPDecoding::Decode(std::string_view iFile, VelWorkerPicture& oPicture, std::string& oCause) {
  const WebPData data{reinterpret_cast<const std::uint8_t*>(iFile.data()), iFile.size()};
  const Demuxer demuxer(WebPDemux(&data), &WebPDemuxDelete);
  if (demuxer == nullptr) return RefuseDamage(oCause);
  VEL_RETURN_IF_FAILED(oPicture.Allocate(WebPDemuxGetI(demuxer.get(), WEBP_FF_CANVAS_WIDTH),
                                         WebPDemuxGetI(demuxer.get(), WEBP_FF_CANVAS_HEIGHT),
                                         VelPixelImage::Format::Rgba8, oCause));
  WebPIterator frame{};
  if (WebPDemuxGetFrame(demuxer.get(), 1, &frame) == 0) return RefuseDamage(oCause);
  const HRESULT code = DecodeFrame(frame, oPicture, oCause);
  WebPDemuxReleaseIterator(&frame);
  return code;
}
