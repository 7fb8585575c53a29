// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelModule.h What a module tells about itself: its name and platform ABI, and the rows of its binding grid.
#ifndef PLATFORM_OBJECTMODELER_VELMODULE_H
#define PLATFORM_OBJECTMODELER_VELMODULE_H

#include <span>

#include "platform/base/VelPlatformApi.h"
#include "platform/objectmodeler/VelMetaClass.h"

class VelBaseUnknown;
class VelComponent;
class VelImplementation;

/// The number of the binary contract between the platform and a module: the layouts and slot orders of everything in
/// the platform's headers. A module that was built for another number is refused when it is opened.
inline constexpr unsigned velPlatformAbi = 1;

/// How a class answers an interface.
enum class VelMechanism {
  TIE,  ///< A forwarder in front of an implementation.
  BOA,  ///< The class itself derives from the interface.
};

/// How long an implementation behind a forwarder lives.
enum class VelLifetime {
  Component,  ///< From the first query until the component is closed; all its forwarders share it.
  Reference,  ///< As long as the one forwarder it was made for is referenced; each query makes its own.
  Always,  ///< As Reference, and answered by a closed component too. For the platform's own classes that hold nothing.
};

/// Makes an implementation for a component, or declines by null: then the query fails with E_NOINTERFACE, and the next
/// one asks again. Exported as CreateExtension<class>.
using VelCreateImplementation = VelImplementation* (*)(VelComponent& ioComponent);

/// Makes a forwarder in a block of VelTieService::blockSize bytes, taking over one reference on the component. Exported
/// as CreateTIE<interface><class>.
using VelCreateTie = VelBaseUnknown* (*)(void* iBlock, VelImplementation& iImplementation, VelComponent& ioComponent,
                                         bool iOwnsImplementation);

/// Makes an extension that is its own interface object, with one reference for the caller, or declines by null.
/// Exported as CreateBOA<interface><class>.
using VelCreateBoa = VelBaseUnknown* (*)(VelComponent& ioComponent);

/// A late type and the one that it derives from.
struct VelModuleType {
  const char* lateType;
  const char* base;
};

/// A class of the module.
struct VelModuleClass {
  const char* name;
  VelTypeOfClass kind;
  VelCreateImplementation create;  ///< Null for a delegating extension.
};

/// One answer: which class answers an interface for a late type, and how.
struct VelModuleRow {
  const char* lateType;
  const char* interfaceName;
  VelMechanism mechanism;
  VelLifetime lifetime;
  const char* className;
  VelCreateTie createTie;  ///< Null for a BOA row.
  VelCreateBoa createBoa;  ///< Null for a TIE row.
};

/// A further late type that a class extends: it answers there all that it answers on its first late type.
struct VelModuleExtend {
  const char* lateType;
  const char* className;
};

/// A whole grid, as a module that is linked into the program declares it. All texts live as long as the process.
struct VelModuleTable {
  const char* name;
  const char* framework;
  std::span<const VelModuleType> types;
  std::span<const VelModuleClass> classes;
  std::span<const VelModuleRow> rows;
  std::span<const VelModuleExtend> extends;
};

/// The identity of a module, exported as VelModule_<name>.
struct VelModuleDescription {
  const char* name;
  const char* framework;
  unsigned platformAbi;
};

/// Enters a module among those of the process when its library is loaded. The first of a name counts; a second copy of
/// the module, from another file, is then refused by the dictionary.
class VEL_PLATFORM_API VelModuleRegistration {
 public:
  explicit VelModuleRegistration(const VelModuleDescription& iDescription) noexcept;

  /// @param[in] iName null for none
  /// @return the description that counts for a module name, null when no module of that name and of this platform's
  ///         ABI is loaded
  static const VelModuleDescription* Find(const char* iName) noexcept;
};

#endif  // PLATFORM_OBJECTMODELER_VELMODULE_H
