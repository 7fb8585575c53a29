// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelBindingGrid.inl Turns a binding grid into the module's exported creation functions, meta-classes, table and
/// identity.
//
// Included once per module, by its bindings source, after the headers of all classes and forwarders that the grid
// names:
//
//     #define VEL_GRID_FILE "host/bindings/VelThing.def"
//     #include "platform/objectmodeler/VelBindingGrid.inl"
//
// A grid is a .def file of these lines:
//
//     VEL_GRID_MODULE(module, framework)          first, once
//     VEL_GRID_TYPE(late type, base)              a late type that derives from another
//     VEL_GRID_CLASS(class, base class, kind)     a class; kind is Implementation, Extension or DelegatingExtension
//     VEL_GRID_CELL(class, late type, lifetime, interface, mechanism)
//                                                 an answer; written by a row macro that the grid defines for its
//                                                 columns; lifetime is Component or Reference, mechanism TIE, BOA or no
//     VEL_GRID_EXTEND(class, late type)           a further late type for which the class answers the same
//
// What a class of the grid has to offer: a constructor from VelComponent&, or a static Create(VelComponent&) that may
// decline by null; `static const VelMetaClass& MetaObject() noexcept`, declared in the class and defined by the grid;
// an override of GetMetaObject() that returns it. For a TIE cell the forwarder TIE<interface> and operations of the
// interface's names; for a BOA cell the interface as base, through VelBoa, and lifetime Reference. All rows of a class
// have one lifetime. A class that declined is asked again by the next query; one of lifetime Component that has been
// built is not asked any more.
//
// A module that is linked into the program rather than opened makes its table known from the same source:
//
//     HRESULT DeclareThing() { return VelDictionary::Declare(velGridTable); }
//
// The same file, read by VelBindingGridText.inl, becomes the dictionary file from which the library is opened on
// demand.
#include <array>
#include <new>
#include <type_traits>

#include "platform/base/VelVisibility.h"
#include "platform/objectmodeler/VelModule.h"
#include "platform/objectmodeler/VelTie.h"

namespace {

/// Makes an implementation: by the class's own Create, which may decline by null, or by its constructor.
template <class Implementation>
VelImplementation* VelMakeImplementation(VelComponent& ioComponent) {
  if constexpr (requires { Implementation::Create(ioComponent); }) {
    return Implementation::Create(ioComponent);
  } else {
    return new Implementation(ioComponent);
  }
}

/// As VelMakeImplementation, for an extension that is its own interface object.
template <class Extension>
VelBaseUnknown* VelMakeBoa(VelComponent& ioComponent) {
  if constexpr (requires { Extension::Create(ioComponent); }) {
    return Extension::Create(ioComponent);
  } else {
    return new Extension(ioComponent);
  }
}

template <class Forwarder>
VelBaseUnknown* VelMakeTie(void* iBlock, VelImplementation& iImplementation, VelComponent& ioComponent,
                           bool iOwnsImplementation) {
  static_assert(sizeof(Forwarder) == VelTieService::blockSize && std::is_trivially_destructible_v<Forwarder>,
                "A forwarder adds nothing to VelTie but its operations");
  return new (iBlock) Forwarder(iImplementation, ioComponent, iOwnsImplementation);
}

}  // namespace

// First reading: the exported functions, the meta-classes and the identity.
#define VEL_GRID_MODULE(Module, Framework)                                                \
  namespace {                                                                             \
  constexpr const char* velGridFramework = #Framework;                                    \
  constexpr VelModuleDescription velGridDescription{#Module, #Framework, velPlatformAbi}; \
  const VelModuleRegistration velGridRegistration{velGridDescription};                    \
  }                                                                                       \
  extern "C" VEL_EXPORT const VelModuleDescription* VelModule_##Module();                 \
  extern "C" VEL_EXPORT const VelModuleDescription* VelModule_##Module() { return &velGridDescription; }
#define VEL_GRID_TYPE(LateType, Base)
#define VEL_GRID_CLASS(Class, Base, Kind)                                                                              \
  const VelMetaClass& Class::MetaObject() noexcept {                                                                   \
    static const VelMetaClass& metaClass =                                                                             \
        fct_RetrieveMetaObject(#Class, VEL_GRID_BASE_##Kind(Base), VelTypeOfClass::Kind, "VelNull", velGridFramework); \
    return metaClass;                                                                                                  \
  }                                                                                                                    \
  VEL_GRID_CREATE_##Kind(Class)
#define VEL_GRID_BASE_Implementation(Base) &Base::MetaObject()
#define VEL_GRID_BASE_Extension(Base) &Base::MetaObject()
#define VEL_GRID_BASE_DelegatingExtension(Base) &Base::InterfaceId().MetaObject()
#define VEL_GRID_CREATE_Implementation(Class)                                                  \
  extern "C" VEL_EXPORT VelImplementation* CreateExtension##Class(VelComponent& ioComponent);  \
  extern "C" VEL_EXPORT VelImplementation* CreateExtension##Class(VelComponent& ioComponent) { \
    return VelMakeImplementation<Class>(ioComponent);                                          \
  }
#define VEL_GRID_CREATE_Extension(Class) VEL_GRID_CREATE_Implementation(Class)
#define VEL_GRID_CREATE_DelegatingExtension(Class)
#define VEL_GRID_CELL(Class, LateType, Lifetime, Interface, Mechanism) VEL_GRID_CREATE_##Mechanism(Class, Interface)
#define VEL_GRID_CREATE_no(Class, Interface)
#define VEL_GRID_CREATE_TIE(Class, Interface)                                                                \
  extern "C" VEL_EXPORT VelBaseUnknown* CreateTIE##Interface##Class(void* iBlock, VelImplementation& iImpl,  \
                                                                    VelComponent& ioComponent, bool iOwns);  \
  extern "C" VEL_EXPORT VelBaseUnknown* CreateTIE##Interface##Class(void* iBlock, VelImplementation& iImpl,  \
                                                                    VelComponent& ioComponent, bool iOwns) { \
    return VelMakeTie<TIE##Interface<Class>>(iBlock, iImpl, ioComponent, iOwns);                             \
  }
#define VEL_GRID_CREATE_BOA(Class, Interface)                                                                \
  extern "C" VEL_EXPORT VelBaseUnknown* CreateBOA##Interface##Class(VelComponent& ioComponent);              \
  extern "C" VEL_EXPORT VelBaseUnknown* CreateBOA##Interface##Class(VelComponent& ioComponent) {             \
    static_assert(std::is_base_of_v<Interface, Class>, "A BOA class derives from the interface it answers"); \
    return VelMakeBoa<Class>(ioComponent);                                                                   \
  }
#define VEL_GRID_EXTEND(Class, LateType)
#include VEL_GRID_FILE
#undef VEL_GRID_MODULE
#undef VEL_GRID_TYPE
#undef VEL_GRID_CLASS
#undef VEL_GRID_CELL
#undef VEL_GRID_EXTEND

namespace {

// Second reading: the table by which a module that is linked into the program declares itself. Each array ends with an
// empty entry, so that a grid without lines of a kind is no empty array.
#define VEL_GRID_MODULE(Module, Framework)
#define VEL_GRID_CLASS(Class, Base, Kind)
#define VEL_GRID_CELL(Class, LateType, Lifetime, Interface, Mechanism)
#define VEL_GRID_EXTEND(Class, LateType)
#define VEL_GRID_TYPE(LateType, Base) VelModuleType{#LateType, #Base},
constexpr auto velGridTypes = std::to_array<VelModuleType>({
#include VEL_GRID_FILE
    {nullptr, nullptr}});
#undef VEL_GRID_TYPE
#undef VEL_GRID_CLASS
#define VEL_GRID_TYPE(LateType, Base)
#define VEL_GRID_CLASS(Class, Base, Kind) VelModuleClass{#Class, VelTypeOfClass::Kind, VEL_GRID_CREATOR_##Kind(Class)},
#define VEL_GRID_CREATOR_Implementation(Class) &CreateExtension##Class
#define VEL_GRID_CREATOR_Extension(Class) &CreateExtension##Class
#define VEL_GRID_CREATOR_DelegatingExtension(Class) nullptr
constexpr auto velGridClasses = std::to_array<VelModuleClass>({
#include VEL_GRID_FILE
    {nullptr, VelTypeOfClass::Interface, nullptr}});
#undef VEL_GRID_CLASS
#undef VEL_GRID_CELL
#define VEL_GRID_CLASS(Class, Base, Kind)
#define VEL_GRID_CELL(Class, LateType, Lifetime, Interface, Mechanism) \
  VEL_GRID_ENTRY_##Mechanism(Class, LateType, Lifetime, Interface)
#define VEL_GRID_ENTRY_no(Class, LateType, Lifetime, Interface)
#define VEL_GRID_ENTRY_TIE(Class, LateType, Lifetime, Interface)                                                      \
  VelModuleRow{#LateType, #Interface, VelMechanism::TIE, VelLifetime::Lifetime, #Class, &CreateTIE##Interface##Class, \
               nullptr},
#define VEL_GRID_ENTRY_BOA(Class, LateType, Lifetime, Interface)                          \
  VelModuleRow{#LateType, #Interface, VelMechanism::BOA,           VelLifetime::Lifetime, \
               #Class,    nullptr,    &CreateBOA##Interface##Class},
constexpr auto velGridRows = std::to_array<VelModuleRow>({
#include VEL_GRID_FILE
    {nullptr, nullptr, VelMechanism::TIE, VelLifetime::Component, nullptr, nullptr, nullptr}});
#undef VEL_GRID_CELL
#undef VEL_GRID_EXTEND
#define VEL_GRID_CELL(Class, LateType, Lifetime, Interface, Mechanism)
#define VEL_GRID_EXTEND(Class, LateType) VelModuleExtend{#LateType, #Class},
constexpr auto velGridExtends = std::to_array<VelModuleExtend>({
#include VEL_GRID_FILE
    {nullptr, nullptr}});
#undef VEL_GRID_MODULE
#undef VEL_GRID_TYPE
#undef VEL_GRID_CLASS
#undef VEL_GRID_CELL
#undef VEL_GRID_EXTEND

template <class Entry, std::size_t Size>
constexpr std::span<const Entry> VelWithoutEnd(const std::array<Entry, Size>& iEntries) {
  return std::span<const Entry>(iEntries).first(Size - 1);
}

/// The grid of this module, for VelDictionary::Declare.
[[maybe_unused]] constexpr VelModuleTable velGridTable{velGridDescription.name,     velGridDescription.framework,
                                                       VelWithoutEnd(velGridTypes), VelWithoutEnd(velGridClasses),
                                                       VelWithoutEnd(velGridRows),  VelWithoutEnd(velGridExtends)};

}  // namespace
