// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageWorkerOrder.cpp Reads requests, and gives each to the one who knows the format.
#include "platform/images/worker/VelImageWorkerOrder.h"

#include <cstddef>
#include <cstring>

#include "platform/images/drawing/VelImageWorkerMessage.h"
#include "platform/images/worker/VelHdrDecoding.h"
#include "platform/images/worker/VelPixbufDecoding.h"
#include "platform/images/worker/VelSvgDrawing.h"
#include "platform/images/worker/VelWebPDecoding.h"
#include "platform/images/worker/VelWholeFile.h"

namespace {

using Request = VelImageWorkerMessage::Request;

HRESULT Refuse(const char* iCause, std::string& oCause) {
  oCause = iCause;
  return E_INVALIDARG;
}

/// @param[in] iNames each ended by a NUL
std::vector<std::string> Split(std::string_view iNames) {
  std::vector<std::string> names;
  while (!iNames.empty()) {
    const std::size_t length = iNames.find('\0');
    names.emplace_back(iNames.substr(0, length));
    iNames.remove_prefix(length + 1);
  }
  return names;
}

}  // namespace

HRESULT VelImageWorkerOrder::Read(std::string_view iMessage, VelImageWorkerOrder& oOrder, std::string& oCause) {
  oOrder = {};
  Request request;
  if (iMessage.size() < sizeof request) return Refuse("was asked for by a message that is too short", oCause);
  std::memcpy(&request, iMessage.data(), sizeof request);
  oOrder.identifier = request.identifier;
  if (request.version != VelImageWorkerMessage::version) {
    return Refuse("was asked for in another version of the messages", oCause);
  }
  const std::string_view text = iMessage.substr(sizeof request);
  if (request.textLength != text.size() || text.size() > VelImageWorkerMessage::largestText) {
    return Refuse("was asked for by a message of a wrong length", oCause);
  }
  if (!text.empty() && text.back() != '\0') return Refuse("was asked for with a name that has no end", oCause);
  oOrder.kind = static_cast<VelImageKind>(request.kind);
  oOrder.dpi = request.dpi;
  oOrder.groups = Split(text);
  return S_OK;
}

HRESULT VelImageWorkerOrder::Carry(VelImageSource& ioSource, VelWorkerPicture& oPicture,
                                   std::vector<std::string>& oUnknown, std::string& oCause) const {
  oUnknown.clear();
  if (kind == VelImageKind::Svg) return VelSvgDrawing::Draw(ioSource, dpi, groups, oPicture, oUnknown, oCause);
  std::string file;
  VEL_RETURN_IF_FAILED(VelWholeFile::Read(ioSource, VelWholeFile::mostBytes, file, oCause));
  if (kind == VelImageKind::WebP) return VelWebPDecoding::Decode(file, oPicture, oCause);
  if (kind == VelImageKind::Hdr) return VelHdrDecoding::Decode(file, oPicture, oCause);
  return VelPixbufDecoding::Decode(kind, file, oPicture, oCause);
}
