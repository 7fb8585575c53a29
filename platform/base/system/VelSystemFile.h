// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemFile.h Reads files, lists folders and resolves paths.
#ifndef PLATFORM_BASE_SYSTEM_VELSYSTEMFILE_H
#define PLATFORM_BASE_SYSTEM_VELSYSTEMFILE_H

#include <cstddef>
#include <string>
#include <vector>

#include "platform/base/HResult.h"
#include "platform/base/VelPlatformApi.h"

/// Files by path. A path is a sequence of bytes as the system takes it; one with an embedded NUL names nothing and is
/// refused. Where an operation fails, its result stays untouched and oCause is the reason in English, made to follow
/// the path in a message ("no such file"); where it succeeds, oCause stays untouched.
class VelSystemFile {
 public:
  /// Reads a regular file, through symbolic links. Anything else is refused without waiting for it.
  /// @param[in] iByteLimit the size up to which a file is read, in bytes
  /// @param[out] oBytes replaced by the content
  /// @return
  /// - S_OK: the file was read to its end
  /// - E_INVALIDARG: the path holds a NUL
  /// - E_FAIL: there is no such file, it is none, it may not be read, or it is larger than the limit
  VEL_PLATFORM_API static HRESULT ReadWholeFile(const std::string& iPath, std::size_t iByteLimit, std::string& oBytes,
                                                std::string& oCause);

  /// Lists the names in a folder, without the folder and without "." and "..". What they name is not looked at.
  /// @param[in] iSuffix the end that a name must have to be listed (".toml"); empty lists all
  /// @param[out] oNames replaced by the names, in the order of their bytes
  /// @return
  /// - S_OK: the folder was listed
  /// - E_INVALIDARG: the path holds a NUL
  /// - E_FAIL: there is no such folder, it is none, or it may not be read
  VEL_PLATFORM_API static HRESULT ListFolder(const std::string& iPath, const std::string& iSuffix,
                                             std::vector<std::string>& oNames, std::string& oCause);

  /// Finds the absolute path without symbolic links and without "." and "..".
  /// @return
  /// - S_OK: the file or folder exists
  /// - E_INVALIDARG: the path holds a NUL
  /// - E_FAIL: it does not exist or cannot be reached
  VEL_PLATFORM_API static HRESULT CanonicalPath(const std::string& iPath, std::string& oPath, std::string& oCause);

  /// @return true when the path leads to a file or folder, through symbolic links
  VEL_PLATFORM_API static bool Exists(const std::string& iPath);

  /// Takes the last name off a path, which nobody looks up.
  /// @return what stands before the last slash; "/" where that slash begins the path, "." where there is none
  VEL_PLATFORM_API static std::string FolderOf(const std::string& iPath);
};

#endif  // PLATFORM_BASE_SYSTEM_VELSYSTEMFILE_H
