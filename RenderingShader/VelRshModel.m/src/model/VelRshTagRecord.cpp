// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshTagRecord.cpp Keeps the records by configuration and name.
#include "RenderingShader/VelRshModel.m/src/model/VelRshTagRecord.h"

#include <map>
#include <memory>
#include <utility>

#include "RenderingShader/VelRshModel.m/src/model/VelRshTagWords.h"
#include "platform/configuration/VelRbaConfiguration.h"

namespace {

constexpr std::size_t recordLimit = 65536;

}  // namespace

VelRshTagRecord* VelRshTagRecord::Of(const VelString& iConfiguration, const VelString& iParameter) {
  static auto& records = *new std::map<std::pair<VelString, VelString>, std::unique_ptr<VelRshTagRecord>>;
  const std::pair key(iConfiguration, iParameter);
  const auto known = records.find(key);
  if (known != records.end()) return known->second.get();
  if (records.size() >= recordLimit) return nullptr;
  auto& record = records[key];
  record.reset(new VelRshTagRecord(iConfiguration, iParameter));
  return record.get();
}

bool VelRshTagRecord::IsUsable() {
  if (!isLookedUp_ || generation_ != VelRbaConfiguration::Generation()) Look();
  return isUsable_;
}

void VelRshTagRecord::Look() {
  generation_ = VelRbaConfiguration::Generation();
  isLookedUp_ = true;
  isUsable_ = true;
  tags_ = 0;
  const std::optional<VelString> text = VelRshTagWords::FindText(configuration_, parameter_);
  if (!text) return;
  isUsable_ = VelRshTagWords::AreAllKnown(*text);
  if (!isUsable_) return;
  VelRshTagWords words(*text);
  while (const std::optional<Tag> tag = words.Next()) tags_ |= std::uint64_t{1} << static_cast<unsigned>(*tag);
}
