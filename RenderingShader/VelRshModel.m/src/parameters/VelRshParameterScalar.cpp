// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterScalar.cpp The end of a parameter that holds a real number.
#include "RenderingShader/VelRshModel.m/src/parameters/VelRshParameterScalar.h"

#include "platform/trace/VelClassTrace.h"

namespace {

constexpr int lifeLevel = 5;

constinit VelClassTrace classTrace{"VelRshParameterScalar"};

}  // namespace

VelRshParameterScalar::~VelRshParameterScalar() {
  classTrace.Print(lifeLevel, "(VelRshParameterScalar::~VelRshParameterScalar) Destructor\n");
  classTrace.Print(lifeLevel, "(VelRshParameterScalar::~VelRshParameterScalar) Done\n");
}
