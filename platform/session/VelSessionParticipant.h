// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSessionParticipant.h A service that starts and ends with the platform session.
#ifndef PLATFORM_SESSION_VELSESSIONPARTICIPANT_H
#define PLATFORM_SESSION_VELSESSIONPARTICIPANT_H

#include "platform/base/HResult.h"
#include "platform/base/VelPlatformApi.h"
#include "platform/session/VelPlatformOptions.h"

/// A service of the process that takes its share of the session's options. Participants start in the order in which
/// they were added and end in the reverse order.
class VEL_PLATFORM_API VelSessionParticipant {
 public:
  /// Starts the service. It reports what it refuses itself.
  /// @return S_OK; any failure ends the start of the session with that code
  virtual HRESULT OnSessionStart(const VelPlatformOptions& iOptions) = 0;

  /// Ends the service; called only after a start that succeeded.
  virtual void OnSessionEnd() = 0;

 protected:
  ~VelSessionParticipant() = default;
};

#endif  // PLATFORM_SESSION_VELSESSIONPARTICIPANT_H
