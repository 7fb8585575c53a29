// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterValueCopier.h Copies the value of a parameter into another one of its type.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_UPDATES_VELRSHPARAMETERVALUECOPIER_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_UPDATES_VELRSHPARAMETERVALUECOPIER_H

#include "RenderingShader/interfaces/VelIRshParameter.h"

/// What holds the source's value already is not written, so that nobody is told of it; colours and vectors are written
/// always. Without state. Thread: the application thread.
class VelRshParameterValueCopier {
 public:
  /// @return true when the target holds the source's value now, and for two textures, which keep theirs; false for two
  ///         parameters of different types, for types other than boolean, integer, scalar, string, colour, vector and
  ///         texture, and when either value cannot be read, as where it is unvaluated, or the target not be written
  bool operator()(VelIRshParameter& iSource, VelIRshParameter& ioTarget) const;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_UPDATES_VELRSHPARAMETERVALUECOPIER_H
