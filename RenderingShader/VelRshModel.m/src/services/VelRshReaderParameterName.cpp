// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshReaderParameterName.cpp Reads the name of a parameter.
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterName.h"

VelString VelRshReaderParameterName::operator()(const VelIRshParameter& iParameter) const {
  VelString name;
  return SUCCEEDED(const_cast<VelIRshParameter&>(iParameter).GetName(name)) ? name : VelString();
}
