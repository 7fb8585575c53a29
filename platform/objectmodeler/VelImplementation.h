// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImplementation.h The base of every class that implements interfaces for a component through forwarders.
#ifndef PLATFORM_OBJECTMODELER_VELIMPLEMENTATION_H
#define PLATFORM_OBJECTMODELER_VELIMPLEMENTATION_H

#include "platform/base/VelPlatformApi.h"
#include "platform/objectmodeler/VelComponent.h"

struct VelClassRecord;

/// An object that does the work behind a component's interfaces. It has no reference count: it lives in its component
/// from the first time that one of its interfaces is asked for until the component is closed (or, where the dictionary
/// says so, as long as its one forwarder is referenced). References taken on it are references on the component.
class VEL_PLATFORM_API VelImplementation : public VelBaseUnknown {
 public:
  explicit VelImplementation(VelComponent& iComponent) noexcept;
  virtual ~VelImplementation();
  VelImplementation(const VelImplementation&) = delete;
  VelImplementation& operator=(const VelImplementation&) = delete;

  HRESULT QueryInterface(const VelInterfaceId& iInterface, VelBaseUnknown** oInterface) noexcept final;
  std::uint32_t AddRef() noexcept final;
  std::uint32_t Release() noexcept final;
  VelComponent* GetComponent() noexcept final { return component_; }
  VelBaseUnknown* GetImpl() noexcept final { return this; }
  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }

  static const VelMetaClass& MetaObject() noexcept;

  /// The second phase of construction: everything that asks other objects. It runs after the constructors of all that
  /// the outermost query builds, in the order in which they were built, so that graphs of any depth and any cycles are
  /// built without recursion.
  virtual void OnAttached() {}

  /// Called once per change of the component's state, the youngest implementation first, before anything is destroyed.
  /// Implementations that live by reference do not hear it.
  virtual void OnComponentStateChange(VelComponentState iFrom, VelComponentState iTo);

 private:
  friend class VelComponentAccess;

  VelComponent* component_;
  VelImplementation* next_ = nullptr;       ///< The one that was built before this one for the same component.
  const VelClassRecord* record_ = nullptr;  ///< The class by which the dictionary finds it again.
};

#endif  // PLATFORM_OBJECTMODELER_VELIMPLEMENTATION_H
