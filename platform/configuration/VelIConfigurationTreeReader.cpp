// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIConfigurationTreeReader.cpp The identifier of VelIConfigurationTreeReader.
#include "platform/configuration/VelIConfigurationTreeReader.h"

const VelInterfaceId IID_VelIConfigurationTreeReader{"VelIConfigurationTreeReader", IID_VelBaseUnknown};
