// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelExPaintBindings.cpp What the module exports, made from its grid.
#include "RenderingShader/interfaces/TIEVelIRshShaderLink.h"
#include "RenderingShader/interfaces/TIEVelIRshShaderResources.h"
#include "examples/shader_resources/module/VelExPaintTexts.h"

#define VEL_GRID_FILE "examples/shader_resources/module/VelExPaint.def"
#include "platform/objectmodeler/VelBindingGrid.inl"
