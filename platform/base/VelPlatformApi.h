// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelPlatformApi.h Marks what the library VelPlatform exports.
#ifndef PLATFORM_BASE_VELPLATFORMAPI_H
#define PLATFORM_BASE_VELPLATFORMAPI_H

#include "platform/base/VelVisibility.h"

#if defined(VEL_PLATFORM_BUILD)
#define VEL_PLATFORM_API VEL_EXPORT
#else
#define VEL_PLATFORM_API VEL_IMPORT
#endif

#endif  // PLATFORM_BASE_VELPLATFORMAPI_H
