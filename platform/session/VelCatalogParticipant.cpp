// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelCatalogParticipant.cpp Registers itself when the library is loaded.
#include "platform/session/VelCatalogParticipant.h"

#include "platform/featuremodeler/VelCatalog.h"
#include "platform/session/VelPlatformSession.h"

namespace {

/// Participants stay for the process.
[[maybe_unused]] const bool registered = [] {
  VelPlatformSession::AddParticipant(*new VelCatalogParticipant);
  return true;
}();

}  // namespace

HRESULT VelCatalogParticipant::OnSessionStart(const VelPlatformOptions& iOptions) {
  VelCatalog::SetFolders(iOptions.searchFolders);
  for (const std::string& catalog : iOptions.catalogs) {
    if (VelCatalog::Load(catalog) != nullptr) continue;
    OnSessionEnd();
    return E_FAIL;
  }
  return S_OK;
}

void VelCatalogParticipant::OnSessionEnd() { VelCatalog::SetFolders({}); }
