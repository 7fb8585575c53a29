// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelBaseUnknown.h The root of all interfaces and of all objects behind them.
#ifndef PLATFORM_OBJECTMODELER_VELBASEUNKNOWN_H
#define PLATFORM_OBJECTMODELER_VELBASEUNKNOWN_H

#include <cstdint>
#include <string_view>
#include <type_traits>

#include "platform/base/HResult.h"
#include "platform/base/VelPlatformApi.h"
#include "platform/objectmodeler/VelInterfaceId.h"

class VelComponent;
class VelMetaClass;

VEL_PLATFORM_API extern const VelInterfaceId IID_VelBaseUnknown;

/// The life of a component, announced to its implementations once per change.
enum class VelComponentState : std::uint8_t {
  BeingCreated = 0,
  InSession = 1,
  Closed = 2,  ///< Removed, its document closed, or the process at its end. There is no way back.
};

/// Stands first in the public part of every interface: its identifier, and the type by which handles know that the
/// interface has one of its own.
#define VEL_INTERFACE(Name)                                                  \
  using VelThisInterface = Name;                                             \
  static const VelInterfaceId& InterfaceId() noexcept { return IID_##Name; } \
  static_assert(true, "so that the line ends like a declaration")

/// The root of all interfaces. A pointer to it is one of three things: a component (the identity of one object), an
/// implementation that lives in a component, or a forwarder or extension that answers one interface of a component.
///
/// Thread: the application thread. Reference counts are plain integers.
class VEL_PLATFORM_API VelBaseUnknown {
 public:
  VEL_INTERFACE(VelBaseUnknown);

  /// Asks the component behind this pointer for an interface.
  /// @param[in] iInterface the identifier of the interface
  /// @param[out] oInterface the interface with one reference for the caller; always written, null on failure
  /// @return S_OK; E_INVALIDARG when oInterface is null; E_NOINTERFACE when nothing answers, when what is bound
  ///         declines, when its library or symbol is missing (reported as an error), or when the component is closed
  ///         and nothing that is still built answers
  virtual HRESULT QueryInterface(const VelInterfaceId& iInterface, VelBaseUnknown** oInterface) noexcept = 0;

  /// Adds a reference. @return the new count, for diagnosis only
  virtual std::uint32_t AddRef() noexcept = 0;

  /// Drops a reference. @return the new count, for diagnosis only; at 0 the pointer is no longer valid
  virtual std::uint32_t Release() noexcept = 0;

  /// @return the component behind this pointer, without a reference; null for an object that is no part of a component
  virtual VelComponent* GetComponent() noexcept = 0;

  /// @return the object that does the work behind this pointer, without a reference: the implementation behind a
  ///         forwarder, otherwise the object itself. Null for a forwarder whose component is closed.
  virtual VelBaseUnknown* GetImpl() noexcept = 0;

  /// @return the meta-class of the object itself; for a forwarder that of the interface
  virtual const VelMetaClass& GetMetaObject() const noexcept = 0;

  /// Asks for an interface by its name; as QueryInterface, and E_NOINTERFACE for a name that nobody ever declared.
  /// @param[in] iInterfaceName null counts as such a name
  HRESULT QueryInterfaceByName(const char* iInterfaceName, VelBaseUnknown** oInterface) noexcept;

  /// Asks for the interface of the out argument's type; as QueryInterface.
  template <class Interface>
  HRESULT Query(Interface** oInterface) noexcept {
    static_assert(std::is_same_v<typename Interface::VelThisInterface, Interface>,
                  "An interface begins with VEL_INTERFACE, also one that derives from another");
    if (oInterface == nullptr) return E_INVALIDARG;
    VelBaseUnknown* answer = nullptr;
    const HRESULT code = QueryInterface(Interface::InterfaceId(), &answer);
    *oInterface = static_cast<Interface*>(answer);
    return code;
  }

  /// @return true when both pointers stand for the same component; null is equal to nothing
  bool IsEqual(VelBaseUnknown* iOther) noexcept;

  /// @return the state of the component; InSession for an object that is no part of a component
  VelComponentState GetComponentState() noexcept;

  /// @return the name of GetMetaObject()
  const char* ClassName() const noexcept;

  /// @return ClassName()
  const char* IsA() const noexcept { return ClassName(); }

  /// @return true when GetMetaObject() is the named class or derives from it
  bool IsAKindOf(std::string_view iClassName) const noexcept;

 protected:
  VelBaseUnknown() = default;
  VelBaseUnknown(const VelBaseUnknown&) = default;
  VelBaseUnknown& operator=(const VelBaseUnknown&) = default;
  ~VelBaseUnknown() = default;
};

#endif  // PLATFORM_OBJECTMODELER_VELBASEUNKNOWN_H
