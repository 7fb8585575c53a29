// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTestShared.h What two plug-ins and their host share: the text of an event and a meta-class.
#ifndef TESTS_PLATFORM_OBJECTMODELER_MODULES_VELTESTSHARED_H
#define TESTS_PLATFORM_OBJECTMODELER_MODULES_VELTESTSHARED_H

#include "platform/objectmodeler/VelMetaClass.h"
#include "tests/platform/objectmodeler/modules/VelTestSharedApi.h"

class VEL_TEST_SHARED_API VelTestShared {
 public:
  /// @return the one text of the event; compared by address
  static const char* EventName() noexcept;

  static const VelMetaClass& MetaObject() noexcept;
};

#endif  // TESTS_PLATFORM_OBJECTMODELER_MODULES_VELTESTSHARED_H
