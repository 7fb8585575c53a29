// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelComponent.h The identity behind all interfaces of one thing.
#ifndef PLATFORM_OBJECTMODELER_VELCOMPONENT_H
#define PLATFORM_OBJECTMODELER_VELCOMPONENT_H

#include <cstdint>
#include <string>

#include "platform/base/VelPlatformApi.h"
#include "platform/objectmodeler/VelBaseUnknown.h"

class VelImplementation;
class VelLateType;
struct VelBinding;
struct VelLivePart;

/// A component: a late type, a state, and whatever has been built for it so far. The dictionary says, by late type,
/// what answers which interface. A component that nobody asked for an interface is its 32 bytes and nothing else.
///
/// Re-entrancy: a query may build implementations, whose construction may query further components.
class VEL_PLATFORM_API VelComponent : public VelBaseUnknown {
 public:
  VelComponent(const VelComponent&) = delete;
  VelComponent& operator=(const VelComponent&) = delete;

  HRESULT QueryInterface(const VelInterfaceId& iInterface, VelBaseUnknown** oInterface) noexcept final;
  std::uint32_t AddRef() noexcept final;
  std::uint32_t Release() noexcept final;
  VelComponent* GetComponent() noexcept final { return this; }
  VelBaseUnknown* GetImpl() noexcept override { return this; }

  /// @return the name of the late type, by which the dictionary looks answers up
  const std::string& LateTypeName() const noexcept;

  /// For the platform's own files; the class is not exported.
  VelLateType& LateType() const noexcept { return *lateType_; }

  VelComponentState State() const noexcept { return state_; }

  /// @return the component that aggregates this one, without a reference; null where there is none. Before something is
  ///         built for a component, the main implementations of its fathers are built, outermost first, so that they
  ///         hear everything that happens below them.
  virtual VelComponent* GetFather() noexcept { return nullptr; }

  /// @return true when the dictionary binds the interface to the component's late type. Builds nothing, opens nothing.
  bool OffersInterface(const VelInterfaceId& iInterface) const noexcept;

 protected:
  /// A component in state BeingCreated with one reference.
  explicit VelComponent(VelLateType& iLateType) noexcept;

  /// The derived class's destructor calls Close() first, while it is still whole.
  virtual ~VelComponent();

  /// Announces InSession; without effect in any other state than BeingCreated.
  void Open() noexcept;

  /// Announces Closed, once; weak references to the component are empty from here on. Then destroys what was built, the
  /// youngest first, as soon as no running call holds it (VelPin).
  void Close() noexcept;

  /// The first half of Close, for those who end many components at once. @return false when it is closed already
  bool AnnounceClosed() noexcept;

  /// Called once what was built is destroyed after Close, at the latest when the last pin goes.
  virtual void OnEnded() noexcept {}

  /// Called when the last reference is gone.
  virtual void OnUnreferenced() noexcept = 0;

  /// For OnUnreferenced of a component that lives by its references: closes it.
  /// @return true when nobody took a reference meanwhile, so that the block can go
  bool CloseUnreferenced() noexcept;

  /// Sixteen bits and eight bits for the derived class, which would otherwise be padding.
  std::uint16_t derivedBits_ = 0;
  std::uint8_t derivedByte_ = 0;

 private:
  friend class VelComponentAccess;
  friend class VelPin;

  HRESULT BuildAndQuery(const VelBinding& iRow, VelBaseUnknown** oInterface) noexcept;
  void Announce(VelComponentState iState) noexcept;

  VelComponentState state_ = VelComponentState::BeingCreated;
  std::uint32_t count_ = 1;
  VelLateType* lateType_;
  VelLivePart* live_ = nullptr;
};

#endif  // PLATFORM_OBJECTMODELER_VELCOMPONENT_H
