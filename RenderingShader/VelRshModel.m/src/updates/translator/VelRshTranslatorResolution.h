// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshTranslatorResolution.h Draws the textures of a material at a new resolution.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_UPDATES_TRANSLATOR_VELRSHTRANSLATORRESOLUTION_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_UPDATES_TRANSLATOR_VELRSHTRANSLATORRESOLUTION_H

#include "RenderingShader/VelRshModel.m/include/VelIRshTranslatorParameter.h"
#include "RenderingShader/VelRshModel.m/src/updates/translator/VelRshTranslatorCalls.h"
#include "platform/materials/VelIRmaAppearanceCache.h"

/// Knows integral notifications alone, of which it handles those of a parameter "dpi".
class VelRshTranslatorResolution final
    : public VelRshTranslatorCalls<VelRshTranslatorResolution, VelIRshTranslatorParameter> {
 public:
  template <class Notification>
  bool Translate(const Notification&, VelIRshParameter&) const {
    return false;
  }

  /// Fills the cache entry of every channel that a texture feeds. A texture of which no picture can be made is passed
  /// over, and its entry stays.
  bool Translate(const VelRbaIntegralShaderModifyNotification& iNotification, VelIRshParameter& iParameter) const;

 private:
  static void FillEntry(VelIRshParameter& iRootParameter, int iDpi, VelIRmaAppearanceCache& ioCache);
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_UPDATES_TRANSLATOR_VELRSHTRANSLATORRESOLUTION_H
