// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIImageServices.cpp The identifier of VelIImageServices.
#include "platform/images/VelIImageServices.h"

const VelInterfaceId IID_VelIImageServices{"VelIImageServices", IID_VelBaseUnknown};
