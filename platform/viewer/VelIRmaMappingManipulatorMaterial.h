// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIRmaMappingManipulatorMaterial.h Says that the mapping of a material can be manipulated in the viewer.
#ifndef PLATFORM_VIEWER_VELIRMAMAPPINGMANIPULATORMATERIAL_H
#define PLATFORM_VIEWER_VELIRMAMAPPINGMANIPULATORMATERIAL_H

#include "platform/base/VelPlatformApi.h"
#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"

VEL_PLATFORM_API extern const VelInterfaceId IID_VelIRmaMappingManipulatorMaterial;

/// A shader through which the texture mapping of its whole material can be manipulated in the viewer. Nothing is asked
/// of it beyond the interface's presence.
///
/// Implemented by: extensions of the late types of shader delegates.
/// Thread: the application thread. Re-entrancy: none.
class VEL_PLATFORM_API VelIRmaMappingManipulatorMaterial : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelIRmaMappingManipulatorMaterial);

 protected:
  ~VelIRmaMappingManipulatorMaterial() = default;
};

using VelIRmaMappingManipulatorMaterial_var = VelVar<VelIRmaMappingManipulatorMaterial>;

#endif  // PLATFORM_VIEWER_VELIRMAMAPPINGMANIPULATORMATERIAL_H
