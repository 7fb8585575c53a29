// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelFeatureLayout.cpp Compiles the attributes of a start-up into slots.
#include "platform/featuremodeler/VelFeatureLayout.h"

#include <utility>

VelFeatureLayout::VelFeatureLayout(std::string iName, const VelFeatureLayout* iBase, VelLateType& iLateType)
    : name_(std::move(iName)), base_(iBase), lateType_(&iLateType) {
  if (iBase == nullptr) return;
  attributes_ = iBase->attributes_;
  positions_ = iBase->positions_;
  slotCount_ = iBase->slotCount_;
}

void VelFeatureLayout::Add(const VelISpecAttrKey& iKey, unsigned iCapacity) {
  if (iKey.Index() >= positions_.size()) positions_.resize(iKey.Index() + 1, absent);
  positions_[iKey.Index()] = static_cast<std::uint8_t>(attributes_.size());
  attributes_.push_back({&iKey, static_cast<unsigned>(slotCount_), iCapacity});
  slotCount_ += 1 + iCapacity;
}

bool VelFeatureLayout::IsAKindOf(std::string_view iName) const noexcept {
  for (const VelFeatureLayout* layout = this; layout != nullptr; layout = layout->base_) {
    if (layout->name_ == iName) return true;
  }
  return false;
}
