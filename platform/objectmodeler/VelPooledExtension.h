// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelPooledExtension.h A delegating extension without state, whose blocks come from the pool of forwarders.
#ifndef PLATFORM_OBJECTMODELER_VELPOOLEDEXTENSION_H
#define PLATFORM_OBJECTMODELER_VELPOOLEDEXTENSION_H

#include <cstdint>
#include <new>
#include <type_traits>

#include "platform/objectmodeler/VelTie.h"
#include "platform/objectmodeler/VelTiePool.h"

/// The base of the platform's own extensions that answer for what the component itself holds: they are asked for all
/// the time, and so cost what a forwarder costs. Counted as forwarders. Not exported.
template <class Interface>
class VelPooledExtension : public Interface {
 public:
  VelPooledExtension(const VelPooledExtension&) = delete;
  VelPooledExtension& operator=(const VelPooledExtension&) = delete;

  HRESULT QueryInterface(const VelInterfaceId& iInterface, VelBaseUnknown** oInterface) noexcept final {
    return component_->QueryInterface(iInterface, oInterface);
  }
  std::uint32_t AddRef() noexcept final { return ++count_; }
  std::uint32_t Release() noexcept final {
    const std::uint32_t left = --count_;
    if (left == 0) VelTieService::End(this, *component_, nullptr);
    return left;
  }
  VelComponent* GetComponent() noexcept final { return component_; }
  VelBaseUnknown* GetImpl() noexcept final { return component_; }
  const VelMetaClass& GetMetaObject() const noexcept final { return Interface::InterfaceId().MetaObject(); }

  /// Makes an extension of the derived class, with one reference for the caller and one on the component.
  template <class Extension>
  static VelBaseUnknown* Make(VelComponent& ioComponent) {
    static_assert(sizeof(Extension) <= VelTieService::blockSize && std::is_trivially_destructible_v<Extension>);
    ioComponent.AddRef();
    return new (VelTiePool::Take()) Extension(ioComponent);
  }

 protected:
  explicit VelPooledExtension(VelComponent& iComponent) noexcept : component_(&iComponent) {}
  ~VelPooledExtension() = default;

  bool IsClosed() const noexcept { return component_->State() == VelComponentState::Closed; }

 private:
  std::uint32_t count_ = 1;
  VelComponent* component_;
};

#endif  // PLATFORM_OBJECTMODELER_VELPOOLEDEXTENSION_H
