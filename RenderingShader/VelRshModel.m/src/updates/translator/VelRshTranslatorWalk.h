// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshTranslatorWalk.h Walks over what is connected to a root shader.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_UPDATES_TRANSLATOR_VELRSHTRANSLATORWALK_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_UPDATES_TRANSLATOR_VELRSHTRANSLATORWALK_H

#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterCollection.h"
#include "RenderingShader/interfaces/VelIRshParameter.h"
#include "RenderingShader/interfaces/VelIRshShader.h"
#include "platform/base/VelString.h"

class VelRshTranslatorWalk {
 public:
  /// @return the parameters of a root shader in order, empty when they cannot be listed. An element that is none ends
  ///         the process: the graph is damaged, and going on would spread that.
  static VelRshReaderParameterCollection::Parameters ListParameters(VelIRshShader& iRoot);

  /// Copies the value of a parameter into the parameters of a name in the shaders that are connected to a root shader.
  /// @param[in] iParent the shader that owns the parameter, which is passed over
  /// @return false as soon as one of them cannot take the value; those before it hold it then
  static bool CopyToConnected(VelIRshParameter& iParameter, VelIRshShader& iRoot, VelIRshShader* iParent,
                              const VelString& iName);
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_UPDATES_TRANSLATOR_VELRSHTRANSLATORWALK_H
