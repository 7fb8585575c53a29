// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TIEVelIRmaEventPropagationControl.h The forwarder of VelIRmaEventPropagationControl.
#ifndef PLATFORM_MATERIALS_TIEVELIRMAEVENTPROPAGATIONCONTROL_H
#define PLATFORM_MATERIALS_TIEVELIRMAEVENTPROPAGATIONCONTROL_H

#include "platform/materials/VelIRmaEventPropagationControl.h"
#include "platform/objectmodeler/VelTie.h"

template <class Implementation>
class TIEVelIRmaEventPropagationControl final : public VelTie<VelIRmaEventPropagationControl> {
 public:
  using VelTie::VelTie;
};

#endif  // PLATFORM_MATERIALS_TIEVELIRMAEVENTPROPAGATIONCONTROL_H
