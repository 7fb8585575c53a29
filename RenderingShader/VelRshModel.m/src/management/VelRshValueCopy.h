// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshValueCopy.h Copies the value of a parameter into a new one of its type, and writes it as a text.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_MANAGEMENT_VELRSHVALUECOPY_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_MANAGEMENT_VELRSHVALUECOPY_H

#include "RenderingShader/interfaces/VelIRshParameter.h"
#include "platform/base/VelUnicodeString.h"

/// What became of a copy.
struct VelRshValueCopy {
  /// How parameters of a start-up hold their value.
  enum class Kind { Unknown, Void, Plain, Text, Matrix, Document };

  HRESULT read = S_OK;
  HRESULT write = S_OK;  ///< S_OK also where nothing was written.

  /// @param[in] iStartUp the type of a parameter, for instance "VelRmaScalar"
  static Kind KindOf(const VelString& iStartUp);

  /// Reads the source into a value that begins as zero, and writes it into the target. A document that is not there is
  /// not written.
  /// @param[in] iStartUp the type of both
  static VelRshValueCopy Run(const VelString& iStartUp, VelIRshParameter& iSource, VelIRshParameter& ioTarget);

  /// @param[in] iStartUp the type of the parameter
  /// @return what a copy would read, as VelRshValueText; empty where it would read nothing
  static VelUnicodeString TextOf(const VelString& iStartUp, VelIRshParameter& iParameter);
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_MANAGEMENT_VELRSHVALUECOPY_H
