// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelMaterialInterfaces.cpp The identifiers of the interfaces of rendering materials.
#include "platform/materials/VelIPlasticMaterial.h"
#include "platform/materials/VelIRenderingMaterial.h"
#include "platform/materials/VelIRmaAppearanceCache.h"
#include "platform/materials/VelIRmaDimension2D.h"
#include "platform/materials/VelIRmaEventPropagationControl.h"
#include "platform/materials/VelIRmaMaterialFigures.h"

const VelInterfaceId IID_VelIPlasticMaterial{"VelIPlasticMaterial", IID_VelBaseUnknown};
const VelInterfaceId IID_VelIRenderingMaterial{"VelIRenderingMaterial", IID_VelBaseUnknown};
const VelInterfaceId IID_VelIRmaAppearanceCache{"VelIRmaAppearanceCache", IID_VelBaseUnknown};
const VelInterfaceId IID_VelIRmaDimension2D{"VelIRmaDimension2D", IID_VelBaseUnknown};
const VelInterfaceId IID_VelIRmaEventPropagationControl{"VelIRmaEventPropagationControl", IID_VelBaseUnknown};
const VelInterfaceId IID_VelIRmaMaterialFigures{"VelIRmaMaterialFigures", IID_VelBaseUnknown};
