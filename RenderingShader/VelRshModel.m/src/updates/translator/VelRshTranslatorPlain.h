// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshTranslatorPlain.h Carries a value of the root shader over to the parameters of the same name.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_UPDATES_TRANSLATOR_VELRSHTRANSLATORPLAIN_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_UPDATES_TRANSLATOR_VELRSHTRANSLATORPLAIN_H

#include "RenderingShader/VelRshModel.m/include/VelIRshTranslatorParameter.h"
#include "RenderingShader/VelRshModel.m/src/updates/translator/VelRshTranslatorCalls.h"

/// A value that is edited below the root goes no further.
class VelRshTranslatorPlain final : public VelRshTranslatorCalls<VelRshTranslatorPlain, VelIRshTranslatorParameter> {
 public:
  /// A value.
  template <class Notification>
  bool Translate(const Notification& iNotification, VelIRshParameter& iParameter) const {
    return VelRshTellsNoChange(iNotification) || Propagate(iParameter);
  }

  /// There is nothing to carry over: connections and documents are a shader's own.
  bool Translate(const VelRbaNotificationTopologyModification&, VelIRshParameter&) const { return true; }

  /// A default value stays where it was set.
  bool Translate(const VelRbaResetRenderingMaterialNotification&, VelIRshParameter&) const { return true; }

 private:
  static bool Propagate(VelIRshParameter& iParameter);
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_UPDATES_TRANSLATOR_VELRSHTRANSLATORPLAIN_H
