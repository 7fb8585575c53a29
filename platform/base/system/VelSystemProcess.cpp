// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemProcess.cpp The end of the process.
#include "platform/base/system/VelSystemProcess.h"

#include <cstdlib>

void VelSystemProcess::Abort() noexcept { std::abort(); }
