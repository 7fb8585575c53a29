// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelFeatureLayout.h A start-up, compiled: where each attribute of its features lies.
#ifndef PLATFORM_FEATUREMODELER_VELFEATURELAYOUT_H
#define PLATFORM_FEATUREMODELER_VELFEATURELAYOUT_H

#include <cstdint>
#include <string>
#include <vector>

#include "platform/featuremodeler/VelISpecAttrKey.h"

class VelLateType;

/// One attribute of a layout.
struct VelFeatureAttribute {
  const VelISpecAttrKey* key;
  unsigned slot;      ///< Its first slot of 8 bytes.
  unsigned capacity;  ///< Of a list of reals: how many elements there is room for; else 0.
};

/// The attributes of a start-up, those of its bases first. Made once per process by the catalogs; not exported.
class VelFeatureLayout {
 public:
  /// The most attributes that a start-up has, those of its bases included: each has a bit that tells whether it is
  /// valuated.
  static constexpr std::size_t attributeLimit = 16;

  VelFeatureLayout(std::string iName, const VelFeatureLayout* iBase, VelLateType& iLateType);

  const std::string& Name() const noexcept { return name_; }
  const VelFeatureLayout* Base() const noexcept { return base_; }
  VelLateType& LateType() const noexcept { return *lateType_; }
  const std::vector<VelFeatureAttribute>& Attributes() const noexcept { return attributes_; }

  /// @return the bytes of a feature's slots
  std::size_t SlotBytes() const noexcept { return slotCount_ * 8; }

  /// Adds an attribute at the end; one list of reals takes a slot for its size and one per element.
  void Add(const VelISpecAttrKey& iKey, unsigned iCapacity);

  /// @return the position of a key's attribute, absent for a key that the start-up does not have
  unsigned Find(const VelISpecAttrKey* iKey) const noexcept {
    return iKey != nullptr && iKey->Index() < positions_.size() ? positions_[iKey->Index()] : absent;
  }
  static constexpr unsigned absent = 0xFF;

  /// @return true when this is the named start-up or derives from it
  bool IsAKindOf(std::string_view iName) const noexcept;

 private:
  std::string name_;
  const VelFeatureLayout* base_;
  VelLateType* lateType_;
  std::vector<VelFeatureAttribute> attributes_;
  std::vector<std::uint8_t> positions_;  ///< By key number: the position in attributes_, or absent.
  std::size_t slotCount_ = 0;
};

#endif  // PLATFORM_FEATUREMODELER_VELFEATURELAYOUT_H
