// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageWorkerTest.cpp Where the fake helper program of the tests is.
#include "tests/platform/images/drawing/VelImageWorkerTest.h"

const char* VelImageWorkerTest::FakeProgram() noexcept { return VEL_TEST_IMAGE_WORKER; }
