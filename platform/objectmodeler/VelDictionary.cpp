// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelDictionary.cpp Keeps the sources of the dictionary and enters their rows on the late types.
#include "platform/objectmodeler/VelDictionary.h"

#include <algorithm>
#include <map>
#include <memory>
#include <set>
#include <utility>

#include "platform/base/system/VelSystemFile.h"
#include "platform/objectmodeler/VelDictionaryReader.h"
#include "platform/objectmodeler/VelDictionaryReport.h"
#include "platform/objectmodeler/VelDictionarySource.h"
#include "platform/objectmodeler/VelModuleOpener.h"
#include "platform/trace/VelTraceHandle.h"

namespace {

constexpr std::size_t fileByteLimit = 1U << 20U;
constexpr const char* fileNameEnd = ".dictionary";

using Sources = std::vector<std::unique_ptr<VelDictionarySource>>;

Sources& AllSources() {
  static Sources& sources = *new Sources;
  return sources;
}

const VelClassRecord& RecordOf(const std::string& iClass) {
  static auto& records = *new std::map<std::string, VelClassRecord>;
  return records.try_emplace(iClass, VelClassRecord{iClass}).first->second;
}

std::string PlaceOf(const VelDictionarySource& iSource) {
  return iSource.file.empty() ? "the linked module '" + iSource.module + "'" : "'" + iSource.file + "'";
}

/// @return what a module contradicts in the dictionary as it is, with the line at fault; an empty cause for nothing
VelDictionaryFault FindContradiction(const VelDictionaryModule& iModule) {
  for (const auto& source : AllSources()) {
    if (source->module != iModule.name) continue;
    return {iModule.line, "the module '" + iModule.name + "' is declared already by " + PlaceOf(*source)};
  }
  for (const VelDictionaryClass& declared : iModule.classes) {
    for (const auto& source : AllSources()) {
      if (!source->classes.contains(declared.name)) continue;
      return {declared.line, "the class '" + declared.name + "' is declared already by " + PlaceOf(*source)};
    }
  }
  for (const VelDictionaryRow& row : iModule.rows) {
    const VelLateType* type = VelLateType::Find(row.lateType);
    if (type == nullptr) continue;
    for (const VelBinding* known : type->Rows()) {
      if (VelInterfaceId::NameOf(known->interfaceIndex) != row.interfaceName) continue;
      return {row.line, "'" + row.interfaceName + "' is bound to '" + row.lateType + "' already by " +
                            PlaceOf(*known->source) + " with the class '" + known->record->name + "'"};
    }
  }
  return {0, {}};
}

/// @return true when a late type would become its own base
bool ClosesCycle(const VelLateType& iType, const VelLateType& iBase) {
  for (const VelLateType* type = &iBase; type != nullptr; type = type->Base()) {
    if (type == &iType) return true;
  }
  return false;
}

/// Takes a base back that a module declared, unless another module or a catalog declares it too.
void TakeBaseBack(VelLateType& ioType, const VelDictionarySource& iLeaving) {
  if (ioType.Layout() != nullptr) return;  // The base of a start-up is its catalog's, which stays.
  for (const auto& source : AllSources()) {
    if (source.get() == &iLeaving) continue;
    for (const VelDictionaryBase& known : source->bases) {
      if (known.lateType == &ioType) return ioType.DeclareBase(known.base, source.get());
    }
  }
  ioType.DeclareBase(nullptr, nullptr);
}

void Remove(const VelDictionarySource& iSource) {
  for (VelLateType* type : iSource.types) type->RemoveRowsOf(iSource);
  for (const VelDictionaryBase& known : iSource.bases) TakeBaseBack(*known.lateType, iSource);
  std::erase_if(AllSources(), [&](const auto& iKnown) { return iKnown.get() == &iSource; });
  VelLateType::ForgetAnswers();
}

/// @return why a late type cannot have a base, empty when it can
std::string FindBaseFault(const VelLateType& iType, const VelLateType& iBase) {
  const VelLateType* known = iType.DeclaredBase();
  if (known == &iBase) return {};
  if (known != nullptr) {
    return "the base of '" + iType.Name() + "' is '" + known->Name() + "' already by " + PlaceOf(*iType.BaseSource()) +
           ", found '" + iBase.Name() + "'";
  }
  if (!ClosesCycle(iType, iBase)) return {};
  return "'" + iType.Name() + "' would derive from itself through '" + iBase.Name() + "'";
}

/// Enters bases, which can fail half-way: lines that are each sound can contradict each other or close a cycle.
bool EnterBases(const VelDictionaryModule& iModule, VelDictionarySource& ioSource) {
  for (const VelDictionaryType& type : iModule.types) {
    VelLateType& lateType = VelLateType::Of(type.lateType);
    VelLateType& base = VelLateType::Of(type.base);
    if (const std::string fault = FindBaseFault(lateType, base); !fault.empty()) {
      VelReportDictionaryError(ioSource.file, type.line, fault);
      return false;
    }
    if (lateType.DeclaredBase() == nullptr) lateType.DeclareBase(&base, &ioSource);
    ioSource.bases.push_back({&lateType, &base});
  }
  return true;
}

void EnterRows(const VelDictionaryModule& iModule, VelDictionarySource& ioSource) {
  for (const VelDictionaryRow& row : iModule.rows) {
    VelLateType& lateType = VelLateType::Of(row.lateType);
    const auto owner = std::find_if(iModule.classes.begin(), iModule.classes.end(),
                                    [&](const VelDictionaryClass& iClass) { return iClass.name == row.className; });
    auto binding = std::make_unique<VelBinding>(VelBinding{&ioSource, &lateType, row.line,
                                                           VelInterfaceId::IndexOf(row.interfaceName), row.mechanism,
                                                           row.lifetime, owner->kind, &RecordOf(row.className)});
    lateType.Add(*binding);
    if (std::find(ioSource.types.begin(), ioSource.types.end(), &lateType) == ioSource.types.end()) {
      ioSource.types.push_back(&lateType);
    }
    ioSource.rows.push_back(std::move(binding));
  }
}

/// Enters one module, or reports why not and leaves nothing of it behind.
VelDictionarySource* Enter(const VelDictionaryModule& iModule, const std::string& iFile) {
  if (const VelDictionaryFault fault = FindContradiction(iModule); !fault.cause.empty()) {
    VelReportDictionaryError(iFile, fault.line, fault.cause);
    return nullptr;
  }
  AllSources().push_back(std::make_unique<VelDictionarySource>());
  VelDictionarySource& source = *AllSources().back();
  source.file = iFile;
  source.line = iModule.line;
  source.module = iModule.name;
  source.framework = iModule.framework;
  source.library = iModule.library;
  for (const VelDictionaryClass& declared : iModule.classes) source.classes.insert(declared.name);
  if (!EnterBases(iModule, source)) {
    Remove(source);
    return nullptr;
  }
  EnterRows(iModule, source);
  VelLateType::ForgetAnswers();
  return &source;
}

/// Takes out what a file declares, or all files right in a folder.
bool RemoveAllOf(const std::string& iPath) {
  bool removed = false;
  for (std::size_t i = AllSources().size(); i-- > 0;) {
    const VelDictionarySource& source = *AllSources()[i];
    if (source.file.empty() || (source.file != iPath && VelSystemFile::FolderOf(source.file) != iPath)) continue;
    Remove(source);
    removed = true;
  }
  return removed;
}

bool IsLoaded(const std::string& iFile) {
  return std::any_of(AllSources().begin(), AllSources().end(),
                     [&](const auto& iSource) { return iSource->file == iFile; });
}

/// Writes out the rows of the late types that a class extends further.
std::vector<VelModuleRow> RowsOf(const VelModuleTable& iTable) {
  std::vector<VelModuleRow> rows(iTable.rows.begin(), iTable.rows.end());
  for (const VelModuleExtend& extend : iTable.extends) {
    std::string_view firstType;
    for (const VelModuleRow& row : iTable.rows) {
      if (std::string_view(row.className) != extend.className) continue;
      if (firstType.empty()) firstType = row.lateType;
      if (firstType != row.lateType) continue;
      rows.push_back(row);
      rows.back().lateType = extend.lateType;
    }
  }
  return rows;
}

VelDictionaryModule ToModule(const VelModuleTable& iTable, const std::vector<VelModuleRow>& iRows) {
  VelDictionaryModule module{iTable.name, iTable.framework, {}, 0, {}, {}, {}};
  for (const VelModuleType& type : iTable.types) module.types.push_back({type.lateType, type.base, 0});
  for (const VelModuleClass& known : iTable.classes) module.classes.push_back({known.name, known.kind, 0});
  for (const VelModuleRow& row : iRows) {
    module.rows.push_back({row.lateType, row.interfaceName, row.mechanism, row.lifetime, row.className, 0});
  }
  return module;
}

/// Finds what the reader of dictionary files refuses and the compiler of a grid does not see.
/// @return the fault, empty when there is none
std::string FindGridFault(const VelDictionaryModule& iModule) {
  std::set<std::pair<std::string_view, std::string_view>> bound;
  std::map<std::string_view, VelLifetime> lifetimes;
  for (const VelDictionaryRow& row : iModule.rows) {
    const auto owner = std::find_if(iModule.classes.begin(), iModule.classes.end(),
                                    [&](const VelDictionaryClass& iClass) { return iClass.name == row.className; });
    if (owner == iModule.classes.end()) return "the class '" + row.className + "' is not declared";
    if ((row.mechanism == VelMechanism::BOA) != (owner->kind == VelTypeOfClass::DelegatingExtension)) {
      return "a DelegatingExtension answers by BOA and every other class by TIE, '" + row.className + "' does not";
    }
    if (row.mechanism == VelMechanism::BOA && row.lifetime == VelLifetime::Component) {
      return "a BOA row lives by Reference, found Component for '" + row.className + "'";
    }
    if (lifetimes.emplace(row.className, row.lifetime).first->second != row.lifetime) {
      return "the class '" + row.className + "' has rows of both lifetimes";
    }
    if (bound.emplace(row.lateType, row.interfaceName).second) continue;
    return "'" + row.interfaceName + "' is bound to '" + row.lateType + "' twice";
  }
  return {};
}

/// Gives the rows of a linked module their functions, which need no library.
void TakeFunctions(const VelModuleTable& iTable, const std::vector<VelModuleRow>& iRows,
                   VelDictionarySource& ioSource) {
  for (std::size_t i = 0; i < iRows.size(); ++i) {
    VelBinding& binding = *ioSource.rows[i];
    binding.createTie = iRows[i].createTie;
    binding.createBoa = iRows[i].createBoa;
    for (const VelModuleClass& known : iTable.classes) {
      if (binding.record->name == known.name) binding.createImplementation = known.create;
    }
    binding.status = VelBinding::Status::Open;
  }
}

}  // namespace

HRESULT VelDictionary::LoadFile(const std::string& iPath) {
  std::string path;
  std::string text;
  std::string cause;
  if (FAILED(VelSystemFile::CanonicalPath(iPath, path, cause)) ||
      FAILED(VelSystemFile::ReadWholeFile(path, fileByteLimit, text, cause))) {
    VelReportDictionaryError({}, 0, "the dictionary file '" + iPath + "' cannot be read: " + cause);
    return E_FAIL;
  }
  if (IsLoaded(path)) return S_FALSE;
  std::vector<VelDictionaryModule> modules;
  VelDictionaryFault fault{};
  if (!VelDictionaryReader::Read(text, modules, fault)) {
    VelReportDictionaryError(path, fault.line, fault.cause);
    return E_FAIL;
  }
  for (const VelDictionaryModule& module : modules) {
    if (Enter(module, path) != nullptr) continue;
    RemoveAllOf(path);
    return E_FAIL;
  }
  VelTraceHandle("VelDictionary").Info("Dictionary loaded { file = %s, modules = %d }", path, modules.size());
  return S_OK;
}

HRESULT VelDictionary::LoadFolder(const std::string& iPath, std::vector<std::string>* oFiles) {
  std::vector<std::string> names;
  std::string cause;
  if (FAILED(VelSystemFile::ListFolder(iPath, fileNameEnd, names, cause))) {
    VelReportDictionaryError({}, 0, "the dictionary folder '" + iPath + "' cannot be read: " + cause);
    return E_FAIL;
  }
  if (names.empty()) {
    VelTraceHandle("VelDictionary")
        .Warning("The folder '%s' holds no file whose name ends in '%s'", iPath, fileNameEnd);
  }
  HRESULT result = S_OK;
  for (const std::string& name : names) {
    const HRESULT loaded = LoadFile(iPath + '/' + name);
    if (FAILED(loaded)) result = E_FAIL;
    if (loaded == S_OK && oFiles != nullptr) oFiles->push_back(iPath + '/' + name);
  }
  return result;
}

HRESULT VelDictionary::Unload(const std::string& iPath) {
  std::string path = iPath;
  std::string cause;
  // A file that is gone meanwhile is known by the path that it was found under.
  if (FAILED(VelSystemFile::CanonicalPath(iPath, path, cause))) path = iPath;
  bool removed = RemoveAllOf(path);
  // What a link in a folder leads to is loaded under its own path.
  std::vector<std::string> names;
  if (FAILED(VelSystemFile::ListFolder(path, fileNameEnd, names, cause))) return removed ? S_OK : S_FALSE;
  for (const std::string& name : names) {
    std::string file;
    if (SUCCEEDED(VelSystemFile::CanonicalPath(path + '/' + name, file, cause))) removed |= RemoveAllOf(file);
  }
  return removed ? S_OK : S_FALSE;
}

HRESULT VelDictionary::Declare(const VelModuleTable& iTable) {
  for (const auto& source : AllSources()) {
    if (source->file.empty() && source->module == iTable.name) return S_FALSE;
  }
  const std::vector<VelModuleRow> rows = RowsOf(iTable);
  const VelDictionaryModule module = ToModule(iTable, rows);
  if (const std::string fault = FindGridFault(module); !fault.empty()) {
    VelReportDictionaryError({}, 0, "the grid of the linked module '" + module.name + "' is faulty: " + fault);
    return E_FAIL;
  }
  VelDictionarySource* source = Enter(module, {});
  if (source == nullptr) return E_FAIL;
  TakeFunctions(iTable, rows, *source);
  return S_OK;
}

HRESULT VelDictionary::Undeclare(const VelModuleTable& iTable) {
  for (const auto& source : AllSources()) {
    if (!source->file.empty() || source->module != iTable.name) continue;
    Remove(*source);
    return S_OK;
  }
  return S_FALSE;
}

void VelDictionary::SetLibraryFolders(std::vector<std::string> iFolders) {
  VelModuleOpener::SetLibraryFolders(std::move(iFolders));
}

std::string_view VelQueryFramework(std::string_view iLateType, std::string_view iInterface) noexcept {
  const VelLateType* type = VelLateType::Find(iLateType);
  if (type == nullptr) type = &VelLateType::BaseByClass(iLateType);
  const VelBinding* row = type->Declared(VelInterfaceId::FindIndex(iInterface));
  return row != nullptr ? std::string_view(row->source->framework) : std::string_view();
}
