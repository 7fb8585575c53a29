// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIOpenGLShaderMaterial.h Says that a shader brings a program for the graphics hardware.
#ifndef PLATFORM_VIEWER_VELIOPENGLSHADERMATERIAL_H
#define PLATFORM_VIEWER_VELIOPENGLSHADERMATERIAL_H

#include "platform/base/VelPlatformApi.h"
#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"

VEL_PLATFORM_API extern const VelInterfaceId IID_VelIOpenGLShaderMaterial;

/// A shader that brings a program of its own for the graphics hardware. Nothing is asked of it beyond the interface's
/// presence.
///
/// Implemented by: extensions of the late types of shader delegates.
/// Thread: the application thread. Re-entrancy: none.
class VEL_PLATFORM_API VelIOpenGLShaderMaterial : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelIOpenGLShaderMaterial);

 protected:
  ~VelIOpenGLShaderMaterial() = default;
};

using VelIOpenGLShaderMaterial_var = VelVar<VelIOpenGLShaderMaterial>;

#endif  // PLATFORM_VIEWER_VELIOPENGLSHADERMATERIAL_H
