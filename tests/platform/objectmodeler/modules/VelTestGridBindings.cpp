// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTestGridBindings.cpp What the module VelTestGrid exports: its grid, and its table for a host that links it.
#include "tests/platform/objectmodeler/modules/TIEVelITestNumber.h"
#include "tests/platform/objectmodeler/modules/TIEVelITestText.h"
#include "tests/platform/objectmodeler/modules/VelTestGridClasses.h"

#define VEL_GRID_FILE "tests/platform/objectmodeler/modules/VelTestGrid.def"
#include "platform/objectmodeler/VelBindingGrid.inl"

extern "C" VEL_EXPORT const VelModuleTable* VelTestGridTable();
extern "C" VEL_EXPORT const VelModuleTable* VelTestGridTable() { return &velGridTable; }
