// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file ConfigurationFault.h What holds of a fault in any file of configurations.
#ifndef TESTS_FUZZ_CONFIGURATIONFAULT_H
#define TESTS_FUZZ_CONFIGURATIONFAULT_H

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "platform/configuration/VelConfigurationContent.h"
#include "tests/fuzz/Require.h"

/// A fault is in the text, or of the file as a whole.
inline void CheckFault(std::string_view iText, const VelConfigurationFault& iFault) {
  const auto lines = 1 + static_cast<std::size_t>(std::count(iText.begin(), iText.end(), '\n'));
  Require(!iFault.cause.empty());
  Require(iFault.line <= lines);
  Require((iFault.line == 0) == (iFault.column == 0));
}

#endif  // TESTS_FUZZ_CONFIGURATIONFAULT_H
