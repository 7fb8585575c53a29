// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIExReport.cpp The identifier of VelIExReport.
#include "examples/first_component/interfaces/VelIExReport.h"

const VelInterfaceId IID_VelIExReport{"VelIExReport", IID_VelBaseUnknown};
