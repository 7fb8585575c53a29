// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshReaderParameterVariability.cpp Asks a parameter for the image that drives it.
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterVariability.h"

#include "platform/viewer/VelIRmaVisuResourceImage.h"

VelRshReaderParameterVariability::Type VelRshReaderParameterVariability::operator()(
    const VelIRshParameter& iParameter) const {
  const VelIRmaVisuResourceImage_var hImage(&const_cast<VelIRshParameter&>(iParameter));
  VelBaseUnknown_var hResource;
  if (!hImage || FAILED(hImage->GetResourceImage(hResource.Receive()))) return Uniform;
  return hResource ? Varying : Uniform;
}
