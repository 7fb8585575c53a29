// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRbaDocumentServices.cpp Reads files and hands what is in them to the store.
#include "platform/documents/VelRbaDocumentServices.h"

#include <utility>

#include "platform/base/system/VelSystemFile.h"
#include "platform/documents/VelIDocumentStore.h"
#include "platform/documents/VelMissingProvider.h"
#include "platform/objectmodeler/VelObject.h"
#include "platform/trace/VelTraceHandle.h"

namespace {

constexpr const char* channel = "VelRbaDocumentServices";
constexpr const char* providerType = "VelPlatformDocuments";

constinit VelMissingProvider missingStore(channel, providerType);

/// @return what stands behind the last slash
std::string_view FileNameOf(std::string_view iPath) {
  const std::size_t slash = iPath.rfind('/');
  return slash == std::string_view::npos ? iPath : iPath.substr(slash + 1);
}

/// @return what stands behind the last dot of a name; empty where there is none, and for a name that begins with it
std::string_view ExtensionOf(std::string_view iName) {
  const std::size_t dot = iName.rfind('.');
  return dot == std::string_view::npos || dot == 0 ? std::string_view() : iName.substr(dot + 1);
}

}  // namespace

VelIPLMDmtDocument_var VelRbaDocumentServices::CreateFromBytes(const VelUnicodeString& iName, const VelString& iFormat,
                                                               std::string iContent) {
  const VelIDocumentStore_var hStore(VelObject::Create(providerType, nullptr));
  if (!hStore) {
    missingStore.Warn();
    return nullptr;
  }
  VelBaseUnknown_var hDocument;
  if (FAILED(hStore->CreateDocument(iName, iFormat, std::move(iContent), hDocument.Receive()))) return nullptr;
  return VelIPLMDmtDocument_var(hDocument);
}

VelIPLMDmtDocument_var VelRbaDocumentServices::CreateFromFile(const VelUnicodeString& iPath) {
  std::string content;
  std::string cause;
  if (FAILED(VelSystemFile::ReadWholeFile(std::string(iPath.View()), largestFile, content, cause))) {
    VelTraceHandle(channel).Error(VEL_HERE("platform/documents/VelRbaDocumentServices"),
                                  "The file '%s' does not become a document: %s", iPath, cause);
    return nullptr;
  }
  const std::string_view name = FileNameOf(iPath);
  return CreateFromBytes(VelUnicodeString(name), VelString(ExtensionOf(name)), std::move(content));
}

void VelRbaDocumentServices::ResetWarning() noexcept { missingStore.Reset(); }
