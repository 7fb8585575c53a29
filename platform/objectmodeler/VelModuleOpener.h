// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelModuleOpener.h Opens the library behind a row of the dictionary and finds its creation functions.
#ifndef PLATFORM_OBJECTMODELER_VELMODULEOPENER_H
#define PLATFORM_OBJECTMODELER_VELMODULEOPENER_H

#include <string>
#include <vector>

struct VelBinding;

/// Everything between a row of a dictionary file and the functions that it stands for; not exported.
class VelModuleOpener {
 public:
  /// Brings a row's creation functions to hand, opening its library if need be. Every failure is reported once per row,
  /// as an error on the channel "VelDictionary" that names file, line, row and cause.
  /// @return true when they are at hand
  static bool EnsureOpen(VelBinding& ioRow);

  /// Sets the folders in which libraries without a folder of their own are looked for, after the dictionary file's.
  static void SetLibraryFolders(std::vector<std::string> iFolders);
};

#endif  // PLATFORM_OBJECTMODELER_VELMODULEOPENER_H
