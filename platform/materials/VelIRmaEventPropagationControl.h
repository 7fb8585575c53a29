// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIRmaEventPropagationControl.h Says that changes of a shader may reach the appearance of its material.
#ifndef PLATFORM_MATERIALS_VELIRMAEVENTPROPAGATIONCONTROL_H
#define PLATFORM_MATERIALS_VELIRMAEVENTPROPAGATIONCONTROL_H

#include "platform/base/VelPlatformApi.h"
#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"

VEL_PLATFORM_API extern const VelInterfaceId IID_VelIRmaEventPropagationControl;

/// A rendering material whose appearance follows the changes of its shaders. Nothing is asked of it beyond the
/// interface's presence.
///
/// Implemented by: the rendering material of the host; tests bring their own.
/// Thread: the application thread. Re-entrancy: none.
class VEL_PLATFORM_API VelIRmaEventPropagationControl : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelIRmaEventPropagationControl);

 protected:
  ~VelIRmaEventPropagationControl() = default;
};

using VelIRmaEventPropagationControl_var = VelVar<VelIRmaEventPropagationControl>;

#endif  // PLATFORM_MATERIALS_VELIRMAEVENTPROPAGATIONCONTROL_H
