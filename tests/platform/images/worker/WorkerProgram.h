// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file WorkerProgram.h The real helper program, asked as a host asks it.
#ifndef TESTS_PLATFORM_IMAGES_WORKER_WORKERPROGRAM_H
#define TESTS_PLATFORM_IMAGES_WORKER_WORKERPROGRAM_H

#include <sys/mman.h>
#include <unistd.h>

#include <cstring>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "platform/base/system/VelSystemChannel.h"
#include "platform/base/system/VelSystemChild.h"
#include "platform/base/system/VelSystemDescriptor.h"
#include "platform/base/system/VelSystemSharedBytes.h"
#include "platform/images/drawing/VelImageWorkerMessage.h"
#include "platform/images/pixels/VelImageKind.h"
#include "tests/platform/images/worker/Painting.h"

/// What the program answered.
struct WorkerAnswer {
  bool isThere = false;  ///< False when none came.
  VelImageWorkerMessage::Reply reply;
  std::string text;
  Painting picture;  ///< Of small pictures of bytes alone.
  std::vector<std::byte> bytes;

  bool IsDone() const {
    return isThere && reply.status == static_cast<std::uint32_t>(VelImageWorkerMessage::Status::Done);
  }
  bool IsRefused() const { return isThere && !IsDone(); }
};

class WorkerProgram {
 public:
  WorkerProgram() {
    std::string cause;
    VelSystemChannel end;
    EXPECT_EQ(VelSystemChannel::CreatePair(channel_, end, cause), S_OK) << cause;
    EXPECT_EQ(child_.Start(Path(), {}, end, VelSystemChild::Output::WhereOurs, cause), S_OK) << cause;
  }

  /// @return the path of the helper program
  static const char* Path() noexcept;

  VelSystemChannel& Channel() { return channel_; }
  VelSystemChild& Child() { return child_; }

  static VelSystemDescriptor FileOf(std::string_view iBytes) {
    VelSystemDescriptor file(::memfd_create("test", MFD_CLOEXEC));
    EXPECT_EQ(VelSystemDescriptor::WriteWhole(file.Get(), iBytes), 0);
    return file;
  }

  /// @param[in] iNames each ended by a NUL
  void SendRequest(VelImageKind iKind, std::uint64_t iIdentifier, int iDpi, std::string_view iNames, int iFile) {
    VelImageWorkerMessage::Request request;
    request.kind = static_cast<std::uint32_t>(iKind);
    request.identifier = iIdentifier;
    request.dpi = iDpi;
    request.textLength = static_cast<std::uint32_t>(iNames.size());
    Send(std::as_bytes(std::span(&request, 1)), iNames, iFile);
  }

  void Send(std::span<const std::byte> iHead, std::string_view iText, int iFile) {
    std::string cause;
    EXPECT_EQ(channel_.Send(iHead, iText, iFile, 1000, cause), S_OK) << cause;
  }

  WorkerAnswer Receive() {
    constexpr int mostMilliseconds = 12'000;
    WorkerAnswer answer;
    std::string message;
    std::string cause;
    VelSystemDescriptor memory;
    const HRESULT code = channel_.Receive(message, memory, mostMilliseconds, cause);
    answer.isThere = code == S_OK && message.size() >= sizeof answer.reply;
    EXPECT_TRUE(answer.isThere) << code << cause;
    if (!answer.isThere) return answer;
    std::memcpy(&answer.reply, message.data(), sizeof answer.reply);
    answer.text = message.substr(sizeof answer.reply);
    EXPECT_EQ(answer.reply.version, VelImageWorkerMessage::version);
    EXPECT_EQ(answer.reply.textLength, answer.text.size());
    EXPECT_EQ(answer.reply.reserved, 0U);
    EXPECT_EQ(memory.IsOpen(), answer.IsDone());
    if (answer.IsDone()) TakePixels(memory, answer);
    return answer;
  }

  WorkerAnswer Ask(VelImageKind iKind, std::string_view iFile, int iDpi = 0,
                   const std::vector<std::string>& iNames = {}) {
    std::string names;
    for (const std::string& name : iNames) names.append(name).push_back('\0');
    const VelSystemDescriptor file = FileOf(iFile);
    SendRequest(iKind, ++identifier_, iDpi, names, file.Get());
    WorkerAnswer answer = Receive();
    EXPECT_EQ(answer.reply.identifier, identifier_);
    return answer;
  }

 private:
  static void TakePixels(VelSystemDescriptor& ioMemory, WorkerAnswer& ioAnswer) {
    const std::size_t pixelSize = ioAnswer.reply.format == 0 ? 4 : 16;
    const std::size_t size =
        static_cast<std::size_t>(ioAnswer.reply.width) * static_cast<std::size_t>(ioAnswer.reply.height) * pixelSize;
    VelSystemSharedBytes bytes;
    std::string cause;
    ASSERT_EQ(VelSystemSharedBytes::Map(ioMemory.Release(), size, bytes, cause), S_OK) << cause;
    ioAnswer.bytes.assign(bytes.Bytes().begin(), bytes.Bytes().end());
    constexpr std::size_t small = std::size_t{1} << 22;
    if (pixelSize == 4 && size <= small)
      ioAnswer.picture = Painting(ioAnswer.reply.width, ioAnswer.reply.height, bytes.Bytes());
  }

  VelSystemChannel channel_;
  VelSystemChild child_;
  std::uint64_t identifier_ = 0;
};

#endif  // TESTS_PLATFORM_IMAGES_WORKER_WORKERPROGRAM_H
