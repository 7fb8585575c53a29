// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageWorkerMain.cpp The program velrsh-image-worker.
#include <cstdlib>
#include <string>

#include "platform/base/system/VelSystemChannel.h"
#include "platform/base/system/VelSystemSandbox.h"
#include "platform/base/system/VelSystemStream.h"
#include "platform/images/worker/VelImageWorkerServer.h"
#include "platform/images/worker/VelImageWorkerWarmUp.h"

namespace {

constexpr int channelDescriptor = 3;
constexpr int wrongUse = 2;

int Refuse(const std::string& iWhat, const std::string& iCause) {
  VelSystemStream::WriteToStandardError(
      "velrsh-image-worker draws images for a program of VelRshModel, which starts it; "
      "it is not for use by hand (" +
      iWhat + " " + iCause + ").\n");
  return wrongUse;
}

}  // namespace

int main() {
  std::string cause;
  VelSystemChannel channel;
  if (FAILED(channel.Adopt(channelDescriptor, cause))) return Refuse("its descriptor 3", cause);
  if (FAILED(VelSystemSandbox::DieWithParent(cause))) return Refuse("its end with its parent", cause);
  VelSystemSandbox::CloseFrom(channelDescriptor + 1);
  VelImageWorkerWarmUp::Run();
  VelImageWorkerServer(channel).Serve();
  // What the libraries have in memory goes with the process; nothing is to be tidied up or written.
  std::_Exit(0);
}
