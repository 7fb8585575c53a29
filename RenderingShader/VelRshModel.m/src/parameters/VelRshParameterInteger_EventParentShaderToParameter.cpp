// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterInteger_EventParentShaderToParameter.cpp How an integer of a connected shader follows the
/// shader above.
#include "RenderingShader/VelRshModel.m/src/parameters/VelRshParameterInteger.h"
#include "RenderingShader/VelRshModel.m/src/parameters/VelRshParentShaderEvents.h"

namespace {

struct Rules {
  using Changed = VelRshModelNotificationParameterIntegral1Changed;
  using Tag = VelIRshParameterPrivate::Tag;

  static constexpr Tag tags[] = {Tag::MappingBehavior, Tag::ProjectorFunction};
  static constexpr const char* source =
      "RenderingShader/VelRshModel.m/src/VelRshParameterInteger_EventParentShaderToParameter";
  static constexpr const char* takenOver = "\t\t\t Current parameter equivalent updated to %d";
  static constexpr const char* pushed = "\t\t\t Connection parameter equivalent updated to %d";
  static constexpr const char* pulled = "\t\t\tCurrent parameter equivalent updated to %d";

  static std::int32_t Print(std::int32_t iValue) { return iValue; }
  static bool IsEndless(const VelRshParameterBase&, std::int32_t) { return false; }
};

}  // namespace

void VelRshParameterInteger::OnShaderValue(VelEventName iEvent, VelBaseUnknown* iPublisher,
                                           VelNotification* ioNotification) {
  if (!VelRshParentShaderEvents<VelRshParameterInteger, Rules>(*this, Channel()).OnValue(iEvent, ioNotification))
    return;
  VelRshParameterBase::OnShaderValue(iEvent, iPublisher, ioNotification);
}

void VelRshParameterInteger::OnShaderConnection(VelEventName iEvent, VelBaseUnknown* iPublisher,
                                                VelNotification* ioNotification) {
  if (!VelRshParentShaderEvents<VelRshParameterInteger, Rules>(*this, Channel()).OnConnection(iEvent, ioNotification))
    return;
  VelRshParameterBase::OnShaderConnection(iEvent, iPublisher, ioNotification);
}
