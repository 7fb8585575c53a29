// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelBaseUnknown.cpp What every interface pointer can tell through the component behind it.
#include "platform/objectmodeler/VelBaseUnknown.h"

#include "platform/objectmodeler/VelComponent.h"
#include "platform/objectmodeler/VelMetaClass.h"
#include "platform/trace/VelTraceHandle.h"

const VelInterfaceId IID_VelBaseUnknown{"VelBaseUnknown"};

HRESULT VelBaseUnknown::QueryInterfaceByName(const char* iInterfaceName, VelBaseUnknown** oInterface) noexcept {
  if (oInterface == nullptr) return E_INVALIDARG;
  *oInterface = nullptr;
  if (iInterfaceName == nullptr) return E_NOINTERFACE;
  const std::uint32_t number = VelInterfaceId::FindIndex(iInterfaceName);
  if (number == VelInterfaceId::noNumber) {
    VelTraceHandle("VelDictionary").Info("Nobody declared the interface { name = %s }", iInterfaceName);
    return E_NOINTERFACE;
  }
  return QueryInterface(VelInterfaceId(iInterfaceName, number), oInterface);
}

bool VelBaseUnknown::IsEqual(VelBaseUnknown* iOther) noexcept {
  if (iOther == nullptr) return false;
  const VelComponent* component = GetComponent();
  return iOther == this || (component != nullptr && component == iOther->GetComponent());
}

VelComponentState VelBaseUnknown::GetComponentState() noexcept {
  const VelComponent* component = GetComponent();
  return component != nullptr ? component->State() : VelComponentState::InSession;
}

const char* VelBaseUnknown::ClassName() const noexcept { return GetMetaObject().Name(); }

bool VelBaseUnknown::IsAKindOf(std::string_view iClassName) const noexcept {
  return GetMetaObject().IsAKindOf(iClassName);
}
