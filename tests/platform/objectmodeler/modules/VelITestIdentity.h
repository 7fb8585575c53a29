// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelITestIdentity.h Tells what a plug-in sees of the things that have an identity.
#ifndef TESTS_PLATFORM_OBJECTMODELER_MODULES_VELITESTIDENTITY_H
#define TESTS_PLATFORM_OBJECTMODELER_MODULES_VELITESTIDENTITY_H

#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"
#include "tests/platform/objectmodeler/modules/VelTestSharedApi.h"

VEL_TEST_SHARED_API extern const VelInterfaceId IID_VelITestIdentity;

/// Addresses of things of which the process has one each.
struct VelTestAddresses {
  const void* identifier;
  const void* rootIdentifier;
  const void* eventName;
  const void* metaClass;
  const void* interfaceMetaClass;

  friend bool operator==(const VelTestAddresses&, const VelTestAddresses&) = default;
};

using VelTestThrower = void (*)();

class VEL_TEST_SHARED_API VelITestIdentity : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelITestIdentity);

  /// @return the addresses as the plug-in sees them, all null when the component is closed
  virtual VelTestAddresses Addresses() = 0;

  /// @return an identifier that the plug-in defines itself, under the name of this interface
  virtual const VelInterfaceId* SecondIdentifier() = 0;

  /// Uses an empty handle.
  virtual HRESULT UseEmptyHandle() = 0;

  /// @return a function of the plug-in that throws the null-handle error at its caller
  virtual VelTestThrower Thrower() = 0;

 protected:
  ~VelITestIdentity() = default;
};

using VelITestIdentity_var = VelVar<VelITestIdentity>;

#endif  // TESTS_PLATFORM_OBJECTMODELER_MODULES_VELITESTIDENTITY_H
