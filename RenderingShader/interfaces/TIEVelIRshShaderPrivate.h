// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TIEVelIRshShaderPrivate.h The forwarder of VelIRshShaderPrivate.
#ifndef RENDERINGSHADER_INTERFACES_TIEVELIRSHSHADERPRIVATE_H
#define RENDERINGSHADER_INTERFACES_TIEVELIRSHSHADERPRIVATE_H

#include "RenderingShader/interfaces/VelIRshShaderPrivate.h"
#include "platform/objectmodeler/VelTie.h"

template <class Implementation>
class TIEVelIRshShaderPrivate final : public VelTie<VelIRshShaderPrivate> {
 public:
  using VelTie::VelTie;

  VelString GetTypeName() override {
    return Forward<Implementation>([&](Implementation& ioShader) { return ioShader.GetTypeName(); });
  }
  HRESULT NoteConnectionFrom(VelIRshShader* iShader) override {
    return Forward<Implementation>([&](Implementation& ioShader) { return ioShader.NoteConnectionFrom(iShader); });
  }
  void GetParentShader(VelIRshShader_var& oShader) override {
    Forward<Implementation>([&](Implementation& ioShader) { ioShader.GetParentShader(oShader); });
  }
};

#endif  // RENDERINGSHADER_INTERFACES_TIEVELIRSHSHADERPRIVATE_H
