// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelPin.h Keeps a component and what was built for it until a running call has unwound.
#ifndef PLATFORM_OBJECTMODELER_VELPIN_H
#define PLATFORM_OBJECTMODELER_VELPIN_H

#include "platform/base/VelPlatformApi.h"
#include "platform/objectmodeler/VelComponent.h"
#include "platform/objectmodeler/VelLivePart.h"

/// While a pin lives, closing its component announces the end at once but destroys nothing: what was built goes when
/// the last pin goes. Every forwarder pins its component during a call, so an operation may well be the cause of its
/// own component's end. A pin also holds a reference.
class VEL_PLATFORM_API VelPin {
 public:
  explicit VelPin(VelComponent& iComponent) noexcept : component_(iComponent) {
    ++component_.count_;
    Take(component_);
  }
  ~VelPin() {
    Give(component_);
    if (--component_.count_ == 0) component_.OnUnreferenced();
  }
  VelPin(const VelPin&) = delete;
  VelPin& operator=(const VelPin&) = delete;

  /// The pin without the reference, for those who hold one otherwise; each take is balanced by one give.
  static void Take(VelComponent& ioComponent) noexcept {
    if (ioComponent.live_ == nullptr) MakeLivePart(ioComponent);
    ++ioComponent.live_->pins;
  }
  static void Give(VelComponent& ioComponent) noexcept {
    if (--ioComponent.live_->pins == 0 && ioComponent.State() == VelComponentState::Closed) Destroy(ioComponent);
  }

 private:
  static void MakeLivePart(VelComponent& ioComponent) noexcept;
  static void Destroy(VelComponent& ioComponent) noexcept;

  VelComponent& component_;
};

#endif  // PLATFORM_OBJECTMODELER_VELPIN_H
