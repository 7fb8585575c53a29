// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelListPtrVelBaseUnknown.h A list of objects, by pointer.
#ifndef PLATFORM_BASE_VELLISTPTRVELBASEUNKNOWN_H
#define PLATFORM_BASE_VELLISTPTRVELBASEUNKNOWN_H

#include "platform/base/VelListVal.h"

class VelBaseUnknown;

/// Objects by pointer. The list holds no reference of its own: it neither adds one when a pointer is put in nor
/// releases one when it is taken out or when the list dies. An operation that fills such a list says so where its
/// caller has to release what it finds. Pointers are compared as addresses; the empty value is null.
using VelListPtrVelBaseUnknown = VelListVal<VelBaseUnknown*>;

#endif  // PLATFORM_BASE_VELLISTPTRVELBASEUNKNOWN_H
