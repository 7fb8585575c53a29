// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelListValVelString.h A list of names, types or keys.
#ifndef PLATFORM_BASE_VELLISTVALVELSTRING_H
#define PLATFORM_BASE_VELLISTVALVELSTRING_H

#include "platform/base/VelListVal.h"
#include "platform/base/VelString.h"

using VelListValVelString = VelListVal<VelString>;

#endif  // PLATFORM_BASE_VELLISTVALVELSTRING_H
