// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageWorkerProgram.cpp Asks the environment, then starts where this library lies.
#include "platform/images/drawing/VelImageWorkerProgram.h"

#include <vector>

#include "platform/base/system/VelSystemEnvironment.h"
#include "platform/base/system/VelSystemFile.h"
#include "platform/base/system/VelSystemLibrary.h"

namespace {

/// Something of this library, by whose address it is found.
const char anchor = 0;

std::string FolderOfThisLibrary() {
  const std::string path = VelSystemLibrary::PathOf(&anchor);
  std::string library = path;
  std::string ignored;
  static_cast<void>(VelSystemFile::CanonicalPath(path, library, ignored));
  return VelSystemFile::FolderOf(library);
}

std::vector<std::string> PlacesToLook() {
  const std::string given = VelSystemEnvironment::Get(VelImageWorkerProgram::variable).value_or(std::string());
  if (!given.empty()) return {given};
  const std::string folder = FolderOfThisLibrary();
  return {folder + "/" VEL_LIBEXEC_FROM_LIBRARY "/velrsh-image-worker", folder + "/../bin/velrsh-image-worker"};
}

}  // namespace

HRESULT VelImageWorkerProgram::Find(std::string& oPath, std::string& oCause) {
  std::string looked;
  for (const std::string& path : PlacesToLook()) {
    if (VelSystemFile::Exists(path)) {
      oPath = path;
      return S_OK;
    }
    looked += (looked.empty() ? "'" : " and '") + path + "'";
  }
  oCause = "the helper program velrsh-image-worker is missing: looked in " + looked;
  return E_FAIL;
}
