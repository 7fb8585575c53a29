// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshCarriedValue.h Which values the manager carries over, into copies and through upgrades alike.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_MANAGEMENT_VELRSHCARRIEDVALUE_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_MANAGEMENT_VELRSHCARRIEDVALUE_H

#include "RenderingShader/VelRshModel.m/src/management/VelRshValueCopy.h"

/// Carries a value over. Texts, matrices and sub-shaders deliberately keep what the target has.
/// @param[in] iStartUp the type of both
/// @return S_OK, also where nothing is carried over, as of a document that cannot be read; otherwise why a plain value
///         could not be read, or any not be written
inline HRESULT VelRshCarryValue(const VelString& iStartUp, VelIRshParameter& iSource, VelIRshParameter& ioTarget) {
  const VelRshValueCopy::Kind kind = VelRshValueCopy::KindOf(iStartUp);
  if (kind != VelRshValueCopy::Kind::Plain && kind != VelRshValueCopy::Kind::Document) return S_OK;
  const VelRshValueCopy copy = VelRshValueCopy::Run(iStartUp, iSource, ioTarget);
  if (FAILED(copy.read)) return kind == VelRshValueCopy::Kind::Plain ? copy.read : S_OK;
  return FAILED(copy.write) ? copy.write : S_OK;
}

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_MANAGEMENT_VELRSHCARRIEDVALUE_H
