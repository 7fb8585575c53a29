// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelBoa.h The base of every extension that itself derives from the interface it answers.
#ifndef PLATFORM_OBJECTMODELER_VELBOA_H
#define PLATFORM_OBJECTMODELER_VELBOA_H

#include <cstdint>
#include <type_traits>

#include "platform/base/VelPlatformApi.h"
#include "platform/objectmodeler/VelComponent.h"

/// Counts the extensions that are alive, for the tests that look for leaks.
class VEL_PLATFORM_API VelBoaCounter {
 public:
  VelBoaCounter() noexcept;
  ~VelBoaCounter();
  VelBoaCounter(const VelBoaCounter&) = delete;
  VelBoaCounter& operator=(const VelBoaCounter&) = delete;
};

/// An extension that is its own interface object: it needs no forwarder, is made for each query and lives while it is
/// referenced. It holds one reference on its component. No forwarder stands in front of it, so the derived class itself
/// answers for the state of the component (IsClosed() tells), lets no exception out (the null-handle error included),
/// and pins the component (VelPin) where an operation may end it.
template <class Interface>
class VelBoa : public Interface {
  static_assert(std::is_same_v<typename Interface::VelThisInterface, Interface>,
                "An interface begins with VEL_INTERFACE");

 public:
  explicit VelBoa(VelComponent& iComponent) noexcept : component_(&iComponent) { component_->AddRef(); }
  VelBoa(const VelBoa&) = delete;
  VelBoa& operator=(const VelBoa&) = delete;

  HRESULT QueryInterface(const VelInterfaceId& iInterface, VelBaseUnknown** oInterface) noexcept final {
    return component_->QueryInterface(iInterface, oInterface);
  }
  std::uint32_t AddRef() noexcept final { return ++count_; }
  std::uint32_t Release() noexcept final {
    const std::uint32_t left = --count_;
    if (left == 0) delete this;
    return left;
  }
  VelComponent* GetComponent() noexcept final { return component_; }
  VelBaseUnknown* GetImpl() noexcept final { return this; }

 protected:
  virtual ~VelBoa() { component_->Release(); }

  bool IsClosed() const noexcept { return component_->State() == VelComponentState::Closed; }

 private:
  [[no_unique_address]] VelBoaCounter counter_;
  std::uint32_t count_ = 1;
  VelComponent* component_;
};

#endif  // PLATFORM_OBJECTMODELER_VELBOA_H
