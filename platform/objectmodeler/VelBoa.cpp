// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelBoa.cpp Counts the delegating extensions.
#include "platform/objectmodeler/VelBoa.h"

#include "platform/objectmodeler/VelInstanceCounter.h"

VelBoaCounter::VelBoaCounter() noexcept { ++velInstanceCounter.delegatingExtensions; }

VelBoaCounter::~VelBoaCounter() { --velInstanceCounter.delegatingExtensions; }
