// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshFather.h The father of a feature, as an interface.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_SERVICES_VELRSHFATHER_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_SERVICES_VELRSHFATHER_H

#include "platform/featuremodeler/VelISpecObject.h"

/// @param[in] iObject any pointer that stands for a feature
/// @return the feature that aggregates it; empty for what is no feature and for one without a father
inline VelISpecObject_var VelRshFather(VelBaseUnknown& iObject) {
  const VelISpecObject_var hFeature(&iObject);
  VelISpecObject_var hFather;
  if (!hFeature || FAILED(hFeature->GetFather(hFather.Receive()))) return nullptr;
  return hFather;
}

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_SERVICES_VELRSHFATHER_H
