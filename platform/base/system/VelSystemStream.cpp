// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemStream.cpp The standard error stream of the process.
#include "platform/base/system/VelSystemStream.h"

#include <unistd.h>

#include "platform/base/system/VelSystemDescriptor.h"

bool VelSystemStream::WriteToStandardError(std::string_view iText) noexcept {
  return VelSystemDescriptor::WriteWhole(STDERR_FILENO, iText) == 0;
}
