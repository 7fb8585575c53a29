// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelInstanceCounts.h How many objects of the object modeler are alive.
#ifndef PLATFORM_OBJECTMODELER_VELINSTANCECOUNTS_H
#define PLATFORM_OBJECTMODELER_VELINSTANCECOUNTS_H

#include "platform/base/VelPlatformApi.h"

/// The objects that are alive now. All are zero when everything was released: the tests look after each test.
struct VEL_PLATFORM_API VelInstanceCounts {
  int components = 0;
  int implementations = 0;
  int forwarders = 0;
  int delegatingExtensions = 0;
  int liveParts = 0;  ///< Of components that something was built for or that weak references remember.

  static VelInstanceCounts Now() noexcept;

  friend bool operator==(const VelInstanceCounts&, const VelInstanceCounts&) = default;
};

#endif  // PLATFORM_OBJECTMODELER_VELINSTANCECOUNTS_H
