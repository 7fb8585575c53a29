// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshTranslatorParameter.cpp Hands every call to the delegate, as one scope of edits.
#include "RenderingShader/VelRshModel.m/include/VelRshTranslatorParameter.h"

#include "RenderingShader/VelRshModel.m/src/updates/translator/VelRshTranslatorDelegate.h"
#include "platform/base/VelCheck.h"
#include "platform/base/VelEditScope.h"
#include "platform/base/VelExceptionText.h"

template <class Notification>
bool VelRshTranslatorParameter::Delegate(const Notification& iNotification) const noexcept {
  if (delegate_ == nullptr) return false;
  try {
    const VelEditScope scope;
    return (*delegate_)(iNotification);
  } catch (...) {
    VelCheck::Failed(VEL_HERE("RenderingShader/VelRshModel.m/src/VelRshTranslatorParameter"),
                     "A translator threw an exception", VelExceptionText("VelRshTranslatorParameter"));
    return false;
  }
}

VelRshTranslatorParameter::VelRshTranslatorParameter() : delegate_(std::make_shared<VelRshTranslatorDelegate>()) {}
VelRshTranslatorParameter::~VelRshTranslatorParameter() = default;
VelRshTranslatorParameter::VelRshTranslatorParameter(const VelRshTranslatorParameter& iOther) = default;
VelRshTranslatorParameter& VelRshTranslatorParameter::operator=(const VelRshTranslatorParameter& iOther) = default;

bool VelRshTranslatorParameter::operator()(const VelRbaResetRenderingMaterialNotification& iNotification) const {
  return Delegate(iNotification);
}
bool VelRshTranslatorParameter::operator()(const VelRbaIntegralShaderModifyNotification& iNotification) const {
  return Delegate(iNotification);
}
bool VelRshTranslatorParameter::operator()(const VelRbaNotificationTopologyModification& iNotification) const {
  return Delegate(iNotification);
}
bool VelRshTranslatorParameter::operator()(const VelRbaBooleanShaderModifyNotification& iNotification) const {
  return Delegate(iNotification);
}
bool VelRshTranslatorParameter::operator()(const VelRbaStringShaderModifyNotification& iNotification) const {
  return Delegate(iNotification);
}
bool VelRshTranslatorParameter::operator()(const VelRbaFloatShaderModifyNotification& iNotification) const {
  return Delegate(iNotification);
}
bool VelRshTranslatorParameter::operator()(const VelRbaColorShaderModifyNotification& iNotification) const {
  return Delegate(iNotification);
}
