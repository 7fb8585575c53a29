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

constexpr mode_t ownerMode = S_IRUSR | S_IWUSR;

/// @return who may read and write the new files of the process. The mask can only be read by setting it.
mode_t PublicMode() {
  const mode_t mask = ::umask(S_IRWXG | S_IRWXO);
  ::umask(mask);
  return static_cast<mode_t>((S_IRUSR | S_IWUSR | S_IRGRP | S_IWGRP | S_IROTH | S_IWOTH) & ~mask);
}

/// Writes to a new file beside a path. @return 0 or the error number; the file is gone again then
int WriteBeside(std::string& ioPattern, std::string_view iBytes, mode_t iMode) {
  const VelSystemDescriptor file(::mkstemp(ioPattern.data()));
  if (!file.IsOpen()) return errno;
  int error = VelSystemDescriptor::WriteWhole(file.Get(), iBytes);
  if (error == 0 && iMode != ownerMode && ::fchmod(file.Get(), iMode) != 0) error = errno;
  if (error != 0) ::unlink(ioPattern.c_str());
  return error;
}

HRESULT Replace(const std::string& iPath, std::string_view iBytes, mode_t iMode, std::string& oCause) {
  VEL_RETURN_IF_FAILED(VelSystemError::CheckPath(iPath, oCause));
  std::string beside = iPath + ".new-" + uniqueLetters;
  if (const int error = WriteBeside(beside, iBytes, iMode); error != 0) return VelSystemError::Fail(error, oCause);
  if (::rename(beside.c_str(), iPath.c_str()) == 0) return S_OK;
  const int error = errno;
  ::unlink(beside.c_str());
  return VelSystemError::Fail(error, oCause);
}

}  // namespace

HRESULT VelSystemWrite::ReplaceFile(const std::string& iPath, std::string_view iBytes, std::string& oCause) {
  return Replace(iPath, iBytes, ownerMode, oCause);
}

HRESULT VelSystemWrite::PublishFile(const std::string& iPath, std::string_view iBytes, std::string& oCause) {
  return Replace(iPath, iBytes, PublicMode(), oCause);
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
