// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshReaderMappingRatio.cpp Reads two scalars.
#include "RenderingShader/VelRshModel.m/src/services/VelRshReaderMappingRatio.h"

namespace {

constexpr VelRshMappingTexts texts{
    .source = "RenderingShader/VelRshModel.m/src/VelRshReaderMappingRatio",
    .defaultKey = "MappingRatio.DefaultValue",
    .parameterKey = "MappingRatio.ParameterValue",
    .parseError = "Error while parsing configuration { catalog = %s, key = %s, value = %s }",
    .readAs = "Mapping Ratio read as ( %.3lf, %.3lf )",
    .defaultedTo = "Mapping Ratio defaulted to ( %.3lf, %.3lf )",
    .fallBackTo = "Mapping Ratio fall back to ( %.3lf, %.3lf )",
};

}  // namespace

VelRshMappingPair VelRshReaderMappingRatio::operator()(const VelIRshShader& iShader,
                                                       const VelRshMappingPair& iFallBack) const {
  return VelRshMappingReading::Read(trace_, texts, iShader, &VelRshMappingReading::ScalarOrOne, iFallBack);
}
