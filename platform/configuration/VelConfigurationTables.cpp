// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelConfigurationTables.cpp Writes into the configurations and climbs from one to the next.
#include "platform/configuration/VelConfigurationTables.h"

#include <utility>

#include "platform/configuration/VelConfigurationSources.h"
#include "platform/configuration/VelMsgCatalog.h"
#include "platform/configuration/VelRbaConfiguration.h"
#include "platform/trace/VelTraceHandle.h"

VelConfigurationTables& VelConfigurationTables::Instance() {
  static auto& tables = *new VelConfigurationTables;
  return tables;
}

const VelString* VelConfigurationTables::Find(const VelString& iConfiguration, const VelString& iKey) {
  if (iConfiguration.IsEmpty()) return nullptr;
  if (const auto level = memo_.find(iConfiguration); level != memo_.end()) {
    if (const auto known = level->second.find(iKey); known != level->second.end()) return known->second;
  }
  if (VelConfigurationSources::Instance().List()) OnChange();
  const Answer answer = Search(iConfiguration, iKey);
  if (!answer.isLasting || VelConfigurationSources::Instance().IsAsking()) return answer.value;
  if (memoSize_ >= memoLimit) {
    memo_ = {};
    memoSize_ = 0;
  }
  memo_[iConfiguration].emplace(iKey, answer.value);
  ++memoSize_;
  return answer.value;
}

/// What files and code say stands before what the source says.
VelConfigurationTables::Answer VelConfigurationTables::FindIn(const VelString& iConfiguration, const VelString& iKey) {
  if (const auto known = configurations_.find(iConfiguration); known != configurations_.end()) {
    const auto found = known->second.values.find(iKey);
    if (found != known->second.values.end()) return {&found->second.value};
  }
  const auto* sourced = VelConfigurationSources::Instance().Find(iConfiguration);
  if (sourced == nullptr) return {};
  const auto found = sourced->values.find(iKey);
  if (found == sourced->values.end()) return {};
  if (!found->second.isMessage) return {&found->second.text};
  message_ = VelMsgCatalog::BuildMessage(iConfiguration, iKey).ToVelString();
  return {&message_, false};
}

const VelString* VelConfigurationTables::ParentOf(const VelString& iConfiguration) const {
  const auto known = configurations_.find(iConfiguration);
  if (known != configurations_.end() && !known->second.parent.value.IsEmpty()) return &known->second.parent.value;
  const auto* sourced = VelConfigurationSources::Instance().Find(iConfiguration);
  return sourced != nullptr && !sourced->parent.IsEmpty() ? &sourced->parent : nullptr;
}

/// Climbs without recursion, however many parents there are. A circle is found by a mark that is left behind and moved
/// up after 1, 2, 4, 8 ... steps: whoever meets it again walks in a circle.
VelConfigurationTables::Answer VelConfigurationTables::Search(const VelString& iConfiguration, const VelString& iKey) {
  const VelString* mark = &iConfiguration;
  std::size_t steps = 0;
  std::size_t stepsToNextMark = 1;
  for (const VelString* level = mark; level != nullptr; level = ParentOf(*level)) {
    if (steps != 0 && *level == *mark) {
      ReportCircle(iConfiguration);
      return {};
    }
    if (const Answer answer = FindIn(*level, iKey); answer.value != nullptr) return answer;
    if (++steps != stepsToNextMark) continue;
    mark = level;
    stepsToNextMark *= 2;
  }
  return FindIn(VelRbaConfiguration::defaultName, iKey);
}

/// Said once per configuration until something changes: each of its keys would meet the same circle.
void VelConfigurationTables::ReportCircle(const VelString& iConfiguration) {
  if (circles_.size() >= memoLimit || !circles_.insert(iConfiguration).second) return;
  VelTraceHandle("VelRbaConfiguration")
      .Error(VEL_HERE("platform/configuration/VelRbaConfiguration"), "The parents of '%s' run in a circle",
             iConfiguration);
}

/// @return true when the cell says something else than before
bool VelConfigurationTables::Write(Cell& ioCell, bool iIsNew, const VelString& iValue, VelConfigurationOwner iOwner) {
  if (iOwner == VelConfigurationOwner::Process) {
    ioCell.covered.reset();
  } else if (!iIsNew && ioCell.owner == VelConfigurationOwner::Process) {
    ioCell.covered = ioCell.value;
  }
  ioCell.owner = iOwner;
  if (!iIsNew && ioCell.value == iValue) return false;
  ioCell.value = iValue;
  return true;
}

bool VelConfigurationTables::WriteValue(const VelString& iConfiguration, const VelString& iKey, const VelString& iValue,
                                        VelConfigurationOwner iOwner) {
  const auto [entry, isNew] = configurations_[iConfiguration].values.try_emplace(iKey);
  return Write(entry->second, isNew, iValue, iOwner);
}

bool VelConfigurationTables::WriteParent(const VelString& iConfiguration, const VelString& iParent,
                                         VelConfigurationOwner iOwner) {
  if (iParent.IsEmpty() && !configurations_.contains(iConfiguration)) return false;
  return Write(configurations_[iConfiguration].parent, false, iParent, iOwner);
}

HRESULT VelConfigurationTables::SetValue(const VelString& iConfiguration, const VelString& iKey,
                                         const VelString& iValue) {
  if (!WriteValue(iConfiguration, iKey, iValue, VelConfigurationOwner::Process)) return S_FALSE;
  OnChange();
  return S_OK;
}

HRESULT VelConfigurationTables::SetParent(const VelString& iConfiguration, const VelString& iParent) {
  if (!WriteParent(iConfiguration, iParent, VelConfigurationOwner::Process)) return S_FALSE;
  OnChange();
  return S_OK;
}

HRESULT VelConfigurationTables::Remove(const VelString& iConfiguration) {
  const bool isSourced = VelConfigurationSources::Instance().Remove(iConfiguration);
  if (configurations_.erase(iConfiguration) == 0 && !isSourced) return S_FALSE;
  OnChange();
  return S_OK;
}

void VelConfigurationTables::Clear() {
  const bool isSourced = VelConfigurationSources::Instance().Clear();
  if (configurations_.empty() && !isSourced) return;
  configurations_.clear();
  OnChange();
}

void VelConfigurationTables::Enter(const VelConfigurationContent& iContent, VelConfigurationOwner iOwner) {
  bool changed = false;
  for (const VelConfigurationParent& known : iContent.parents) {
    if (WriteParent(known.configuration, known.parent, iOwner)) changed = true;
  }
  for (const VelConfigurationEntry& entry : iContent.entries) {
    if (WriteValue(entry.configuration, entry.key, entry.value, iOwner)) changed = true;
  }
  if (changed) OnChange();
}

/// @return true when the configuration had something of the session
bool VelConfigurationTables::EndSession(Configuration& ioConfiguration) {
  bool changed = false;
  if (Cell& parent = ioConfiguration.parent; parent.owner == VelConfigurationOwner::Session) {
    parent = {std::move(parent.covered).value_or(VelString()), VelConfigurationOwner::Process, std::nullopt};
    changed = true;
  }
  for (auto entry = ioConfiguration.values.begin(); entry != ioConfiguration.values.end();) {
    Cell& cell = entry->second;
    const bool ends = cell.owner == VelConfigurationOwner::Session;
    changed = changed || ends;
    if (ends && !cell.covered) {
      entry = ioConfiguration.values.erase(entry);
      continue;
    }
    if (ends) cell = {*std::move(cell.covered), VelConfigurationOwner::Process, std::nullopt};
    ++entry;
  }
  return changed;
}

void VelConfigurationTables::BeginSession() {
  VelConfigurationSources::Instance().BeginSession();
  // Nothing has changed until the source is there, but absences are not to be remembered any more.
  ForgetAnswers();
}

void VelConfigurationTables::ForgetSources() {
  if (VelConfigurationSources::Instance().Forget()) OnChange();
}

void VelConfigurationTables::EndSession() {
  bool changed = VelConfigurationSources::Instance().EndSession();
  for (auto& [name, configuration] : configurations_) {
    if (EndSession(configuration)) changed = true;
  }
  if (!changed) return;
  std::erase_if(configurations_, [](const auto& iEntry) {
    return iEntry.second.values.empty() && iEntry.second.parent.value.IsEmpty();
  });
  OnChange();
}

void VelConfigurationTables::OnChange() {
  ++generation_;
  ForgetAnswers();
}

void VelConfigurationTables::ForgetAnswers() {
  if (!memo_.empty()) memo_ = {};
  memoSize_ = 0;
  circles_.clear();
}
