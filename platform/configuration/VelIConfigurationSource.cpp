// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIConfigurationSource.cpp The identifier of VelIConfigurationSource.
#include "platform/configuration/VelIConfigurationSource.h"

const VelInterfaceId IID_VelIConfigurationSource{"VelIConfigurationSource", IID_VelBaseUnknown};
