// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterTrace.cpp Reads a parameter only where somebody listens.
#include "RenderingShader/VelRshModel.m/src/model/VelRshParameterTrace.h"

#include "RenderingShader/VelRshModel.m/include/VelRshReaderConfiguration.h"
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterName.h"

void VelRshParameterTrace::Print(const VelTraceHandle& iTrace, const char* iPrefix, VelIRshParameter* iParameter) {
  if (!iTrace.IsOn(VelTraceKind::Information)) return;
  VelString name;
  VelString type;
  VelString shader;
  if (iParameter != nullptr) {
    name = VelRshReaderParameterName()(*iParameter);
    static_cast<void>(iParameter->GetType(type));
    shader = VelRshReaderConfiguration()(*iParameter);
  }
  iTrace.Info("%sParameter '%s' [ type = %s, shader = %s ]", iPrefix, name, type, shader);
}

void VelRshParameterTrace::Print(const char* iPrefix, VelIRshParameter* iParameter) {
  Print(VelTraceHandle("VelRshParameter"), iPrefix, iParameter);
}
