// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelMemoryDocumentStore.cpp Hands each call to the document concerned.
#include "platform/documents/store/VelMemoryDocumentStore.h"

#include <utility>

#include "platform/documents/store/VelMemoryDocument.h"

HRESULT VelMemoryDocumentStore::CreateDocument(const VelUnicodeString& iName, const VelString& iFormat,
                                               std::string iContent, VelBaseUnknown** oDocument) {
  if (oDocument == nullptr) return E_INVALIDARG;
  *oDocument = VelMemoryDocument::Create(iName, iFormat, std::move(iContent)).Detach();
  return *oDocument != nullptr ? S_OK : E_FAIL;
}

HRESULT VelMemoryDocumentStore::AddReference(VelBaseUnknown* iDocument) {
  VelMemoryDocument* document = VelMemoryDocument::From(*iDocument);
  if (document == nullptr) return E_FAIL;
  document->AddLink();
  return S_OK;
}

HRESULT VelMemoryDocumentStore::RemoveReference(VelBaseUnknown* iDocument) {
  VelMemoryDocument* document = VelMemoryDocument::From(*iDocument);
  return document != nullptr && document->RemoveLink() ? S_OK : E_FAIL;
}
