// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelExrEncoder.cpp Writes OpenEXR files with the library of the format.
#include "platform/images/encoders/VelExrEncoder.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <vector>

#include <ImfChannelList.h>
#include <ImfFrameBuffer.h>
#include <ImfHeader.h>
#include <ImfIO.h>
#include <ImfOutputFile.h>

#include "platform/images/encoders/VelPixelView.h"

namespace {

constexpr std::size_t pixelSize = 4 * sizeof(float);

/// The rows that the compression packs together.
constexpr int rowsAtOnce = 16;

/// Writes into a text, also in places that are written already: the table of the rows is filled in last.
class Stream final : public Imf::OStream {
 public:
  explicit Stream(std::string& oBytes) : Imf::OStream("of this image"), bytes_(oBytes) {}

  void write(const char iBytes[], int iCount) override {
    const auto count = static_cast<std::size_t>(iCount);
    if (bytes_.size() < position_ + count) bytes_.resize(position_ + count);
    std::copy_n(iBytes, count, bytes_.begin() + static_cast<std::ptrdiff_t>(position_));
    position_ += count;
  }

  std::uint64_t tellp() override { return position_; }
  void seekp(std::uint64_t iPosition) override { position_ = static_cast<std::size_t>(iPosition); }

 private:
  std::string& bytes_;
  std::size_t position_ = 0;
};

void MultiplyByAlpha(std::vector<float>& ioPixels) {
  for (std::size_t i = 0; i < ioPixels.size(); i += 4) {
    const float alpha = ioPixels[i + 3];
    if (alpha == 0.0F || !std::isfinite(alpha)) continue;
    for (std::size_t k = 0; k < 3; ++k) ioPixels[i + k] *= alpha;
  }
}

/// @param[in] iRows whole rows, the first of them in the given place of the image
void WriteRows(Imf::OutputFile& ioFile, const std::vector<float>& iRows, int iFirst, int iWidth, int iCount) {
  constexpr std::array names{"R", "G", "B", "A"};
  const Imath::Box2i window({0, iFirst}, {iWidth - 1, iFirst + iCount - 1});
  Imf::FrameBuffer buffer;
  for (std::size_t i = 0; i < names.size(); ++i) {
    const std::size_t rowLength = static_cast<std::size_t>(iWidth) * pixelSize;
    buffer.insert(names[i], Imf::Slice::Make(Imf::FLOAT, iRows.data() + i, window, pixelSize, rowLength));
  }
  ioFile.setFrameBuffer(buffer);
  ioFile.writePixels(iCount);
}

void Write(const VelPixelView& iView, std::string& oBytes) {
  Imf::Header header(iView.width, iView.height);
  header.compression() = Imf::ZIP_COMPRESSION;
  for (const char* name : {"R", "G", "B", "A"}) header.channels().insert(name, Imf::Channel(Imf::FLOAT));
  Stream stream(oBytes);
  Imf::OutputFile file(stream, header, 0);
  const auto* pixels = reinterpret_cast<const float*>(iView.pixels.data());
  const std::size_t rowLength = static_cast<std::size_t>(iView.width) * 4;
  std::vector<float> rows;
  for (int row = 0; row < iView.height; row += rowsAtOnce) {
    const int count = std::min(rowsAtOnce, iView.height - row);
    const float* first = pixels + static_cast<std::size_t>(row) * rowLength;
    rows.assign(first, first + static_cast<std::size_t>(count) * rowLength);
    MultiplyByAlpha(rows);
    WriteRows(file, rows, row, iView.width, count);
  }
}

HRESULT Encode(const VelPixelView& iView, std::string& oBytes, std::string& oCause) {
  oBytes.clear();
  if (iView.pixels.empty() || iView.format != VelPixelImage::Format::Rgba32F) {
    oCause = iView.pixels.empty() ? "has no pixels" : "has pixels of bytes, which are written as a PNG file";
    return E_FAIL;
  }
  try {
    Write(iView, oBytes);
    return S_OK;
  } catch (const std::exception& exception) {
    oCause = std::string("is not written as an OpenEXR file: ") + exception.what();
  }
  oBytes.clear();
  return E_FAIL;
}

}  // namespace

HRESULT VelExrEncoder::Encode(const VelPixelBuffer& iImage, std::string& oBytes, std::string& oCause) {
  return ::Encode(VelPixelView::Of(iImage), oBytes, oCause);
}

HRESULT VelExrEncoder::Encode(const VelPixelImage& iImage, std::string& oBytes, std::string& oCause) {
  return ::Encode(VelPixelView::Of(iImage), oBytes, oCause);
}
