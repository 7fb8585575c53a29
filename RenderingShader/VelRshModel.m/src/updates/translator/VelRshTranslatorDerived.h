// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshTranslatorDerived.h Carries a value over to parameters that derive from it.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_UPDATES_TRANSLATOR_VELRSHTRANSLATORDERIVED_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_UPDATES_TRANSLATOR_VELRSHTRANSLATORDERIVED_H

#include "RenderingShader/VelRshModel.m/include/VelIRshTranslatorDerivedParameter.h"
#include "RenderingShader/VelRshModel.m/src/updates/translator/VelRshTranslatorCalls.h"
#include "RenderingShader/VelRshModel.m/src/updates/translator/VelRshTranslatorResolution.h"

/// For roots whose type begins with "MPM": a value that is edited anywhere below the material is carried over to what
/// is connected to the root, the bump level of the root under the name that bump shaders have for it.
class VelRshTranslatorDerived final
    : public VelRshTranslatorCalls<VelRshTranslatorDerived, VelIRshTranslatorDerivedParameter> {
 public:
  /// A value.
  template <class Notification>
  bool Translate(const Notification& iNotification, VelIRshParameter& iParameter) const {
    return VelRshTellsNoChange(iNotification) || Propagate(iParameter);
  }

  /// A number may be a resolution, which is carried over first and then drawn at.
  bool Translate(const VelRbaIntegralShaderModifyNotification& iNotification, VelIRshParameter& iParameter) const {
    if (VelRshTellsNoChange(iNotification)) return true;
    return Propagate(iParameter) && resolution_(iNotification);
  }

  /// There is nothing to carry over: connections and documents are a shader's own.
  bool Translate(const VelRbaNotificationTopologyModification&, VelIRshParameter&) const { return true; }

  /// A default value stays where it was set.
  bool Translate(const VelRbaResetRenderingMaterialNotification&, VelIRshParameter&) const { return true; }

 private:
  static bool Propagate(VelIRshParameter& iParameter);

  VelRshTranslatorResolution resolution_;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_UPDATES_TRANSLATOR_VELRSHTRANSLATORDERIVED_H
