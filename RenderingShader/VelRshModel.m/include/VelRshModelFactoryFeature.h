// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshModelFactoryFeature.h Makes shaders and parameters in a container.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHMODELFACTORYFEATURE_H
#define RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHMODELFACTORYFEATURE_H

#include "RenderingShader/VelRshModel.m/include/VelRshModelApi.h"
#include "RenderingShader/interfaces/VelIRshParameter.h"
#include "RenderingShader/interfaces/VelIRshShader.h"
#include "platform/base/VelUnicodeString.h"
#include "platform/featuremodeler/VelIContainer.h"
#include "platform/trace/VelTraceHandle.h"

/// The one place where shaders and parameters are instantiated from VelRmaCatalog.feat: made on the stack for the
/// container in which they shall be, called, and dropped. It attaches nothing to anything: VelIRshShader::AddParameter
/// makes the parameters of a shader. The feature's own name stays empty, since a parameter is known by its attribute
/// "Name" and a shader by its type and place.
///
/// Every failure is an empty handle and an error on the channel "VelRshModelFactoryFeature", with one exception: a
/// shader that was instantiated but does not answer VelIRshShader, as without the component's dictionary, is an empty
/// handle alone ("VelDictionary" tells it, as an information). What was instantiated by then stays in the container,
/// without a father.
///
/// Thread: the application thread.
class VEL_RSH_MODEL_API VelRshModelFactoryFeature {
 public:
  /// @param[in] ioContainer not referenced; the caller keeps it as long as the factory
  explicit VelRshModelFactoryFeature(VelIContainer& ioContainer);

  /// Makes a shader and gives it its type, as VelIRshShader::SetType.
  /// @param[in] iType may be empty
  /// @return the shader, also when its type could not be written; empty when it cannot be instantiated
  VelIRshShader_var CreateShader(const VelUnicodeString& iType) const;

  /// Makes a parameter and gives it its name. Mind the order of the two texts.
  /// @param[in] iName as VelIRshParameter::SetName
  /// @param[in] iStartUp the start-up of the value's type, for instance "VelRmaScalar"
  /// @return the parameter; empty when it cannot be instantiated, is no parameter or cannot be given the name
  VelIRshParameter_var CreateShaderParameter(const VelUnicodeString& iName, const VelUnicodeString& iStartUp) const;

 private:
  VelTraceHandle trace_;
  VelIContainer& container_;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHMODELFACTORYFEATURE_H
