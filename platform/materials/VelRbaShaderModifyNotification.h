// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRbaShaderModifyNotification.h The base of notifications that a parameter of a shader was modified.
#ifndef PLATFORM_MATERIALS_VELRBASHADERMODIFYNOTIFICATION_H
#define PLATFORM_MATERIALS_VELRBASHADERMODIFYNOTIFICATION_H

#include "platform/base/VelString.h"
#include "platform/events/VelModelEntityNotification.h"

class VelBaseUnknown;
class VelInterfaceId;

/// A parameter of a shader was modified: which one. Derived classes add what it was and what it is now. All is given at
/// construction and stays. The object is not referenced, neither by the notification nor by its clones.
class VEL_PLATFORM_API VelRbaShaderModifyNotification : public VelModelEntityNotification {
 public:
  VEL_NOTIFICATION(VelRbaShaderModifyNotification);

  ~VelRbaShaderModifyNotification() override;

  /// @return the name of the parameter
  const VelString& GetName() const noexcept { return name_; }

  /// @return the modified object without a reference, null where none was told
  VelBaseUnknown* GetObject() const noexcept { return object_; }

  /// @return the interface through which the object was modified
  const VelInterfaceId& GetInterface() const noexcept { return *interface_; }

 protected:
  /// @param[in] iName the name of the parameter
  /// @param[in] iObject the modified object, not referenced; null where none is told
  /// @param[in] iInterface the interface through which it was modified; must live as long as the process
  VelRbaShaderModifyNotification(const VelString& iName, VelBaseUnknown* iObject, const VelInterfaceId& iInterface);
  VelRbaShaderModifyNotification(const VelRbaShaderModifyNotification&) = default;

 private:
  VelString name_;
  VelBaseUnknown* object_;
  const VelInterfaceId* interface_;
};

#endif  // PLATFORM_MATERIALS_VELRBASHADERMODIFYNOTIFICATION_H
