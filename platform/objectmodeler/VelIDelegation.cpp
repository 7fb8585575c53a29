// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIDelegation.cpp The identifier of VelIDelegation.
#include "platform/objectmodeler/VelIDelegation.h"

const VelInterfaceId IID_VelIDelegation{"VelIDelegation", IID_VelBaseUnknown};
