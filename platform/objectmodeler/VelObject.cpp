// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelObject.cpp Components that live while they are referenced.
#include "platform/objectmodeler/VelObject.h"

#include "platform/objectmodeler/VelLateType.h"
#include "platform/objectmodeler/VelMetaClass.h"

VelBaseUnknown_var VelObject::Create(std::string_view iLateType, const char* iClassName) {
  if (iClassName == nullptr) return VelBaseUnknown_var::Adopt(new VelObject(iLateType, MetaObject()));
  const VelMetaClass* known = VelMetaClass::Find(iClassName);
  const VelMetaClass& metaClass =
      known != nullptr ? *known : fct_RetrieveMetaObject(iClassName, &MetaObject(), VelTypeOfClass::Implementation);
  return VelBaseUnknown_var::Adopt(new VelObject(iLateType, metaClass));
}

VelObject* VelObject::From(VelBaseUnknown* iObject) noexcept {
  VelComponent* component = iObject != nullptr ? iObject->GetComponent() : nullptr;
  if (component == nullptr || !component->IsAKindOf(MetaObject().Name())) return nullptr;
  return static_cast<VelObject*>(component);
}

VelObject::VelObject(std::string_view iLateType, const VelMetaClass& iClass)
    : VelComponent(VelLateType::Of(iLateType)), metaClass_(&iClass) {
  Open();
}

VelObject::~VelObject() { Close(); }

void VelObject::OnUnreferenced() noexcept {
  if (CloseUnreferenced()) delete this;
}

const VelMetaClass& VelObject::MetaObject() noexcept {
  static const VelMetaClass& metaClass = fct_RetrieveMetaObject("VelObject", nullptr, VelTypeOfClass::Implementation);
  return metaClass;
}
