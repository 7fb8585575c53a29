// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TIEVelIAlias.h The forwarder of VelIAlias.
#ifndef RENDERINGSHADER_INTERFACES_TIEVELIALIAS_H
#define RENDERINGSHADER_INTERFACES_TIEVELIALIAS_H

#include "RenderingShader/interfaces/VelIAlias.h"
#include "platform/objectmodeler/VelTie.h"

template <class Implementation>
class TIEVelIAlias final : public VelTie<VelIAlias> {
 public:
  using VelTie::VelTie;

  HRESULT SetAlias(const VelUnicodeString& iAlias) override {
    return Forward<Implementation>([&](Implementation& ioObject) { return ioObject.SetAlias(iAlias); });
  }
  VelUnicodeString GetAlias() override {
    return Forward<Implementation>([&](Implementation& ioObject) { return ioObject.GetAlias(); });
  }
};

#endif  // RENDERINGSHADER_INTERFACES_TIEVELIALIAS_H
