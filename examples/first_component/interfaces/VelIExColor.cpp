// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIExColor.cpp The identifier of VelIExColor.
#include "examples/first_component/interfaces/VelIExColor.h"

const VelInterfaceId IID_VelIExColor{"VelIExColor", IID_VelBaseUnknown};
