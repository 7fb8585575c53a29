// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshDocumentValue.h A value that is a link to a document, which the document store counts.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHDOCUMENTVALUE_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHDOCUMENTVALUE_H

#include "RenderingShader/VelRshModel.m/src/services/VelRshAttribute.h"
#include "platform/base/HResult.h"

class VelRshDocumentValue {
 public:
  /// @param[out] oDocument the document with one reference for the caller; null where there is none
  /// @return S_OK, also when there is none; E_FAIL when oDocument is null or the feature has no such attribute
  static HRESULT Read(VelBaseUnknown& iParameter, VelRshAttribute::Accessor iKey, VelBaseUnknown** oDocument);

  /// Links another document, and tells the store: of the new one before the old one, so that a document never seems to
  /// be out of use meanwhile.
  /// @param[out] oPrevious the document before; empty where there was none
  /// @return S_OK; S_FALSE when it is the value already; E_NOINTERFACE when iDocument is null; E_FAIL
  static HRESULT Write(VelBaseUnknown& ioParameter, VelRshAttribute::Accessor iKey, VelBaseUnknown* iDocument,
                       VelBaseUnknown_var& oPrevious);
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHDOCUMENTVALUE_H
