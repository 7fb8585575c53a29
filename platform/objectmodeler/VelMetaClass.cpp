// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelMetaClass.cpp The registry of meta-classes.
#include "platform/objectmodeler/VelMetaClass.h"

#include <map>
#include <string>

#include "platform/base/VelCheck.h"
#include "platform/objectmodeler/VelLateType.h"

/// Makes meta-classes and keeps them to the end of the process; the names are the keys.
struct VelMetaClassRegistry {
  using Classes = std::map<std::string, VelMetaClass*, std::less<>>;

  static Classes& All() {
    static Classes& classes = *new Classes;
    return classes;
  }

  /// A copy of a text that lives as long as the process.
  static const char* Keep(const char* iText) {
    static auto& texts = *new std::map<std::string, bool, std::less<>>;
    return texts.try_emplace(iText, true).first->first.c_str();
  }

  static const VelMetaClass& Make(const char* iName, const VelMetaClass* iBase, VelTypeOfClass iTypeOfClass,
                                  const char* iIdentifierName, const char* iFramework) {
    auto* made = new VelMetaClass;
    const auto place = All().emplace(iName, made).first;
    made->name_ = place->first.c_str();
    made->base_ = iBase;
    made->typeOfClass_ = iTypeOfClass;
    made->identifierName_ = Keep(iIdentifierName);
    made->framework_ = Keep(iFramework);
    // A late type of the same name climbs to the bases of its class from here on.
    if (VelLateType::Find(iName) != nullptr) VelLateType::ForgetAnswers();
    return *made;
  }
};

namespace {

void AppendInterfacesOf(const VelLateType& iType, VelListValVelString& ioNames) {
  for (const VelBinding* row : iType.Rows()) {
    const VelString name(VelInterfaceId::NameOf(row->interfaceIndex));
    if (ioNames.Locate(name) == 0) ioNames.Append(name);
  }
}

}  // namespace

bool VelMetaClass::IsAKindOf(std::string_view iName) const noexcept {
  for (const VelMetaClass* known = this; known != nullptr; known = known->base_) {
    if (iName == known->name_) return true;
  }
  return false;
}

VelListValVelString VelMetaClass::ListOfSupportedInterface() const {
  VelListValVelString names;
  for (const VelMetaClass* known = this; known != nullptr; known = known->base_) {
    const VelLateType* type = VelLateType::Find(known->name_);
    for (; type != nullptr && type != &VelLateType::Root(); type = type->Base()) AppendInterfacesOf(*type, names);
  }
  return names;
}

const VelMetaClass* VelMetaClass::Find(std::string_view iName) noexcept {
  const auto found = VelMetaClassRegistry::All().find(iName);
  return found == VelMetaClassRegistry::All().end() ? nullptr : found->second;
}

const VelMetaClass& fct_RetrieveMetaObject(const char* iName, const VelMetaClass* iBase, VelTypeOfClass iTypeOfClass,
                                           const char* iIdentifierName, const char* iFramework) {
  if (iName == nullptr) iName = "";
  if (iIdentifierName == nullptr) iIdentifierName = "VelNull";
  if (iFramework == nullptr) iFramework = "";
  const VelMetaClass* known = VelMetaClass::Find(iName);
  if (known == nullptr) return VelMetaClassRegistry::Make(iName, iBase, iTypeOfClass, iIdentifierName, iFramework);
  const bool same = known->Base() == iBase && known->TypeOfClass() == iTypeOfClass &&
                    std::string_view(known->Framework()) == iFramework;
  if (!same) {
    VelCheck::Failed(VEL_HERE("platform/objectmodeler/VelMetaClass"), "fct_RetrieveMetaObject",
                     "A meta-class is declared again with another base, kind or framework", iName);
  }
  return *known;
}
