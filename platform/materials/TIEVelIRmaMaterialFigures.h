// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TIEVelIRmaMaterialFigures.h The forwarder of VelIRmaMaterialFigures.
#ifndef PLATFORM_MATERIALS_TIEVELIRMAMATERIALFIGURES_H
#define PLATFORM_MATERIALS_TIEVELIRMAMATERIALFIGURES_H

#include "platform/materials/VelIRmaMaterialFigures.h"
#include "platform/objectmodeler/VelTie.h"

template <class Implementation>
class TIEVelIRmaMaterialFigures final : public VelTie<VelIRmaMaterialFigures> {
 public:
  using VelTie::VelTie;

  HRESULT SetVersion(std::uint32_t iVersion) override {
    return Forward<Implementation>([&](Implementation& ioMaterial) { return ioMaterial.SetVersion(iVersion); });
  }
  HRESULT SetPlasticScale(double iScale) override {
    return Forward<Implementation>([&](Implementation& ioMaterial) { return ioMaterial.SetPlasticScale(iScale); });
  }
  HRESULT SetSize(const VelUnit& iUnit, double iWidth, double iHeight) override {
    return Forward<Implementation>(
        [&](Implementation& ioMaterial) { return ioMaterial.SetSize(iUnit, iWidth, iHeight); });
  }
  HRESULT SetScaleFactor(double iFactor) override {
    return Forward<Implementation>([&](Implementation& ioMaterial) { return ioMaterial.SetScaleFactor(iFactor); });
  }
};

#endif  // PLATFORM_MATERIALS_TIEVELIRMAMATERIALFIGURES_H
