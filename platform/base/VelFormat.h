// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelFormat.h The one formatter of the message templates that the system prints.
#ifndef PLATFORM_BASE_VELFORMAT_H
#define PLATFORM_BASE_VELFORMAT_H

#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

#include "platform/base/VelFormatArgument.h"
#include "platform/base/VelPlatformApi.h"

/// Fills a template's placeholders with arguments, in order. The placeholders are %s %d %u %x %f %lf %.Nf %.Nlf (N from
/// 0 to 17) and %% for a percent sign. The type of the argument is known, so that a placeholder which does not fit
/// loses nothing and reads no wrong memory:
///
/// | argument | %s             | %d, %u  | %x                                | %f, %lf      | %.Nf, %.Nlf   |
/// |----------|----------------|---------|-----------------------------------|--------------|---------------|
/// | bool     | true, false    | 1, 0    | 1, 0                              | 1.000000     | N decimals    |
/// | integer  | decimal        | decimal | bits of its own width             | six decimals | N decimals    |
/// | real     | six decimals   | as %s   | as %s                             | six decimals | N decimals    |
/// | text     | as it is       | as %s   | address of the characters, null 0 | as %s        | as %s         |
/// | pointer  | the address    | as %s   | the address, null 0               | as %s        | as %s         |
///
/// Addresses and bits are lower-case hexadecimal without prefix or leading zeros. A number keeps its own sign under %d
/// and %u. An integer prints all its digits under %f, however large. Reals that are no numbers print as nan, inf and
/// -inf. The process locale plays no part.
///
/// A placeholder without argument stays as it stands, an argument without placeholder is ignored, and a percent sign
/// that starts none of the placeholders above is an ordinary character that uses up no argument.
class VEL_PLATFORM_API VelFormat {
 public:
  /// @return the template with its placeholders filled.
  template <class... Arguments>
  [[nodiscard]] static std::string ToText(std::string_view iFormat, const Arguments&... iArguments) {
    const std::initializer_list<VelFormatArgument> arguments = {iArguments...};
    return ListToText(iFormat, {arguments.begin(), arguments.size()});
  }

  /// @return the template with its placeholders filled from a list.
  [[nodiscard]] static std::string ListToText(std::string_view iFormat, std::span<const VelFormatArgument> iArguments);
};

#endif  // PLATFORM_BASE_VELFORMAT_H
