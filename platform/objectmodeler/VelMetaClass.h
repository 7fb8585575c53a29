// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelMetaClass.h What is known about a class at run time: its name, base, kind and framework, and the interfaces
/// bound to it.
#ifndef PLATFORM_OBJECTMODELER_VELMETACLASS_H
#define PLATFORM_OBJECTMODELER_VELMETACLASS_H

#include <string_view>

#include "platform/base/VelListValVelString.h"
#include "platform/base/VelPlatformApi.h"

/// What a class is to the object modeler; the numbers are the codes of the system.
enum class VelTypeOfClass : int {
  Interface = 0,            ///< an interface
  Implementation = 1,       ///< the main implementation of a late type, or any class of objects
  Extension = 2,            ///< an implementation beside the main one, reached through forwarders
  DelegatingExtension = 3,  ///< an extension that derives from the interface it answers
};

/// The meta-object of a class. One per class name and process, made on first use and kept to its end; compared by
/// address.
class VEL_PLATFORM_API VelMetaClass {
 public:
  VelMetaClass(const VelMetaClass&) = delete;
  VelMetaClass& operator=(const VelMetaClass&) = delete;

  const char* Name() const noexcept { return name_; }

  /// @return the meta-class of the base class, null for a root
  const VelMetaClass* Base() const noexcept { return base_; }

  VelTypeOfClass TypeOfClass() const noexcept { return typeOfClass_; }

  /// @return the name of the interface identifier that goes with the class, "VelNull" where there is none
  const char* IdentifierName() const noexcept { return identifierName_; }

  /// @return the framework that declares the class, empty where none is named
  const char* Framework() const noexcept { return framework_; }

  /// @return true for the class's own name and the names of its bases
  bool IsAKindOf(std::string_view iName) const noexcept;

  /// Lists the interfaces that the dictionary binds to the late type of this class's name, in the order of declaration,
  /// then those of its bases. A name is listed once, at its first place; what every component answers is not listed.
  /// Opens no library.
  VelListValVelString ListOfSupportedInterface() const;

  /// @return the meta-class of a name, null when none was made yet
  static const VelMetaClass* Find(std::string_view iName) noexcept;

 private:
  friend struct VelMetaClassRegistry;
  VelMetaClass() = default;

  const char* name_ = "";
  const VelMetaClass* base_ = nullptr;
  VelTypeOfClass typeOfClass_ = VelTypeOfClass::Implementation;
  const char* identifierName_ = "VelNull";
  const char* framework_ = "";
};

/// Gives the meta-object of a class, which the first call for a name makes. A later call that differs in base, kind or
/// framework is reported as a check and gets the first one.
/// @param[in] iName the class; copied; null counts as empty, as for the other texts
/// @param[in] iBase the meta-class of the base class, null for a root
/// @param[in] iIdentifierName the interface identifier that goes with the class, "VelNull" for none; copied
/// @param[in] iFramework the framework that declares it; copied
VEL_PLATFORM_API const VelMetaClass& fct_RetrieveMetaObject(const char* iName, const VelMetaClass* iBase,
                                                            VelTypeOfClass iTypeOfClass,
                                                            const char* iIdentifierName = "VelNull",
                                                            const char* iFramework = "");

#endif  // PLATFORM_OBJECTMODELER_VELMETACLASS_H
