// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelPngEncoder.cpp Writes PNG files with libpng.
#include "platform/images/encoders/VelPngEncoder.h"

#include <algorithm>
#include <array>
#include <csetjmp>
#include <cstddef>
#include <cstring>

#include <png.h>

#include "platform/images/encoders/VelPixelView.h"

namespace {

using ColorSpace = VelPixelImage::ColorSpace;

/// What the functions that libpng calls work on. libpng leaves them by longjmp, past everything between its caller and
/// itself: so no function there has an object that wants to be destroyed.
struct Writing {
  std::string* bytes;
  std::array<char, 128> fault;
};

[[noreturn]] void OnError(png_structp ioPng, png_const_charp iMessage) {
  auto* writing = static_cast<Writing*>(png_get_error_ptr(ioPng));
  const std::size_t length = std::min(std::strlen(iMessage), writing->fault.size() - 1);
  std::memcpy(writing->fault.data(), iMessage, length);
  writing->fault[length] = '\0';
  png_longjmp(ioPng, 1);
}

void OnWarning(png_structp, png_const_charp) {}

bool Append(std::string& ioBytes, png_const_bytep iBytes, std::size_t iCount) noexcept {
  try {
    ioBytes.append(reinterpret_cast<const char*>(iBytes), iCount);
    return true;
  } catch (...) {
    return false;
  }
}

void OnWrite(png_structp ioPng, png_bytep iBytes, std::size_t iCount) {
  auto* writing = static_cast<Writing*>(png_get_io_ptr(ioPng));
  if (!Append(*writing->bytes, iBytes, iCount)) png_error(ioPng, "out of memory");
}

void OnFlush(png_structp) {}

/// The two structures of libpng, freed together.
class Structures {
 public:
  explicit Structures(Writing& ioWriting)
      : png_(png_create_write_struct(PNG_LIBPNG_VER_STRING, &ioWriting, OnError, OnWarning)),
        info_(png_ == nullptr ? nullptr : png_create_info_struct(png_)) {}
  ~Structures() { png_destroy_write_struct(&png_, &info_); }
  Structures(const Structures&) = delete;
  Structures& operator=(const Structures&) = delete;

  bool IsReady() const noexcept { return info_ != nullptr; }
  png_structp Png() const noexcept { return png_; }
  png_infop Info() const noexcept { return info_; }

 private:
  png_structp png_;
  png_infop info_;
};

bool Write(png_structp ioPng, png_infop ioInfo, Writing* ioWriting, const VelPixelView* iView) {
  if (setjmp(png_jmpbuf(ioPng)) != 0) return false;
  const auto width = static_cast<png_uint_32>(iView->width);
  const auto height = static_cast<png_uint_32>(iView->height);
  png_set_write_fn(ioPng, ioWriting, OnWrite, OnFlush);
  png_set_compression_level(ioPng, 1);
  png_set_filter(ioPng, PNG_FILTER_TYPE_BASE, PNG_FILTER_UP);
  png_set_IHDR(ioPng, ioInfo, width, height, 8, PNG_COLOR_TYPE_RGB_ALPHA, PNG_INTERLACE_NONE,
               PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
  if (iView->colorSpace == ColorSpace::Srgb) png_set_sRGB(ioPng, ioInfo, PNG_sRGB_INTENT_PERCEPTUAL);
  if (iView->colorSpace == ColorSpace::Linear) png_set_gAMA(ioPng, ioInfo, 1.0);
  png_write_info(ioPng, ioInfo);
  const auto* pixels = reinterpret_cast<png_const_bytep>(iView->pixels.data());
  for (png_uint_32 row = 0; row < height; ++row) png_write_row(ioPng, pixels + std::size_t{4} * width * row);
  png_write_end(ioPng, ioInfo);
  return true;
}

HRESULT Encode(const VelPixelView& iView, std::string& oBytes, std::string& oCause) {
  oBytes.clear();
  if (iView.pixels.empty() || iView.format != VelPixelImage::Format::Rgba8) {
    oCause = iView.pixels.empty() ? "has no pixels" : "has pixels of floats, which a PNG file does not take";
    return E_FAIL;
  }
  Writing writing{&oBytes, {}};
  const Structures structures(writing);
  if (structures.IsReady() && Write(structures.Png(), structures.Info(), &writing, &iView)) return S_OK;
  oBytes.clear();
  oCause =
      std::string("is not written as a PNG file: ") + (structures.IsReady() ? writing.fault.data() : "out of memory");
  return E_FAIL;
}

}  // namespace

HRESULT VelPngEncoder::Encode(const VelPixelBuffer& iImage, std::string& oBytes, std::string& oCause) {
  return ::Encode(VelPixelView::Of(iImage), oBytes, oCause);
}

HRESULT VelPngEncoder::Encode(const VelPixelImage& iImage, std::string& oBytes, std::string& oCause) {
  return ::Encode(VelPixelView::Of(iImage), oBytes, oCause);
}
