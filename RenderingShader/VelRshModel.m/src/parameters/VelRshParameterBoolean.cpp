// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterBoolean.cpp The end of a parameter that holds a boolean.
#include "RenderingShader/VelRshModel.m/src/parameters/VelRshParameterBoolean.h"

#include "platform/trace/VelClassTrace.h"

namespace {

constexpr int lifeLevel = 5;

constinit VelClassTrace classTrace{"VelRshParameterBoolean"};

}  // namespace

VelRshParameterBoolean::~VelRshParameterBoolean() {
  classTrace.Print(lifeLevel, "(VelRshParameterBoolean::~VelRshParameterBoolean) Destructor\n");
  classTrace.Print(lifeLevel, "(VelRshParameterBoolean::~VelRshParameterBoolean) Done\n");
}
