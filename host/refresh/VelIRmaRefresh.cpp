// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIRmaRefresh.cpp The identifier of the interface.
#include "host/refresh/VelIRmaRefresh.h"

const VelInterfaceId IID_VelIRmaRefresh{"VelIRmaRefresh", IID_VelBaseUnknown};
