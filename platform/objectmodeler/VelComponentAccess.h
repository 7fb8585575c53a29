// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelComponentAccess.h What the object modeler's own files do to components and implementations.
#ifndef PLATFORM_OBJECTMODELER_VELCOMPONENTACCESS_H
#define PLATFORM_OBJECTMODELER_VELCOMPONENTACCESS_H

#include "platform/objectmodeler/VelComponent.h"
#include "platform/objectmodeler/VelImplementation.h"
#include "platform/objectmodeler/VelLivePart.h"

/// The door to the fields that forwarders, weak references, pins and the builder share; not exported.
class VelComponentAccess {
 public:
  /// @return the live part, made when there is none
  static VelLivePart& Live(VelComponent& ioComponent);

  /// @return the live part, null where nothing was built and nothing points weakly
  static VelLivePart* LiveOrNull(const VelComponent& iComponent) noexcept { return iComponent.live_; }

  /// Drops one holder of a live part.
  static void Drop(VelLivePart* ioLive) noexcept;

  /// @return what was built of a class, null when nothing was
  static VelImplementation* Find(const VelComponent& iComponent, const VelClassRecord* iRecord) noexcept {
    if (iComponent.live_ == nullptr) return nullptr;
    VelImplementation* built = iComponent.live_->first;
    while (built != nullptr && built->record_ != iRecord) built = built->next_;
    return built;
  }

  /// Makes a new implementation part of its component.
  static void Attach(VelImplementation& ioImplementation, const VelClassRecord* iRecord);

  /// Destroys what was built, the youngest first.
  static void DestroyImplementations(VelLivePart& ioLive) noexcept;

  /// Drops a reference, as VelComponent::Release.
  static void Release(VelComponent& ioComponent) noexcept {
    if (--ioComponent.count_ == 0) ioComponent.OnUnreferenced();
  }

  /// @return what was built before an implementation for the same component, null for the first
  static VelImplementation* Older(const VelImplementation& iImplementation) noexcept { return iImplementation.next_; }

  /// @return the class by which an implementation is found in its component, null before it is part of it
  static const VelClassRecord* Record(const VelImplementation& iImplementation) noexcept {
    return iImplementation.record_;
  }
};

#endif  // PLATFORM_OBJECTMODELER_VELCOMPONENTACCESS_H
