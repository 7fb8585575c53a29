// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelBaseUnknown_WR.h A weak reference to a component.
#ifndef PLATFORM_OBJECTMODELER_VELBASEUNKNOWN_WR_H
#define PLATFORM_OBJECTMODELER_VELBASEUNKNOWN_WR_H

#include "platform/base/HResult.h"
#include "platform/base/VelPlatformApi.h"
#include "platform/objectmodeler/VelComponent.h"

struct VelLivePart;

/// Remembers a component without keeping it alive. It is empty as soon as the component is closed, and stays so.
class VEL_PLATFORM_API VelBaseUnknown_WR {
 public:
  VelBaseUnknown_WR() noexcept = default;

  /// Refers to the component behind a pointer; null, an object that is no part of a component and a closed component
  /// give an empty reference.
  explicit VelBaseUnknown_WR(VelBaseUnknown* iObject);

  VelBaseUnknown_WR(const VelBaseUnknown_WR& iOther) noexcept;
  VelBaseUnknown_WR(VelBaseUnknown_WR&& ioOther) noexcept;
  VelBaseUnknown_WR& operator=(const VelBaseUnknown_WR& iOther) noexcept;
  VelBaseUnknown_WR& operator=(VelBaseUnknown_WR&& ioOther) noexcept;
  ~VelBaseUnknown_WR();

  /// @return the component, without a reference; null when it is closed or gone or was never set
  VelComponent* Get() const noexcept;

  /// Asks the component for an interface.
  /// @param[out] oInterface always written, null on failure
  /// @return as VelBaseUnknown::QueryInterface; E_FAIL when the component is gone
  HRESULT QueryInterface(const VelInterfaceId& iInterface, VelBaseUnknown** oInterface) const noexcept;

  /// As QueryInterface, for the interface of the argument's type.
  template <class Interface>
  HRESULT Query(Interface** oInterface) const noexcept {
    if (oInterface == nullptr) return E_INVALIDARG;
    *oInterface = nullptr;
    VelComponent* component = Get();
    return component != nullptr ? component->Query(oInterface) : E_FAIL;
  }

 private:
  VelLivePart* live_ = nullptr;
};

#endif  // PLATFORM_OBJECTMODELER_VELBASEUNKNOWN_WR_H
