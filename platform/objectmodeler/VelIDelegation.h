// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIDelegation.h Names the object to which a component delegates interfaces that it does not answer itself.
#ifndef PLATFORM_OBJECTMODELER_VELIDELEGATION_H
#define PLATFORM_OBJECTMODELER_VELIDELEGATION_H

#include "platform/base/VelPlatformApi.h"
#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"

VEL_PLATFORM_API extern const VelInterfaceId IID_VelIDelegation;

/// The delegate of a component. Delegating extensions ask for it; a query never follows it by itself.
///
/// Implemented by: the object modeler, for every component without a binding of its own.
/// Thread: the application thread. Re-entrancy: none.
class VEL_PLATFORM_API VelIDelegation : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelIDelegation);

  /// Sets the delegate, which is referenced until it is replaced or the component is closed.
  /// @param[in] iDelegate null for none
  /// @return S_OK; S_FALSE when it is the delegate already; E_FAIL when the component is closed
  virtual HRESULT SetDelegate(VelBaseUnknown* iDelegate) = 0;

  /// @param[out] oDelegate the delegate with one reference for the caller, null when there is none, untouched when the
  ///             component is closed
  /// @return S_OK; E_INVALIDARG when oDelegate is null; E_FAIL when there is no delegate or the component is closed
  virtual HRESULT GetDelegate(VelBaseUnknown** oDelegate) = 0;

 protected:
  ~VelIDelegation() = default;
};

using VelIDelegation_var = VelVar<VelIDelegation>;

#endif  // PLATFORM_OBJECTMODELER_VELIDELEGATION_H
