// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTestShared.cpp The one place of what plug-ins and host share.
#include "tests/platform/objectmodeler/modules/VelTestShared.h"

const char* VelTestShared::EventName() noexcept { return "VelTestSharedEvent"; }

const VelMetaClass& VelTestShared::MetaObject() noexcept {
  static const VelMetaClass& metaClass =
      fct_RetrieveMetaObject("VelTestShared", nullptr, VelTypeOfClass::Implementation, "VelNull", "TestFramework");
  return metaClass;
}
