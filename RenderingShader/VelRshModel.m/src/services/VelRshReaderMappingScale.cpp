// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshReaderMappingScale.cpp Works out the multiplier, then reads two scalars.
#include "RenderingShader/VelRshModel.m/src/services/VelRshReaderMappingScale.h"

#include <cstdint>

#include "RenderingShader/VelRshModel.m/include/VelRshParameterServices.h"
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterCollection.h"
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterValue.h"
#include "RenderingShader/VelRshModel.m/src/services/VelRshReaderMappingOperator.h"
#include "platform/materials/VelIPlasticMaterial.h"
#include "platform/materials/VelIRmaDimension2D.h"
#include "platform/materials/VelParmDictionary.h"

namespace {

constexpr VelRshMappingTexts texts{
    .source = "RenderingShader/VelRshModel.m/src/VelRshReaderMappingScale",
    .defaultKey = "MappingScale.DefaultValue",
    .parameterKey = "MappingScale.ParameterValue",
    .parseError = "Error while parsing configuration { catalog = %s, key = %s, value = %s }",
    .readAs = "Mapping Scale read as ( %.3lf, %.3lf )",
    .defaultedTo = "Mapping Scale defaulted to ( %.3lf, %.3lf )",
    .fallBackTo = "Mapping Scale fall back to ( %.3lf, %.3lf )",
};

using Tag = VelIRshParameterPrivate::Tag;

constexpr VelRshMappingPair unchanged{1.0, 1.0};
constexpr std::int32_t projection = 6;  ///< The operator of a texture that is not mapped by coordinates.

/// Whether the shader's own mapping behaviour keeps the material out.
bool HasOwnBehavior(const VelIRshShader& iShader) {
  const VelRshReaderParameterCollection collection;
  const auto tagged = collection(collection(iShader), Tag::MappingBehavior);
  return !tagged.empty() && VelRshReaderParameterValue().asIntegral(*tagged.front()) != 0;
}

}  // namespace

VelRshMappingPair VelRshReaderMappingScale::operator()(const VelIRshShader& iShader,
                                                       const VelRshMappingPair& iFallBack) const {
  return VelRshMappingReading::Read(trace_, texts, iShader, &VelRshMappingReading::ScalarOrOne, iFallBack,
                                    FindMultiplier(iShader));
}

VelRshMappingPair VelRshReaderMappingScale::FindMultiplier(const VelIRshShader& iShader) const {
  if (HasOwnBehavior(iShader)) return unchanged;
  const VelIRenderingMaterial_var hMaterial = VelRshParameterServices::FindRenderingMaterial(iShader);
  const VelRshMappingPair size = ReadSize(hMaterial.Get());
  const VelIPlasticMaterial_var hPlastic(hMaterial);
  std::uint32_t version = 0;
  if (!hPlastic || FAILED(hPlastic->GetVersion(version))) {
    trace_.Error(VEL_HERE(texts.source), "VelIPlasticMaterial not accessible");
    return unchanged;
  }
  if (version >= 418) {
    trace_.Info("R418 mode { version = %u, multiplier = ( %.3lf, %.3lf ) }", version, size.first, size.second);
    return size;
  }
  if (version == 417) return FindMultiplierOf417(iShader, *hPlastic, size);
  if (version >= 206) {
    trace_.Info("R206 mode { version = %u,  multiplier = ( %.3lf, %.3lf ) }", version, 1.0, 1.0);
    return unchanged;
  }
  double factor = 1.0;
  static_cast<void>(hMaterial->GetScaleFactor(factor));
  trace_.Info("G2 mode { version = %u, multiplier = ( %.3lf, %.3lf ) }", version, factor, factor);
  return {factor, factor};
}

/// The plastic scale's own value is deliberately not used: only whether there is one.
VelRshMappingPair VelRshReaderMappingScale::FindMultiplierOf417(const VelIRshShader& iShader, VelBaseUnknown& iMaterial,
                                                                const VelRshMappingPair& iSize) const {
  VelString type;
  static_cast<void>(const_cast<VelIRshShader&>(iShader).GetType(type));
  VelRshMappingPair multiplier = unchanged;
  if (type.StartsWith("MPM")) {
    multiplier = iSize;
  } else if (type.StartsWith("BasicMaterial") || type == "CarPaintG2" || type == "CustomShader") {
    const VelIPlasticMaterial_var hPlastic(&iMaterial);
    double scale = 1.0;
    if (SUCCEEDED(hPlastic->GetScale(scale))) {
      multiplier = iSize;
    } else if (VelRshReaderMappingOperator()(iShader) == projection) {
      multiplier = {0.01, 0.01};
    }
  }
  trace_.Info("R417 mode { type = %s, version = %u, multiplier = ( %.3lf, %.3lf ) }", type, 417U, multiplier.first,
              multiplier.second);
  return multiplier;
}

/// The size of the material in millimetres; 1 by 1 where it has none.
VelRshMappingPair VelRshReaderMappingScale::ReadSize(VelBaseUnknown* iMaterial) const {
  const VelIRmaDimension2D_var hDimension(iMaterial);
  const VelUnit* unit = VelParmDictionary::FindUnit("MM");
  float width = 1.0F;
  float height = 1.0F;
  if (hDimension && unit != nullptr) {
    static_cast<void>(hDimension->GetSize(*unit, width, height));
  } else {
    trace_.Error(VEL_HERE(texts.source), "R418 mode could not fetch unit and VelIRmaDimension2D");
  }
  return {static_cast<double>(width), static_cast<double>(height)};
}
