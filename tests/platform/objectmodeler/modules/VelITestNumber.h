// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelITestNumber.h A number to set and to get.
#ifndef TESTS_PLATFORM_OBJECTMODELER_MODULES_VELITESTNUMBER_H
#define TESTS_PLATFORM_OBJECTMODELER_MODULES_VELITESTNUMBER_H

#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"
#include "tests/platform/objectmodeler/modules/VelTestSharedApi.h"

VEL_TEST_SHARED_API extern const VelInterfaceId IID_VelITestNumber;

class VEL_TEST_SHARED_API VelITestNumber : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelITestNumber);

  /// @return S_OK; E_FAIL when the component is closed
  virtual HRESULT SetNumber(int iNumber) = 0;

  /// @return S_OK; E_FAIL when the component is closed, with oNumber untouched
  virtual HRESULT GetNumber(int& oNumber) = 0;

 protected:
  ~VelITestNumber() = default;
};

using VelITestNumber_var = VelVar<VelITestNumber>;

#endif  // TESTS_PLATFORM_OBJECTMODELER_MODULES_VELITESTNUMBER_H
