// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelCatalogParticipant.h Loads the catalogs of a session.
#ifndef PLATFORM_SESSION_VELCATALOGPARTICIPANT_H
#define PLATFORM_SESSION_VELCATALOGPARTICIPANT_H

#include "platform/session/VelSessionParticipant.h"

/// Takes care of VelPlatformOptions::catalogs: their files are read at the start of the session. A catalog that a
/// container asks for by its file's name is looked for in the search folders, in the folders of those files, and in the
/// folder share/velrsh/catalogs of the installation. Catalogs stay for the process. Not exported.
class VelCatalogParticipant final : public VelSessionParticipant {
 public:
  HRESULT OnSessionStart(const VelPlatformOptions& iOptions) override;
  void OnSessionEnd() override;
};

#endif  // PLATFORM_SESSION_VELCATALOGPARTICIPANT_H
