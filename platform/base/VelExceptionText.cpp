// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelExceptionText.cpp Looks at the exception that is being handled.
#include "platform/base/VelExceptionText.h"

#include <exception>

std::string VelExceptionText(std::string_view iThrower) {
  std::string text(iThrower);
  try {
    throw;
  } catch (const std::exception& exception) {
    text.append(": ").append(exception.what());
  } catch (...) {
    // It has no words of its own.
  }
  return text;
}
