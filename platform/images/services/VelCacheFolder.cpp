// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelCacheFolder.cpp Reads the variables that say where caches lie.
#include "platform/images/services/VelCacheFolder.h"

#include <string_view>

#include "platform/base/VelEnvironment.h"
#include "platform/base/VelString.h"
#include "platform/base/system/VelSystemFile.h"
#include "platform/base/system/VelSystemWrite.h"

namespace {

/// @return the variable where it is an absolute path, else empty: a relative one would mean another folder each time
std::string AbsolutePathIn(const char* iVariable) {
  VelString value;
  if (!VelEnvironment::Get(iVariable, value) || !value.View().starts_with('/')) return {};
  return std::string(value.View());
}

}  // namespace

std::string VelCacheFolder::Find() {
  std::string folder = AbsolutePathIn("XDG_CACHE_HOME");
  if (!folder.empty()) return folder;
  folder = AbsolutePathIn("HOME");
  return folder.empty() ? folder : folder + "/.cache";
}

HRESULT VelCacheFolder::Make(const std::string& iPath, std::string& oCause) {
  if (VelSystemFile::Exists(iPath)) return S_OK;
  for (std::size_t end = iPath.find('/', 1); end != std::string::npos; end = iPath.find('/', end + 1)) {
    VEL_RETURN_IF_FAILED(VelSystemWrite::MakeFolder(iPath.substr(0, end), oCause));
  }
  return SUCCEEDED(VelSystemWrite::MakeFolder(iPath, oCause)) ? S_OK : E_FAIL;
}
