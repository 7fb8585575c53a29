// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageWorkerReply.cpp Checks each figure of a reply before it is used.
#include "platform/images/drawing/VelImageWorkerReply.h"

#include <algorithm>
#include <cstring>
#include <string_view>
#include <type_traits>
#include <unordered_set>

#include "platform/base/system/VelSystemSharedBytes.h"

namespace {

using VelImageWorkerMessage::Reply;
using VelImageWorkerMessage::Status;

static_assert(std::is_trivially_copyable_v<Reply>);

HRESULT Fail(std::string iText, std::string& oCause) {
  oCause = std::move(iText);
  return E_FAIL;
}

bool IsFormat(std::uint32_t iNumber) noexcept {
  return iNumber == static_cast<std::uint32_t>(VelPixelImage::Format::Rgba8) ||
         iNumber == static_cast<std::uint32_t>(VelPixelImage::Format::Rgba32F);
}

bool IsColorSpace(std::uint32_t iNumber) noexcept {
  return iNumber <= static_cast<std::uint32_t>(VelPixelImage::ColorSpace::Linear);
}

}  // namespace

HRESULT VelImageWorkerReply::Parse(const std::string& iMessage, std::string& oCause) {
  if (iMessage.size() < sizeof(Reply)) {
    return Fail("sent " + std::to_string(iMessage.size()) + " bytes, where a reply has at least " +
                    std::to_string(sizeof(Reply)),
                oCause);
  }
  std::memcpy(&record_, iMessage.data(), sizeof(Reply));
  text_ = iMessage.substr(sizeof(Reply));
  if (record_.version != VelImageWorkerMessage::version) {
    return Fail("speaks version " + std::to_string(record_.version) + " where " +
                    std::to_string(VelImageWorkerMessage::version) + " is spoken here",
                oCause);
  }
  if (record_.status > static_cast<std::uint32_t>(Status::Refused)) {
    return Fail("sent the unknown status " + std::to_string(record_.status), oCause);
  }
  const std::size_t largest = IsRefusal() ? VelImageWorkerMessage::largestCause : VelImageWorkerMessage::largestText;
  if (record_.textLength == text_.size() && text_.size() <= largest) return S_OK;
  return Fail("sent a text of " + std::to_string(text_.size()) + " bytes where it told " +
                  std::to_string(record_.textLength) + ", and at most " + std::to_string(largest) + " are expected",
              oCause);
}

bool VelImageWorkerReply::IsRefusal() const noexcept {
  return record_.status == static_cast<std::uint32_t>(Status::Refused);
}

std::string VelImageWorkerReply::GetRefusal() const {
  if (text_.empty()) return "is refused without a reason";
  std::string cause = text_;
  std::ranges::replace_if(
      cause,
      [](char iByte) {
        const auto code = static_cast<unsigned char>(iByte);
        return code < 0x20 || code == 0x7F;
      },
      ' ');
  return cause;
}

HRESULT VelImageWorkerReply::TakeImage(VelSystemDescriptor iMemory, VelPixelBuffer& oImage, std::string& oCause) const {
  if (!iMemory.IsOpen()) return Fail("sent no memory with its picture", oCause);
  if (!IsFormat(record_.format)) return Fail("sent the unknown format " + std::to_string(record_.format), oCause);
  if (!IsColorSpace(record_.colorSpace)) {
    return Fail("sent the unknown colour space " + std::to_string(record_.colorSpace), oCause);
  }
  const auto format = static_cast<VelPixelImage::Format>(record_.format);
  const std::size_t size = VelPixelImage::ByteCount(record_.width, record_.height, format);
  if (size == 0) {
    return Fail("sent a picture of " + std::to_string(record_.width) + " x " + std::to_string(record_.height) +
                    " pixels, which is no size of an image",
                oCause);
  }
  VelSystemSharedBytes memory;
  std::string cause;
  if (FAILED(VelSystemSharedBytes::Map(iMemory.Release(), size, memory, cause))) {
    return Fail("sent a picture whose shared memory " + cause, oCause);
  }
  if (FAILED(oImage.Allocate(record_.width, record_.height, format, cause))) {
    return Fail("sent a picture that " + cause, oCause);
  }
  std::ranges::copy(memory.Bytes(), oImage.Bytes().begin());
  oImage.SetColorSpace(static_cast<VelPixelImage::ColorSpace>(record_.colorSpace));
  return S_OK;
}

HRESULT VelImageWorkerReply::TakeUnknownGroups(const std::vector<std::string>& iAsked,
                                               std::vector<std::string>& oUnknown, std::string& oCause) const {
  if (!text_.empty() && text_.back() != '\0') return Fail("sent names of groups whose last one has no end", oCause);
  // What was taken is no longer expected, so that a list of many names, or of one many times, takes no long time.
  std::unordered_set<std::string_view> expected(iAsked.begin(), iAsked.end());
  std::vector<std::string> unknown;
  for (std::size_t begin = 0; begin < text_.size();) {
    const std::size_t end = text_.find('\0', begin);
    const std::string_view name = std::string_view(text_).substr(begin, end - begin);
    if (expected.erase(name) != 0) unknown.emplace_back(name);
    begin = end + 1;
  }
  oUnknown = std::move(unknown);
  return S_OK;
}
