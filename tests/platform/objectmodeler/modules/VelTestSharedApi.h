// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTestSharedApi.h Marks what the library VelTestShared exports.
#ifndef TESTS_PLATFORM_OBJECTMODELER_MODULES_VELTESTSHAREDAPI_H
#define TESTS_PLATFORM_OBJECTMODELER_MODULES_VELTESTSHAREDAPI_H

#include "platform/base/VelVisibility.h"

#if defined(VEL_TEST_SHARED_BUILD)
#define VEL_TEST_SHARED_API VEL_EXPORT
#else
#define VEL_TEST_SHARED_API VEL_IMPORT
#endif

#endif  // TESTS_PLATFORM_OBJECTMODELER_MODULES_VELTESTSHAREDAPI_H
