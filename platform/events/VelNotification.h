// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelNotification.h The base of everything that is handed to the receivers of an event.
#ifndef PLATFORM_EVENTS_VELNOTIFICATION_H
#define PLATFORM_EVENTS_VELNOTIFICATION_H

#include <string_view>
#include <type_traits>

#include "platform/base/VelPlatformApi.h"
#include "platform/objectmodeler/VelMetaClass.h"

/// Stands first in the public part of every notification class: its meta-class, and the type by which casts know that
/// the class has one of its own. The class's source defines MetaObject().
#define VEL_NOTIFICATION(Name)                                                               \
  using VelThisNotification = Name;                                                          \
  static const VelMetaClass& MetaObject() noexcept;                                          \
  const VelMetaClass& GetMetaObject() const noexcept override { return Name::MetaObject(); } \
  static_assert(true, "so that the line ends like a declaration")

/// What happened. A notification lives on the stack of whoever dispatches it, and only as long as the dispatch: a
/// receiver that wants to keep it makes a clone.
class VEL_PLATFORM_API VelNotification {
 public:
  using VelThisNotification = VelNotification;

  virtual ~VelNotification();
  VelNotification& operator=(const VelNotification&) = delete;

  static const VelMetaClass& MetaObject() noexcept;
  virtual const VelMetaClass& GetMetaObject() const noexcept { return MetaObject(); }

  /// @return the name of GetMetaObject()
  const char* ClassName() const noexcept { return GetMetaObject().Name(); }

  /// @return ClassName()
  const char* IsA() const noexcept { return ClassName(); }

  /// @return true when GetMetaObject() is the named class or derives from it
  bool IsAKindOf(std::string_view iClassName) const noexcept { return GetMetaObject().IsAKindOf(iClassName); }

  /// Makes a copy that outlives the dispatch. What the notification points to is not kept alive by it.
  /// @return the copy, which the caller deletes; null where the class cannot be cloned or its memory is used up
  virtual VelNotification* Clone() const noexcept;

 protected:
  VelNotification() = default;
  VelNotification(const VelNotification&) = default;
};

/// @return true when a meta-class is another one or derives from it, by address
VEL_PLATFORM_API bool VelDerivesFrom(const VelMetaClass& iClass, const VelMetaClass& iBase) noexcept;

/// The cast to a derived class, by meta-class: it holds across libraries, where the language's own cast may not.
/// @param[in] iNotification null gives null
/// @return the same notification, null when it is no N
template <class N>
const N* VelNotificationCast(const VelNotification* iNotification) noexcept {
  static_assert(std::is_base_of_v<VelNotification, N>, "Only notifications are cast");
  static_assert(std::is_same_v<typename N::VelThisNotification, N>, "A notification begins with VEL_NOTIFICATION");
  if (iNotification == nullptr || !VelDerivesFrom(iNotification->GetMetaObject(), N::MetaObject())) return nullptr;
  return static_cast<const N*>(iNotification);
}
template <class N>
N* VelNotificationCast(VelNotification* ioNotification) noexcept {
  return const_cast<N*>(VelNotificationCast<N>(static_cast<const VelNotification*>(ioNotification)));
}

#endif  // PLATFORM_EVENTS_VELNOTIFICATION_H
