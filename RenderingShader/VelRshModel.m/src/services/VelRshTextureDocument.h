// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshTextureDocument.h The image document of a texture parameter.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_SERVICES_VELRSHTEXTUREDOCUMENT_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_SERVICES_VELRSHTEXTUREDOCUMENT_H

#include "RenderingShader/interfaces/VelIRshParameter.h"
#include "platform/base/VelUnicodeString.h"

class VelRshTextureDocument {
 public:
  /// @param[in] iParameter may be empty
  /// @return the document; empty where there is none, and where the value cannot be read
  static VelBaseUnknown_var Of(const VelIRshParameter_var& iParameter);

  /// @return true when the document says that its format is SVG, in letters of either case
  static bool IsSvg(VelBaseUnknown& iDocument);

  /// @param[out] oPath the file in which the document can be read; untouched when there is none
  /// @return false when there is none
  static bool FindPath(VelBaseUnknown& iDocument, VelUnicodeString& oPath);
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_SERVICES_VELRSHTEXTUREDOCUMENT_H
