// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelJpegDecoder.cpp Reads JPEG files with libjpeg-turbo.
#include "platform/images/decoders/VelJpegDecoder.h"

#include <array>
#include <csetjmp>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <memory>
#include <span>

#include <jpeglib.h>

#include <jerror.h>

#include "platform/images/decoders/VelCompressionBound.h"
#include "platform/images/decoders/VelJpegMarkers.h"
#include "platform/images/decoders/VelPixelOrientation.h"
#include "platform/images/pixels/VelImageSource.h"
#include "platform/images/pixels/VelPixelBuffer.h"

namespace {

constexpr int mostScans = 64;

/// For the coefficients of progressive files, which are kept for the whole image: the largest in three colours fits.
constexpr long mostCoefficientBytes = long{512} * 1024 * 1024;

/// No block is written in less than a bit, and a byte of the file is thus 8 blocks of 64 samples at most.
constexpr std::uint64_t samplesOfByte = std::uint64_t{8} * DCTSIZE2;

/// Everything that the library works on, in one place and without anything to be destroyed: the library leaves the
/// functions that it calls by longjmp.
struct Reading {
  jpeg_decompress_struct jpeg;
  jpeg_error_mgr errors;
  jpeg_source_mgr input;
  jpeg_progress_mgr progress;
  std::jmp_buf onError;
  VelImageSource* source;
  std::uint64_t position;
  std::array<char, JMSG_LENGTH_MAX> fault;
  std::array<std::byte, 65536> buffer;
};

Reading& ReadingOf(j_common_ptr iJpeg) { return *static_cast<Reading*>(iJpeg->client_data); }
Reading& ReadingOf(j_decompress_ptr iJpeg) { return *static_cast<Reading*>(iJpeg->client_data); }

[[noreturn]] void OnError(j_common_ptr ioJpeg) {
  Reading& reading = ReadingOf(ioJpeg);
  reading.errors.format_message(ioJpeg, reading.fault.data());
  std::longjmp(reading.onError, 1);
}

/// Levels below 0 are warnings: the library would go on and make something up.
void OnMessage(j_common_ptr ioJpeg, int iLevel) {
  if (iLevel < 0) OnError(ioJpeg);
}

void OnOutput(j_common_ptr) {}

void OnProgress(j_common_ptr ioJpeg) {
  Reading& reading = ReadingOf(ioJpeg);
  if (reading.jpeg.input_scan_number <= mostScans) return;
  std::snprintf(reading.fault.data(), reading.fault.size(), "it has more than %d scans", mostScans);
  std::longjmp(reading.onError, 1);
}

void OnSourceBegin(j_decompress_ptr) {}
void OnSourceEnd(j_decompress_ptr) {}

boolean OnSourceRead(j_decompress_ptr ioJpeg) {
  Reading& reading = ReadingOf(ioJpeg);
  const std::size_t count = reading.source->ReadAt(reading.position, reading.buffer);
  if (count == 0) ERREXIT(ioJpeg, JERR_INPUT_EOF);
  reading.position += count;
  reading.input.next_input_byte = reinterpret_cast<const JOCTET*>(reading.buffer.data());
  reading.input.bytes_in_buffer = count;
  return TRUE;
}

void OnSourceSkip(j_decompress_ptr ioJpeg, long iCount) {
  if (iCount <= 0) return;
  Reading& reading = ReadingOf(ioJpeg);
  const auto count = static_cast<std::size_t>(iCount);
  const std::size_t inBuffer = count < reading.input.bytes_in_buffer ? count : reading.input.bytes_in_buffer;
  reading.input.next_input_byte += inBuffer;
  reading.input.bytes_in_buffer -= inBuffer;
  reading.position += count - inBuffer;
}

void Prepare(VelImageSource& ioSource, Reading& oReading) {
  oReading.source = &ioSource;
  oReading.jpeg.err = jpeg_std_error(&oReading.errors);
  oReading.jpeg.client_data = &oReading;
  oReading.errors.error_exit = OnError;
  oReading.errors.emit_message = OnMessage;
  oReading.errors.output_message = OnOutput;
  oReading.input.init_source = OnSourceBegin;
  oReading.input.fill_input_buffer = OnSourceRead;
  oReading.input.skip_input_data = OnSourceSkip;
  oReading.input.resync_to_restart = jpeg_resync_to_restart;
  oReading.input.term_source = OnSourceEnd;
  oReading.progress.progress_monitor = OnProgress;
}

bool ReadHeader(Reading* ioReading) {
  if (setjmp(ioReading->onError) != 0) return false;
  jpeg_decompress_struct* jpeg = &ioReading->jpeg;
  jpeg_create_decompress(jpeg);
  jpeg->src = &ioReading->input;
  jpeg->progress = &ioReading->progress;
  jpeg->mem->max_memory_to_use = mostCoefficientBytes;
  return jpeg_read_header(jpeg, TRUE) == JPEG_HEADER_OK;
}

/// The inks of Adobe's programs are written as what they leave of the light, all others as what they take.
void ConvertInks(bool iIsInverted, JSAMPROW ioRow, std::size_t iWidth) {
  const unsigned flip = iIsInverted ? 0 : 255;
  for (std::size_t i = 0; i < iWidth; ++i, ioRow += 4) {
    const unsigned black = ioRow[3] ^ flip;
    for (std::size_t k = 0; k < 3; ++k) ioRow[k] = static_cast<JSAMPLE>(((ioRow[k] ^ flip) * black + 127) / 255);
    ioRow[3] = 255;
  }
}

/// @param[in] iPixels room for all rows of four bytes a pixel
bool ReadRows(Reading* ioReading, JSAMPROW iPixels) {
  if (setjmp(ioReading->onError) != 0) return false;
  jpeg_decompress_struct* jpeg = &ioReading->jpeg;
  const bool isPrint = jpeg->num_components == 4;
  jpeg->out_color_space = isPrint ? JCS_CMYK : JCS_EXT_RGBA;
  jpeg_start_decompress(jpeg);
  const std::size_t rowLength = std::size_t{4} * jpeg->output_width;
  while (jpeg->output_scanline < jpeg->output_height) {
    JSAMPROW row = iPixels + jpeg->output_scanline * rowLength;
    jpeg_read_scanlines(jpeg, &row, 1);
    if (isPrint) ConvertInks(jpeg->saw_Adobe_marker != FALSE, row, jpeg->output_width);
  }
  jpeg_finish_decompress(jpeg);
  return true;
}

/// @return the samples of all components, those of the edge blocks included
std::uint64_t SampleCount(const jpeg_decompress_struct& iJpeg) {
  std::uint64_t blocks = 0;
  for (const jpeg_component_info& component :
       std::span(iJpeg.comp_info, static_cast<std::size_t>(iJpeg.num_components))) {
    blocks += std::uint64_t{component.width_in_blocks} * component.height_in_blocks;
  }
  return blocks * DCTSIZE2;
}

HRESULT Damaged(const Reading& iReading, std::string& oCause) {
  oCause = std::string("is a damaged JPEG file: ") + iReading.fault.data();
  return E_FAIL;
}

HRESULT DecodeWith(Reading& ioReading, VelPixelBuffer& oImage, std::string& oCause) {
  if (!ReadHeader(&ioReading)) return Damaged(ioReading, oCause);
  const VelImageSource& source = *ioReading.source;
  VEL_RETURN_IF_FAILED(VelCompressionBound::Check(SampleCount(ioReading.jpeg), source.Size(), samplesOfByte, oCause));
  VEL_RETURN_IF_FAILED(
      oImage.Allocate(ioReading.jpeg.image_width, ioReading.jpeg.image_height, VelPixelImage::Format::Rgba8, oCause));
  if (!ReadRows(&ioReading, reinterpret_cast<JSAMPROW>(oImage.Bytes().data()))) return Damaged(ioReading, oCause);
  return S_OK;
}

HRESULT DecodeInto(VelImageSource& ioSource, VelPixelBuffer& oImage, std::string& oCause) {
  const auto reading = std::make_unique<Reading>();
  Prepare(ioSource, *reading);
  const HRESULT result = DecodeWith(*reading, oImage, oCause);
  jpeg_destroy_decompress(&reading->jpeg);
  VEL_RETURN_IF_FAILED(result);
  const VelJpegMarkers markers = VelJpegMarkers::Read(ioSource);
  oImage.SetColorSpace(markers.hasColorProfile ? VelPixelImage::ColorSpace::Unknown : VelPixelImage::ColorSpace::Srgb);
  return VelPixelOrientation::Apply(markers.orientation, oImage, oCause);
}

}  // namespace

HRESULT VelJpegDecoder::Decode(VelImageSource& ioSource, VelPixelBuffer& oImage, std::string& oCause) {
  const HRESULT result = DecodeInto(ioSource, oImage, oCause);
  if (FAILED(result)) oImage = VelPixelBuffer();
  return result;
}
