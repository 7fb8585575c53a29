// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelModuleOpener.cpp Finds a row's library, makes sure that it is the module it claims to be, and takes its
/// creation functions.
#include "platform/objectmodeler/VelModuleOpener.h"

#include <utility>

#include "platform/base/system/VelSystemFile.h"
#include "platform/base/system/VelSystemLibrary.h"
#include "platform/objectmodeler/VelDictionaryReport.h"
#include "platform/objectmodeler/VelDictionarySource.h"
#include "platform/objectmodeler/VelLateType.h"
#include "platform/trace/VelTraceHandle.h"

namespace {

std::vector<std::string>& LibraryFolders() {
  static auto& folders = *new std::vector<std::string>;
  return folders;
}

/// @return the path without detours, or as it is where nothing is there
std::string Straighten(const std::string& iPath) {
  std::string path = iPath;
  std::string cause;
  return SUCCEEDED(VelSystemFile::CanonicalPath(iPath, path, cause)) ? path : iPath;
}

/// Where a library may be: as it is when it has an absolute path; beside the dictionary file when it has a folder; else
/// beside the dictionary file, in the library folders, or wherever the system's loader looks.
std::string LocateLibrary(const VelDictionarySource& iSource) {
  const std::string& library = iSource.library;
  if (library.front() == '/') return library;
  const std::string besideFile = VelSystemFile::FolderOf(iSource.file) + '/' + library;
  if (library.find('/') != std::string::npos || VelSystemFile::Exists(besideFile)) {
    return Straighten(besideFile);
  }
  for (const std::string& folder : LibraryFolders()) {
    if (const std::string candidate = folder + '/' + library; VelSystemFile::Exists(candidate))
      return Straighten(candidate);
  }
  return library;
}

using DescribeModule = const VelModuleDescription* (*)();

/// @return why the library is not the module that the dictionary names, empty when it is
std::string FindFault(const VelDictionarySource& iSource, const std::string& iPath, void* iLibrary) {
  const std::string entry = "VelModule_" + iSource.module;
  const auto describe = reinterpret_cast<DescribeModule>(VelSystemLibrary::FindSymbol(iLibrary, entry));
  if (describe == nullptr) {
    return "the library '" + iPath + "' does not export '" + entry + "', so it is not the module '" + iSource.module +
           "'";
  }
  const VelModuleDescription* found = describe();
  if (found->platformAbi != velPlatformAbi) {
    return "the library '" + iPath + "' was built for platform ABI " + std::to_string(found->platformAbi) +
           ", expected " + std::to_string(velPlatformAbi);
  }
  if (found->name != iSource.module) {
    return "the library '" + iPath + "' is the module '" + found->name + "', expected '" + iSource.module + "'";
  }
  const VelModuleDescription* registered = VelModuleRegistration::Find(found->name);
  if (registered != nullptr && registered != found) {
    return "the library '" + iPath + "' is a second copy of the module '" + iSource.module +
           "', which is loaded from '" + VelSystemLibrary::PathOf(registered) + "'";
  }
  return {};
}

/// Opens the library of a module once; a refusal is remembered with its cause.
bool EnsureLibrary(VelDictionarySource& ioSource) {
  if (ioSource.openLibrary != nullptr) return true;
  if (!ioSource.refusal.empty()) return false;
  const std::string path = LocateLibrary(ioSource);
  std::string cause;
  void* library = VelSystemLibrary::Open(path, cause);
  ioSource.refusal =
      library != nullptr ? FindFault(ioSource, path, library) : "the library '" + path + "' cannot be opened: " + cause;
  if (!ioSource.refusal.empty()) return false;
  ioSource.openLibrary = library;
  VelTraceHandle("VelDictionary")
      .Info("Library opened { module = %s, library = %s }", ioSource.module,
            VelSystemLibrary::PathOf(VelModuleRegistration::Find(ioSource.module.c_str())));
  return true;
}

template <class Function>
bool Take(void* iLibrary, const std::string& iSymbol, Function& oFunction, std::string& oCause) {
  oFunction = reinterpret_cast<Function>(VelSystemLibrary::FindSymbol(iLibrary, iSymbol));
  if (oFunction != nullptr) return true;
  oCause = "the library does not export '" + iSymbol + "'";
  return false;
}

bool TakeFunctions(VelBinding& ioRow, std::string& oCause) {
  void* library = ioRow.source->openLibrary;
  const std::string pair = std::string(VelInterfaceId::NameOf(ioRow.interfaceIndex)) + ioRow.record->name;
  if (ioRow.mechanism == VelMechanism::BOA) return Take(library, "CreateBOA" + pair, ioRow.createBoa, oCause);
  return Take(library, "CreateTIE" + pair, ioRow.createTie, oCause) &&
         Take(library, "CreateExtension" + ioRow.record->name, ioRow.createImplementation, oCause);
}

std::string Describe(const VelBinding& iRow) {
  return "bind " + iRow.lateType->Name() + ' ' + std::string(VelInterfaceId::NameOf(iRow.interfaceIndex)) + ' ' +
         iRow.record->name;
}

}  // namespace

bool VelModuleOpener::EnsureOpen(VelBinding& ioRow) {
  if (ioRow.status == VelBinding::Status::Open) return true;
  if (ioRow.status == VelBinding::Status::Failed) return false;
  std::string cause;
  if (!EnsureLibrary(*ioRow.source)) {
    cause = ioRow.source->refusal;
  } else if (TakeFunctions(ioRow, cause)) {
    ioRow.status = VelBinding::Status::Open;
    return true;
  }
  ioRow.status = VelBinding::Status::Failed;
  VelReportDictionaryError(ioRow.source->file, ioRow.line, Describe(ioRow) + ": " + cause);
  return false;
}

void VelModuleOpener::SetLibraryFolders(std::vector<std::string> iFolders) { LibraryFolders() = std::move(iFolders); }
