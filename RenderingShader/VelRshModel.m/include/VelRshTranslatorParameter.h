// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshTranslatorParameter.h Applies what an editor notifies to parameters and to what derives from them.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHTRANSLATORPARAMETER_H
#define RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHTRANSLATORPARAMETER_H

#include <memory>

#include "RenderingShader/VelRshModel.m/include/VelIRshTranslatorParameter.h"
#include "RenderingShader/VelRshModel.m/include/VelRshModelApi.h"

/// A function object for the host's material editor, which announces each edit by a notification of the edited
/// parameter and its value before and after. The value after is written into the parameter; then it is carried over to
/// the parameters of that name in the sub-shaders that are connected to the material's root shader.
///
/// - Boolean, integral, float, colour, string: to a parameter of that very type; a float is narrowed.
/// - Topology: a VelIRshShader is connected, an empty one disconnected; a VelIPLMDmtDocument becomes the value. The
///   material's model events dispatch what was applied. Anything else is false.
/// - Reset: the default value of the parameter's dialog; boolean, integer, scalar, colour and string parameters only.
/// - Equal values before and after: true, and nothing is done.
///
/// On a root whose type begins with "MPM" parameters below the root are carried over as well, "default_sp_bump" becomes
/// "bump", and an integral "dpi" draws the material's textures anew. Each call is one scope of edits (VelEditScope). A
/// root shader with an element that is no parameter ends the process.
///
/// Copies are cheap and share what works. Nothing throws. Thread: the application thread.
class VEL_RSH_MODEL_API VelRshTranslatorParameter final : public VelIRshTranslatorParameter {
 public:
  VelRshTranslatorParameter();
  ~VelRshTranslatorParameter() override;
  VelRshTranslatorParameter(const VelRshTranslatorParameter& iOther);
  VelRshTranslatorParameter& operator=(const VelRshTranslatorParameter& iOther);

  bool operator()(const VelRbaResetRenderingMaterialNotification& iNotification) const override;
  bool operator()(const VelRbaIntegralShaderModifyNotification& iNotification) const override;
  bool operator()(const VelRbaNotificationTopologyModification& iNotification) const override;
  bool operator()(const VelRbaBooleanShaderModifyNotification& iNotification) const override;
  bool operator()(const VelRbaStringShaderModifyNotification& iNotification) const override;
  bool operator()(const VelRbaFloatShaderModifyNotification& iNotification) const override;
  bool operator()(const VelRbaColorShaderModifyNotification& iNotification) const override;

 private:
  template <class Notification>
  bool Delegate(const Notification& iNotification) const noexcept;

  std::shared_ptr<const VelIRshTranslatorParameter> delegate_;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHTRANSLATORPARAMETER_H
