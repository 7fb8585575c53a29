// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshTranslatorComposite.h Chooses the translator that suits the root shader.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_UPDATES_TRANSLATOR_VELRSHTRANSLATORCOMPOSITE_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_UPDATES_TRANSLATOR_VELRSHTRANSLATORCOMPOSITE_H

#include "RenderingShader/VelRshModel.m/include/VelIRshTranslatorParameter.h"
#include "RenderingShader/VelRshModel.m/src/updates/translator/VelRshTranslatorDerived.h"
#include "RenderingShader/VelRshModel.m/src/updates/translator/VelRshTranslatorPlain.h"

/// By the type of the root: one that begins with "MPM" has parameters that derive from others.
class VelRshTranslatorComposite final
    : public VelRshTranslatorCalls<VelRshTranslatorComposite, VelIRshTranslatorParameter> {
 public:
  template <class Notification>
  bool Translate(const Notification& iNotification, VelIRshParameter& iParameter) const {
    bool derives = false;
    if (!ReadRootType(iParameter, derives)) return false;
    return derives ? derived_(iNotification) : plain_(iNotification);
  }

 private:
  /// @return false when there is no root, or when its type cannot be read
  static bool ReadRootType(VelIRshParameter& iParameter, bool& oDerives);

  VelRshTranslatorPlain plain_;
  VelRshTranslatorDerived derived_;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_UPDATES_TRANSLATOR_VELRSHTRANSLATORCOMPOSITE_H
