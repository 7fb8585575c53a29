// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelConvertedFiles.h Keeps the files that were converted, for this process, later ones and those beside it.
#ifndef PLATFORM_IMAGES_SERVICES_VELCONVERTEDFILES_H
#define PLATFORM_IMAGES_SERVICES_VELCONVERTEDFILES_H

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

#include "platform/base/HResult.h"
#include "platform/base/system/VelSystemInputFile.h"

/// Files of whole images in one folder, each named by the key of what it was made of (VelImageInput::KeyOf) and its
/// format. Several processes may use the folder at once: whoever finds a file finds all of it. Where the files are more
/// bytes than the cap, those that were used longest ago are removed, down to four fifths of it; one that was used
/// within the last hour stays, since an appearance may still name it. Thread: the application thread.
class VelConvertedFiles {
 public:
  static constexpr std::uint64_t defaultCap = std::uint64_t{2} << 30U;

  /// @param[in] iFolder absolute; made when the first file is kept
  explicit VelConvertedFiles(std::string iFolder, std::uint64_t iCap = defaultCap);

  /// The ones of the user: velrsh/images/v1 in VelCacheFolder, of which the configuration "Images" may set the cap by
  /// the key "ConvertedFilesMegabytes".
  /// @return null where the user has no folder for caches
  static VelConvertedFiles* OfUser();

  /// @param[in] iFormat "png" or "exr"
  /// @param[out] oPath its path; untouched otherwise
  /// @return S_OK; S_FALSE when there is no such file, or when it was damaged, and is removed
  HRESULT Find(const std::string& iKey, std::string_view iFormat, std::string& oPath);

  /// @param[in] iFormat "png" or "exr"
  /// @param[out] oPath its path; untouched on failure
  /// @param[out] oCause the reason of a failure, made to follow the path of the image; untouched otherwise
  /// @return S_OK; E_FAIL when it cannot be written
  HRESULT Keep(const std::string& iKey, std::string_view iFormat, std::string_view iBytes, std::string& oPath,
               std::string& oCause);

  /// Removes what is more than the cap, and what processes that died in the middle of a file left behind.
  void Sweep();

  const std::string& GetFolder() const noexcept { return folder_; }

 private:
  std::string PathOf(const std::string& iKey, std::string_view iFormat) const;
  bool IsWhole(const std::string& iPath, std::string_view iFormat);

  std::string folder_;
  std::uint64_t cap_;
  std::uint64_t bytesUntilSweep_ = 0;  ///< The first file that is kept begins with a sweep.
  std::unordered_map<std::string, VelSystemFileStatus> whole_;
};

#endif  // PLATFORM_IMAGES_SERVICES_VELCONVERTEDFILES_H
