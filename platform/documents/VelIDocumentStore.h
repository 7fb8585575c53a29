// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIDocumentStore.h Where documents are made.
#ifndef PLATFORM_DOCUMENTS_VELIDOCUMENTSTORE_H
#define PLATFORM_DOCUMENTS_VELIDOCUMENTSTORE_H

#include <string>

#include "platform/base/VelPlatformApi.h"
#include "platform/base/VelString.h"
#include "platform/base/VelUnicodeString.h"
#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"

VEL_PLATFORM_API extern const VelInterfaceId IID_VelIDocumentStore;

/// The provider behind VelRbaDocumentServices. An object of it is made for each call, so that what has to last lies
/// outside of it.
///
/// Implemented by: the library VelPlatformDocuments, for late type "VelPlatformDocuments".
/// Thread: the application thread. Re-entrancy: none.
class VEL_PLATFORM_API VelIDocumentStore : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelIDocumentStore);

  /// @param[in] iName as VelIPLMDmtDocument::GetName gives it
  /// @param[in] iFormat as VelIPLMDmtDocument::GetFormatName gives it
  /// @param[in] iContent all bytes, in no encoding
  /// @param[out] oDocument the document as VelIPLMDmtDocument, with one reference for the caller; null on failure
  /// @return S_OK; E_INVALIDARG when oDocument is null; E_FAIL
  virtual HRESULT CreateDocument(const VelUnicodeString& iName, const VelString& iFormat, std::string iContent,
                                 VelBaseUnknown** oDocument) = 0;

 protected:
  ~VelIDocumentStore() = default;
};

using VelIDocumentStore_var = VelVar<VelIDocumentStore>;

#endif  // PLATFORM_DOCUMENTS_VELIDOCUMENTSTORE_H
