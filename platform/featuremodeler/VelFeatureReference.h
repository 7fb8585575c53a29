// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelFeatureReference.h A valuated reference attribute, seen from both ends.
#ifndef PLATFORM_FEATUREMODELER_VELFEATUREREFERENCE_H
#define PLATFORM_FEATUREMODELER_VELFEATUREREFERENCE_H

#include <vector>

class VelFeature;

/// One reference: it hangs on the slot of its owner, and on its target's list in the order in which the references were
/// written. Taking it off either end takes constant time. Not exported.
class VelFeatureReference {
 public:
  /// Makes a reference and appends it to the target's list.
  static VelFeatureReference* Make(VelFeature& iOwner, unsigned iAttribute, VelFeature& ioTarget);

  /// Takes a reference off its target's list and ends it; the owner's slot is the owner's affair.
  static void End(VelFeatureReference* ioReference) noexcept;

  /// Ends every reference that points at a feature, and tells each owner that its attribute has no value any more.
  static void EndAllTo(VelFeature& ioTarget) noexcept;

  /// @return the owners of the references to a feature, one entry a reference, in the order in which they were written
  static std::vector<VelFeature*> OwnersOf(const VelFeature& iTarget);

  VelFeature& Target() const noexcept { return *target_; }

 private:
  VelFeatureReference(VelFeature& iOwner, unsigned iAttribute, VelFeature& iTarget) noexcept
      : owner_(&iOwner), target_(&iTarget), attribute_(iAttribute) {}

  VelFeature* owner_;
  VelFeature* target_;
  VelFeatureReference* before_ = nullptr;
  VelFeatureReference* after_ = nullptr;
  unsigned attribute_;
};

#endif  // PLATFORM_FEATUREMODELER_VELFEATUREREFERENCE_H
