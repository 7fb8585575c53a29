// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageWorkerClient.h Speaks to one run after another of the helper program velrsh-image-worker.
#ifndef PLATFORM_IMAGES_DRAWING_VELIMAGEWORKERCLIENT_H
#define PLATFORM_IMAGES_DRAWING_VELIMAGEWORKERCLIENT_H

#include <cstdint>
#include <string>
#include <vector>

#include "platform/base/HResult.h"
#include "platform/base/system/VelSystemChannel.h"
#include "platform/base/system/VelSystemChild.h"
#include "platform/images/pixels/VelImageKind.h"
#include "platform/images/pixels/VelPixelBuffer.h"

class VelImageWorkerReply;
class VelSystemDeadline;
class VelSystemDescriptor;
class VelSystemInputFile;

/// Starts the program when it is first needed and keeps it for the requests that follow. A run that dies, answers
/// wrongly or not in time is killed and forgotten, and costs no more than the request at hand. The destructor kills.
/// A copy of the process that fork made gets a run of its own.
/// Thread: the application thread.
class VelImageWorkerClient {
 public:
  struct Settings {
    std::string program;      ///< The path of the program; empty for what VelImageWorkerProgram finds.
    int milliseconds = 9500;  ///< For a request as a whole, with a start and a second attempt where they are needed.
  };

  VelImageWorkerClient() = default;
  explicit VelImageWorkerClient(Settings iSettings) : settings_(std::move(iSettings)) {}

  /// Has a picture made of a file, as VelImageWorker tells.
  HRESULT Draw(VelImageKind iKind, const VelSystemInputFile& iFile, const std::vector<std::string>& iGroups, int iDpi,
               VelPixelBuffer& oImage, std::vector<std::string>& oUnknownGroups, std::string& oCause);

  /// Ends the run there is. Idempotent.
  void Stop() noexcept;

  /// @return the system's number of the run that is kept; 0 when there is none
  int GetProcess() const noexcept { return child_.GetIdentifier(); }

 private:
  struct Order;
  enum class Attempt : std::uint8_t { Answered, Failed, NeverRead };

  bool IsIdle();
  HRESULT EnsureStarted(std::string& oCause);
  Attempt Try(const Order& iOrder, const VelSystemDeadline& iDeadline, VelImageWorkerReply& oReply,
              VelSystemDescriptor& oMemory, std::string& oCause);
  Attempt Await(std::uint64_t iIdentifier, const VelSystemDeadline& iDeadline, VelImageWorkerReply& oReply,
                VelSystemDescriptor& oMemory, std::string& oCause);
  HRESULT Finish(const Order& iOrder, const VelImageWorkerReply& iReply, VelSystemDescriptor iMemory,
                 VelPixelBuffer& oImage, std::vector<std::string>& oUnknownGroups, std::string& oCause);
  HRESULT GiveUp(const std::string& iWhat, std::string& oCause);

  Settings settings_;
  VelSystemChannel channel_;
  VelSystemChild child_;
};

#endif  // PLATFORM_IMAGES_DRAWING_VELIMAGEWORKERCLIENT_H
