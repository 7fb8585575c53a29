// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TIEVelIPlasticMaterial.h The forwarder of VelIPlasticMaterial.
#ifndef PLATFORM_MATERIALS_TIEVELIPLASTICMATERIAL_H
#define PLATFORM_MATERIALS_TIEVELIPLASTICMATERIAL_H

#include "platform/materials/VelIPlasticMaterial.h"
#include "platform/objectmodeler/VelTie.h"

template <class Implementation>
class TIEVelIPlasticMaterial final : public VelTie<VelIPlasticMaterial> {
 public:
  using VelTie::VelTie;

  HRESULT GetVersion(std::uint32_t& oVersion) override {
    return Forward<Implementation>([&](Implementation& ioMaterial) { return ioMaterial.GetVersion(oVersion); });
  }
  HRESULT GetScale(double& oScale) override {
    return Forward<Implementation>([&](Implementation& ioMaterial) { return ioMaterial.GetScale(oScale); });
  }
};

#endif  // PLATFORM_MATERIALS_TIEVELIPLASTICMATERIAL_H
