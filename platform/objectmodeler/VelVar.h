// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelVar.h The reference-counted handle of an interface.
#ifndef PLATFORM_OBJECTMODELER_VELVAR_H
#define PLATFORM_OBJECTMODELER_VELVAR_H

#include <cstddef>
#include <type_traits>
#include <utility>

#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelNullHandleError.h"

/// Holds one reference on an interface, or nothing. Made from any pointer or from a handle of another interface it
/// queries and is empty when the query fails; so both are explicit. Each interface's header names its own handle after
/// the interface with _var.
template <class Held>
class VelVar {
  static_assert(std::is_base_of_v<VelBaseUnknown, Held>, "A handle holds an interface");
  static_assert(std::is_same_v<typename Held::VelThisInterface, Held>,
                "A handle holds an interface that begins with VEL_INTERFACE, not the class behind it");

 public:
  VelVar() noexcept = default;
  VelVar(std::nullptr_t) noexcept {}  // NOLINT(google-explicit-constructor): "none" reads as nullptr

  /// Adds a reference to an interface of the very type; null gives an empty handle.
  explicit VelVar(Held* iInterface) noexcept : interface_(iInterface) { Retain(); }

  /// Queries anything else for the interface; null gives an empty handle.
  template <class Other>
  requires(std::is_base_of_v<VelBaseUnknown, Other> &&
           !std::is_same_v<Other, Held>) explicit VelVar(Other* iOther) noexcept {
    Ask(iOther);
  }

  /// Queries what a handle of another interface holds.
  template <class Other>
  requires(!std::is_same_v<Other, Held>) explicit VelVar(const VelVar<Other>& iOther) noexcept { Ask(iOther.Get()); }

  VelVar(const VelVar& iOther) noexcept : interface_(iOther.interface_) { Retain(); }
  VelVar(VelVar&& ioOther) noexcept : interface_(std::exchange(ioOther.interface_, nullptr)) {}
  ~VelVar() { Drop(interface_); }

  /// Takes the new reference before it drops the old one, so that an object which only this handle keeps alive survives
  /// its own assignment.
  VelVar& operator=(const VelVar& iOther) noexcept {
    VelVar copy(iOther);
    Swap(copy);
    return *this;
  }
  VelVar& operator=(VelVar&& ioOther) noexcept {
    VelVar moved(std::move(ioOther));
    Swap(moved);
    return *this;
  }

  /// Takes over a reference that the caller owns.
  static VelVar Adopt(Held* iInterface) noexcept {
    VelVar handle;
    handle.interface_ = iInterface;
    return handle;
  }

  /// Empties the handle and gives the address for an out argument that hands over a reference.
  Held** Receive() noexcept {
    Drop(std::exchange(interface_, nullptr));
    return &interface_;
  }

  /// Gives the reference away; the handle is empty afterwards.
  [[nodiscard]] Held* Detach() noexcept { return std::exchange(interface_, nullptr); }

  /// @return the interface without a reference, null when empty
  Held* Get() const noexcept { return interface_; }

  /// @return the interface; throws VelNullHandleError when empty
  Held* operator->() const {
    if (interface_ == nullptr) VelNullHandleError::Throw(Held::InterfaceId().Name());
    return interface_;
  }
  Held& operator*() const { return *operator->(); }

  explicit operator bool() const noexcept { return interface_ != nullptr; }

  void Swap(VelVar& ioOther) noexcept { std::swap(interface_, ioOther.interface_); }

  /// Two handles are compared by what they stand for, never by address: use IsEqual of what they hold.
  template <class Other>
  bool operator==(const VelVar<Other>&) const = delete;
  bool operator==(std::nullptr_t) const noexcept { return interface_ == nullptr; }

 private:
  template <class Other>
  void Ask(Other* iOther) noexcept {
    if (iOther != nullptr && FAILED(iOther->Query(&interface_))) interface_ = nullptr;
  }
  void Retain() noexcept {
    if (interface_ != nullptr) interface_->AddRef();
  }
  static void Drop(Held* iInterface) noexcept {
    if (iInterface != nullptr) iInterface->Release();
  }

  Held* interface_ = nullptr;
};

using VelBaseUnknown_var = VelVar<VelBaseUnknown>;

#endif  // PLATFORM_OBJECTMODELER_VELVAR_H
