// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIHardwareMaterial.h Says that a shader can be drawn by the graphics hardware.
#ifndef PLATFORM_VIEWER_VELIHARDWAREMATERIAL_H
#define PLATFORM_VIEWER_VELIHARDWAREMATERIAL_H

#include "platform/base/VelPlatformApi.h"
#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"

VEL_PLATFORM_API extern const VelInterfaceId IID_VelIHardwareMaterial;

/// A shader that the viewer can draw by the graphics hardware. Nothing is asked of it beyond the interface's
/// presence.
///
/// Implemented by: extensions of the late types of shader delegates.
/// Thread: the application thread. Re-entrancy: none.
class VEL_PLATFORM_API VelIHardwareMaterial : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelIHardwareMaterial);

 protected:
  ~VelIHardwareMaterial() = default;
};

using VelIHardwareMaterial_var = VelVar<VelIHardwareMaterial>;

#endif  // PLATFORM_VIEWER_VELIHARDWAREMATERIAL_H
