// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIExCoatingFactory.cpp The identifier of VelIExCoatingFactory.
#include "VelIExCoatingFactory.h"

const VelInterfaceId IID_VelIExCoatingFactory{"VelIExCoatingFactory", IID_VelIRshShaderFactory};
