// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelExPaintTexts.cpp The texts that go with shaders of type "ExPaint".
#include "examples/shader_resources/module/VelExPaintTexts.h"

#include <memory>

#include "RenderingShader/interfaces/VelIRshShaderPublisher.h"
#include "RenderingShader/interfaces/VelRshShaderPublisherEvents.h"
#include "platform/base/VelFormat.h"
#include "platform/events/VelCallbackManager.h"

namespace {

struct Label {
  const char* parameter;
  const char* text;
};
constexpr Label labels[] = {{"base_color", "Base coat"}, {"flake_size", "Size of the flakes"}};

}  // namespace

const VelReceiverTable& VelExPaintTexts::Receivers() noexcept {
  static const VelReceiverRow rows[] = {
      {VelRshShaderPublisherEvents::PARAMETER_VALUE_UPDATED(), &VelReceive<&VelExPaintTexts::OnParameterValue>}};
  static const VelReceiverTable table(rows);
  return table;
}

HRESULT VelExPaintTexts::SetShader(VelIRshShader* iShader) {
  shader_ = VelBaseUnknown_WR(iShader);
  const VelIRshShaderPublisher_var hPublisher(iShader);
  VelCallbackManager* manager = hPublisher ? hPublisher->GetCallbackManager() : nullptr;
  if (manager == nullptr) return E_FAIL;
  return manager->AddCallback(VelRshShaderPublisherEvents::PARAMETER_VALUE_UPDATED(), this, Receivers());
}

void VelExPaintTexts::OnParameterValue(VelEventName /*iEvent*/, VelBaseUnknown* /*iPublisher*/,
                                       VelNotification* /*ioNotification*/) {
  ++changes_;
}

HRESULT VelExPaintTexts::GetText(const VelString& iCategory, const VelString& iName, VelUnicodeString& oText) {
  if (iCategory == "summary") return Summarise(oText);
  if (iCategory != "label") return E_FAIL;
  for (const Label& label : labels) {
    if (iName != label.parameter) continue;
    oText = VelUnicodeString(label.text);
    return S_OK;
  }
  return E_FAIL;
}

HRESULT VelExPaintTexts::Summarise(VelUnicodeString& oText) const {
  const VelIRshShader_var hShader(shader_.Get());
  if (!hShader) return E_FAIL;
  VelListPtrVelBaseUnknown* listed = nullptr;
  VEL_RETURN_IF_FAILED(hShader->GetParameters(&listed));
  const std::unique_ptr<VelListPtrVelBaseUnknown> parameters(listed);
  int count = 0;
  for (VelBaseUnknown* parameter : *parameters) {
    ++count;
    parameter->Release();
  }
  oText = VelUnicodeString(
      VelString(VelFormat::ToText("%d parameters, %d change%s", count, changes_, changes_ == 1 ? "" : "s")));
  return S_OK;
}
