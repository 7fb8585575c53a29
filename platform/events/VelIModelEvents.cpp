// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIModelEvents.cpp The identifier of VelIModelEvents.
#include "platform/events/VelIModelEvents.h"

const VelInterfaceId IID_VelIModelEvents{"VelIModelEvents", IID_VelBaseUnknown};
