// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshReaderParameterType.cpp Tells start-ups apart by name.
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterType.h"

namespace {

struct Row {
  const char* startUp;
  VelRshReaderParameterType::Type type;
};

constexpr Row rows[] = {
    {"VelRmaBoolean", VelRshReaderParameterType::Boolean}, {"VelRmaVoid", VelRshReaderParameterType::Void},
    {"VelRmaColor", VelRshReaderParameterType::Color},     {"VelRmaScalar", VelRshReaderParameterType::Scalar},
    {"VelRmaInteger", VelRshReaderParameterType::Integer}, {"VelRmaString", VelRshReaderParameterType::String},
    {"VelRmaVector", VelRshReaderParameterType::Vector},   {"VelRmaTexture", VelRshReaderParameterType::Texture},
};

}  // namespace

VelRshReaderParameterType::Type VelRshReaderParameterType::operator()(const VelIRshParameter& iParameter) const {
  VelString startUp;
  if (FAILED(const_cast<VelIRshParameter&>(iParameter).GetType(startUp))) return Unknown;
  for (const Row& row : rows) {
    if (startUp == row.startUp) return row.type;
  }
  return Unknown;
}
