// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelDictionary.h The dictionary of the process: which class answers which interface for which late type.
#ifndef PLATFORM_OBJECTMODELER_VELDICTIONARY_H
#define PLATFORM_OBJECTMODELER_VELDICTIONARY_H

#include <string>
#include <string_view>
#include <vector>

#include "platform/base/HResult.h"
#include "platform/base/VelPlatformApi.h"
#include "platform/objectmodeler/VelModule.h"

/// The rows of all modules. A dictionary file is text (docs/dictionary.md) and names the library that holds the
/// classes; the library is opened when the first query needs it. A file is taken whole or not at all. All errors go to
/// the trace channel "VelDictionary" and name the file, the line and the cause.
///
/// Loading and unloading make every component look its answers up anew; what is built already stays.
class VEL_PLATFORM_API VelDictionary {
 public:
  /// Loads a dictionary file.
  /// @param[in] iPath a regular file of at most 1 MiB
  /// @return S_OK; S_FALSE when the file is loaded already; E_FAIL when it cannot be read, is faulty, or contradicts
  ///         what is loaded: a module, a row or a late type's base that another file declares
  static HRESULT LoadFile(const std::string& iPath);

  /// Loads every file of a folder whose name ends in ".dictionary", in the order of their names.
  /// A folder without any is a warning.
  /// @param[out] oFiles the paths of the files that this call loaded are appended; null where nobody wants to know
  /// @return S_OK; E_FAIL when the folder cannot be read or a file of it fails; the other files are loaded all the same
  static HRESULT LoadFolder(const std::string& iPath, std::vector<std::string>* oFiles = nullptr);

  /// Takes the rows of a file out again, or those of every file of a folder. Libraries stay open and what is built
  /// stays.
  /// @return S_OK; S_FALSE when nothing of it is loaded
  static HRESULT Unload(const std::string& iPath);

  /// Declares the grid of a module that is linked into the program.
  /// @return as LoadFile; S_FALSE when the module is declared already
  static HRESULT Declare(const VelModuleTable& iTable);

  /// Takes a linked module's grid out again.
  /// @return S_OK; S_FALSE when it is not declared
  static HRESULT Undeclare(const VelModuleTable& iTable);

  /// Sets the folders in which a library that a file names without a folder is looked for, after the file's own folder.
  static void SetLibraryFolders(std::vector<std::string> iFolders);
};

/// Tells which framework implements an interface for a late type, its bases included. Opens no library.
/// @return the framework's name, empty when nothing is bound; valid until the dictionary changes
VEL_PLATFORM_API std::string_view VelQueryFramework(std::string_view iLateType, std::string_view iInterface) noexcept;

#endif  // PLATFORM_OBJECTMODELER_VELDICTIONARY_H
