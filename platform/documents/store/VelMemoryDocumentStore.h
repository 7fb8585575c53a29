// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelMemoryDocumentStore.h Makes documents in memory and counts the links to them.
#ifndef PLATFORM_DOCUMENTS_STORE_VELMEMORYDOCUMENTSTORE_H
#define PLATFORM_DOCUMENTS_STORE_VELMEMORYDOCUMENTSTORE_H

#include <string>

#include "platform/base/HResult.h"
#include "platform/base/VelString.h"
#include "platform/base/VelUnicodeString.h"
#include "platform/objectmodeler/VelImplementation.h"

/// Answers VelIDocumentStore and VelIRepLifeCycle for late type "VelPlatformDocuments". Documents live as long as they
/// are referenced; a store that keeps them takes its place by answering the same two interfaces.
class VelMemoryDocumentStore final : public VelImplementation {
 public:
  using VelImplementation::VelImplementation;
  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  // VelIDocumentStore
  HRESULT CreateDocument(const VelUnicodeString& iName, const VelString& iFormat, std::string iContent,
                         VelBaseUnknown** oDocument);

  // VelIRepLifeCycle
  HRESULT AddReference(VelBaseUnknown* iDocument);
  HRESULT RemoveReference(VelBaseUnknown* iDocument);
};

#endif  // PLATFORM_DOCUMENTS_STORE_VELMEMORYDOCUMENTSTORE_H
