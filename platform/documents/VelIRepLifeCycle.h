// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIRepLifeCycle.h Counts the references on documents, for VelRbaRepLifeCycle.
#ifndef PLATFORM_DOCUMENTS_VELIREPLIFECYCLE_H
#define PLATFORM_DOCUMENTS_VELIREPLIFECYCLE_H

#include "platform/base/VelPlatformApi.h"
#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"

VEL_PLATFORM_API extern const VelInterfaceId IID_VelIRepLifeCycle;

/// What VelRbaRepLifeCycle forwards to. The provider is declared in the dictionary for the late type
/// "VelPlatformDocuments", as a row of a module's grid:
///
///     VEL_GRID_CELL(<class>, VelPlatformDocuments, Component, VelIRepLifeCycle, TIE)
///
/// An object of that late type is made for each call and ends with it: the counts lie outside the provider.
///
/// Implemented by: the document store; tests bring their own.
/// Thread: the application thread. Re-entrancy: none.
class VEL_PLATFORM_API VelIRepLifeCycle : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelIRepLifeCycle);

  /// @param[in] iDocument not null; any interface of the document
  /// @return S_OK; E_FAIL when the document is none of the provider's, which changes nothing
  virtual HRESULT AddReference(VelBaseUnknown* iDocument) = 0;

  /// @param[in] iDocument not null; any interface of the document
  /// @return S_OK; E_FAIL when the document is none of the provider's or has no reference, which changes nothing
  virtual HRESULT RemoveReference(VelBaseUnknown* iDocument) = 0;

 protected:
  ~VelIRepLifeCycle() = default;
};

using VelIRepLifeCycle_var = VelVar<VelIRepLifeCycle>;

#endif  // PLATFORM_DOCUMENTS_VELIREPLIFECYCLE_H
