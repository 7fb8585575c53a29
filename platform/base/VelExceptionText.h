// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelExceptionText.h What the exception that is being handled says of itself.
#ifndef PLATFORM_BASE_VELEXCEPTIONTEXT_H
#define PLATFORM_BASE_VELEXCEPTIONTEXT_H

#include <string>
#include <string_view>

#include "platform/base/VelPlatformApi.h"

/// Words who let an exception out and what the exception says, for the detail of a check. To be called where an
/// exception is being handled, with `catch (...)`.
/// @param[in] iThrower the class or operation that it came from
/// @return "thrower: text" for an exception of the standard library's family, the thrower alone for any other
VEL_PLATFORM_API std::string VelExceptionText(std::string_view iThrower);

#endif  // PLATFORM_BASE_VELEXCEPTIONTEXT_H
