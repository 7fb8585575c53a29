// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageWorkerServer.h Answers requests for pictures, each from a confined process of its own.
#ifndef PLATFORM_IMAGES_WORKER_VELIMAGEWORKERSERVER_H
#define PLATFORM_IMAGES_WORKER_VELIMAGEWORKERSERVER_H

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/base/HResult.h"
#include "platform/base/system/VelSystemChannel.h"

class VelSystemDescriptor;
struct VelImageWorkerOrder;

/// The helper program after its start. Whatever a file does to the process that reads it, the next one is answered.
class VelImageWorkerServer {
 public:
  /// @param[in] iChannel the end of the line to the host, open
  explicit VelImageWorkerServer(VelSystemChannel& iChannel) noexcept : channel_(iChannel) {}

  /// Answers until the other end is closed.
  void Serve();

 private:
  HRESULT Answer(std::string_view iMessage, VelSystemDescriptor& ioFile, std::string& oCause);
  int Draw(const VelImageWorkerOrder& iOrder, VelSystemDescriptor& ioFile);
  HRESULT Refuse(std::uint64_t iIdentifier, std::string_view iReason, std::string& oCause);

  VelSystemChannel& channel_;
};

#endif  // PLATFORM_IMAGES_WORKER_VELIMAGEWORKERSERVER_H
