// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemThread.cpp Tells threads apart.
#include "platform/base/system/VelSystemThread.h"

#include <pthread.h>

std::uint64_t VelSystemThread::CurrentId() noexcept { return static_cast<std::uint64_t>(::pthread_self()); }
