// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshFeatureModelerCopier.h Copies a whole shader graph into a container.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHFEATUREMODELERCOPIER_H
#define RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHFEATUREMODELERCOPIER_H

#include <vector>

#include "RenderingShader/VelRshModel.m/include/VelRshModelApi.h"
#include "RenderingShader/VelRshModel.m/include/VelRshModelFactoryFeature.h"
#include "RenderingShader/interfaces/VelIRshParameter.h"
#include "RenderingShader/interfaces/VelIRshShader.h"
#include "platform/featuremodeler/VelIContainer.h"

/// Copies every parameter with a value of whatever type, and every shader that is connected to one, at most 256 deep. A
/// shader that is connected twice is copied twice; the output of a Substance graph is shared. Copies of connected
/// shaders are no nodes of the copy. Since a connected shader takes over mapping values of the shader above it, such
/// values of the copies may differ from the source's, which never changes.
///
/// Whatever cannot be copied is reported as a check that names what was tested, and ends the copy: what was made by
/// then stays in the container. Thread: the application thread.
class VEL_RSH_MODEL_API VelRshFeatureModelerCopier {
 public:
  /// @param[in] ioContainer where the copies are made; the caller keeps it as long as the copier
  explicit VelRshFeatureModelerCopier(VelIContainer& ioContainer);

  /// @param[in] iShader empty gives no copy, with a check
  /// @return the copy; empty when something could not be copied, or when the shaders are connected in a cycle
  VelIRshShader_var Copy(const VelIRshShader_var& iShader) const;

 private:
  /// The shaders that are being copied, the outermost first.
  using Path = std::vector<VelIRshShader*>;

  VelIRshShader_var CopyShader(const VelIRshShader_var& iShader, Path& ioPath) const;
  bool CopyParameter(const VelIRshParameter_var& iParameter, VelIRshShader& ioCopy, Path& ioPath) const;
  bool CopyConnection(VelIRshParameter& iParameter, VelIRshParameter& ioCopy, Path& ioPath) const;

  VelRshModelFactoryFeature factory_;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHFEATUREMODELERCOPIER_H
