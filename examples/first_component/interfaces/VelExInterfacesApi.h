// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelExInterfacesApi.h Marks what the library VelExInterfaces exports.
#ifndef EXAMPLES_FIRST_COMPONENT_INTERFACES_VELEXINTERFACESAPI_H
#define EXAMPLES_FIRST_COMPONENT_INTERFACES_VELEXINTERFACESAPI_H

#include "platform/base/VelVisibility.h"

#if defined(VEL_EX_INTERFACES_BUILD)
#define VEL_EX_INTERFACES_API VEL_EXPORT
#else
#define VEL_EX_INTERFACES_API VEL_IMPORT
#endif

#endif  // EXAMPLES_FIRST_COMPONENT_INTERFACES_VELEXINTERFACESAPI_H
