// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterScalar_EventParentShaderToParameter.cpp How a scalar of a connected shader follows the shader
/// above.
#include <cmath>

#include "RenderingShader/VelRshModel.m/src/parameters/VelRshParameterScalar.h"
#include "RenderingShader/VelRshModel.m/src/parameters/VelRshParentShaderEvents.h"

namespace {

struct Rules {
  using Changed = VelRshModelNotificationParameterScalar1Changed;
  using Tag = VelIRshParameterPrivate::Tag;

  static constexpr Tag tags[] = {Tag::ScaleU, Tag::ScaleV, Tag::OffsetU, Tag::OffsetV, Tag::Angle};
  static constexpr const char* source =
      "RenderingShader/VelRshModel.m/src/VelRshParameterScalar_EventParentShaderToParameter";
  static constexpr const char* takenOver = "\t\t\t Current parameter equivalent updated to %f";
  static constexpr const char* pushed = "\t\t\t Connection parameter equivalent updated to %f";
  static constexpr const char* pulled = "\t\t\tCurrent parameter equivalent updated to %f";

  static double Print(float iValue) { return static_cast<double>(iValue); }

  /// What is no number never equals what is there already, so that round a cycle of connections no setter would stop.
  static bool IsEndless(const VelRshParameterBase& iParameter, float iValue) {
    return std::isnan(iValue) && VelRshPropagation::IsRunningFor(iParameter);
  }
};

}  // namespace

void VelRshParameterScalar::OnShaderValue(VelEventName iEvent, VelBaseUnknown* iPublisher,
                                          VelNotification* ioNotification) {
  if (!VelRshParentShaderEvents<VelRshParameterScalar, Rules>(*this, Channel()).OnValue(iEvent, ioNotification)) return;
  VelRshParameterBase::OnShaderValue(iEvent, iPublisher, ioNotification);
}

void VelRshParameterScalar::OnShaderConnection(VelEventName iEvent, VelBaseUnknown* iPublisher,
                                               VelNotification* ioNotification) {
  if (!VelRshParentShaderEvents<VelRshParameterScalar, Rules>(*this, Channel()).OnConnection(iEvent, ioNotification))
    return;
  VelRshParameterBase::OnShaderConnection(iEvent, iPublisher, ioNotification);
}
