// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaShaderTypes.cpp Looks for files, and keeps what was read until a file has changed.
#include "host/shadertypes/VelRmaShaderTypes.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "host/shadertypes/VelRmaShaderTypeFile.h"
#include "platform/base/VelCallOnExit.h"
#include "platform/base/VelEnvironment.h"
#include "platform/base/system/VelSystemFile.h"
#include "platform/configuration/VelRbaConfiguration.h"
#include "platform/session/VelInstalledShare.h"

namespace {

constexpr const char* pathVariable = "VEL_SHADER_TYPES_PATH";

/// After the manager of shaders, which asks until then.
constexpr int exitPriority = 4;

/// @return true when two paths lead to one file
bool AreSame(const std::string& iLeft, const std::string& iRight) {
  if (iLeft == iRight) return true;
  std::string left;
  std::string right;
  std::string cause;
  return SUCCEEDED(VelSystemFile::CanonicalPath(iLeft, left, cause)) &&
         SUCCEEDED(VelSystemFile::CanonicalPath(iRight, right, cause)) && left == right;
}

int ClearTypes(int) {
  VelRmaShaderTypes::Instance().Clear();
  return 0;
}

}  // namespace

VelRmaShaderTypes& VelRmaShaderTypes::Instance() {
  static auto& types = *new VelRmaShaderTypes;
  return types;
}

void VelRmaShaderTypes::Clear() {
  isScanned_ = false;
  added_.clear();
  present_.clear();
  byName_.clear();
  entries_.clear();
  reported_.clear();
}

void VelRmaShaderTypes::EnsureScanned() {
  if (std::exchange(isScanned_, true)) return;
  VelCallOnExit(&ClearTypes, exitPriority);
  Scan();
}

void VelRmaShaderTypes::Scan() {
  std::unordered_map<std::string, File> known;
  for (Entry& entry : entries_) {
    for (File& file : entry.files) known.insert_or_assign(file.path, std::move(file));
    entry.files.clear();
    entry.isRead = false;
  }
  present_.clear();
  if (const std::string installed = VelInstalledShare::FindFolder("shaders"); !installed.empty()) ScanPath(installed);
  for (const std::string& path : VelEnvironment::GetPaths(pathVariable)) ScanPath(path);
  for (const std::string& path : added_) ScanPath(path);
  for (Entry* entry : present_) {
    for (File& file : entry->files) {
      if (const auto former = known.find(file.path); former != known.end()) file = std::move(former->second);
    }
  }
}

std::vector<std::string> VelRmaShaderTypes::FilesOf(const std::string& iPath) {
  std::vector<std::string> names;
  std::string cause;
  if (FAILED(VelSystemFile::ListFolder(iPath, VelRmaShaderTypeFile::nameEnd, names, cause))) return {iPath};
  for (std::string& name : names) name = iPath + '/' + name;
  return names;
}

void VelRmaShaderTypes::ScanPath(const std::string& iPath) {
  for (const std::string& file : FilesOf(iPath)) ScanFile(file);
}

/// What is no file is found out when it is read.
void VelRmaShaderTypes::ScanFile(const std::string& iPath) {
  const VelString name = VelRmaShaderTypeFile::NameOf(iPath);
  if (name.IsEmpty()) {
    const bool isThere = VelSystemFile::Exists(iPath);
    ReportOnce(iPath + (isThere ? ": expected a file that is named <type>.toml, or a folder of such files"
                                : ": no such file or folder"));
    return;
  }
  Entry*& entry = byName_[name];
  if (entry == nullptr) entry = &entries_.emplace_back(Entry{.name = name});
  if (entry->files.empty()) present_.push_back(entry);
  const auto isSame = [&](const File& iFile) { return AreSame(iFile.path, iPath); };
  if (std::none_of(entry->files.begin(), entry->files.end(), isSame)) entry->files.push_back({iPath, {}, false});
}

HRESULT VelRmaShaderTypes::AddPath(const std::string& iPath) {
  EnsureScanned();
  added_.push_back(iPath);
  ScanPath(iPath);
  HRESULT result = S_OK;
  for (const std::string& file : FilesOf(iPath)) {
    const auto found = byName_.find(VelRmaShaderTypeFile::NameOf(file));
    if (found == byName_.end()) return E_FAIL;
    Entry& entry = *found->second;
    entry.isRead = false;
    Read(entry);
    if (!entry.type || !AreSame(entry.source, file)) result = E_FAIL;
  }
  return result;
}

std::vector<VelString> VelRmaShaderTypes::Names() {
  EnsureScanned();
  std::vector<VelString> names;
  for (const Entry& entry : entries_) {
    if (!entry.files.empty() || entry.type) names.push_back(entry.name);
  }
  return names;
}

const VelRmaShaderType* VelRmaShaderTypes::Find(const VelString& iName) {
  EnsureScanned();
  const auto found = byName_.find(iName);
  if (found == byName_.end()) return nullptr;
  Entry& entry = *found->second;
  if (!entry.isRead) Read(entry);
  return entry.type ? &*entry.type : nullptr;
}

const VelRmaShaderType* VelRmaShaderTypes::FindForConfiguration(const VelString& iName) {
  const VelRmaShaderType* const type = Find(iName);
  if (const auto found = byName_.find(iName); found != byName_.end()) found->second->isTold = true;
  return type;
}

std::vector<VelString> VelRmaShaderTypes::Rescan() {
  const std::size_t before = entries_.size();
  const bool isFirst = !isScanned_;
  EnsureScanned();
  if (!isFirst) Scan();
  // The configuration does not know of names that are new.
  bool isChanged = !isFirst && entries_.size() != before;
  std::vector<VelString> names;
  for (Entry* entry : present_) {
    if (!entry->isRead && Read(*entry) && entry->isTold) isChanged = true;
    if (entry->type) names.push_back(entry->name);
  }
  if (isChanged) {
    for (Entry& entry : entries_) entry.isTold = false;
    VelRbaConfiguration::ForgetSources();
  }
  return names;
}

bool VelRmaShaderTypes::Read(Entry& ioEntry) {
  ioEntry.isRead = true;
  bool isChanged = false;
  bool isFound = false;
  for (File& file : ioEntry.files) {
    if (isFound) {
      ReportOnce(file.path + ": the type " + VelRmaFaults::Quote(ioEntry.name.View()) + " is defined already by '" +
                 ioEntry.source + "'");
      continue;
    }
    const std::string former = ioEntry.source;
    if (ReadFile(ioEntry, file)) isChanged = true;
    isFound = file.isSound;
    if (isFound && former != ioEntry.source) isChanged = true;
  }
  return isChanged;
}

/// @return true when the type was taken from the file anew
bool VelRmaShaderTypes::ReadFile(Entry& ioEntry, File& ioFile) {
  std::string text;
  std::string cause;
  const bool isThere = VelRmaShaderTypeFile::Load(ioFile.path, text, cause);
  const std::size_t digest = std::hash<std::string_view>()(isThere ? text : cause);
  const bool isKnown = ioFile.digest == digest;
  // A sound file is read again where another one has been the source meanwhile.
  if (isKnown && (!ioFile.isSound || ioEntry.source == ioFile.path)) return false;
  ioFile.isSound = false;
  if (!isThere) {
    ioFile.digest = digest;
    VelRmaShaderTypeFile::Report(ioFile.path, {0, 0, cause});
    return false;
  }
  VelRmaShaderType type;
  const HRESULT parsed = VelRmaShaderTypeFile::Parse(ioFile.path, text, ioEntry.name, type);
  // Without a reader nothing is known of the file.
  if (parsed == S_FALSE) return false;
  ioFile.digest = digest;
  if (FAILED(parsed)) return false;
  ioFile.isSound = true;
  ioEntry.source = ioFile.path;
  ioEntry.type = std::move(type);
  return true;
}

void VelRmaShaderTypes::ReportOnce(const std::string& iText) {
  if (reported_.insert(iText).second) VelRmaShaderTypeFile::Report(iText);
}
