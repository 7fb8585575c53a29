// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshHostBindings.cpp What the module exports, made from its grid.
#include "RenderingShader/interfaces/TIEVelIRmaShaderFactory.h"
#include "host/layout/VelRmaParameterDialog.h"
#include "host/layout/VelRmaParameterLayout.h"
#include "host/refresh/TIEVelIRmaRefresh.h"
#include "host/refresh/VelRmaRefresh.h"
#include "host/shadertypes/VelRmaConfiguredShaderFactory.h"
#include "host/shadertypes/VelRmaShaderTypeSource.h"
#include "platform/configuration/TIEVelIConfigurationSource.h"

#define VEL_GRID_FILE "host/bindings/VelRshHost.def"
#include "platform/objectmodeler/VelBindingGrid.inl"
