// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelCommand.h The base of the objects that act for a whole session, such as managers.
#ifndef PLATFORM_OBJECTMODELER_VELCOMMAND_H
#define PLATFORM_OBJECTMODELER_VELCOMMAND_H

#include "platform/base/VelPlatformApi.h"
#include "platform/base/VelString.h"
#include "platform/objectmodeler/VelObject.h"

/// A command: an object with a name and perhaps a parent, whose late type is the name of its class. Extensions that
/// other frameworks declare on that late type, or on "VelCommand", answer for it. Like every object it ends by
/// EndLife() and goes with its last reference, so that whoever still holds one of its forwarders stays safe.
class VEL_PLATFORM_API VelCommand : public VelObject {
 public:
  /// @return the command that this one belongs to, without a reference; null for none
  VelCommand* GetParent() const noexcept { return parent_; }

  /// @return the name given at construction, empty for none
  const VelString& GetName() const noexcept { return name_; }

  static const VelMetaClass& MetaObject() noexcept;

 protected:
  /// @param[in] iParent null for none; not owned, must outlive the command
  /// @param[in] iName null for none
  /// @param[in] iClass the meta-class of the derived class
  VelCommand(VelCommand* iParent, const char* iName, const VelMetaClass& iClass);

  /// A command of the same class, parent and name, but a component of its own: nothing that was built is copied.
  VelCommand(const VelCommand& iOther);

  /// Takes over parent and name; both stay the components that they are.
  VelCommand& operator=(const VelCommand& iOther);

  ~VelCommand() override;

 private:
  VelCommand* parent_;
  VelString name_;
};

#endif  // PLATFORM_OBJECTMODELER_VELCOMMAND_H
