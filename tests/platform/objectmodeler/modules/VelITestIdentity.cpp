// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelITestIdentity.cpp The identifier of VelITestIdentity.
#include "tests/platform/objectmodeler/modules/VelITestIdentity.h"

const VelInterfaceId IID_VelITestIdentity{"VelITestIdentity", IID_VelBaseUnknown};
