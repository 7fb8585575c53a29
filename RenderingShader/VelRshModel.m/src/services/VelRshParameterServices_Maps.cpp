// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterServices_Maps.cpp Finds textures among what is connected to a shader's shown parameters.
#include "RenderingShader/VelRshModel.m/include/VelRshParameterServices.h"
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterCollection.h"
#include "RenderingShader/interfaces/VelIRshParameterImmLayout.h"
#include "platform/images/VelRbaImageServices.h"

namespace {

/// A parameter without a layout is not shown. Deliberately "Yes" to the letter, while the kind goes without case.
bool IsShown(const VelIRshParameter_var& iParameter) {
  const VelIRshParameterImmLayout_var hLayout(iParameter);
  if (!hLayout) return false;
  VelString kind;
  VelString shown("No");
  static_cast<void>(hLayout->GetKind(kind));
  static_cast<void>(hLayout->GetShown(shown));
  return kind.ToLower() != "none" && shown == "Yes";
}

/// @return the texture shader that is connected to a parameter, empty for any other and for none
VelIRshShader_var FindMap(const VelIRshParameter_var& iParameter) {
  VelIRshShader_var hShader;
  VelString type;
  if (FAILED(iParameter->GetConnection(hShader.Receive())) || FAILED(hShader->GetType(type))) return nullptr;
  const bool isMap = type == "vel_phen_scalar" || type == "vel_phen_texture";
  return isMap ? hShader : VelIRshShader_var();
}

bool IsSvg(const VelIRshShader_var& iMap) {
  const VelRshReaderParameterCollection collection;
  const VelIRshParameter_var hTexture = collection(collection(*iMap), "tex");
  VelBaseUnknown_var hDocument;
  VelUnicodeString path;
  if (!hTexture || FAILED(hTexture->GetValue(hDocument.Receive())) || !hDocument) return false;
  if (FAILED(VelRbaImageServices::GetProjectionPath(hDocument.Get(), path)) || path.IsEmpty()) return false;
  return VelRbaImageServices::SplitPath(path).extension.ToVelString().ToLower() == "svg";
}

/// @return true when a map of the shader's shown parameters satisfies a test
template <class Test>
bool HasMap(VelIRshShader* iShader, const Test& iTest) {
  if (iShader == nullptr) return false;
  for (const VelIRshParameter_var& hParameter : VelRshReaderParameterCollection()(*iShader)) {
    if (!IsShown(hParameter)) continue;
    const VelIRshShader_var hMap = FindMap(hParameter);
    if (hMap && iTest(hMap)) return true;
  }
  return false;
}

}  // namespace

bool VelRshParameterServices::IsSVGMapPresent(VelIRshShader* iShader) { return HasMap(iShader, &IsSvg); }

bool VelRshParameterServices::IsTexturePresent(VelIRshShader* iShader) {
  return HasMap(iShader, [](const VelIRshShader_var&) { return true; });
}
