// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterShader.cpp The end of a parameter whose value is a sub-shader.
#include "RenderingShader/VelRshModel.m/src/parameters/VelRshParameterShader.h"

#include "platform/trace/VelClassTrace.h"

namespace {

constexpr int lifeLevel = 5;

constinit VelClassTrace classTrace{"VelRshParameterShader"};

}  // namespace

VelRshParameterShader::~VelRshParameterShader() {
  classTrace.Print(lifeLevel, "(VelRshParameterShader::~VelRshParameterShader) Destructor\n");
  classTrace.Print(lifeLevel, "(VelRshParameterShader::~VelRshParameterShader) Done\n");
}
