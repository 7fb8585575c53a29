// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIRshTranslatorDerivedParameter.h Carries the changes of parameters over to derived ones.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELIRSHTRANSLATORDERIVEDPARAMETER_H
#define RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELIRSHTRANSLATORDERIVEDPARAMETER_H

class VelRbaBooleanShaderModifyNotification;
class VelRbaColorShaderModifyNotification;
class VelRbaFloatShaderModifyNotification;
class VelRbaIntegralShaderModifyNotification;
class VelRbaNotificationTopologyModification;
class VelRbaResetRenderingMaterialNotification;
class VelRbaStringShaderModifyNotification;

/// Carries what an editor changed over to the parameters of sub-shaders that derive from it, by other names as well.
/// One call for each kind of notification, in a fixed order. Each answers true when the notification was handled, also
/// where there was nothing to do, and false when it could not be applied.
///
/// Implemented by: the component, below VelRshTranslatorParameter.
/// Thread: the application thread, in the order in which the editor sends.
class VelIRshTranslatorDerivedParameter {
 public:
  virtual ~VelIRshTranslatorDerivedParameter() = default;

  virtual bool operator()(const VelRbaResetRenderingMaterialNotification& iNotification) const = 0;
  virtual bool operator()(const VelRbaIntegralShaderModifyNotification& iNotification) const = 0;
  virtual bool operator()(const VelRbaNotificationTopologyModification& iNotification) const = 0;
  virtual bool operator()(const VelRbaBooleanShaderModifyNotification& iNotification) const = 0;
  virtual bool operator()(const VelRbaStringShaderModifyNotification& iNotification) const = 0;
  virtual bool operator()(const VelRbaFloatShaderModifyNotification& iNotification) const = 0;
  virtual bool operator()(const VelRbaColorShaderModifyNotification& iNotification) const = 0;

 protected:
  VelIRshTranslatorDerivedParameter() = default;
  VelIRshTranslatorDerivedParameter(const VelIRshTranslatorDerivedParameter&) = default;
  VelIRshTranslatorDerivedParameter& operator=(const VelIRshTranslatorDerivedParameter&) = default;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELIRSHTRANSLATORDERIVEDPARAMETER_H
