// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelFeature.h A feature: a component whose attributes lie in its own block of memory.
#ifndef PLATFORM_FEATUREMODELER_VELFEATURE_H
#define PLATFORM_FEATUREMODELER_VELFEATURE_H

#include <cstdint>
#include <string_view>
#include <vector>

#include "platform/base/HResult.h"
#include "platform/featuremodeler/VelFeatureLayout.h"
#include "platform/objectmodeler/VelComponent.h"
#include "platform/objectmodeler/VelLateType.h"

class VelContainer;
class VelFeatureReference;
class VelInternedText;

/// One slot of a feature, by the kind of its attribute. A list of reals has its size in the first slot and its elements
/// in those that follow.
union VelFeatureSlot {
  bool boolean;
  std::int32_t integer;
  std::uint32_t unsignedInteger;
  double real;
  std::uint64_t size;
  VelInternedText* text;
  VelFeatureReference* reference;
  std::vector<class VelFeature*>* components;
  VelBaseUnknown* document;
};
static_assert(sizeof(VelFeatureSlot) == 8, "A slot is 8 bytes");

/// A feature, 48 bytes and its slots. It belongs to its container, which holds one reference on it, until it is removed
/// or the container is closed; a block that is still referenced then keeps its header until the last release. Not
/// exported: clients see features through VelISpecObject, VelISpecAttrAccess and LifeCycleObject.
class VelFeature final : public VelComponent {
 public:
  /// Makes a feature without father in a container; it is in session once SetOpen is called.
  static VelFeature& Make(VelContainer& ioContainer, const VelFeatureLayout& iLayout, std::string_view iName);

  /// @return true for a component that is a feature, and not just of a late type that features have
  static bool Is(const VelComponent& iComponent) noexcept { return &iComponent.GetMetaObject() == &MetaObject(); }

  /// @return the feature behind a pointer, null when it is none
  static VelFeature* From(VelBaseUnknown* iObject) noexcept;

  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;
  VelComponent* GetFather() noexcept override { return father_; }

  const VelFeatureLayout& Layout() const noexcept { return *LateType().Layout(); }
  VelContainer* Container() const noexcept;
  VelFeature* Father() const noexcept { return father_; }
  std::string_view Name() const noexcept;
  void SetName(std::string_view iName);
  void SetOpen() noexcept { Open(); }

  /// @return true once the values are gone. A removed feature can be read until what was built for it is destroyed.
  bool IsEnded() const noexcept { return (derivedByte_ & endedBit) != 0; }

  bool IsValuated(unsigned iAttribute) const noexcept { return (derivedBits_ >> iAttribute & 1U) != 0; }
  VelFeatureSlot& Slot(unsigned iAttribute) noexcept { return Slots()[Layout().Attributes()[iAttribute].slot]; }

  /// Marks an attribute as valuated; its slot has been written.
  void SetValuated(unsigned iAttribute) noexcept {
    derivedBits_ = static_cast<std::uint16_t>(derivedBits_ | 1U << iAttribute);
  }

  /// Marks an attribute as not valuated; what its slot held is gone already.
  void ForgetValue(unsigned iAttribute) noexcept {
    derivedBits_ = static_cast<std::uint16_t>(derivedBits_ & ~(1U << iAttribute));
  }

  /// Ends what a slot holds and marks it as not valuated. The elements of a component list lose their father.
  void ClearValue(unsigned iAttribute) noexcept;

  /// Appends to a component list, or takes out of it; the rules are those of VelISpecAttrAccess.
  HRESULT Append(unsigned iAttribute, VelFeature& ioComponent);
  HRESULT TakeOut(unsigned iAttribute, VelFeature& ioComponent);

  /// Copies the feature and what it aggregates. @return the copy, which has no father; null when the container is
  /// closed
  VelFeature* CopyInto(VelContainer& ioContainer, std::string_view iName) const;

  /// Removes the feature and what it aggregates, as LifeCycleObject::remove.
  HRESULT Remove();

  /// Appends the feature and what it aggregates, fathers first.
  void ListSubtree(std::vector<VelFeature*>& ioFeatures);

  /// Closes features together, in the order given.
  /// @param[in] iFeatures features of one container, all open, fathers before what they aggregate
  /// @param[in] iRemoved whether they are removed, so that the document hooks are called, or their container is closed
  static void CloseAll(const std::vector<VelFeature*>& iFeatures, bool iRemoved) noexcept;

 private:
  VelFeature(VelLateType& iLateType, std::string_view iName);
  ~VelFeature() override;

  VelFeatureSlot* Slots() noexcept { return reinterpret_cast<VelFeatureSlot*>(this + 1); }
  void OnUnreferenced() noexcept override;
  void OnEnded() noexcept override;
  void CopyValuesTo(VelFeature& ioCopy) const;
  void LeaveFather() noexcept;
  void DropDocuments() noexcept;

  // What derivedByte_ remembers.
  static constexpr std::uint8_t removedBit = 1;  ///< It is removed, not closed with its container.
  static constexpr std::uint8_t endedBit = 2;    ///< Its values are gone.

  VelFeature* father_ = nullptr;
  VelInternedText* name_;
};

#endif  // PLATFORM_FEATUREMODELER_VELFEATURE_H
