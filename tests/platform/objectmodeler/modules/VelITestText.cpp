// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelITestText.cpp The identifier of VelITestText.
#include "tests/platform/objectmodeler/modules/VelITestText.h"

const VelInterfaceId IID_VelITestText{"VelITestText", IID_VelBaseUnknown};
