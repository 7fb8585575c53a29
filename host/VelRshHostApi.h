// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshHostApi.h Marks what the library VelRshHost exports.
#ifndef HOST_VELRSHHOSTAPI_H
#define HOST_VELRSHHOSTAPI_H

#include "platform/base/VelVisibility.h"

#if defined(VEL_RSH_HOST_BUILD)
#define VEL_RSH_HOST_API VEL_EXPORT
#else
#define VEL_RSH_HOST_API VEL_IMPORT
#endif

#endif  // HOST_VELRSHHOSTAPI_H
