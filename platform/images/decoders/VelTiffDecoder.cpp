// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTiffDecoder.cpp Reads strips and tiles with libtiff.
#include "platform/images/decoders/VelTiffDecoder.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>

#include <tiffio.h>

#include "platform/images/decoders/VelCompressionBound.h"
#include "platform/images/decoders/VelPixelOrientation.h"
#include "platform/images/decoders/VelTiffFile.h"
#include "platform/images/decoders/VelTiffLayout.h"
#include "platform/images/decoders/VelTiffSamples.h"
#include "platform/images/pixels/VelPixelBuffer.h"

namespace {

using Format = VelPixelImage::Format;
using ColorSpace = VelPixelImage::ColorSpace;

/// Of the strips or tiles that are unpacked at a time, one of each plane.
constexpr std::uint64_t mostUnitBytes = std::uint64_t{256} * 1024 * 1024;

/// One reading of the pixels of a page.
class PageReader {
 public:
  PageReader(const VelTiffFile& iFile, const VelTiffLayout& iLayout, VelPixelBuffer& oImage)
      : file_(iFile), layout_(iLayout), image_(oImage), samples_(iLayout) {}

  HRESULT Read(std::string& oCause) {
    if (layout_.colors == VelTiffLayout::Colors::Others) return ReadByLibrary(oCause);
    VEL_RETURN_IF_FAILED(MakeRoom(oCause));
    return layout_.isTiled || layout_.isPlanar ? ReadUnits(oCause) : ReadRows(oCause);
  }

 private:
  std::uint64_t RowsAtOnce() const { return layout_.isTiled || layout_.isPlanar ? layout_.unitHeight : 1; }

  HRESULT MakeRoom(std::string& oCause) {
    const std::uint64_t planeLength = layout_.UnitRowLength() * RowsAtOnce();
    const std::uint64_t length = planeLength * samples_.UsedPlanes().size();
    if (length > mostUnitBytes) {
      oCause = "has strips or tiles of " + std::to_string(length) + " bytes; expected at most " +
               std::to_string(mostUnitBytes);
      return E_FAIL;
    }
    planeLength_ = static_cast<std::size_t>(planeLength);
    unit_.reset(new (std::nothrow) std::byte[static_cast<std::size_t>(length)]);
    if (unit_ != nullptr) return S_OK;
    oCause = "needs more memory than there is";
    return E_FAIL;
  }

  HRESULT ReadRows(std::string& oCause) {
    if (TIFFScanlineSize64(file_.Get()) != planeLength_) return file_.Fail(oCause);
    const VelTiffSamples::Planes planes{unit_.get()};
    const bool isCopy = samples_.IsCopy();
    for (std::uint32_t row = 0; row < layout_.height; ++row) {
      std::byte* pixels = image_.Row(static_cast<int>(row)).data();
      const int result = TIFFReadScanline(file_.Get(), isCopy ? pixels : unit_.get(), row, 0);
      if (result != 1 || !file_.IsSound()) return file_.Fail(oCause);
      if (!isCopy) samples_.Convert(planes, layout_.width, pixels);
    }
    return S_OK;
  }

  HRESULT ReadUnits(std::string& oCause) {
    for (std::uint32_t y = 0; y < layout_.height; y += layout_.unitHeight) {
      const std::uint32_t rows = std::min(layout_.unitHeight, layout_.height - y);
      for (std::uint32_t x = 0; x < layout_.width; x += layout_.unitWidth) {
        if (!ReadUnit(x, y, rows)) return file_.Fail(oCause);
        ConvertUnit(x, y, rows);
      }
    }
    return S_OK;
  }

  /// Tiles are of full height everywhere, the last strip is not.
  bool ReadUnit(std::uint32_t iX, std::uint32_t iY, std::uint32_t iRows) {
    TIFF* file = file_.Get();
    const std::uint64_t rowLength = layout_.UnitRowLength();
    const auto length = static_cast<tmsize_t>(layout_.isTiled ? planeLength_ : rowLength * iRows);
    std::byte* plane = unit_.get();
    for (const std::uint16_t sample : samples_.UsedPlanes()) {
      const tmsize_t count = layout_.isTiled
                                 ? TIFFReadEncodedTile(file, TIFFComputeTile(file, iX, iY, 0, sample), plane, length)
                                 : TIFFReadEncodedStrip(file, TIFFComputeStrip(file, iY, sample), plane, length);
      if (count != length || !file_.IsSound()) return false;
      plane += planeLength_;
    }
    return true;
  }

  void ConvertUnit(std::uint32_t iX, std::uint32_t iY, std::uint32_t iRows) {
    const std::size_t width = std::min(layout_.unitWidth, layout_.width - iX);
    const auto rowLength = static_cast<std::size_t>(layout_.UnitRowLength());
    for (std::uint32_t row = 0; row < iRows; ++row) {
      VelTiffSamples::Planes planes{};
      for (std::size_t i = 0; i < samples_.UsedPlanes().size(); ++i) {
        planes[i] = unit_.get() + i * planeLength_ + row * rowLength;
      }
      std::byte* pixels = image_.Row(static_cast<int>(iY + row)).data() + iX * image_.PixelSize();
      samples_.Convert(planes, width, pixels);
    }
  }

  HRESULT ReadByLibrary(std::string& oCause) {
    static_assert(std::endian::native == std::endian::little, "the library's words are red, green, blue and alpha");
    std::array<char, 1024> fault{};
    TIFFRGBAImage reader{};
    if (TIFFRGBAImageBegin(&reader, file_.Get(), 1, fault.data()) != 1) {
      oCause = std::string("is a TIFF file of a kind that is not read: ") + fault.data();
      return E_FAIL;
    }
    reader.req_orientation = reader.orientation;
    auto* pixels = reinterpret_cast<std::uint32_t*>(image_.Bytes().data());
    const int result = TIFFRGBAImageGet(&reader, pixels, layout_.width, layout_.height);
    TIFFRGBAImageEnd(&reader);
    return result == 1 && file_.IsSound() ? S_OK : file_.Fail(oCause);
  }

  const VelTiffFile& file_;
  const VelTiffLayout& layout_;
  VelPixelBuffer& image_;
  VelTiffSamples samples_;
  std::size_t planeLength_ = 0;
  std::unique_ptr<std::byte[]> unit_;
};

HRESULT DecodeInto(VelImageSource& ioSource, VelPixelBuffer& oImage, std::string& oCause) {
  VelTiffFile file(ioSource);
  VEL_RETURN_IF_FAILED(file.Open(oCause));
  VelTiffLayout layout;
  VEL_RETURN_IF_FAILED(layout.Read(file.Get(), oCause));
  const bool isFloat = layout.sample == VelTiffLayout::Sample::Float;
  const Format format = isFloat ? Format::Rgba32F : Format::Rgba8;
  const bool isOfSize = std::max(layout.width, layout.height) <= VelPixelImage::largestSide;
  // Otherwise it has no pixels that could be counted, and the buffer tells why.
  if (isOfSize) {
    VEL_RETURN_IF_FAILED(VelCompressionBound::Check(layout.UnpackedLength(), ioSource.Size(), layout.ratio, oCause));
  }
  VEL_RETURN_IF_FAILED(oImage.Allocate(layout.width, layout.height, format, oCause));
  file.ReadStrictly();
  VEL_RETURN_IF_FAILED(PageReader(file, layout, oImage).Read(oCause));
  const bool isUnknown = !isFloat && layout.hasColorProfile;
  oImage.SetColorSpace(isUnknown ? ColorSpace::Unknown : isFloat ? ColorSpace::Linear : ColorSpace::Srgb);
  return VelPixelOrientation::Apply(layout.orientation, oImage, oCause);
}

}  // namespace

HRESULT VelTiffDecoder::Decode(VelImageSource& ioSource, VelPixelBuffer& oImage, std::string& oCause) {
  const HRESULT result = DecodeInto(ioSource, oImage, oCause);
  if (FAILED(result)) oImage = VelPixelBuffer();
  return result;
}
