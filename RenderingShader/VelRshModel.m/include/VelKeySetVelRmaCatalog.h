// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelKeySetVelRmaCatalog.h The keys of the attributes of shaders and parameters.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELKEYSETVELRMACATALOG_H
#define RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELKEYSETVELRMACATALOG_H

#include "RenderingShader/VelRshModel.m/include/VelRshModelApi.h"
#include "platform/featuremodeler/VelISpecAttrAccess.h"
#include "platform/featuremodeler/VelISpecAttrKey.h"

/// Hands out the key of each attribute of VelRmaCatalog.feat that the component reads or writes, one static accessor
/// per row of VelRmaCatalogKeys.def. Never instantiated.
///
/// An accessor resolves its key on the first feature that has the attribute, once per process, and from then on returns
/// it at once, whatever is passed. It never loads the catalog.
/// @param[in] iAccess the attributes of the feature that is about to be read or written; looked at only while the key
/// is not
///            resolved; null resolves nothing
/// @return the key, which lives to the end of the process; null while it cannot be resolved, which no feature then has
///         (VelISpecAttrAccess::TestAttrKey). A later call with a proper feature resolves it.
///
/// Thread: the application thread.
class VEL_RSH_MODEL_API VelKeySetVelRmaCatalog {
 public:
  VelKeySetVelRmaCatalog() = delete;
  VelKeySetVelRmaCatalog& operator=(const VelKeySetVelRmaCatalog&) = default;

#define VEL_RMA_KEY(Accessor, StartUp, Attribute) static const VelISpecAttrKey* Accessor(VelISpecAttrAccess* iAccess);
#include "RenderingShader/VelRshModel.m/include/VelRmaCatalogKeys.def"
#undef VEL_RMA_KEY
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELKEYSETVELRMACATALOG_H
