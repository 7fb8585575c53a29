// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRbaRepLifeCycle.h The references that the links of features hold on documents.
#ifndef PLATFORM_DOCUMENTS_VELRBAREPLIFECYCLE_H
#define PLATFORM_DOCUMENTS_VELRBAREPLIFECYCLE_H

#include "platform/base/HResult.h"
#include "platform/base/VelPlatformApi.h"

class VelBaseUnknown;

/// Tells the document store that a link to a document was made or dropped, so that it knows which documents are in use.
/// These references are the store's own count and not those of the object modeler.
///
/// The work is done by a provider that the dictionary names (VelIRepLifeCycle). Without one every operation is E_FAIL,
/// of which the first is a warning on the trace channel "VelRbaRepLifeCycle".
/// Thread: the application thread.
class VEL_PLATFORM_API VelRbaRepLifeCycle {
 public:
  /// @param[in] iDocument any interface of the document
  /// @return S_OK; E_INVALIDARG when iDocument is null; E_FAIL without provider; otherwise the provider's failure
  static HRESULT AddReference(VelBaseUnknown* iDocument);

  /// @param[in] iDocument any interface of the document
  /// @return S_OK; E_INVALIDARG when iDocument is null; E_FAIL without provider; otherwise the provider's failure,
  ///         E_FAIL for a document without any reference
  static HRESULT RemoveReference(VelBaseUnknown* iDocument);

  /// Lets the warning of the missing provider be sent once more, for tests.
  static void ResetWarning() noexcept;
};

#endif  // PLATFORM_DOCUMENTS_VELRBAREPLIFECYCLE_H
