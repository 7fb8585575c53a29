// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelCatalogParticipant.cpp Registers itself when the library is loaded.
#include "platform/session/VelCatalogParticipant.h"

#include <string>
#include <utility>
#include <vector>

#include "platform/base/system/VelSystemFile.h"
#include "platform/featuremodeler/VelCatalog.h"
#include "platform/session/VelInstalledShare.h"
#include "platform/session/VelPlatformSession.h"

namespace {

/// Participants stay for the process.
[[maybe_unused]] const bool registered = [] {
  VelPlatformSession::AddParticipant(*new VelCatalogParticipant);
  return true;
}();

}  // namespace

/// A catalog that is read at the start can be asked for by its file's name alone, as the component does.
HRESULT VelCatalogParticipant::OnSessionStart(const VelPlatformOptions& iOptions) {
  std::vector<std::string> folders = iOptions.searchFolders;
  for (const std::string& catalog : iOptions.catalogs) {
    const std::string found = VelPlatformSession::Current()->Locate(catalog);
    if (!found.empty()) folders.push_back(VelSystemFile::FolderOf(found));
  }
  if (const std::string installed = VelInstalledShare::FindFolder("catalogs"); !installed.empty()) {
    folders.push_back(installed);
  }
  VelCatalog::SetFolders(std::move(folders));
  for (const std::string& catalog : iOptions.catalogs) {
    if (VelCatalog::Load(catalog) != nullptr) continue;
    OnSessionEnd();
    return E_FAIL;
  }
  return S_OK;
}

void VelCatalogParticipant::OnSessionEnd() { VelCatalog::SetFolders({}); }
