// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelPlatformFilesBindings.cpp What the module exports, made from its grid.
#include "platform/configuration/TIEVelIConfigurationReader.h"
#include "platform/configuration/TIEVelIConfigurationTreeReader.h"
#include "platform/files/VelConfigurationReader.h"

#define VEL_GRID_FILE "platform/files/bindings/VelPlatformFiles.def"
#include "platform/objectmodeler/VelBindingGrid.inl"
