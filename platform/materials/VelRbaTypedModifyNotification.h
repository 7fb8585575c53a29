// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRbaTypedModifyNotification.h What notifications with a previous and a next value have in common.
#ifndef PLATFORM_MATERIALS_VELRBATYPEDMODIFYNOTIFICATION_H
#define PLATFORM_MATERIALS_VELRBATYPEDMODIFYNOTIFICATION_H

#include "platform/materials/VelRbaShaderModifyNotification.h"

/// A parameter of a shader was modified from one value to another. Only the classes that derive from it have a
/// meta-class of their own, and are what receivers cast to.
/// @tparam Held the type of the two values
template <class Held>
class VelRbaTypedModifyNotification : public VelRbaShaderModifyNotification {
 public:
  using Value = Held;

  /// @param[in] iName the name of the parameter
  /// @param[in] iObject the modified object, not referenced; null where none is told
  /// @param[in] iInterface the interface through which it was modified; must live as long as the process
  /// @param[in] iPrevious what the parameter held
  /// @param[in] iNext what it holds now, or shall hold
  VelRbaTypedModifyNotification(const VelString& iName, VelBaseUnknown* iObject, const VelInterfaceId& iInterface,
                                const Held& iPrevious, const Held& iNext)
      : VelRbaShaderModifyNotification(iName, iObject, iInterface), previous_(iPrevious), next_(iNext) {}

  const Held& GetPrevious() const noexcept { return previous_; }
  const Held& GetNext() const noexcept { return next_; }

 protected:
  VelRbaTypedModifyNotification(const VelRbaTypedModifyNotification&) = default;
  ~VelRbaTypedModifyNotification() override = default;

 private:
  Held previous_;
  Held next_;
};

#endif  // PLATFORM_MATERIALS_VELRBATYPEDMODIFYNOTIFICATION_H
