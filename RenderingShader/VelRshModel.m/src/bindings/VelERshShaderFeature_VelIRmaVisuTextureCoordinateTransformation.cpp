// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelERshShaderFeature_VelIRmaVisuTextureCoordinateTransformation.cpp Reads the mapping of a shader and makes a
/// matrix of it.
#include "RenderingShader/VelRshModel.m/src/bindings/VelERshShaderFeature_VelIRmaVisuTextureCoordinateTransformation.h"

#include <cmath>

#include "RenderingShader/VelRshModel.m/include/VelKeySetVelRmaCatalog.h"
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterCollection.h"
#include "RenderingShader/VelRshModel.m/src/services/VelRshReaderMappingFlip.h"
#include "RenderingShader/VelRshModel.m/src/services/VelRshReaderMappingOffset.h"
#include "RenderingShader/VelRshModel.m/src/services/VelRshReaderMappingRatio.h"
#include "RenderingShader/VelRshModel.m/src/services/VelRshReaderMappingRotation.h"
#include "RenderingShader/VelRshModel.m/src/services/VelRshReaderMappingScale.h"
#include "platform/viewer/VelIRmaVisuResourceImage.h"

namespace {

using Tag = VelIRshParameterPrivate::Tag;

/// A pair of u and v in the precision of the matrix.
struct Pair {
  explicit Pair(const VelRshMappingPair& iPair)
      : u(static_cast<float>(iPair.first)), v(static_cast<float>(iPair.second)) {}
  float u;
  float v;
};

struct ProjectorFunction {
  std::int32_t stored;
  std::uint32_t returned;
};

constexpr ProjectorFunction projectorFunctions[] = {{0, 1}, {1, 2}, {2, 4}, {3, 3}, {8, 5}};

}  // namespace

HRESULT VelERshShaderFeature_VelIRmaVisuTextureCoordinateTransformation::ReadTagged(Tag iTag, Tagged& oTagged) {
  const VelIRshShader_var hShader(this);
  if (!hShader) return E_NOINTERFACE;
  const VelRshReaderParameterCollection collection;
  const auto tagged = collection(collection(*hShader), iTag);
  if (tagged.empty()) return S_OK;
  const VelISpecAttrAccess_var hAttributes(tagged.front());
  if (!hAttributes) return E_NOINTERFACE;
  const VelISpecAttrKey* key = VelKeySetVelRmaCatalog::GetKeyVelRmaIntegerValue(hAttributes.Get());
  if (!hAttributes->TestAttrKey(key)) return E_UNEXPECTED;
  oTagged.isThere = true;
  oTagged.isValuated = SUCCEEDED(hAttributes->GetInteger(key, oTagged.value));
  return S_OK;
}

HRESULT VelERshShaderFeature_VelIRmaVisuTextureCoordinateTransformation::GetMappingBehavior(std::uint32_t& oBehavior) {
  Tagged behavior;
  VEL_RETURN_IF_FAILED(ReadTagged(Tag::MappingBehavior, behavior));
  const auto unvaluated = static_cast<std::uint32_t>(behavior.isThere ? 1 : 0);
  oBehavior = behavior.isValuated ? static_cast<std::uint32_t>(behavior.value) : unvaluated;
  return S_OK;
}

HRESULT VelERshShaderFeature_VelIRmaVisuTextureCoordinateTransformation::GetProjectorFunction(
    std::uint32_t& oFunction) {
  Tagged function;
  VEL_RETURN_IF_FAILED(ReadTagged(Tag::ProjectorFunction, function));
  oFunction = 0;
  for (const ProjectorFunction& each : projectorFunctions) {
    if (function.isValuated && function.value == each.stored) oFunction = each.returned;
  }
  return S_OK;
}

/// The arithmetic is written out step by step: every user gets the same last bit. A scale or a ratio of 0 gives
/// infinite figures.
HRESULT VelERshShaderFeature_VelIRmaVisuTextureCoordinateTransformation::GetTransformation(
    Vel3x3Matrix& oTransformation) {
  const VelIRshShader_var hShader(this);
  if (!hShader) return E_NOINTERFACE;
  const VelRshMappingPair ones{1.0, 1.0};
  const Pair flip(VelRshReaderMappingFlip()(*hShader, ones));
  const Pair scale(VelRshReaderMappingScale()(*hShader, ones));
  const Pair ratio(VelRshReaderMappingRatio()(*hShader, ones));
  const Pair offset(VelRshReaderMappingOffset()(*hShader, {0.0, 0.0}));
  const double angle = VelRshReaderMappingRotation()(*hShader, 0.0);
  const float a = ratio.u * scale.u;
  const float b = ratio.v * scale.v;
  const auto cosine = static_cast<float>(std::cos(-angle));
  const auto sine = static_cast<float>(std::sin(-angle));
  const float m00 = flip.u * (1.0F / a) * cosine;
  const float m01 = -(flip.v * (1.0F / a) * sine);
  const float m10 = (1.0F / b) * flip.u * sine;
  const float m11 = (1.0F / b) * flip.v * cosine;
  oTransformation = Vel3x3Matrix({m00, m01, m10, m11}, {offset.u, offset.v});
  return S_OK;
}

HRESULT VelERshShaderFeature_VelIRmaVisuTextureCoordinateTransformation::HasResourceImage(bool& oHasImage) {
  const VelIRshShader_var hShader(this);
  if (!hShader) return E_NOINTERFACE;
  oHasImage = false;
  for (const VelIRshParameter_var& hParameter : VelRshReaderParameterCollection()(*hShader)) {
    oHasImage = oHasImage || VelIRmaVisuResourceImage_var(hParameter);
  }
  return S_OK;
}
