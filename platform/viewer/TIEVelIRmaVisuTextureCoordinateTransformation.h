// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TIEVelIRmaVisuTextureCoordinateTransformation.h The forwarder of VelIRmaVisuTextureCoordinateTransformation.
#ifndef PLATFORM_VIEWER_TIEVELIRMAVISUTEXTURECOORDINATETRANSFORMATION_H
#define PLATFORM_VIEWER_TIEVELIRMAVISUTEXTURECOORDINATETRANSFORMATION_H

#include "platform/objectmodeler/VelTie.h"
#include "platform/viewer/VelIRmaVisuTextureCoordinateTransformation.h"

template <class Implementation>
class TIEVelIRmaVisuTextureCoordinateTransformation final : public VelTie<VelIRmaVisuTextureCoordinateTransformation> {
 public:
  using VelTie::VelTie;

  HRESULT GetMappingBehavior(std::uint32_t& oBehavior) override {
    return Forward<Implementation>([&](Implementation& ioShader) { return ioShader.GetMappingBehavior(oBehavior); });
  }
  HRESULT GetProjectorFunction(std::uint32_t& oFunction) override {
    return Forward<Implementation>([&](Implementation& ioShader) { return ioShader.GetProjectorFunction(oFunction); });
  }
  HRESULT GetTransformation(Vel3x3Matrix& oTransformation) override {
    return Forward<Implementation>(
        [&](Implementation& ioShader) { return ioShader.GetTransformation(oTransformation); });
  }
  HRESULT HasResourceImage(bool& oHasImage) override {
    return Forward<Implementation>([&](Implementation& ioShader) { return ioShader.HasResourceImage(oHasImage); });
  }
};

#endif  // PLATFORM_VIEWER_TIEVELIRMAVISUTEXTURECOORDINATETRANSFORMATION_H
