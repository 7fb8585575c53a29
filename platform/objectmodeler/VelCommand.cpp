// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelCommand.cpp Commands: named objects whose late type is their class.
#include "platform/objectmodeler/VelCommand.h"

#include "platform/objectmodeler/VelMetaClass.h"

VelCommand::VelCommand(VelCommand* iParent, const char* iName, const VelMetaClass& iClass)
    : VelObject(iClass.Name(), iClass), parent_(iParent), name_(iName) {}

VelCommand::VelCommand(const VelCommand& iOther)
    : VelObject(iOther.ClassName(), iOther.GetMetaObject()), parent_(iOther.parent_), name_(iOther.name_) {}

VelCommand& VelCommand::operator=(const VelCommand& iOther) {
  parent_ = iOther.parent_;
  name_ = iOther.name_;
  return *this;
}

VelCommand::~VelCommand() { EndLife(); }

const VelMetaClass& VelCommand::MetaObject() noexcept {
  static const VelMetaClass& metaClass =
      fct_RetrieveMetaObject("VelCommand", &VelObject::MetaObject(), VelTypeOfClass::Implementation);
  return metaClass;
}
