// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIRmaMappingManipulator.h Says that the mapping of a shader can be manipulated in the viewer.
#ifndef PLATFORM_VIEWER_VELIRMAMAPPINGMANIPULATOR_H
#define PLATFORM_VIEWER_VELIRMAMAPPINGMANIPULATOR_H

#include "platform/base/VelPlatformApi.h"
#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"

VEL_PLATFORM_API extern const VelInterfaceId IID_VelIRmaMappingManipulator;

/// A shader whose texture mapping can be manipulated in the viewer. Nothing is asked of it beyond the interface's
/// presence.
///
/// Implemented by: extensions of the late types of shader delegates.
/// Thread: the application thread. Re-entrancy: none.
class VEL_PLATFORM_API VelIRmaMappingManipulator : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelIRmaMappingManipulator);

 protected:
  ~VelIRmaMappingManipulator() = default;
};

using VelIRmaMappingManipulator_var = VelVar<VelIRmaMappingManipulator>;

#endif  // PLATFORM_VIEWER_VELIRMAMAPPINGMANIPULATOR_H
