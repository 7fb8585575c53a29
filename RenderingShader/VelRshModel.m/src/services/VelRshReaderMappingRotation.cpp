// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshReaderMappingRotation.cpp Tries the parameter, then the default, then the fall-back.
#include "RenderingShader/VelRshModel.m/src/services/VelRshReaderMappingRotation.h"

#include "platform/base/VelScanner.h"

namespace {

constexpr const char* sourceText = "RenderingShader/VelRshModel.m/src/VelRshReaderMappingRotation";
constexpr const char* defaultKey = "MappingRotation.DefaultValue";
constexpr const char* parameterKey = "MappingRotation.ParameterValue";

}  // namespace

double VelRshReaderMappingRotation::operator()(const VelIRshShader& iShader, double iFallBack) const {
  const auto settings = VelRshMappingSettings::Read(iShader, defaultKey, parameterKey);
  if (!settings.parameterNames.IsEmpty()) return ReadParameter(iShader, settings, iFallBack);
  if (!settings.defaultValue.IsEmpty()) return ReadDefault(settings.defaultValue);
  trace_.Info("Mapping Rotation fall back to ( %.3lf )", iFallBack);
  return iFallBack;
}

double VelRshReaderMappingRotation::ReadParameter(const VelIRshShader& iShader, const VelRshMappingSettings& iSettings,
                                                  double iFallBack) const {
  const auto name = VelScanner(iSettings.parameterNames).Word(VelRshMappingReading::nameLimit);
  if (!name) {
    trace_.Error(VEL_HERE(sourceText), "Error while parsing configuration { catalog = %s, key = %s, value = %s }",
                 iSettings.catalog, parameterKey, iSettings.parameterNames);
    // Deliberately told although the result is not the fall-back but 1: the reading goes on without a parameter.
    trace_.Info("Mapping Rotation fall back to ( %.3lf )", iFallBack);
  }
  const auto hParameter = VelRshMappingReading::Find(trace_, sourceText, iShader, VelString(name.value_or("")),
                                                     "Parameter found { name = %s }");
  const double angle = VelRshMappingReading::ScalarOrOne(hParameter, trace_);
  trace_.Info("Mapping Rotation read as ( %.3lf )", angle);
  return angle;
}

double VelRshReaderMappingRotation::ReadDefault(const VelString& iText) const {
  const auto parsed = VelScanner(iText).Real();
  const double angle = parsed.value_or(1.0);
  if (parsed) {
    trace_.Info("Mapping Rotation defaulted to ( %.3lf )", angle);
  } else {
    trace_.Error(VEL_HERE(sourceText), "Mapping Rotation defaulted to ( %.3lf )", angle);
  }
  return angle;
}
