// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemFile.cpp Reads files, lists folders and resolves paths.
#include "platform/base/system/VelSystemFile.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <utility>

#include "platform/base/system/VelSystemDescriptor.h"
#include "platform/base/system/VelSystemError.h"

namespace {

struct CloseFolder {
  void operator()(DIR* ioFolder) const noexcept { ::closedir(ioFolder); }
};

struct FreeText {
  void operator()(char* ioText) const noexcept { std::free(ioText); }
};

HRESULT Fail(std::string iCause, std::string& oCause) {
  oCause = std::move(iCause);
  return E_FAIL;
}

/// Says whether an open file can be read to its end and is small enough, as far as its status tells.
HRESULT CheckReadable(int iDescriptor, std::size_t iByteLimit, std::size_t& oSize, std::string& oCause) {
  struct stat status {};
  if (::fstat(iDescriptor, &status) != 0) return VelSystemError::Fail(errno, oCause);
  if (S_ISDIR(status.st_mode)) return Fail("is a folder", oCause);
  if (!S_ISREG(status.st_mode)) return Fail("is not a regular file", oCause);
  oSize = static_cast<std::size_t>(status.st_size);
  if (oSize > iByteLimit) return Fail("is larger than " + std::to_string(iByteLimit) + " bytes", oCause);
  return S_OK;
}

}  // namespace

HRESULT VelSystemFile::ReadWholeFile(const std::string& iPath, std::size_t iByteLimit, std::string& oBytes,
                                     std::string& oCause) {
  VEL_RETURN_IF_FAILED(VelSystemError::CheckPath(iPath, oCause));
  // Without O_NONBLOCK the call would wait for somebody to open the other end of a fifo.
  const VelSystemDescriptor file(::open(iPath.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
  if (!file.IsOpen()) return VelSystemError::Fail(errno, oCause);
  std::size_t size = 0;
  VEL_RETURN_IF_FAILED(CheckReadable(file.Get(), iByteLimit, size, oCause));

  // The size is a hint only: a file may grow meanwhile, and those that the kernel makes up say 0.
  constexpr std::size_t chunkSize = 64 * 1024;
  std::string bytes;
  bytes.reserve(size + 1);
  std::size_t length = 0;
  while (true) {
    if (length == bytes.size()) bytes.resize(std::max(bytes.capacity(), length + chunkSize));
    const ssize_t count = ::read(file.Get(), bytes.data() + length, bytes.size() - length);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return VelSystemError::Fail(errno, oCause);
    if (count == 0) break;
    length += static_cast<std::size_t>(count);
    if (length > iByteLimit) return Fail("is larger than " + std::to_string(iByteLimit) + " bytes", oCause);
  }
  bytes.resize(length);
  oBytes = std::move(bytes);
  return S_OK;
}

HRESULT VelSystemFile::ListFolder(const std::string& iPath, const std::string& iSuffix,
                                  std::vector<std::string>& oNames, std::string& oCause) {
  VEL_RETURN_IF_FAILED(VelSystemError::CheckPath(iPath, oCause));
  const std::unique_ptr<DIR, CloseFolder> folder(::opendir(iPath.c_str()));
  if (folder == nullptr && errno == ENOENT) return Fail("no such folder", oCause);
  if (folder == nullptr && errno == ENOTDIR) return Fail("is not a folder", oCause);
  if (folder == nullptr) return VelSystemError::Fail(errno, oCause);

  std::vector<std::string> names;
  errno = 0;
  while (const dirent* entry = ::readdir(folder.get())) {
    const std::string_view name = entry->d_name;
    if (name != "." && name != ".." && name.ends_with(iSuffix)) names.emplace_back(name);
    errno = 0;
  }
  if (errno != 0) return VelSystemError::Fail(errno, oCause);
  std::sort(names.begin(), names.end());
  oNames = std::move(names);
  return S_OK;
}

HRESULT VelSystemFile::CanonicalPath(const std::string& iPath, std::string& oPath, std::string& oCause) {
  VEL_RETURN_IF_FAILED(VelSystemError::CheckPath(iPath, oCause));
  const std::unique_ptr<char, FreeText> path(::realpath(iPath.c_str(), nullptr));
  if (path == nullptr) return VelSystemError::Fail(errno, oCause);
  oPath = path.get();
  return S_OK;
}

bool VelSystemFile::Exists(const std::string& iPath) {
  struct stat status {};
  return iPath.find('\0') == std::string::npos && ::stat(iPath.c_str(), &status) == 0;
}

std::string VelSystemFile::FolderOf(const std::string& iPath) {
  const std::size_t slash = iPath.rfind('/');
  if (slash == std::string::npos) return ".";
  return iPath.substr(0, std::max<std::size_t>(slash, 1));
}
