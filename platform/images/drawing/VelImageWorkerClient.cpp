// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageWorkerClient.cpp One request, one reply, and no patience with anything else.
#include "platform/images/drawing/VelImageWorkerClient.h"

#include <random>
#include <span>
#include <utility>

#include "platform/base/system/VelSystemDeadline.h"
#include "platform/base/system/VelSystemInputFile.h"
#include "platform/images/drawing/VelImageWorkerMessage.h"
#include "platform/images/drawing/VelImageWorkerProgram.h"
#include "platform/images/drawing/VelImageWorkerReply.h"
#include "platform/trace/VelTraceHandle.h"

namespace {

constexpr const char* programName = "the helper program velrsh-image-worker";
constexpr int mostSkippedReplies = 8;
constexpr int attemptCount = 2;

/// How long the system may take to tell how a program ended whose channel has closed already.
constexpr int endMilliseconds = 100;

/// @return S_OK with the names as a request carries them; E_FAIL for names that it cannot carry
HRESULT TextOf(const std::vector<std::string>& iGroups, std::string& oText, std::string& oCause) {
  std::string text;
  for (const std::string& group : iGroups) {
    if (group.find('\0') != std::string::npos) {
      oCause = "cannot be drawn in groups of which one has a NUL byte in its name";
      return E_FAIL;
    }
    text += group;
    text += '\0';
    if (text.size() <= VelImageWorkerMessage::largestText) continue;
    oCause = "cannot be drawn in groups whose names have more than " +
             std::to_string(VelImageWorkerMessage::largestText) + " bytes together";
    return E_FAIL;
  }
  oText = std::move(text);
  return S_OK;
}

/// What drew one file may not be able to guess it, and so to answer for the next file.
std::uint64_t NewIdentifier() {
  std::random_device random;
  return (std::uint64_t{random()} << 32U) | random();
}

}  // namespace

/// What is sent, and what is needed to judge the answer.
struct VelImageWorkerClient::Order {
  VelImageWorkerMessage::Request record;
  std::string text;
  int descriptor;
  const std::vector<std::string>& groups;
};

void VelImageWorkerClient::Stop() noexcept {
  channel_.Close();
  child_.Kill();
}

HRESULT VelImageWorkerClient::GiveUp(const std::string& iWhat, std::string& oCause) {
  Stop();
  oCause = std::string(programName) + " " + iWhat;
  // No warning: whoever asked for the picture warns, where it comes to that.
  VelTraceHandle("VelImageWorker").Info("No run is kept: %s", oCause);
  return E_FAIL;
}

/// A run that speaks without having been asked is up to something.
bool VelImageWorkerClient::IsIdle() {
  std::string message;
  std::string ignored;
  VelSystemDescriptor memory;
  return channel_.Receive(message, memory, 0, ignored) == S_FALSE;
}

HRESULT VelImageWorkerClient::EnsureStarted(std::string& oCause) {
  if (!child_.IsDoomed() && IsIdle()) return S_OK;
  Stop();
  std::string path = settings_.program;
  if (path.empty()) VEL_RETURN_IF_FAILED(VelImageWorkerProgram::Find(path, oCause));
  VelSystemChannel theirs;
  std::string cause;
  if (FAILED(VelSystemChannel::CreatePair(channel_, theirs, cause))) {
    return GiveUp("cannot be spoken to: " + cause, oCause);
  }
  if (FAILED(child_.Start(path, {}, theirs, VelSystemChild::Output::Nowhere, cause))) {
    return GiveUp("cannot be started from '" + path + "': " + cause, oCause);
  }
  VelTraceHandle("VelImageWorker").Info("Process %d runs '%s'", child_.GetIdentifier(), path);
  return S_OK;
}

HRESULT VelImageWorkerClient::Draw(VelImageKind iKind, const VelSystemInputFile& iFile,
                                   const std::vector<std::string>& iGroups, int iDpi, VelPixelBuffer& oImage,
                                   std::vector<std::string>& oUnknownGroups, std::string& oCause) {
  if (!iFile.IsOpen()) {
    oCause = "is not open";
    return E_FAIL;
  }
  Order order{{}, {}, iFile.GetDescriptor(), iGroups};
  if (iKind == VelImageKind::Svg) VEL_RETURN_IF_FAILED(TextOf(iGroups, order.text, oCause));
  order.record.kind = static_cast<std::uint32_t>(iKind);
  order.record.dpi = iDpi;
  order.record.textLength = static_cast<std::uint32_t>(order.text.size());
  const VelSystemDeadline deadline(settings_.milliseconds);
  VelImageWorkerReply reply;
  VelSystemDescriptor memory;
  std::string cause;
  Attempt attempt = Attempt::NeverRead;
  // A run that was killed since the last request has not failed this one, so another is asked. It is asked once.
  for (int count = 0; count < attemptCount && attempt == Attempt::NeverRead; ++count) {
    VEL_RETURN_IF_FAILED(EnsureStarted(oCause));
    order.record.identifier = NewIdentifier();
    attempt = Try(order, deadline, reply, memory, cause);
  }
  if (attempt != Attempt::Answered) {
    oCause = cause;
    return E_FAIL;
  }
  return Finish(order, reply, std::move(memory), oImage, oUnknownGroups, oCause);
}

VelImageWorkerClient::Attempt VelImageWorkerClient::Try(const Order& iOrder, const VelSystemDeadline& iDeadline,
                                                        VelImageWorkerReply& oReply, VelSystemDescriptor& oMemory,
                                                        std::string& oCause) {
  std::string cause;
  const auto head = std::as_bytes(std::span(&iOrder.record, 1));
  const HRESULT sent = channel_.Send(head, iOrder.text, iOrder.descriptor, iDeadline.Remaining(), cause);
  if (SUCCEEDED(sent)) return Await(iOrder.record.identifier, iDeadline, oReply, oMemory, oCause);
  static_cast<void>(child_.AwaitEnd(sent == E_UNEXPECTED ? endMilliseconds : 0));
  static_cast<void>(GiveUp(child_.GetEnd().empty() ? cause : child_.GetEnd(), oCause));
  return sent == E_UNEXPECTED ? Attempt::NeverRead : Attempt::Failed;
}

VelImageWorkerClient::Attempt VelImageWorkerClient::Await(std::uint64_t iIdentifier, const VelSystemDeadline& iDeadline,
                                                          VelImageWorkerReply& oReply, VelSystemDescriptor& oMemory,
                                                          std::string& oCause) {
  std::string message;
  std::string cause;
  for (int count = 0; count <= mostSkippedReplies; ++count) {
    const HRESULT received = channel_.Receive(message, oMemory, iDeadline.Remaining(), cause);
    if (received == S_FALSE) cause = "did not answer within " + std::to_string(settings_.milliseconds) + " ms";
    if (received == E_UNEXPECTED && child_.AwaitEnd(endMilliseconds)) cause = child_.GetEnd();
    const bool isReply = received == S_OK && SUCCEEDED(oReply.Parse(message, cause));
    if (isReply && oReply.GetIdentifier() == iIdentifier) return Attempt::Answered;
    if (isReply) continue;
    static_cast<void>(GiveUp(cause, oCause));
    return channel_.HasLostMessages() ? Attempt::NeverRead : Attempt::Failed;
  }
  static_cast<void>(GiveUp("answers other requests than this one", oCause));
  return Attempt::Failed;
}

HRESULT VelImageWorkerClient::Finish(const Order& iOrder, const VelImageWorkerReply& iReply,
                                     VelSystemDescriptor iMemory, VelPixelBuffer& oImage,
                                     std::vector<std::string>& oUnknownGroups, std::string& oCause) {
  if (iReply.IsRefusal()) {
    if (iMemory.IsOpen()) return GiveUp("sent a descriptor with a refusal", oCause);
    oCause = iReply.GetRefusal();
    return E_FAIL;
  }
  std::string cause;
  std::vector<std::string> unknown;
  if (FAILED(iReply.TakeUnknownGroups(iOrder.groups, unknown, cause)) ||
      FAILED(iReply.TakeImage(std::move(iMemory), oImage, cause))) {
    return GiveUp(cause, oCause);
  }
  oUnknownGroups = std::move(unknown);
  return S_OK;
}
