// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIRenderingMaterial.cpp The identifier of VelIRenderingMaterial.
#include "platform/materials/VelIRenderingMaterial.h"

const VelInterfaceId IID_VelIRenderingMaterial{"VelIRenderingMaterial", IID_VelBaseUnknown};
