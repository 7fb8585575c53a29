// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TIEVelIDocumentStore.h The forwarder of VelIDocumentStore.
#ifndef PLATFORM_DOCUMENTS_TIEVELIDOCUMENTSTORE_H
#define PLATFORM_DOCUMENTS_TIEVELIDOCUMENTSTORE_H

#include <utility>

#include "platform/documents/VelIDocumentStore.h"
#include "platform/objectmodeler/VelTie.h"

template <class Implementation>
class TIEVelIDocumentStore final : public VelTie<VelIDocumentStore> {
 public:
  using VelTie::VelTie;

  HRESULT CreateDocument(const VelUnicodeString& iName, const VelString& iFormat, std::string iContent,
                         VelBaseUnknown** oDocument) override {
    return Forward<Implementation>([&](Implementation& ioStore) {
      return ioStore.CreateDocument(iName, iFormat, std::move(iContent), oDocument);
    });
  }
};

#endif  // PLATFORM_DOCUMENTS_TIEVELIDOCUMENTSTORE_H
