// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterColor.cpp The end of a parameter that holds a colour.
#include "RenderingShader/VelRshModel.m/src/parameters/VelRshParameterColor.h"

#include "platform/trace/VelClassTrace.h"

namespace {

constexpr int lifeLevel = 5;

constinit VelClassTrace classTrace{"VelRshParameterColor"};

}  // namespace

VelRshParameterColor::~VelRshParameterColor() {
  classTrace.Print(lifeLevel, "(VelRshParameterColor::~VelRshParameterColor) Destructor\n");
  classTrace.Print(lifeLevel, "(VelRshParameterColor::~VelRshParameterColor) Done\n");
}
