// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSvgText.cpp Unpacks by zlib, no further than a text may be long.
#include "platform/images/worker/VelSvgText.h"

#include <zlib.h>

#include <algorithm>
#include <memory>
#include <string_view>
#include <utility>

#include "platform/images/worker/VelWholeFile.h"

namespace {

constexpr std::string_view packedMark = "\x1F\x8B";
constexpr int onlyGzip = 16;

HRESULT RefuseDamage(std::string& oCause) {
  oCause = "is a damaged or incomplete gzip file";
  return E_FAIL;
}

HRESULT RefuseLength(std::string& oCause) {
  oCause = "unpacks to more than " + std::to_string(VelSvgText::mostBytes) + " bytes";
  return E_FAIL;
}

/// Makes room for what is to come: as much again as there is, and one byte more than a text may have.
void Grow(std::string& ioText) {
  constexpr std::size_t least = std::size_t{64} * 1024;
  ioText.resize(std::min(std::max(2 * ioText.size(), least), VelSvgText::mostBytes + 1));
}

HRESULT Unpack(std::string& ioPacked, std::string& oText, std::string& oCause) {
  z_stream stream{};
  if (::inflateInit2(&stream, MAX_WBITS + onlyGzip) != Z_OK) return RefuseDamage(oCause);
  const std::unique_ptr<z_stream, decltype(&::inflateEnd)> closing(&stream, &::inflateEnd);
  stream.next_in = reinterpret_cast<Bytef*>(ioPacked.data());
  stream.avail_in = static_cast<uInt>(ioPacked.size());
  oText.clear();
  int result = Z_OK;
  std::size_t length = 0;
  while (result == Z_OK) {
    if (length > VelSvgText::mostBytes) return RefuseLength(oCause);
    if (length == oText.size()) Grow(oText);
    stream.next_out = reinterpret_cast<Bytef*>(oText.data() + length);
    stream.avail_out = static_cast<uInt>(oText.size() - length);
    result = ::inflate(&stream, Z_NO_FLUSH);
    length = oText.size() - stream.avail_out;
  }
  oText.resize(length);
  if (length > VelSvgText::mostBytes) return RefuseLength(oCause);
  return result == Z_STREAM_END && stream.avail_in == 0 ? S_OK : RefuseDamage(oCause);
}

}  // namespace

HRESULT VelSvgText::Read(VelImageSource& ioSource, std::string& oText, std::string& oCause) {
  VEL_RETURN_IF_FAILED(VelWholeFile::Read(ioSource, mostBytes, oText, oCause));
  if (!oText.starts_with(packedMark)) return S_OK;
  std::string packed = std::move(oText);
  return Unpack(packed, oText, oCause);
}
