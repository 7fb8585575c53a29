// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelExSwatchBindings.cpp What the module exports, made from its grid.
#include "examples/first_component/interfaces/TIEVelIExColor.h"
#include "examples/first_component/module/VelExSwatchColor.h"
#include "examples/first_component/module/VelExSwatchReport.h"

#define VEL_GRID_FILE "examples/first_component/module/VelExSwatch.def"
#include "platform/objectmodeler/VelBindingGrid.inl"
