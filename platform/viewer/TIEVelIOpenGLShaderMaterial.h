// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TIEVelIOpenGLShaderMaterial.h The forwarder of VelIOpenGLShaderMaterial.
#ifndef PLATFORM_VIEWER_TIEVELIOPENGLSHADERMATERIAL_H
#define PLATFORM_VIEWER_TIEVELIOPENGLSHADERMATERIAL_H

#include "platform/objectmodeler/VelTie.h"
#include "platform/viewer/VelIOpenGLShaderMaterial.h"

template <class Implementation>
class TIEVelIOpenGLShaderMaterial final : public VelTie<VelIOpenGLShaderMaterial> {
 public:
  using VelTie::VelTie;
};

#endif  // PLATFORM_VIEWER_TIEVELIOPENGLSHADERMATERIAL_H
