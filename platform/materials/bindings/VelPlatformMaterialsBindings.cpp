// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelPlatformMaterialsBindings.cpp The rows of rendering materials in the dictionary.
#include "platform/events/TIEVelIModelEvents.h"
#include "platform/materials/TIEVelIPlasticMaterial.h"
#include "platform/materials/TIEVelIRenderingMaterial.h"
#include "platform/materials/TIEVelIRmaAppearanceCache.h"
#include "platform/materials/TIEVelIRmaDimension2D.h"
#include "platform/materials/TIEVelIRmaEventPropagationControl.h"
#include "platform/materials/TIEVelIRmaMaterialFigures.h"
#include "platform/materials/VelRmaMaterialFacets.h"
#include "platform/materials/VelRmaRenderingMaterial.h"
#include "platform/objectmodeler/VelDictionary.h"

#define VEL_GRID_FILE "platform/materials/bindings/VelPlatformMaterials.def"
#include "platform/objectmodeler/VelBindingGrid.inl"

namespace {

/// These rows stand before anybody can ask, and are never taken out.
[[maybe_unused]] const bool materialsDeclared = SUCCEEDED(VelDictionary::Declare(velGridTable));

}  // namespace
