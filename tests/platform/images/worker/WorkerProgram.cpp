// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file WorkerProgram.cpp Where the helper program of the build is.
#include "tests/platform/images/worker/WorkerProgram.h"

const char* WorkerProgram::Path() noexcept { return VEL_TEST_WORKER; }
