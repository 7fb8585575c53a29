// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelObject.h A component that lives while it is referenced.
#ifndef PLATFORM_OBJECTMODELER_VELOBJECT_H
#define PLATFORM_OBJECTMODELER_VELOBJECT_H

#include <string_view>

#include "platform/base/VelPlatformApi.h"
#include "platform/objectmodeler/VelComponent.h"
#include "platform/objectmodeler/VelVar.h"

/// A small component of the object modeler, made with two names: the late type under which its extensions are looked
/// up, and the name of its class.
class VEL_PLATFORM_API VelObject : public VelComponent {
 public:
  /// Makes an object in session.
  /// @param[in] iLateType any name; one that no dictionary knows gives an object without extensions
  /// @param[in] iClassName the name of its class: a meta-class of that name, which derives from VelObject, is made
  ///            where there is none; null for VelObject itself
  static VelBaseUnknown_var Create(std::string_view iLateType, const char* iClassName);

  /// @return the object behind a pointer, without a reference; null when there is none, as for a feature
  static VelObject* From(VelBaseUnknown* iObject) noexcept;

  const VelMetaClass& GetMetaObject() const noexcept override { return *metaClass_; }

  static const VelMetaClass& MetaObject() noexcept;

  /// Ends the object before its last reference goes: its implementations are destroyed and its forwarders answer
  /// E_FAIL.
  void EndLife() noexcept { Close(); }

 protected:
  /// The object begins in session, with one reference that belongs to the creator.
  VelObject(std::string_view iLateType, const VelMetaClass& iClass);
  ~VelObject() override;

  void OnUnreferenced() noexcept final;

 private:
  const VelMetaClass* metaClass_;
};

#endif  // PLATFORM_OBJECTMODELER_VELOBJECT_H
