// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshReaderMappingOffset.cpp Reads two scalars.
#include "RenderingShader/VelRshModel.m/src/services/VelRshReaderMappingOffset.h"

namespace {

constexpr VelRshMappingTexts texts{
    .source = "RenderingShader/VelRshModel.m/src/VelRshReaderMappingOffset",
    .defaultKey = "MappingOffset.DefaultValue",
    .parameterKey = "MappingOffset.ParameterValue",
    .parseError = "Error while parsing configuration { catalog = %s, key = %s, value = %s }",
    .readAs = "Mapping Offset read as ( %.3lf, %.3lf )",
    .defaultedTo = "Mapping Offset defaulted to ( %.3lf, %.3lf )",
    .fallBackTo = "Mapping Offset fall back to ( %.3lf, %.3lf )",
};

}  // namespace

VelRshMappingPair VelRshReaderMappingOffset::operator()(const VelIRshShader& iShader,
                                                        const VelRshMappingPair& iFallBack) const {
  trace_.Info("Default mode { multiplier = ( %.3lf, %.3lf ) }", 1.0, 1.0);
  return VelRshMappingReading::Read(trace_, texts, iShader, &VelRshMappingReading::ScalarOrOne, iFallBack);
}
