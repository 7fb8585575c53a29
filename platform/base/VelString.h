// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelString.h The 8-bit string of the system: names, types, keys.
#ifndef PLATFORM_BASE_VELSTRING_H
#define PLATFORM_BASE_VELSTRING_H

#include <cstddef>
#include <functional>
#include <string_view>

#include "platform/base/VelPlatformApi.h"
#include "platform/base/VelText.h"

/// A name, a type or a key, as UTF-8 bytes. Texts that people read are VelUnicodeString; the two convert into each
/// other byte for byte.
class VelString : public VelText<VelString> {
 public:
  VelString() = default;

  /// Implicit, so that a literal can stand where a VelString is asked for.
  /// @param[in] iText copied up to its NUL; null makes an empty string
  VelString(const char* iText) : VelText(ViewOf(iText)) {}  // NOLINT(google-explicit-constructor)

  /// @param[in] iText copied whole, embedded NULs included; a VelUnicodeString and a std::string are taken as well
  explicit VelString(std::string_view iText) : VelText(iText) {}

  /// @return a copy with the letters A to Z in lower case; every other byte stays, in whatever locale
  VEL_PLATFORM_API VelString ToLower() const;
};

template <>
struct std::hash<VelString> {
  std::size_t operator()(const VelString& iText) const noexcept { return std::hash<std::string_view>()(iText.View()); }
};

#endif  // PLATFORM_BASE_VELSTRING_H
