// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelDictionarySource.h One module's share of the dictionary: where it stands and the rows that it declares.
#ifndef PLATFORM_OBJECTMODELER_VELDICTIONARYSOURCE_H
#define PLATFORM_OBJECTMODELER_VELDICTIONARYSOURCE_H

#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "platform/objectmodeler/VelLateType.h"

/// A late type's base, as a module declares it. Several modules may declare the same.
struct VelDictionaryBase {
  VelLateType* lateType;
  VelLateType* base;
};

/// A module that declared rows, from a dictionary file or linked into the program.
struct VelDictionarySource {
  std::string file;   ///< The dictionary file, empty for a linked module.
  unsigned line = 0;  ///< The line that names the module.
  std::string module;
  std::string framework;
  std::string library;  ///< As the file names it; empty for a linked module.
  void* openLibrary = nullptr;
  std::string refusal;                            ///< Why the library cannot be used; empty while it can.
  std::vector<std::unique_ptr<VelBinding>> rows;  ///< The rows, in the order of declaration.
  std::vector<VelLateType*> types;                ///< The late types that the rows stand on, each once.
  std::vector<VelDictionaryBase> bases;           ///< The bases that this module declares.
  std::set<std::string, std::less<>> classes;     ///< The classes that it declares, which are its own.
};

#endif  // PLATFORM_OBJECTMODELER_VELDICTIONARYSOURCE_H
