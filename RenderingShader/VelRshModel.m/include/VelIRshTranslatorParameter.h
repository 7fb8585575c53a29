// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIRshTranslatorParameter.h Turns the notifications of an editor into changes of parameters.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELIRSHTRANSLATORPARAMETER_H
#define RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELIRSHTRANSLATORPARAMETER_H

class VelRbaBooleanShaderModifyNotification;
class VelRbaColorShaderModifyNotification;
class VelRbaFloatShaderModifyNotification;
class VelRbaIntegralShaderModifyNotification;
class VelRbaNotificationTopologyModification;
class VelRbaResetRenderingMaterialNotification;
class VelRbaStringShaderModifyNotification;

/// One call for each kind of notification, in a fixed order. Each answers true when the notification was handled, also
/// where there was nothing to do, and false when it could not be applied.
///
/// Implemented by: VelRshTranslatorParameter.
/// Thread: the application thread, in the order in which the editor sends.
class VelIRshTranslatorParameter {
 public:
  virtual ~VelIRshTranslatorParameter() = default;

  virtual bool operator()(const VelRbaResetRenderingMaterialNotification& iNotification) const = 0;
  virtual bool operator()(const VelRbaIntegralShaderModifyNotification& iNotification) const = 0;
  virtual bool operator()(const VelRbaNotificationTopologyModification& iNotification) const = 0;
  virtual bool operator()(const VelRbaBooleanShaderModifyNotification& iNotification) const = 0;
  virtual bool operator()(const VelRbaStringShaderModifyNotification& iNotification) const = 0;
  virtual bool operator()(const VelRbaFloatShaderModifyNotification& iNotification) const = 0;
  virtual bool operator()(const VelRbaColorShaderModifyNotification& iNotification) const = 0;

 protected:
  VelIRshTranslatorParameter() = default;
  VelIRshTranslatorParameter(const VelIRshTranslatorParameter&) = default;
  VelIRshTranslatorParameter& operator=(const VelIRshTranslatorParameter&) = default;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELIRSHTRANSLATORPARAMETER_H
