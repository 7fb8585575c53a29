// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelPngDecoder.cpp Reads PNG files with libpng.
#include "platform/images/decoders/VelPngDecoder.h"

#include <algorithm>
#include <array>
#include <csetjmp>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <span>

#include <png.h>

#include "platform/images/decoders/VelCompressionBound.h"
#include "platform/images/decoders/VelExifOrientation.h"
#include "platform/images/decoders/VelImageSourceCursor.h"
#include "platform/images/decoders/VelPixelOrientation.h"
#include "platform/images/pixels/VelPixelBuffer.h"

namespace {

using ColorSpace = VelPixelImage::ColorSpace;

constexpr png_alloc_size_t largestChunk = png_alloc_size_t{8} * 1024 * 1024;
constexpr png_uint_32 mostKeptChunks = 64;

// What is told about an image beside its pixels. libpng hands these on unread: their contents are checked and kept by
// it otherwise, at the cost that their author chooses.
constexpr png_byte unreadChunks[] =
    "bKGD\0cHRM\0eXIf\0gAMA\0hIST\0iCCP\0iTXt\0oFFs\0pCAL\0pHYs\0sBIT\0sCAL\0sPLT\0sRGB\0sTER\0tEXt\0tIME\0zTXt";
constexpr int unreadChunkCount = static_cast<int>(sizeof(unreadChunks) / 5);

constexpr std::uint32_t gammaOfSrgb = 45455;
constexpr std::uint32_t gammaTolerance = 5;
constexpr std::uint32_t gammaOfLinear = 100000;

/// What the functions that libpng calls work on. libpng leaves them by longjmp, past everything between its caller and
/// itself: so no function there has an object that wants to be destroyed.
struct Reading {
  VelImageSourceCursor* cursor;
  bool isSrgb;
  bool hasProfile;
  bool hasGamma;
  std::uint32_t gamma;  ///< In 1/100000.
  int orientation;
  std::array<char, 128> fault;
};

[[noreturn]] void OnError(png_structp ioPng, png_const_charp iMessage) {
  auto* reading = static_cast<Reading*>(png_get_error_ptr(ioPng));
  const std::size_t length = std::min(std::strlen(iMessage), reading->fault.size() - 1);
  std::memcpy(reading->fault.data(), iMessage, length);
  reading->fault[length] = '\0';
  png_longjmp(ioPng, 1);
}

void OnWarning(png_structp, png_const_charp) {}

void OnRead(png_structp ioPng, png_bytep oBytes, std::size_t iCount) {
  auto* reading = static_cast<Reading*>(png_get_io_ptr(ioPng));
  if (reading->cursor->Read(std::as_writable_bytes(std::span(oBytes, iCount))) != iCount) {
    png_error(ioPng, "it ends too early");
  }
}

/// Takes what tells of colours and orientation, and lets every other chunk go that an image may be shown without.
int OnChunk(png_structp ioPng, png_unknown_chunkp iChunk) {
  auto* reading = static_cast<Reading*>(png_get_user_chunk_ptr(ioPng));
  const auto isNamed = [iChunk](const char* iName) { return std::memcmp(iChunk->name, iName, 4) == 0; };
  if (isNamed("sRGB")) {
    reading->isSrgb = true;
  } else if (isNamed("iCCP")) {
    reading->hasProfile = true;
  } else if (isNamed("gAMA") && iChunk->size == 4) {
    reading->hasGamma = true;
    reading->gamma = png_get_uint_32(iChunk->data);
  } else if (isNamed("eXIf")) {
    reading->orientation = VelExifOrientation::Read(std::as_bytes(std::span(iChunk->data, iChunk->size)));
  }
  constexpr int isOptional = 0x20;
  return (iChunk->name[0] & isOptional) != 0 ? 1 : 0;
}

ColorSpace ColorSpaceOf(const Reading& iReading) {
  if (iReading.isSrgb) return ColorSpace::Srgb;
  if (iReading.hasProfile) return ColorSpace::Unknown;
  if (!iReading.hasGamma) return ColorSpace::Srgb;
  if (iReading.gamma == gammaOfLinear) return ColorSpace::Linear;
  const bool isSrgb = gammaOfSrgb - gammaTolerance <= iReading.gamma && iReading.gamma <= gammaOfSrgb + gammaTolerance;
  return isSrgb ? ColorSpace::Srgb : ColorSpace::Unknown;
}

/// The two structures of libpng, freed together.
class Structures {
 public:
  explicit Structures(Reading& ioReading)
      : png_(png_create_read_struct(PNG_LIBPNG_VER_STRING, &ioReading, OnError, OnWarning)),
        info_(png_ == nullptr ? nullptr : png_create_info_struct(png_)) {}
  ~Structures() { png_destroy_read_struct(&png_, &info_, nullptr); }
  Structures(const Structures&) = delete;
  Structures& operator=(const Structures&) = delete;

  bool IsReady() const noexcept { return info_ != nullptr; }
  png_structp Png() const noexcept { return png_; }
  png_infop Info() const noexcept { return info_; }

 private:
  png_structp png_;
  png_infop info_;
};

bool ReadHeader(png_structp ioPng, png_infop ioInfo, Reading* ioReading) {
  if (setjmp(png_jmpbuf(ioPng)) != 0) return false;
  png_set_read_fn(ioPng, ioReading, OnRead);
  png_set_crc_action(ioPng, PNG_CRC_ERROR_QUIT, PNG_CRC_ERROR_QUIT);
  // The size is checked by the buffer, whose message names it.
  png_set_user_limits(ioPng, PNG_UINT_31_MAX, PNG_UINT_31_MAX);
  png_set_chunk_malloc_max(ioPng, largestChunk);
  png_set_chunk_cache_max(ioPng, mostKeptChunks);
  png_set_keep_unknown_chunks(ioPng, PNG_HANDLE_CHUNK_NEVER, unreadChunks, unreadChunkCount);
  png_set_read_user_chunk_fn(ioPng, ioReading, OnChunk);
  png_read_info(ioPng, ioInfo);
  return true;
}

/// @param[in] iPixels room for all rows of Rgba8, which an interlaced file fills in several passes
bool ReadRows(png_structp ioPng, png_infop ioInfo, png_bytep iPixels) {
  if (setjmp(png_jmpbuf(ioPng)) != 0) return false;
  png_set_expand(ioPng);
  png_set_scale_16(ioPng);
  png_set_gray_to_rgb(ioPng);
  png_set_add_alpha(ioPng, 0xFF, PNG_FILLER_AFTER);
  const int passes = png_set_interlace_handling(ioPng);
  png_read_update_info(ioPng, ioInfo);
  const std::size_t rowLength = png_get_rowbytes(ioPng, ioInfo);
  const png_uint_32 height = png_get_image_height(ioPng, ioInfo);
  if (rowLength != std::size_t{4} * png_get_image_width(ioPng, ioInfo))
    png_error(ioPng, "its pixels are of no known kind");
  for (int pass = 0; pass < passes; ++pass) {
    for (png_uint_32 row = 0; row < height; ++row) png_read_row(ioPng, iPixels + row * rowLength, nullptr);
  }
  png_read_end(ioPng, ioInfo);
  return true;
}

HRESULT Damaged(const Reading& iReading, std::string& oCause) {
  oCause = std::string("is a damaged PNG file: ") + iReading.fault.data();
  return E_FAIL;
}

HRESULT DecodeInto(VelImageSource& ioSource, VelPixelBuffer& oImage, std::string& oCause) {
  VelImageSourceCursor cursor(ioSource);
  Reading reading{};
  reading.cursor = &cursor;
  reading.orientation = VelExifOrientation::upright;
  const Structures structures(reading);
  if (!structures.IsReady()) {
    oCause = "needs more memory than there is";
    return E_FAIL;
  }
  png_structp png = structures.Png();
  png_infop info = structures.Info();
  if (!ReadHeader(png, info, &reading)) return Damaged(reading, oCause);
  const std::uint64_t height = png_get_image_height(png, info);
  const std::uint64_t unpacked = height * (png_get_rowbytes(png, info) + 1);
  VEL_RETURN_IF_FAILED(VelCompressionBound::Check(unpacked, ioSource.Size(), VelCompressionBound::deflate, oCause));
  VEL_RETURN_IF_FAILED(oImage.Allocate(png_get_image_width(png, info), png_get_image_height(png, info),
                                       VelPixelImage::Format::Rgba8, oCause));
  if (!ReadRows(png, info, reinterpret_cast<png_bytep>(oImage.Bytes().data()))) return Damaged(reading, oCause);
  oImage.SetColorSpace(ColorSpaceOf(reading));
  return VelPixelOrientation::Apply(reading.orientation, oImage, oCause);
}

}  // namespace

HRESULT VelPngDecoder::Decode(VelImageSource& ioSource, VelPixelBuffer& oImage, std::string& oCause) {
  const HRESULT result = DecodeInto(ioSource, oImage, oCause);
  if (FAILED(result)) oImage = VelPixelBuffer();
  return result;
}
