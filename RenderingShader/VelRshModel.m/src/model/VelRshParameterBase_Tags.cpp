// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterBase_Tags.cpp What a parameter is for, as its configuration says.
#include "RenderingShader/VelRshModel.m/include/VelRshReaderConfiguration.h"
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterName.h"
#include "RenderingShader/VelRshModel.m/src/model/VelRshParameterBase.h"
#include "RenderingShader/VelRshModel.m/src/model/VelRshTagWords.h"
#include "platform/base/VelCheck.h"

namespace {

constexpr VelSourcePosition noParameter{"RenderingShader/VelRshModel.m/src/VelRshParameterBase", 816};

}  // namespace

HRESULT VelRshParameterBase::GetTags(VelListVal<int>& oTags) {
  oTags.RemoveAll();
  const VelIRshParameter_var hParameter(this);
  if (!hParameter) return S_OK;
  const std::optional<VelString> text =
      VelRshTagWords::FindText(VelRshReaderConfiguration()(*hParameter), VelRshReaderParameterName()(*hParameter));
  if (!text) return S_OK;
  VelRshTagWords words(*text);
  while (const std::optional<Tag> tag = words.Next()) oTags.Append(static_cast<int>(*tag));
  return S_OK;
}

HRESULT VelRshParameterBase::HasTag(Tag iTag) {
  const VelIRshParameter_var hParameter(this);
  if (!hParameter) {
    VelCheck::Failed(noParameter, "hParameter", "VelIRshParameter not available");
    return E_UNEXPECTED;
  }
  VelString name;
  if (FAILED(GetName(name))) return E_UNEXPECTED;
  const std::optional<VelString> text = VelRshTagWords::FindText(VelRshReaderConfiguration()(*hParameter), name);
  if (!text) return E_FAIL;
  VelRshTagWords words(*text);
  while (const std::optional<Tag> tag = words.Next()) {
    if (*tag == iTag) return S_OK;
  }
  return E_FAIL;
}
