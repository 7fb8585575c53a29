// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelMemoryDocument.cpp Numbers documents in the order in which they are made.
#include "platform/documents/store/VelMemoryDocument.h"

#include <utility>

#include "platform/objectmodeler/VelObject.h"

namespace {

constinit std::uint64_t documentsMade = 0;

}  // namespace

VelIPLMDmtDocument_var VelMemoryDocument::Create(const VelUnicodeString& iName, const VelString& iFormat,
                                                 std::string iContent) {
  VelIPLMDmtDocument_var hDocument(VelObject::Create("VelMemoryDocument", nullptr));
  VelMemoryDocument* document = hDocument ? From(*hDocument) : nullptr;
  if (document == nullptr) return nullptr;
  document->name_ = iName;
  document->format_ = iFormat;
  document->identifier_ = VelString("memory-") + std::to_string(++documentsMade).c_str();
  document->content_ = std::move(iContent);
  return hDocument;
}

VelMemoryDocument* VelMemoryDocument::From(VelBaseUnknown& iDocument) noexcept {
  const VelIPLMDmtDocument_var hDocument(&iDocument);
  VelBaseUnknown* implementation = hDocument ? hDocument->GetImpl() : nullptr;
  if (implementation == nullptr || &implementation->GetMetaObject() != &MetaObject()) return nullptr;
  return static_cast<VelMemoryDocument*>(implementation);
}

HRESULT VelMemoryDocument::GetFormatName(VelString& oFormat) const {
  oFormat = format_;
  return S_OK;
}

HRESULT VelMemoryDocument::GetName(VelUnicodeString& oName) const {
  oName = name_;
  return S_OK;
}

HRESULT VelMemoryDocument::GetIdentifier(VelString& oIdentifier) const {
  oIdentifier = identifier_;
  return S_OK;
}

HRESULT VelMemoryDocument::GetContent(std::string& oContent) const {
  oContent = content_;
  return S_OK;
}

bool VelMemoryDocument::RemoveLink() noexcept {
  if (links_ == 0) return false;
  --links_;
  return true;
}
