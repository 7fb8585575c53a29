// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemWrite.h Writes whole files, makes folders and removes them.
#ifndef PLATFORM_BASE_SYSTEM_VELSYSTEMWRITE_H
#define PLATFORM_BASE_SYSTEM_VELSYSTEMWRITE_H

#include <string>
#include <string_view>

#include "platform/base/HResult.h"
#include "platform/base/VelPlatformApi.h"

/// What a failed operation has to say is in its last argument, made to follow the path ("no such folder"), and
/// untouched on success. Paths are taken byte for byte; one that holds a NUL is E_INVALIDARG.
class VelSystemWrite {
 public:
  /// Writes a file as a whole: whoever opens the path meanwhile sees what was there before or all of the new bytes,
  /// also when this process ends in between. The file is for its owner alone.
  /// @return S_OK; E_INVALIDARG; E_FAIL when the folder is not there, or nothing can be written into it: then what was
  ///         there before stays
  VEL_PLATFORM_API static HRESULT ReplaceFile(const std::string& iPath, std::string_view iBytes, std::string& oCause);

  /// As ReplaceFile, but the file is for whoever the process lets read and write new files (its creation mask).
  VEL_PLATFORM_API static HRESULT PublishFile(const std::string& iPath, std::string_view iBytes, std::string& oCause);

  /// Makes a folder for its owner alone; the folder around it has to be there.
  /// @return S_OK; S_FALSE when there is a folder already; E_INVALIDARG; E_FAIL
  VEL_PLATFORM_API static HRESULT MakeFolder(const std::string& iPath, std::string& oCause);

  /// Makes a folder of a name that nobody has, for its owner alone.
  /// @param[in] iPrefix the beginning of its path; six letters are put behind it
  /// @param[out] oPath its path; untouched on failure
  /// @return S_OK; E_INVALIDARG; E_FAIL
  VEL_PLATFORM_API static HRESULT MakeUniqueFolder(const std::string& iPrefix, std::string& oPath, std::string& oCause);

  /// Removes a file, or a folder with all that is in it. Symbolic links are removed, never followed.
  /// @return S_OK; S_FALSE when there is nothing of that path; E_INVALIDARG; E_FAIL, with a part of it removed
  VEL_PLATFORM_API static HRESULT RemoveTree(const std::string& iPath, std::string& oCause);
};

#endif  // PLATFORM_BASE_SYSTEM_VELSYSTEMWRITE_H
