// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshInterfaceIds.cpp The identifiers of the interfaces.
#include "RenderingShader/interfaces/VelIRshParameter.h"
#include "RenderingShader/interfaces/VelIRshShader.h"

const VelInterfaceId IID_VelIRshParameter{"VelIRshParameter", IID_VelBaseUnknown};
const VelInterfaceId IID_VelIRshShader{"VelIRshShader", IID_VelBaseUnknown};
