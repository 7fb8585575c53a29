// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterString.cpp The end of a parameter that holds a text.
#include "RenderingShader/VelRshModel.m/src/parameters/VelRshParameterString.h"

#include "platform/trace/VelClassTrace.h"

namespace {

constexpr int lifeLevel = 5;

constinit VelClassTrace classTrace{"VelRshParameterString"};

}  // namespace

VelRshParameterString::~VelRshParameterString() {
  classTrace.Print(lifeLevel, "(VelRshParameterString::~VelRshParameterString) Destructor\n");
}
