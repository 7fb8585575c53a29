// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelInstanceCounter.h The counters behind VelInstanceCounts.
#ifndef PLATFORM_OBJECTMODELER_VELINSTANCECOUNTER_H
#define PLATFORM_OBJECTMODELER_VELINSTANCECOUNTER_H

#include "platform/objectmodeler/VelInstanceCounts.h"

/// Plain integers of the application thread; not exported.
extern VelInstanceCounts velInstanceCounter;

#endif  // PLATFORM_OBJECTMODELER_VELINSTANCECOUNTER_H
