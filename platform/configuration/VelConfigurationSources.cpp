// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelConfigurationSources.cpp Finds the source through the dictionary and keeps what it says.
#include "platform/configuration/VelConfigurationSources.h"

#include <utility>
#include <vector>

#include "platform/configuration/VelMsgCatalog.h"
#include "platform/configuration/VelRbaConfiguration.h"
#include "platform/objectmodeler/VelObject.h"

namespace {

/// Holds a flag up while it lives.
class Raised {
 public:
  explicit Raised(bool& ioFlag) : flag_(ioFlag) { flag_ = true; }
  ~Raised() { flag_ = false; }
  Raised(const Raised&) = delete;
  Raised& operator=(const Raised&) = delete;

 private:
  bool& flag_;
};

}  // namespace

VelConfigurationSources& VelConfigurationSources::Instance() {
  static auto& sources = *new VelConfigurationSources;
  return sources;
}

void VelConfigurationSources::BeginSession() {
  isRunning_ = true;
  isListed_ = false;
}

bool VelConfigurationSources::EndSession() {
  const bool hadSource = static_cast<bool>(hSource_);
  entries_.clear();
  hSource_ = nullptr;
  isRunning_ = isSought_ = false;
  return hadSource;
}

bool VelConfigurationSources::Forget() {
  if (isAsking_ || !isListed_) return false;
  entries_.clear();
  isListed_ = false;
  // A dictionary may have brought one meanwhile.
  if (!hSource_) isSought_ = false;
  return true;
}

bool VelConfigurationSources::Clear() {
  if (isAsking_) return false;
  isListed_ = true;
  const bool hadEntries = !entries_.empty();
  entries_.clear();
  return hadEntries;
}

bool VelConfigurationSources::Remove(const VelString& iName) { return !isAsking_ && entries_.erase(iName) != 0; }

HRESULT VelConfigurationSources::AddPath(const std::string& iPath) {
  VelIConfigurationSource* const source = Source();
  if (source == nullptr) return E_FAIL;
  const Raised asking(isAsking_);
  return source->AddPath(iPath);
}

/// An object without a source is what the dictionary answers where no library brings one.
VelIConfigurationSource* VelConfigurationSources::Source() {
  if (isRunning_ && !std::exchange(isSought_, true)) {
    hSource_ = VelIConfigurationSource_var(VelObject::Create("VelRbaConfiguration", nullptr));
  }
  return hSource_.Get();
}

const VelConfigurationSources::Configuration* VelConfigurationSources::Find(const VelString& iName) {
  if (!isRunning_ || isAsking_) return nullptr;
  static_cast<void>(List());
  const auto found = entries_.find(iName);
  if (found == entries_.end()) return nullptr;
  if (!found->second.isRead) Read(iName, found->second);
  return found->second.isSound ? &found->second.content : nullptr;
}

bool VelConfigurationSources::List() {
  if (!isRunning_ || isAsking_ || std::exchange(isListed_, true)) return false;
  VelIConfigurationSource* const source = Source();
  if (source == nullptr) return false;
  const Raised asking(isAsking_);
  std::vector<VelString> names;
  if (FAILED(source->ListConfigurations(names))) return false;
  for (const VelString& name : names) {
    if (!name.IsEmpty() && !(name == VelRbaConfiguration::defaultName)) entries_.try_emplace(name);
  }
  return !entries_.empty();
}

void VelConfigurationSources::Read(const VelString& iName, Entry& ioEntry) {
  const Raised asking(isAsking_);
  ioEntry.isRead = true;
  VelSourcedConfiguration said;
  if (FAILED(hSource_->ReadConfiguration(iName, said))) return;
  ioEntry.isSound = true;
  Configuration& content = ioEntry.content;
  content.parent = std::move(said.parent);
  for (VelConfigurationEntry& entry : said.entries) {
    content.values.insert_or_assign(std::move(entry.key), Value{std::move(entry.value), false});
  }
  for (VelConfigurationMessage& message : said.messages) {
    content.values.insert_or_assign(message.key, Value{VelString(), true});
    content.messages[message.language].insert_or_assign(std::move(message.key), VelUnicodeString(message.text));
  }
}
