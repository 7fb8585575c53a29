// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterInteger.cpp The end of a parameter that holds an integer.
#include "RenderingShader/VelRshModel.m/src/parameters/VelRshParameterInteger.h"

#include "platform/trace/VelClassTrace.h"

namespace {

constexpr int lifeLevel = 5;

constinit VelClassTrace classTrace{"VelRshParameterInteger"};

}  // namespace

VelRshParameterInteger::~VelRshParameterInteger() {
  classTrace.Print(lifeLevel, "(VelRshParameterInteger::~VelRshParameterInteger) Destructor\n");
  classTrace.Print(lifeLevel, "(VelRshParameterInteger::~VelRshParameterInteger) Done\n");
}
