// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelDocumentLinkParticipant.h Counts the documents that features link while a session runs.
#ifndef PLATFORM_DOCUMENTS_VELDOCUMENTLINKPARTICIPANT_H
#define PLATFORM_DOCUMENTS_VELDOCUMENTLINKPARTICIPANT_H

#include "platform/featuremodeler/VelSpecDocumentLinkHooks.h"
#include "platform/session/VelSessionParticipant.h"

/// From the start of a session to its end, a feature that is copied with a link counts its document once more, and one
/// that is removed once less (VelRbaRepLifeCycle). Hooks that a host has installed itself stay. Not exported.
class VelDocumentLinkParticipant final : public VelSessionParticipant, public VelSpecDocumentLinkHooks {
 public:
  HRESULT OnSessionStart(const VelPlatformOptions& iOptions) override;
  void OnSessionEnd() override;

  void OnCopied(VelBaseUnknown& ioDocument) override;
  void OnDropped(VelBaseUnknown& ioDocument) override;
};

#endif  // PLATFORM_DOCUMENTS_VELDOCUMENTLINKPARTICIPANT_H
