// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshModelApi.h Marks what the library VelRshModel exports.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHMODELAPI_H
#define RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHMODELAPI_H

#include "platform/base/VelVisibility.h"

#if defined(VEL_RSH_MODEL_BUILD)
#define VEL_RSH_MODEL_API VEL_EXPORT
#else
#define VEL_RSH_MODEL_API VEL_IMPORT
#endif

#endif  // RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHMODELAPI_H
