// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelExCoatingsBindings.cpp What the module exports, made from its grid.
#include "TIEVelIExCoatingFactory.h"
#include "VelExCoatingFactory.h"

#define VEL_GRID_FILE "module/VelExCoatings.def"
#include "platform/objectmodeler/VelBindingGrid.inl"
