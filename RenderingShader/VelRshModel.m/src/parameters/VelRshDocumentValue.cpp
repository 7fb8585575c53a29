// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshDocumentValue.cpp Links documents and has them counted.
#include "RenderingShader/VelRshModel.m/src/parameters/VelRshDocumentValue.h"

#include "platform/documents/VelRbaRepLifeCycle.h"

HRESULT VelRshDocumentValue::Read(VelBaseUnknown& iParameter, VelRshAttribute::Accessor iKey,
                                  VelBaseUnknown** oDocument) {
  if (oDocument == nullptr) return E_FAIL;
  *oDocument = nullptr;
  const VelRshAttribute attribute(&iParameter, iKey);
  if (!attribute) return E_FAIL;
  return attribute.IsValuated() ? attribute->GetDocument(attribute.Key(), oDocument) : S_OK;
}

HRESULT VelRshDocumentValue::Write(VelBaseUnknown& ioParameter, VelRshAttribute::Accessor iKey,
                                   VelBaseUnknown* iDocument, VelBaseUnknown_var& oPrevious) {
  if (iDocument == nullptr) return E_NOINTERFACE;
  const VelRshAttribute attribute(&ioParameter, iKey);
  if (!attribute) return E_FAIL;
  VEL_RETURN_IF_FAILED(Read(ioParameter, iKey, oPrevious.Receive()));
  if (oPrevious && oPrevious->IsEqual(iDocument)) return S_FALSE;
  // A store that cannot count a document does not keep the parameter from holding it.
  static_cast<void>(VelRbaRepLifeCycle::AddReference(iDocument));
  const HRESULT written = attribute->SetDocument(attribute.Key(), iDocument);
  if (FAILED(written)) {
    static_cast<void>(VelRbaRepLifeCycle::RemoveReference(iDocument));
    return written;
  }
  if (oPrevious) static_cast<void>(VelRbaRepLifeCycle::RemoveReference(oPrevious.Get()));
  return S_OK;
}
