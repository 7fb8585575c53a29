// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file Require.h What a fuzz program claims of every input.
#ifndef TESTS_FUZZ_REQUIRE_H
#define TESTS_FUZZ_REQUIRE_H

#include <cstdlib>

/// Ends the program where a claim does not hold, so that the fuzzer keeps the input.
inline void Require(bool iHolds) {
  if (!iHolds) std::abort();
}

#endif  // TESTS_FUZZ_REQUIRE_H
