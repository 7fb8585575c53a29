// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TIEVelIRenderingMaterial.h The forwarder of VelIRenderingMaterial.
#ifndef PLATFORM_MATERIALS_TIEVELIRENDERINGMATERIAL_H
#define PLATFORM_MATERIALS_TIEVELIRENDERINGMATERIAL_H

#include "platform/materials/VelIRenderingMaterial.h"
#include "platform/objectmodeler/VelTie.h"

template <class Implementation>
class TIEVelIRenderingMaterial final : public VelTie<VelIRenderingMaterial> {
 public:
  using VelTie::VelTie;

  HRESULT GetShader(VelBaseUnknown** oShader) override {
    return Forward<Implementation>([&](Implementation& ioMaterial) { return ioMaterial.GetShader(oShader); });
  }
  HRESULT SetShader(VelBaseUnknown* iShader) override {
    return Forward<Implementation>([&](Implementation& ioMaterial) { return ioMaterial.SetShader(iShader); });
  }
  HRESULT GetScaleFactor(double& oFactor) override {
    return Forward<Implementation>([&](Implementation& ioMaterial) { return ioMaterial.GetScaleFactor(oFactor); });
  }
};

#endif  // PLATFORM_MATERIALS_TIEVELIRENDERINGMATERIAL_H
