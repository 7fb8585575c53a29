// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TIEVelIRshShaderResources.h The forwarder of VelIRshShaderResources.
#ifndef RENDERINGSHADER_INTERFACES_TIEVELIRSHSHADERRESOURCES_H
#define RENDERINGSHADER_INTERFACES_TIEVELIRSHSHADERRESOURCES_H

#include "RenderingShader/interfaces/VelIRshShaderResources.h"
#include "platform/objectmodeler/VelTie.h"

template <class Implementation>
class TIEVelIRshShaderResources final : public VelTie<VelIRshShaderResources> {
 public:
  using VelTie::VelTie;

  HRESULT GetText(const VelString& iCategory, const VelString& iName, VelUnicodeString& oText) override {
    return Forward<Implementation>(
        [&](Implementation& ioResources) { return ioResources.GetText(iCategory, iName, oText); });
  }
};

#endif  // RENDERINGSHADER_INTERFACES_TIEVELIRSHSHADERRESOURCES_H
