// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageWorkerServer.cpp One copy of the program for one file.
#include "platform/images/worker/VelImageWorkerServer.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <vector>

#include "platform/base/system/VelSystemDescriptor.h"
#include "platform/base/system/VelSystemFork.h"
#include "platform/base/system/VelSystemInputFile.h"
#include "platform/base/system/VelSystemSandbox.h"
#include "platform/images/drawing/VelImageWorkerMessage.h"
#include "platform/images/pixels/VelImageSource.h"
#include "platform/images/worker/VelImageWorkerOrder.h"
#include "platform/images/worker/VelWorkerPicture.h"

namespace {

using VelImageWorkerMessage::Reply;
using VelImageWorkerMessage::Status;

constexpr std::uint64_t mebibyte = std::uint64_t{1024} * 1024;
constexpr std::uint64_t mostMemory = 1536 * mebibyte;
constexpr int mostSeconds = 8;
constexpr int sendMilliseconds = 2000;

// A sanitizer takes terabytes of addresses before the first byte is used.
constexpr std::uint64_t memoryLimit = VelSystemSandbox::isSanitized ? 0 : mostMemory;

constexpr VelSystemSandbox::Limits limits{memoryLimit, mostSeconds, 512 * mebibyte, 64};

HRESULT SendReply(VelSystemChannel& ioChannel, Reply& ioReply, std::string_view iText, int iDescriptor,
                  std::string& oCause) {
  ioReply.textLength = static_cast<std::uint32_t>(iText.size());
  return ioChannel.Send(std::as_bytes(std::span(&ioReply, 1)), iText, iDescriptor, sendMilliseconds, oCause);
}

/// The names, each ended by a NUL. They came with the request, and thus fit into the reply.
std::string Join(const std::vector<std::string>& iNames) {
  std::string text;
  for (const std::string& name : iNames) text.append(name).push_back('\0');
  return text;
}

std::string ReasonOf(const VelSystemFork::Outcome& iOutcome) {
  using End = VelSystemFork::End;
  switch (iOutcome.end) {
    case End::TimeIsOver:
      return "is not drawn: the drawing took more than " + std::to_string(mostSeconds) + " s";
    case End::MemoryIsOver:
      return "is not drawn: the drawing needed more memory than " + std::to_string(mostMemory / mebibyte) + " MiB";
    case End::Signal:
      return "is not drawn: the drawing ended by signal " + std::to_string(iOutcome.number);
    case End::Failed:
      return "is not drawn: the drawing ended with code " + std::to_string(iOutcome.number);
    case End::Done:
      break;
  }
  return {};
}

}  // namespace

void VelImageWorkerServer::Serve() {
  HRESULT code = S_OK;
  while (code != E_UNEXPECTED) {
    std::string message;
    std::string cause;
    VelSystemDescriptor file;
    code = channel_.Receive(message, file, -1, cause);
    if (code == S_OK) code = Answer(message, file, cause);
    // A message that nobody can read has no number to be answered by. Where not even that answer leaves, all is over.
    if (code == E_FAIL && FAILED(Refuse(0, "was asked for by a message that " + cause, cause))) return;
  }
}

HRESULT VelImageWorkerServer::Answer(std::string_view iMessage, VelSystemDescriptor& ioFile, std::string& oCause) {
  VelImageWorkerOrder order;
  std::string reason;
  if (FAILED(VelImageWorkerOrder::Read(iMessage, order, reason))) return Refuse(order.identifier, reason, oCause);
  if (!ioFile.IsOpen()) return Refuse(order.identifier, "was asked for without the open file", oCause);
  VelSystemFork::Outcome outcome;
  if (FAILED(VelSystemFork::Run([&] { return Draw(order, ioFile); }, mostSeconds * 1000, outcome, reason))) {
    return Refuse(order.identifier, "is not drawn: no process could be made: " + reason, oCause);
  }
  // A child that ends well has answered.
  if (outcome.end == VelSystemFork::End::Done) return S_OK;
  return Refuse(order.identifier, ReasonOf(outcome), oCause);
}

/// In the child.
int VelImageWorkerServer::Draw(const VelImageWorkerOrder& iOrder, VelSystemDescriptor& ioFile) {
  std::string reason;
  std::vector<std::string> unknown;
  VelSystemInputFile file;
  VelWorkerPicture picture;
  HRESULT code = file.Adopt(ioFile.Release(), reason);
  if (SUCCEEDED(code)) code = VelSystemSandbox::Limit(limits, reason);
  if (SUCCEEDED(code)) code = VelSystemSandbox::Enter(channel_.GetDescriptor(), reason);
  VelFileImageSource source(file);
  if (SUCCEEDED(code)) code = iOrder.Carry(source, picture, unknown, reason);
  if (SUCCEEDED(code)) code = picture.Seal(reason);
  std::string cause;
  if (FAILED(code)) return SUCCEEDED(Refuse(iOrder.identifier, reason, cause)) ? 0 : 1;
  Reply reply;
  reply.status = static_cast<std::uint32_t>(Status::Done);
  reply.identifier = iOrder.identifier;
  reply.width = picture.GetWidth();
  reply.height = picture.GetHeight();
  reply.format = static_cast<std::uint32_t>(picture.GetFormat());
  reply.colorSpace = static_cast<std::uint32_t>(picture.GetColorSpace());
  return SUCCEEDED(SendReply(channel_, reply, Join(unknown), picture.GetDescriptor(), cause)) ? 0 : 1;
}

HRESULT VelImageWorkerServer::Refuse(std::uint64_t iIdentifier, std::string_view iReason, std::string& oCause) {
  Reply reply;
  reply.status = static_cast<std::uint32_t>(Status::Refused);
  reply.identifier = iIdentifier;
  return SendReply(channel_, reply, iReason.substr(0, VelImageWorkerMessage::largestCause), -1, oCause);
}
