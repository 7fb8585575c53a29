// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterBoolean_EventParentShaderToParameter.cpp How a boolean of a connected shader follows the shader
/// above.
#include "RenderingShader/VelRshModel.m/src/parameters/VelRshParameterBoolean.h"
#include "RenderingShader/VelRshModel.m/src/parameters/VelRshParentShaderEvents.h"

namespace {

struct Rules {
  using Changed = VelRshModelNotificationParameterBoolean1Changed;
  using Tag = VelIRshParameterPrivate::Tag;

  static constexpr Tag tags[] = {Tag::FlipU, Tag::FlipV, Tag::RepeatU, Tag::RepeatV};
  static constexpr const char* source =
      "RenderingShader/VelRshModel.m/src/VelRshParameterBoolean_EventParentShaderToParameter";
  static constexpr const char* takenOver = "\t\t\t Current parameter equivalent updated to %s";
  static constexpr const char* pushed = "\t\t\t Connection parameter equivalent updated to %s";
  static constexpr const char* pulled = "\t\t\tCurrent parameter equivalent updated to %s";

  static const char* Print(bool iValue) { return iValue ? "<true>" : "<false>"; }
  static bool IsEndless(const VelRshParameterBase&, bool) { return false; }
};

}  // namespace

void VelRshParameterBoolean::OnShaderValue(VelEventName iEvent, VelBaseUnknown* iPublisher,
                                           VelNotification* ioNotification) {
  if (!VelRshParentShaderEvents<VelRshParameterBoolean, Rules>(*this, Channel()).OnValue(iEvent, ioNotification))
    return;
  VelRshParameterBase::OnShaderValue(iEvent, iPublisher, ioNotification);
}

void VelRshParameterBoolean::OnShaderConnection(VelEventName iEvent, VelBaseUnknown* iPublisher,
                                                VelNotification* ioNotification) {
  if (!VelRshParentShaderEvents<VelRshParameterBoolean, Rules>(*this, Channel()).OnConnection(iEvent, ioNotification))
    return;
  VelRshParameterBase::OnShaderConnection(iEvent, iPublisher, ioNotification);
}
