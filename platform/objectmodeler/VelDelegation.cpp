// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelDelegation.cpp Holds the delegate of a component.
#include "platform/objectmodeler/VelDelegation.h"

HRESULT VelDelegation::SetDelegate(VelBaseUnknown* iDelegate) {
  if (iDelegate == delegate_.Get()) return S_FALSE;
  if (iDelegate != nullptr && iDelegate->IsEqual(delegate_.Get())) return S_FALSE;
  delegate_ = VelBaseUnknown_var(iDelegate);
  return S_OK;
}

HRESULT VelDelegation::GetDelegate(VelBaseUnknown** oDelegate) {
  if (oDelegate == nullptr) return E_INVALIDARG;
  *oDelegate = delegate_.Get();
  if (*oDelegate == nullptr) return E_FAIL;
  (*oDelegate)->AddRef();
  return S_OK;
}

void VelDelegation::OnComponentStateChange(VelComponentState iFrom, VelComponentState iTo) {
  if (iTo == VelComponentState::Closed) delegate_ = nullptr;
  VelImplementation::OnComponentStateChange(iFrom, iTo);
}
