// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelCatalogParticipant.h Loads the catalogs of a session.
#ifndef PLATFORM_SESSION_VELCATALOGPARTICIPANT_H
#define PLATFORM_SESSION_VELCATALOGPARTICIPANT_H

#include "platform/session/VelSessionParticipant.h"

/// Takes care of VelPlatformOptions::catalogs: their files are read at the start of the session, and the search folders
/// are where catalogs are looked for that a container asks for by name. Catalogs stay for the process. Not exported.
class VelCatalogParticipant final : public VelSessionParticipant {
 public:
  HRESULT OnSessionStart(const VelPlatformOptions& iOptions) override;
  void OnSessionEnd() override;
};

#endif  // PLATFORM_SESSION_VELCATALOGPARTICIPANT_H
