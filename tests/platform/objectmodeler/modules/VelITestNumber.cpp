// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelITestNumber.cpp The identifier of VelITestNumber.
#include "tests/platform/objectmodeler/modules/VelITestNumber.h"

const VelInterfaceId IID_VelITestNumber{"VelITestNumber", IID_VelBaseUnknown};
