// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTraceMute.cpp Counts itself.
#include "platform/trace/VelTraceMute.h"

#include "platform/trace/VelTraceRegistry.h"

VelTraceMute::VelTraceMute() noexcept { VelTraceRegistry::Get().AddMute(); }

VelTraceMute::~VelTraceMute() { VelTraceRegistry::Get().RemoveMute(); }
