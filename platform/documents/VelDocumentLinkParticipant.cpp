// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelDocumentLinkParticipant.cpp Registers itself when the library is loaded.
#include "platform/documents/VelDocumentLinkParticipant.h"

#include "platform/documents/VelRbaRepLifeCycle.h"
#include "platform/session/VelPlatformSession.h"

namespace {

/// Participants stay for the process.
[[maybe_unused]] const bool registered = [] {
  VelPlatformSession::AddParticipant(*new VelDocumentLinkParticipant);
  return true;
}();

}  // namespace

HRESULT VelDocumentLinkParticipant::OnSessionStart(const VelPlatformOptions&) {
  if (VelSpecDocumentLinkHooks::Installed() == nullptr) static_cast<void>(VelSpecDocumentLinkHooks::Install(this));
  return S_OK;
}

void VelDocumentLinkParticipant::OnSessionEnd() {
  if (VelSpecDocumentLinkHooks::Installed() == this) static_cast<void>(VelSpecDocumentLinkHooks::Install(nullptr));
}

/// A store that cannot count a document does not keep features from linking it.
void VelDocumentLinkParticipant::OnCopied(VelBaseUnknown& ioDocument) {
  static_cast<void>(VelRbaRepLifeCycle::AddReference(&ioDocument));
}

void VelDocumentLinkParticipant::OnDropped(VelBaseUnknown& ioDocument) {
  static_cast<void>(VelRbaRepLifeCycle::RemoveReference(&ioDocument));
}
