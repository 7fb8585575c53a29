// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TIEVelIRshParameterDialog.h The forwarder of VelIRshParameterDialog.
#ifndef RENDERINGSHADER_INTERFACES_TIEVELIRSHPARAMETERDIALOG_H
#define RENDERINGSHADER_INTERFACES_TIEVELIRSHPARAMETERDIALOG_H

#include "RenderingShader/interfaces/VelIRshParameterDialog.h"
#include "platform/objectmodeler/VelTie.h"

template <class Implementation>
class TIEVelIRshParameterDialog final : public VelTie<VelIRshParameterDialog> {
 public:
  using VelTie::VelTie;

  HRESULT GetDefaultValue(VelRshValueTarget oValue) override {
    return Forward<Implementation>([&](Implementation& ioDialog) { return ioDialog.GetDefaultValue(oValue); });
  }
};

#endif  // RENDERINGSHADER_INTERFACES_TIEVELIRSHPARAMETERDIALOG_H
