// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshInterfacesApi.h Marks what the library VelRshInterfaces exports.
#ifndef RENDERINGSHADER_INTERFACES_VELRSHINTERFACESAPI_H
#define RENDERINGSHADER_INTERFACES_VELRSHINTERFACESAPI_H

#include "platform/base/VelVisibility.h"

#if defined(VEL_RSH_INTERFACES_BUILD)
#define VEL_RSH_INTERFACES_API VEL_EXPORT
#else
#define VEL_RSH_INTERFACES_API VEL_IMPORT
#endif

#endif  // RENDERINGSHADER_INTERFACES_VELRSHINTERFACESAPI_H
