// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshReaderMappingFlip.cpp Mirrors where a boolean parameter says so.
#include "RenderingShader/VelRshModel.m/src/services/VelRshReaderMappingFlip.h"

#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterType.h"
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterValue.h"

namespace {

constexpr VelRshMappingTexts texts{
    .source = "RenderingShader/VelRshModel.m/src/VelRshReaderMappingFlip",
    .defaultKey = "MappingFlip.DefaultValue",
    .parameterKey = "MappingFlip.ParameterValue",
    .parseError = "Error while parsing configuflipn { catalog = %s, key = %s, value = %s }",
    .readAs = "Mapping Flip read as ( %.3lf, %.3lf )",
    .defaultedTo = "Mapping Flip defaulted to ( %.3lf, %.3lf )",
    .fallBackTo = "Mapping Flip fall back to ( %.3lf, %.3lf )",
};

/// Only a boolean can mirror.
double MirrorOf(const VelIRshParameter_var& iParameter, const VelTraceHandle& iTrace) {
  if (!iParameter) return 1.0;
  if (VelRshReaderParameterType()(*iParameter) != VelRshReaderParameterType::Boolean) {
    iTrace.Error(VEL_HERE(texts.source), "Non-compatible parameter type for flip");
    return 1.0;
  }
  return VelRshReaderParameterValue().asBoolean(*iParameter) ? -1.0 : 1.0;
}

}  // namespace

VelRshMappingPair VelRshReaderMappingFlip::operator()(const VelIRshShader& iShader,
                                                      const VelRshMappingPair& iFallBack) const {
  return VelRshMappingReading::Read(trace_, texts, iShader, &MirrorOf, iFallBack);
}
