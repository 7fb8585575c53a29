// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemWrite.cpp Writes beside the file and renames.
#include "platform/base/system/VelSystemWrite.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "platform/base/system/VelSystemDescriptor.h"
#include "platform/base/system/VelSystemError.h"

namespace {

constexpr const char* uniqueLetters = "XXXXXX";

/// Writes to a new file beside a path. @return 0 or the error number; the file is gone again then
int WriteBeside(std::string& ioPattern, std::string_view iBytes) {
  const VelSystemDescriptor file(::mkstemp(ioPattern.data()));
  if (!file.IsOpen()) return errno;
  const int error = VelSystemDescriptor::WriteWhole(file.Get(), iBytes);
  if (error != 0) ::unlink(ioPattern.c_str());
  return error;
}

}  // namespace

HRESULT VelSystemWrite::ReplaceFile(const std::string& iPath, std::string_view iBytes, std::string& oCause) {
  VEL_RETURN_IF_FAILED(VelSystemError::CheckPath(iPath, oCause));
  std::string beside = iPath + ".new-" + uniqueLetters;
  if (const int error = WriteBeside(beside, iBytes); error != 0) return VelSystemError::Fail(error, oCause);
  if (::rename(beside.c_str(), iPath.c_str()) == 0) return S_OK;
  const int error = errno;
  ::unlink(beside.c_str());
  return VelSystemError::Fail(error, oCause);
}

HRESULT VelSystemWrite::MakeFolder(const std::string& iPath, std::string& oCause) {
  VEL_RETURN_IF_FAILED(VelSystemError::CheckPath(iPath, oCause));
  if (::mkdir(iPath.c_str(), S_IRWXU) == 0) return S_OK;
  const int error = errno;
  struct stat status {};
  const bool isFolder = error == EEXIST && ::stat(iPath.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
  if (isFolder) return S_FALSE;
  return VelSystemError::Fail(error == EEXIST ? ENOTDIR : error, oCause);
}

HRESULT VelSystemWrite::MakeUniqueFolder(const std::string& iPrefix, std::string& oPath, std::string& oCause) {
  VEL_RETURN_IF_FAILED(VelSystemError::CheckPath(iPrefix, oCause));
  std::string pattern = iPrefix + uniqueLetters;
  if (::mkdtemp(pattern.data()) == nullptr) return VelSystemError::Fail(errno, oCause);
  oPath = pattern;
  return S_OK;
}

HRESULT VelSystemWrite::RemoveTree(const std::string& iPath, std::string& oCause) {
  VEL_RETURN_IF_FAILED(VelSystemError::CheckPath(iPath, oCause));
  std::error_code error;
  const std::uintmax_t removed = std::filesystem::remove_all(iPath, error);
  if (error) return VelSystemError::Fail(error.value(), oCause);
  return removed != 0 ? S_OK : S_FALSE;
}
