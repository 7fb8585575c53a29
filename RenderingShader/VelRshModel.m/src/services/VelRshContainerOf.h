// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshContainerOf.h The container of a feature, as an interface.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_SERVICES_VELRSHCONTAINEROF_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_SERVICES_VELRSHCONTAINEROF_H

#include "platform/featuremodeler/VelIContainer.h"
#include "platform/featuremodeler/VelISpecObject.h"

/// @param[in] iObject any pointer that stands for a feature
/// @return the container that holds it; empty for what is no feature and for one that is in none any more
inline VelIContainer_var VelRshContainerOf(VelBaseUnknown& iObject) {
  const VelISpecObject_var hFeature(&iObject);
  VelIContainer_var hContainer;
  if (!hFeature || FAILED(hFeature->GetContainer(hContainer.Receive()))) return nullptr;
  return hContainer;
}

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_SERVICES_VELRSHCONTAINEROF_H
