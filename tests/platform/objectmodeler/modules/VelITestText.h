// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelITestText.h A text to get.
#ifndef TESTS_PLATFORM_OBJECTMODELER_MODULES_VELITESTTEXT_H
#define TESTS_PLATFORM_OBJECTMODELER_MODULES_VELITESTTEXT_H

#include "platform/base/VelString.h"
#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"
#include "tests/platform/objectmodeler/modules/VelTestSharedApi.h"

VEL_TEST_SHARED_API extern const VelInterfaceId IID_VelITestText;

class VEL_TEST_SHARED_API VelITestText : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelITestText);

  /// @return S_OK; E_FAIL when the component is closed, with oText untouched
  virtual HRESULT GetText(VelString& oText) = 0;

 protected:
  ~VelITestText() = default;
};

using VelITestText_var = VelVar<VelITestText>;

#endif  // TESTS_PLATFORM_OBJECTMODELER_MODULES_VELITESTTEXT_H
