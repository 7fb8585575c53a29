// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelExrDecoder.cpp Reads OpenEXR files with the library of the format.
#include "platform/images/decoders/VelExrDecoder.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <new>
#include <span>
#include <stdexcept>
#include <string_view>
#include <vector>

#include <ImfChannelList.h>
#include <ImfFrameBuffer.h>
#include <ImfHeader.h>
#include <ImfIO.h>
#include <ImfInputPart.h>
#include <ImfMultiPartInputFile.h>
#include <ImfPartType.h>
#include <ImfTileDescription.h>

#include "platform/images/decoders/VelAssociatedAlpha.h"
#include "platform/images/decoders/VelCompressionBound.h"
#include "platform/images/decoders/VelExrChannels.h"
#include "platform/images/decoders/VelExrHeaders.h"
#include "platform/images/decoders/VelImageSourceCursor.h"
#include "platform/images/pixels/VelPixelBuffer.h"

namespace {

constexpr std::size_t pixelSize = 4 * sizeof(float);

/// Of what the library unpacks at a time, all channels of the file included.
constexpr std::uint64_t mostUnitBytes = std::uint64_t{256} * 1024 * 1024;

/// Rows that are read and finished together, while they are in the cache.
constexpr int rowsAtOnce = 32;

struct Packing {
  Imf::Compression compression;
  std::uint64_t ratio;  ///< The most bytes that it packs into one.
  std::uint64_t rows;   ///< That are packed together.
};

constexpr std::array packings{
    Packing{Imf::NO_COMPRESSION, 1, 1},
    Packing{Imf::RLE_COMPRESSION, 64, 1},
    Packing{Imf::ZIPS_COMPRESSION, VelCompressionBound::deflate, 1},
    Packing{Imf::ZIP_COMPRESSION, VelCompressionBound::deflate, 16},
    Packing{Imf::PIZ_COMPRESSION, VelCompressionBound::deflate, 32},
    Packing{Imf::PXR24_COMPRESSION, 2 * VelCompressionBound::deflate, 16},  // A float is cut to 24 bits first.
    Packing{Imf::B44_COMPRESSION, 16, 32},
    Packing{Imf::B44A_COMPRESSION, 16, 32},
    Packing{Imf::DWAA_COMPRESSION, 32 * VelCompressionBound::deflate, 32},  // Deflated are two numbers of 8 x 8.
    Packing{Imf::DWAB_COMPRESSION, 32 * VelCompressionBound::deflate, 256},
};

/// The library's view of a source. It reports by exceptions, as the library wants it.
class Stream final : public Imf::IStream {
 public:
  explicit Stream(VelImageSource& ioSource) : Imf::IStream("image"), cursor_(ioSource) {}

  bool read(char oBytes[], int iCount) override {
    const std::span bytes(oBytes, static_cast<std::size_t>(iCount));
    if (cursor_.Read(std::as_writable_bytes(bytes)) != bytes.size()) throw std::runtime_error("it ends too early");
    return cursor_.Position() < cursor_.Size();
  }

  std::uint64_t tellg() override { return cursor_.Position(); }
  void seekg(std::uint64_t iPosition) override { cursor_.MoveTo(iPosition); }

 private:
  VelImageSourceCursor cursor_;
};

/// @return the first part that is not deep; -1 when there is none
int FindFlatPart(const Imf::MultiPartInputFile& iFile) {
  for (int part = 0; part < iFile.parts(); ++part) {
    const std::string& type = iFile.header(part).type();
    if (type == Imf::SCANLINEIMAGE || type == Imf::TILEDIMAGE) return part;
  }
  return -1;
}

HRESULT ChooseChannels(const Imf::ChannelList& iList, VelExrChannels& oChannels, std::string& oCause) {
  std::vector<std::string> names;
  for (auto channel = iList.begin(); channel != iList.end(); ++channel) names.emplace_back(channel.name());
  VEL_RETURN_IF_FAILED(oChannels.Choose(names, oCause));
  for (const std::string& name : oChannels.names) {
    const Imf::Channel* channel = name.empty() ? nullptr : iList.findChannel(name);
    if (channel == nullptr || (channel->xSampling == 1 && channel->ySampling == 1)) continue;
    oCause = "is an OpenEXR file whose channel " + name + " does not have every pixel";
    return E_FAIL;
  }
  return S_OK;
}

/// @return the bytes of a pixel in the file, of all channels
std::uint64_t StoredPixelSize(const Imf::ChannelList& iList) {
  std::uint64_t size = 0;
  for (auto channel = iList.begin(); channel != iList.end(); ++channel) {
    size += channel.channel().type == Imf::HALF ? 2 : 4;
  }
  return size;
}

/// Checks the claims of a header of a size that is accepted.
HRESULT CheckClaims(const Imf::Header& iHeader, std::uint64_t iWidth, std::uint64_t iHeight, std::uint64_t iFileSize,
                    std::string& oCause) {
  const auto* found = std::find_if(packings.begin(), packings.end(),
                                   [&](const Packing& iKnown) { return iKnown.compression == iHeader.compression(); });
  if (found == packings.end()) {
    oCause = "is an OpenEXR file of an unknown compression";
    return E_FAIL;
  }
  const std::uint64_t stored = StoredPixelSize(iHeader.channels());
  VEL_RETURN_IF_FAILED(VelCompressionBound::Check(iWidth * iHeight * stored, iFileSize, found->ratio, oCause));
  std::uint64_t width = iWidth;
  std::uint64_t rows = found->rows;
  if (iHeader.hasTileDescription()) {
    width = std::max<std::uint64_t>(width, iHeader.tileDescription().xSize);
    rows = iHeader.tileDescription().ySize;
  }
  const std::uint64_t unit = width * rows * std::max<std::uint64_t>(stored, pixelSize);
  if (unit <= mostUnitBytes) return S_OK;
  oCause = "has rows or tiles of " + std::to_string(unit) + " bytes that are packed together; expected at most " +
           std::to_string(mostUnitBytes);
  return E_FAIL;
}

void SetFrameBuffer(Imf::InputPart& ioPart, const VelExrChannels& iChannels, VelPixelBuffer& oImage) {
  const std::size_t rowLength = static_cast<std::size_t>(oImage.GetWidth()) * pixelSize;
  Imf::FrameBuffer buffer;
  for (std::size_t i = 0; i < iChannels.names.size(); ++i) {
    if (iChannels.names[i].empty()) continue;
    const std::byte* first = oImage.Bytes().data() + i * sizeof(float);
    buffer.insert(iChannels.names[i],
                  Imf::Slice::Make(Imf::FLOAT, first, ioPart.header().dataWindow(), pixelSize, rowLength));
  }
  ioPart.setFrameBuffer(buffer);
}

/// Makes the channels that were read the four of a pixel.
void Finish(const VelExrChannels& iChannels, std::span<std::byte> ioPixels) {
  auto* pixel = reinterpret_cast<float*>(ioPixels.data());
  const float* end = pixel + ioPixels.size() / sizeof(float);
  if (iChannels.isGrey) {
    for (float* grey = pixel; grey != end; grey += 4) grey[1] = grey[2] = grey[0];
  }
  if (iChannels.HasAlpha()) {
    VelAssociatedAlpha::Remove(ioPixels);
  } else {
    for (; pixel != end; pixel += 4) pixel[3] = 1.0F;
  }
}

void ReadRows(Imf::InputPart& ioPart, const VelExrChannels& iChannels, VelPixelBuffer& oImage) {
  const int top = ioPart.header().dataWindow().min.y;
  for (int row = 0; row < oImage.GetHeight(); row += rowsAtOnce) {
    const int last = std::min(row + rowsAtOnce, oImage.GetHeight()) - 1;
    ioPart.readPixels(top + row, top + last);
    for (int i = row; i <= last; ++i) Finish(iChannels, oImage.Row(i));
  }
}

HRESULT DecodePart(Imf::MultiPartInputFile& ioFile, int iPart, std::uint64_t iFileSize, VelPixelBuffer& oImage,
                   std::string& oCause) {
  const Imf::Header& header = ioFile.header(iPart);
  VelExrChannels channels;
  VEL_RETURN_IF_FAILED(ChooseChannels(header.channels(), channels, oCause));
  const Imath::Box2i& window = header.dataWindow();
  const std::int64_t width = std::int64_t{window.max.x} - window.min.x + 1;
  const std::int64_t height = std::int64_t{window.max.y} - window.min.y + 1;
  VEL_RETURN_IF_FAILED(
      CheckClaims(header, static_cast<std::uint64_t>(width), static_cast<std::uint64_t>(height), iFileSize, oCause));
  if (!ioFile.partComplete(iPart)) {
    oCause = "is a damaged OpenEXR file: it is not complete";
    return E_FAIL;
  }
  VEL_RETURN_IF_FAILED(oImage.Allocate(width, height, VelPixelImage::Format::Rgba32F, oCause));
  Imf::InputPart part(ioFile, iPart);
  SetFrameBuffer(part, channels, oImage);
  ReadRows(part, channels, oImage);
  oImage.SetColorSpace(VelPixelImage::ColorSpace::Linear);
  return S_OK;
}

/// @return what an exception tells, without the file that the library names before it
std::string CauseOf(const std::exception& iException) {
  constexpr std::string_view name = "\"image\". ";
  const std::string_view text = iException.what();
  const std::size_t found = text.rfind(name);
  return std::string(found == std::string_view::npos ? text : text.substr(found + name.size()));
}

HRESULT DecodeInto(VelImageSource& ioSource, VelPixelBuffer& oImage, std::string& oCause) {
  Imf::Header::setMaxImageSize(VelPixelImage::largestSide, VelPixelImage::largestSide);
  Imf::Header::setMaxTileSize(VelPixelImage::largestSide, VelPixelImage::largestSide);
  VEL_RETURN_IF_FAILED(VelExrHeaders::Check(ioSource, oCause));
  Stream stream(ioSource);
  // No threads, and no search of a damaged file for what might be its rows.
  Imf::MultiPartInputFile file(stream, 0, false);
  const int part = FindFlatPart(file);
  if (part >= 0) return DecodePart(file, part, ioSource.Size(), oImage, oCause);
  oCause = "is an OpenEXR file of deep images alone; expected one that is flat";
  return E_FAIL;
}

}  // namespace

HRESULT VelExrDecoder::Decode(VelImageSource& ioSource, VelPixelBuffer& oImage, std::string& oCause) {
  HRESULT result = E_FAIL;
  try {
    result = DecodeInto(ioSource, oImage, oCause);
  } catch (const std::bad_alloc&) {
    oCause = "needs more memory than there is";
  } catch (const std::exception& exception) {
    oCause = "is a damaged OpenEXR file: " + CauseOf(exception);
  } catch (...) {
    oCause = "is a damaged OpenEXR file";
  }
  if (FAILED(result)) oImage = VelPixelBuffer();
  return result;
}
