// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelListValVelUnicodeString.h A list of labels, paths or values.
#ifndef PLATFORM_BASE_VELLISTVALVELUNICODESTRING_H
#define PLATFORM_BASE_VELLISTVALVELUNICODESTRING_H

#include "platform/base/VelListVal.h"
#include "platform/base/VelUnicodeString.h"

using VelListValVelUnicodeString = VelListVal<VelUnicodeString>;

#endif  // PLATFORM_BASE_VELLISTVALVELUNICODESTRING_H
