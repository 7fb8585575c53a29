// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelPathResolution.h Makes full paths of what people write.
#ifndef PLATFORM_IMAGES_SERVICES_VELPATHRESOLUTION_H
#define PLATFORM_IMAGES_SERVICES_VELPATHRESOLUTION_H

#include <string>

/// Resolves by the configuration "Paths": its keys are the names that a path may hold, and its key "SearchFolders"
/// lists the folders in which relative paths are looked for, separated by ";".
class VelPathResolution {
 public:
  static constexpr const char* configuration = "Paths";
  static constexpr const char* searchFoldersKey = "SearchFolders";

  /// - A path that begins with a slash, a drive ("C:\", "C:/") or two backslashes stays as it is.
  /// - In others each "${NAME}" is replaced by the configuration's value of that name, else by the environment's. A
  ///   configured value may hold symbols itself.
  /// - A relative path becomes that of the first search folder in which there is such a file or folder. Backslashes
  ///   separate there too, unless a file bears them in its name.
  /// - Everything else stays as it is written: an unknown name, a symbol that stands for itself, a path that is found
  ///   nowhere.
  static std::string Resolve(const std::string& iPath);
};

#endif  // PLATFORM_IMAGES_SERVICES_VELPATHRESOLUTION_H
