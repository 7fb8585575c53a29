// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TIEVelIRmaDimension2D.h The forwarder of VelIRmaDimension2D.
#ifndef PLATFORM_MATERIALS_TIEVELIRMADIMENSION2D_H
#define PLATFORM_MATERIALS_TIEVELIRMADIMENSION2D_H

#include "platform/materials/VelIRmaDimension2D.h"
#include "platform/objectmodeler/VelTie.h"

template <class Implementation>
class TIEVelIRmaDimension2D final : public VelTie<VelIRmaDimension2D> {
 public:
  using VelTie::VelTie;

  HRESULT GetSize(const VelUnit& iUnit, float& oWidth, float& oHeight) override {
    return Forward<Implementation>(
        [&](Implementation& ioMaterial) { return ioMaterial.GetSize(iUnit, oWidth, oHeight); });
  }
};

#endif  // PLATFORM_MATERIALS_TIEVELIRMADIMENSION2D_H
