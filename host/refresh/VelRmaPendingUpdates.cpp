// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaPendingUpdates.cpp Notes, hands out, forgets.
#include "host/refresh/VelRmaPendingUpdates.h"

#include <utility>

void VelRmaPendingUpdates::Note(VelBaseUnknown* iParameter, VelRmaChange iChange) {
  VelBaseUnknown_WR parameter(iParameter);
  const VelComponent* const component = parameter.Get();
  if (component == nullptr) return;
  const auto [noted, isNew] = noted_.try_emplace({component, iChange}, updates_.size());
  if (!isNew && updates_[noted->second].parameter.Get() == component) return;
  noted->second = updates_.size();
  updates_.push_back({std::move(parameter), iChange});
}

void VelRmaPendingUpdates::Forget(const VelBaseUnknown_WR& iParameter) {
  const VelComponent* const component = iParameter.Get();
  for (const VelRmaChange change : {VelRmaChange::Value, VelRmaChange::Connection}) {
    const auto noted = noted_.find({component, change});
    if (noted == noted_.end()) continue;
    // The place stays, as the others' places are known by number; an empty one is passed over.
    updates_[noted->second].parameter = VelBaseUnknown_WR();
    noted_.erase(noted);
  }
}

void VelRmaPendingUpdates::Clear() {
  updates_.clear();
  noted_.clear();
  taken_ = 0;
}
