// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIConfigurationReader.cpp The identifier of VelIConfigurationReader.
#include "platform/configuration/VelIConfigurationReader.h"

const VelInterfaceId IID_VelIConfigurationReader{"VelIConfigurationReader", IID_VelBaseUnknown};
