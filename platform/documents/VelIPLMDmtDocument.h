// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIPLMDmtDocument.h A document that features link: an image or a light profile.
#ifndef PLATFORM_DOCUMENTS_VELIPLMDMTDOCUMENT_H
#define PLATFORM_DOCUMENTS_VELIPLMDMTDOCUMENT_H

#include <string>

#include "platform/base/VelPlatformApi.h"
#include "platform/base/VelString.h"
#include "platform/base/VelUnicodeString.h"
#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"

VEL_PLATFORM_API extern const VelInterfaceId IID_VelIPLMDmtDocument;

/// A document of the document store. What a parameter links is the document; its file is made by the image services.
///
/// Implemented by: what brings the documents; tests bring their own.
/// Thread: the application thread. Re-entrancy: none.
class VEL_PLATFORM_API VelIPLMDmtDocument : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelIPLMDmtDocument);

  /// @param[out] oFormat the format as the document's maker gave it, for instance "png" or "svg": letters of either
  ///             case, no dot; untouched on failure
  /// @return S_OK; E_FAIL when the document cannot be read
  virtual HRESULT GetFormatName(VelString& oFormat) = 0;

  /// @param[out] oName the name that people see, with or without a file extension; untouched on failure
  /// @return S_OK; E_FAIL when the document cannot be read
  virtual HRESULT GetName(VelUnicodeString& oName) = 0;

  /// @param[out] oIdentifier what no other document of the store has, and what stays when the document is opened again;
  ///             untouched on failure
  /// @return S_OK; E_FAIL when the document cannot be read
  virtual HRESULT GetIdentifier(VelString& oIdentifier) = 0;

  /// @param[out] oContent replaced by a copy of all bytes of the document, NULs included, in no encoding and untrusted;
  ///             untouched on failure
  /// @return S_OK, also for a document without any byte; E_FAIL when the document cannot be read
  virtual HRESULT GetContent(std::string& oContent) = 0;

 protected:
  ~VelIPLMDmtDocument() = default;
};

using VelIPLMDmtDocument_var = VelVar<VelIPLMDmtDocument>;

#endif  // PLATFORM_DOCUMENTS_VELIPLMDMTDOCUMENT_H
