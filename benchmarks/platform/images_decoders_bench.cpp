// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file images_decoders_bench.cpp What decoding an image costs, beside the library of its format alone.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <span>
#include <string>

#include <benchmark/benchmark.h>

#include <ImfFrameBuffer.h>
#include <ImfIO.h>
#include <ImfInputFile.h>
#include <jpeglib.h>
#include <png.h>

#include "platform/images/decoders/VelImageDecoders.h"
#include "platform/images/encoders/VelExrEncoder.h"
#include "platform/images/encoders/VelPngEncoder.h"
#include "platform/images/pixels/VelImageSource.h"
#include "platform/images/pixels/VelPixelBuffer.h"

namespace {

using Format = VelPixelImage::Format;

constexpr int side = 2048;
constexpr std::size_t pixelCount = std::size_t{side} * side;

/// Slopes with some noise: neither a flat image nor one that nothing can pack.
int Sample(std::size_t iPixel, int iComponent) {
  const std::size_t x = iPixel % side;
  const std::size_t y = iPixel / side;
  const std::size_t noise = (iPixel * 2654435761U >> 13U) % 16;
  const std::size_t slopes[] = {x / 8, y / 8, (x + y) / 16, 255 - x / 16};
  return static_cast<int>((slopes[iComponent] + noise) % 256);
}

VelPixelBuffer MakeImage(Format iFormat) {
  VelPixelBuffer image;
  std::string cause;
  if (FAILED(image.Allocate(side, side, iFormat, cause))) return image;
  std::byte* component = image.Bytes().data();
  for (std::size_t i = 0; i < pixelCount * 4; ++i) {
    const int sample = Sample(i / 4, static_cast<int>(i % 4));
    if (iFormat == Format::Rgba8) {
      component[i] = static_cast<std::byte>(sample);
    } else {
      const float value = static_cast<float>(sample + 1) / 256.0F;
      std::memcpy(component + 4 * i, &value, 4);
    }
  }
  return image;
}

std::string MakeJpeg() {
  const VelPixelBuffer image = MakeImage(Format::Rgba8);
  jpeg_compress_struct jpeg{};
  jpeg_error_mgr errors{};
  jpeg.err = jpeg_std_error(&errors);
  jpeg_create_compress(&jpeg);
  unsigned char* bytes = nullptr;
  unsigned long length = 0;
  jpeg_mem_dest(&jpeg, &bytes, &length);
  jpeg.image_width = jpeg.image_height = side;
  jpeg.input_components = 4;
  jpeg.in_color_space = JCS_EXT_RGBA;
  jpeg_set_defaults(&jpeg);
  jpeg_set_quality(&jpeg, 90, TRUE);
  jpeg_start_compress(&jpeg, TRUE);
  while (jpeg.next_scanline < jpeg.image_height) {
    std::byte* pixels = const_cast<std::byte*>(image.Row(static_cast<int>(jpeg.next_scanline)).data());
    auto* row = reinterpret_cast<JSAMPROW>(pixels);
    jpeg_write_scanlines(&jpeg, &row, 1);
  }
  jpeg_finish_compress(&jpeg);
  jpeg_destroy_compress(&jpeg);
  std::string file(reinterpret_cast<const char*>(bytes), length);
  std::free(bytes);
  return file;
}

const std::string& FileOf(VelImageKind iKind) {
  static const std::string png = [] {
    std::string bytes;
    std::string cause;
    static_cast<void>(VelPngEncoder::Encode(MakeImage(Format::Rgba8), bytes, cause));
    return bytes;
  }();
  static const std::string exr = [] {
    std::string bytes;
    std::string cause;
    static_cast<void>(VelExrEncoder::Encode(MakeImage(Format::Rgba32F), bytes, cause));
    return bytes;
  }();
  static const std::string jpeg = MakeJpeg();
  if (iKind == VelImageKind::Png) return png;
  return iKind == VelImageKind::Exr ? exr : jpeg;
}

void Decode(benchmark::State& ioState, VelImageKind iKind) {
  const std::string& file = FileOf(iKind);
  for (auto _ : ioState) {
    VelMemoryImageSource source(std::as_bytes(std::span<const char>(file)));
    VelPixelBuffer image;
    std::string cause;
    if (FAILED(DecodeImage(iKind, source, image, cause))) ioState.SkipWithError(cause.c_str());
    benchmark::DoNotOptimize(image.Bytes().data());
  }
}

struct Input {
  const std::string* bytes;
  std::size_t position;
};

void ReadPngBytes(png_structp ioPng, png_bytep oBytes, std::size_t iCount) {
  auto* input = static_cast<Input*>(png_get_io_ptr(ioPng));
  std::memcpy(oBytes, input->bytes->data() + input->position, iCount);
  input->position += iCount;
}

void LibraryPng(benchmark::State& ioState) {
  const std::string& file = FileOf(VelImageKind::Png);
  for (auto _ : ioState) {
    Input input{&file, 0};
    const auto pixels = std::make_unique<png_byte[]>(pixelCount * 4);
    png_structp png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png_create_info_struct(png);
    png_set_read_fn(png, &input, ReadPngBytes);
    png_read_info(png, info);
    for (std::size_t row = 0; row < side; ++row) png_read_row(png, pixels.get() + row * side * 4, nullptr);
    png_read_end(png, nullptr);
    png_destroy_read_struct(&png, &info, nullptr);
    benchmark::DoNotOptimize(pixels.get());
  }
}

void LibraryJpeg(benchmark::State& ioState) {
  const std::string& file = FileOf(VelImageKind::Jpeg);
  for (auto _ : ioState) {
    const auto pixels = std::make_unique<JSAMPLE[]>(pixelCount * 4);
    jpeg_decompress_struct jpeg{};
    jpeg_error_mgr errors{};
    jpeg.err = jpeg_std_error(&errors);
    jpeg_create_decompress(&jpeg);
    jpeg_mem_src(&jpeg, reinterpret_cast<const unsigned char*>(file.data()), file.size());
    jpeg_read_header(&jpeg, TRUE);
    jpeg.out_color_space = JCS_EXT_RGBA;
    jpeg_start_decompress(&jpeg);
    while (jpeg.output_scanline < jpeg.output_height) {
      JSAMPROW row = pixels.get() + std::size_t{jpeg.output_scanline} * side * 4;
      jpeg_read_scanlines(&jpeg, &row, 1);
    }
    jpeg_finish_decompress(&jpeg);
    jpeg_destroy_decompress(&jpeg);
    benchmark::DoNotOptimize(pixels.get());
  }
}

class ExrInput final : public Imf::IStream {
 public:
  explicit ExrInput(const std::string& iBytes) : Imf::IStream("image"), bytes_(iBytes) {}
  bool read(char oBytes[], int iCount) override {
    std::memcpy(oBytes, bytes_.data() + position_, static_cast<std::size_t>(iCount));
    position_ += static_cast<std::uint64_t>(iCount);
    return position_ < bytes_.size();
  }
  std::uint64_t tellg() override { return position_; }
  void seekg(std::uint64_t iPosition) override { position_ = iPosition; }

 private:
  const std::string& bytes_;
  std::uint64_t position_ = 0;
};

/// Its colours stay multiplied by alpha.
void LibraryExr(benchmark::State& ioState) {
  const std::string& file = FileOf(VelImageKind::Exr);
  for (auto _ : ioState) {
    const auto pixels = std::make_unique<float[]>(pixelCount * 4);
    ExrInput input(file);
    Imf::InputFile exr(input, 0);
    Imf::FrameBuffer buffer;
    const char* names[] = {"R", "G", "B", "A"};
    for (std::size_t i = 0; i < 4; ++i) {
      auto* first = reinterpret_cast<char*>(pixels.get() + i);
      buffer.insert(names[i], Imf::Slice(Imf::FLOAT, first, 16, std::size_t{16} * side));
    }
    exr.setFrameBuffer(buffer);
    exr.readPixels(0, side - 1);
    benchmark::DoNotOptimize(pixels.get());
  }
}

BENCHMARK_CAPTURE(Decode, Png, VelImageKind::Png)->Unit(benchmark::kMillisecond);
BENCHMARK(LibraryPng)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Decode, Jpeg, VelImageKind::Jpeg)->Unit(benchmark::kMillisecond);
BENCHMARK(LibraryJpeg)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Decode, Exr, VelImageKind::Exr)->Unit(benchmark::kMillisecond);
BENCHMARK(LibraryExr)->Unit(benchmark::kMillisecond);

}  // namespace
