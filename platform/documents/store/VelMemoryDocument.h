// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelMemoryDocument.h A document that lives in memory.
#ifndef PLATFORM_DOCUMENTS_STORE_VELMEMORYDOCUMENT_H
#define PLATFORM_DOCUMENTS_STORE_VELMEMORYDOCUMENT_H

#include <cstdint>
#include <string>

#include "platform/base/HResult.h"
#include "platform/base/VelString.h"
#include "platform/base/VelUnicodeString.h"
#include "platform/documents/VelIPLMDmtDocument.h"
#include "platform/objectmodeler/VelImplementation.h"

/// Implements objects of late type "VelMemoryDocument". It never changes, apart from the count of the links to it.
class VelMemoryDocument final : public VelImplementation {
 public:
  using VelImplementation::VelImplementation;
  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  /// Makes a document.
  static VelIPLMDmtDocument_var Create(const VelUnicodeString& iName, const VelString& iFormat, std::string iContent);

  /// @return the document behind a pointer, null for one of another store
  static VelMemoryDocument* From(VelBaseUnknown& iDocument) noexcept;

  HRESULT GetFormatName(VelString& oFormat) const;
  HRESULT GetName(VelUnicodeString& oName) const;
  HRESULT GetIdentifier(VelString& oIdentifier) const;
  HRESULT GetContent(std::string& oContent) const;

  void AddLink() noexcept { ++links_; }

  /// @return false when there is none
  bool RemoveLink() noexcept;

 private:
  VelUnicodeString name_;
  VelString format_;
  VelString identifier_;
  std::string content_;
  std::uint32_t links_ = 0;
};

#endif  // PLATFORM_DOCUMENTS_STORE_VELMEMORYDOCUMENT_H
