// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTestAnswer.h What both plug-ins answer, compiled into each of them.
#ifndef TESTS_PLATFORM_OBJECTMODELER_MODULES_VELTESTANSWER_H
#define TESTS_PLATFORM_OBJECTMODELER_MODULES_VELTESTANSWER_H

#include "platform/objectmodeler/VelImplementation.h"
#include "platform/objectmodeler/VelMetaClass.h"
#include "tests/platform/objectmodeler/modules/VelITestIdentity.h"
#include "tests/platform/objectmodeler/modules/VelTestShared.h"

namespace {

/// What a plug-in author should not write, and what must do no harm.
const VelInterfaceId secondIdentifier{"VelITestIdentity", IID_VelBaseUnknown};

void UseAnEmptyHandle() {
  const VelITestIdentity_var empty;
  static_cast<void>(empty->Addresses());
}

}  // namespace

/// Hidden in each plug-in, which so has its own.
class VelTestAnswer : public VelImplementation {
 public:
  using VelImplementation::VelImplementation;

  VelTestAddresses Addresses() {
    return {&IID_VelITestIdentity, &IID_VelBaseUnknown, VelTestShared::EventName(), &VelTestShared::MetaObject(),
            &IID_VelITestIdentity.MetaObject()};
  }
  const VelInterfaceId* SecondIdentifier() { return &secondIdentifier; }
  HRESULT UseEmptyHandle() {
    UseAnEmptyHandle();
    return S_OK;
  }
  VelTestThrower Thrower() { return &UseAnEmptyHandle; }
};

#endif  // TESTS_PLATFORM_OBJECTMODELER_MODULES_VELTESTANSWER_H
