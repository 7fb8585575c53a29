// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterBase_Tags.cpp What a parameter is for, as its configuration says.
#include "RenderingShader/VelRshModel.m/include/VelRshReaderConfiguration.h"
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterName.h"
#include "RenderingShader/VelRshModel.m/src/model/VelRshParameterBase.h"
#include "RenderingShader/VelRshModel.m/src/model/VelRshShaderFeature.h"
#include "RenderingShader/VelRshModel.m/src/model/VelRshTagRecord.h"
#include "RenderingShader/VelRshModel.m/src/model/VelRshTagWords.h"
#include "platform/base/VelCheck.h"
#include "platform/featuremodeler/VelSpecChanges.h"

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

const VelRshTagRecord* VelRshParameterBase::FindTagRecord() {
  if (changesAtTagRecord_ != VelSpecChanges::Count()) {
    tagRecord_ = LookUpTagRecord();
    changesAtTagRecord_ = VelSpecChanges::Count();  // Read again: the look-up may have made the shader's delegate.
  }
  return tagRecord_ != nullptr && tagRecord_->IsUsable() ? tagRecord_ : nullptr;
}

/// Only the component's own shaders are known to change their type by their attributes alone.
VelRshTagRecord* VelRshParameterBase::LookUpTagRecord() {
  VelIRshShader_var hShader;
  GetParentShader(hShader);
  VelString name;
  if (!hShader || FAILED(GetName(name))) return nullptr;
  if (VelRshShaderFeature::From(*hShader) == nullptr) return nullptr;
  return VelRshTagRecord::Of(VelRshReaderConfiguration()(*hShader), name);
}

HRESULT VelRshParameterBase::HasTag(Tag iTag) {
  if (const VelRshTagRecord* record = FindTagRecord()) return record->Has(iTag) ? S_OK : E_FAIL;
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
