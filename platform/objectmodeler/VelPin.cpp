// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelPin.cpp The rare steps of a pin.
#include "platform/objectmodeler/VelPin.h"

#include "platform/objectmodeler/VelComponentAccess.h"

void VelPin::MakeLivePart(VelComponent& ioComponent) noexcept { VelComponentAccess::Live(ioComponent); }

void VelPin::Destroy(VelComponent& ioComponent) noexcept {
  VelComponentAccess::DestroyImplementations(VelComponentAccess::Live(ioComponent));
  ioComponent.OnEnded();
}
