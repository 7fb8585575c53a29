// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TIEVelIPLMDmtDocument.h The forwarder of VelIPLMDmtDocument.
#ifndef PLATFORM_DOCUMENTS_TIEVELIPLMDMTDOCUMENT_H
#define PLATFORM_DOCUMENTS_TIEVELIPLMDMTDOCUMENT_H

#include "platform/documents/VelIPLMDmtDocument.h"
#include "platform/objectmodeler/VelTie.h"

template <class Implementation>
class TIEVelIPLMDmtDocument final : public VelTie<VelIPLMDmtDocument> {
 public:
  using VelTie::VelTie;

  HRESULT GetFormatName(VelString& oFormat) override {
    return Forward<Implementation>([&](Implementation& ioDocument) { return ioDocument.GetFormatName(oFormat); });
  }
  HRESULT GetName(VelUnicodeString& oName) override {
    return Forward<Implementation>([&](Implementation& ioDocument) { return ioDocument.GetName(oName); });
  }
  HRESULT GetIdentifier(VelString& oIdentifier) override {
    return Forward<Implementation>([&](Implementation& ioDocument) { return ioDocument.GetIdentifier(oIdentifier); });
  }
  HRESULT GetContent(std::string& oContent) override {
    return Forward<Implementation>([&](Implementation& ioDocument) { return ioDocument.GetContent(oContent); });
  }
};

#endif  // PLATFORM_DOCUMENTS_TIEVELIPLMDMTDOCUMENT_H
