// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTie.h The base of every forwarder: the object that answers one interface and hands each call to an
/// implementation.
#ifndef PLATFORM_OBJECTMODELER_VELTIE_H
#define PLATFORM_OBJECTMODELER_VELTIE_H

#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <utility>

#include "platform/base/VelPlatformApi.h"
#include "platform/objectmodeler/VelComponent.h"
#include "platform/objectmodeler/VelImplementation.h"
#include "platform/objectmodeler/VelPin.h"

/// What every forwarder shares, whatever its interface: kept out of the template, in the library that owns the pool.
class VEL_PLATFORM_API VelTieService {
 public:
  static constexpr std::size_t blockSize = 32;  ///< Bytes of a forwarder; all come from one pool.

  /// Ends a forwarder: gives back its block, its reference on the component and, where it owns it, the implementation.
  static void End(void* iBlock, VelComponent& iComponent, VelImplementation* iOwned) noexcept;

  /// Reports that an operation of an interface threw, and of which class.
  static void ReportException(const char* iInterface, const VelImplementation& iImplementation) noexcept;
};

/// The answer of a forwarder whose component is closed: E_FAIL for a code, the zero of any other type.
template <class Result>
constexpr Result VelClosedAnswer() noexcept {
  if constexpr (std::is_same_v<Result, HRESULT>) {
    return E_FAIL;
  } else if constexpr (!std::is_void_v<Result>) {
    return Result{};
  }
}

/// The base of the forwarders TIE<interface>. A forwarder holds one reference on its component and lives while it is
/// referenced. Each operation tests the component's state first, keeps the implementation until the call
/// has unwound, and lets no exception out:
///
///     template <class Implementation>
///     class TIEVelIThing final : public VelTie<VelIThing> {
///      public:
///       using VelTie::VelTie;
///       HRESULT SetSize(int iSize) override {
///         return Forward<Implementation>([&](auto& ioThing) { return ioThing.SetSize(iSize); });
///       }
///     };
template <class Interface>
class VelTie : public Interface {
  static_assert(std::is_same_v<typename Interface::VelThisInterface, Interface>,
                "An interface begins with VEL_INTERFACE");

 public:
  /// Takes over one reference on the implementation's component, which the caller has added.
  /// @param[in] iOwnsImplementation whether the implementation ends with this forwarder
  VelTie(VelImplementation& iImplementation, VelComponent& iComponent, bool iOwnsImplementation) noexcept
      : ownsImplementation_(iOwnsImplementation), implementation_(&iImplementation), component_(&iComponent) {}
  VelTie(const VelTie&) = delete;
  VelTie& operator=(const VelTie&) = delete;

  HRESULT QueryInterface(const VelInterfaceId& iInterface, VelBaseUnknown** oInterface) noexcept final {
    return component_->QueryInterface(iInterface, oInterface);
  }
  std::uint32_t AddRef() noexcept final { return ++count_; }
  std::uint32_t Release() noexcept final {
    const std::uint32_t left = --count_;
    if (left == 0) VelTieService::End(this, *component_, ownsImplementation_ ? implementation_ : nullptr);
    return left;
  }
  VelComponent* GetComponent() noexcept final { return component_; }
  VelBaseUnknown* GetImpl() noexcept final { return IsClosed() ? nullptr : implementation_; }
  const VelMetaClass& GetMetaObject() const noexcept final { return Interface::InterfaceId().MetaObject(); }

 protected:
  ~VelTie() = default;

  bool IsClosed() const noexcept { return component_->State() == VelComponentState::Closed; }

  /// Hands a call to the implementation. The operation may end its own component, and drop the last reference on its
  /// own forwarder: both wait until the call has unwound.
  template <class Implementation, class Call>
  auto Forward(const Call& iCall) noexcept -> std::invoke_result_t<const Call&, Implementation&> {
    using Result = std::invoke_result_t<const Call&, Implementation&>;
    if (IsClosed()) return VelClosedAnswer<Result>();
    const RunningCall running(*this);
    try {
      return iCall(static_cast<Implementation&>(*implementation_));
    } catch (...) {
      VelTieService::ReportException(Interface::InterfaceId().Name(), *implementation_);
      return VelClosedAnswer<Result>();
    }
  }

 private:
  /// Keeps the forwarder, through it the component, and what was built for the component.
  class RunningCall {
   public:
    explicit RunningCall(VelTie& iForwarder) noexcept : forwarder_(iForwarder) {
      ++forwarder_.count_;
      VelPin::Take(*forwarder_.component_);
    }
    ~RunningCall() {
      VelPin::Give(*forwarder_.component_);
      forwarder_.Release();
    }
    RunningCall(const RunningCall&) = delete;
    RunningCall& operator=(const RunningCall&) = delete;

   private:
    VelTie& forwarder_;
  };

  std::uint32_t count_ = 1;
  bool ownsImplementation_;
  VelImplementation* implementation_;
  VelComponent* component_;
};

#endif  // PLATFORM_OBJECTMODELER_VELTIE_H
