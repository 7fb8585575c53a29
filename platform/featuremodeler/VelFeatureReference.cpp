// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelFeatureReference.cpp The lists of references, by target.
#include "platform/featuremodeler/VelFeatureReference.h"

#include <unordered_map>

#include "platform/featuremodeler/VelFeature.h"

namespace {

/// The two ends of a target's list.
struct Ends {
  VelFeatureReference* first = nullptr;
  VelFeatureReference* last = nullptr;
};

/// Only features that something points at have an entry, so that the others pay nothing.
std::unordered_map<const VelFeature*, Ends>& Lists() {
  static auto& lists = *new std::unordered_map<const VelFeature*, Ends>;
  return lists;
}

}  // namespace

VelFeatureReference* VelFeatureReference::Make(VelFeature& iOwner, unsigned iAttribute, VelFeature& ioTarget) {
  auto* made = new VelFeatureReference(iOwner, iAttribute, ioTarget);
  Ends& ends = Lists()[&ioTarget];
  made->before_ = ends.last;
  (ends.last != nullptr ? ends.last->after_ : ends.first) = made;
  ends.last = made;
  return made;
}

void VelFeatureReference::End(VelFeatureReference* ioReference) noexcept {
  const auto list = Lists().find(ioReference->target_);
  Ends& ends = list->second;
  (ioReference->before_ != nullptr ? ioReference->before_->after_ : ends.first) = ioReference->after_;
  (ioReference->after_ != nullptr ? ioReference->after_->before_ : ends.last) = ioReference->before_;
  if (ends.first == nullptr) Lists().erase(list);
  delete ioReference;
}

void VelFeatureReference::EndAllTo(VelFeature& ioTarget) noexcept {
  const auto list = Lists().find(&ioTarget);
  if (list == Lists().end()) return;
  VelFeatureReference* next = list->second.first;
  Lists().erase(list);
  while (next != nullptr) {
    const VelFeatureReference* const ended = next;
    next = ended->after_;
    ended->owner_->ForgetValue(ended->attribute_);
    delete ended;
  }
}

std::vector<VelFeature*> VelFeatureReference::OwnersOf(const VelFeature& iTarget) {
  std::vector<VelFeature*> owners;
  const auto list = Lists().find(&iTarget);
  if (list == Lists().end()) return owners;
  for (const VelFeatureReference* next = list->second.first; next != nullptr; next = next->after_) {
    owners.push_back(next->owner_);
  }
  return owners;
}
