// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelPlatformImagesBindings.cpp What the module exports, made from its grid.
#include "platform/images/TIEVelIImageServices.h"
#include "platform/images/TIEVelIImageWriter.h"
#include "platform/images/services/VelImageServices.h"
#include "platform/images/services/VelImageWriter.h"

#define VEL_GRID_FILE "platform/images/services/bindings/VelPlatformImages.def"
#include "platform/objectmodeler/VelBindingGrid.inl"
