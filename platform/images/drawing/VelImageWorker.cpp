// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageWorker.cpp The one client of the process.
#include "platform/images/drawing/VelImageWorker.h"

#include "platform/base/VelCallOnExit.h"
#include "platform/images/drawing/VelImageWorkerClient.h"

namespace {

constexpr int exitPriority = 5;

struct Worker {
  VelImageWorkerClient client;
  bool isHookSet = false;

  /// Never destroyed: pictures may be asked for while the process exits.
  static Worker& Get() {
    static auto& worker = *new Worker;
    return worker;
  }
};

/// A hook runs once; a process may go on and begin anew.
int StopAtExit(int) {
  VelImageWorker::Stop();
  Worker::Get().isHookSet = false;
  return 0;
}

}  // namespace

HRESULT VelImageWorker::Draw(VelImageKind iKind, const VelSystemInputFile& iFile,
                             const std::vector<std::string>& iGroups, int iDpi, VelPixelBuffer& oImage,
                             std::vector<std::string>& oUnknownGroups, std::string& oCause) {
  Worker& worker = Worker::Get();
  if (!worker.isHookSet) VelCallOnExit(&StopAtExit, exitPriority);
  worker.isHookSet = true;
  return worker.client.Draw(iKind, iFile, iGroups, iDpi, oImage, oUnknownGroups, oCause);
}

void VelImageWorker::Stop() noexcept { Worker::Get().client.Stop(); }
