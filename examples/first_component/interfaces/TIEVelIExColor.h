// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TIEVelIExColor.h The forwarder of VelIExColor.
#ifndef EXAMPLES_FIRST_COMPONENT_INTERFACES_TIEVELIEXCOLOR_H
#define EXAMPLES_FIRST_COMPONENT_INTERFACES_TIEVELIEXCOLOR_H

#include "examples/first_component/interfaces/VelIExColor.h"
#include "platform/objectmodeler/VelTie.h"

template <class Implementation>
class TIEVelIExColor final : public VelTie<VelIExColor> {
 public:
  using VelTie::VelTie;

  HRESULT SetColor(const VelExRgb& iColor) override {
    return Forward<Implementation>([&](Implementation& ioSwatch) { return ioSwatch.SetColor(iColor); });
  }
  HRESULT GetColor(VelExRgb& oColor) override {
    return Forward<Implementation>([&](Implementation& ioSwatch) { return ioSwatch.GetColor(oColor); });
  }
};

#endif  // EXAMPLES_FIRST_COMPONENT_INTERFACES_TIEVELIEXCOLOR_H
