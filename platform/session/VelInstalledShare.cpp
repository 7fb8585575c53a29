// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelInstalledShare.cpp Starts where this library lies.
#include "platform/session/VelInstalledShare.h"

#include "platform/base/system/VelSystemFile.h"
#include "platform/base/system/VelSystemLibrary.h"

namespace {

/// Something of this library, by whose address it is found.
const char anchor = 0;

}  // namespace

std::string VelInstalledShare::FindFolder(const std::string& iName) {
  std::string library;
  std::string folder;
  std::string cause;
  if (FAILED(VelSystemFile::CanonicalPath(VelSystemLibrary::PathOf(&anchor), library, cause))) return {};
  const std::string share = VelSystemFile::FolderOf(library) + "/" VEL_SHARE_FROM_LIBRARY "/";
  return SUCCEEDED(VelSystemFile::CanonicalPath(share + iName, folder, cause)) ? folder : std::string();
}
