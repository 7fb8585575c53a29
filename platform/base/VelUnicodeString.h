// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelUnicodeString.h The string of the system for what people read and write: labels, paths, values.
#ifndef PLATFORM_BASE_VELUNICODESTRING_H
#define PLATFORM_BASE_VELUNICODESTRING_H

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "platform/base/VelPlatformApi.h"
#include "platform/base/VelString.h"
#include "platform/base/VelText.h"

/// A label, a path or a value, as UTF-8 bytes. Text that comes from outside may be ill-formed; it is kept byte for byte
/// and mended only on the way to UTF-16, because a path must name the file that it named when it was read.
class VelUnicodeString : public VelText<VelUnicodeString> {
 public:
  VelUnicodeString() = default;

  /// Implicit, so that a literal can stand where a VelUnicodeString is asked for.
  /// @param[in] iText UTF-8, copied up to its NUL; null makes an empty string
  VelUnicodeString(const char* iText) : VelText(ViewOf(iText)) {}  // NOLINT(google-explicit-constructor)

  /// @param[in] iText UTF-8, copied whole, embedded NULs included
  explicit VelUnicodeString(std::string_view iText) : VelText(iText) {}

  /// @param[in] iText taken over byte for byte
  explicit VelUnicodeString(const VelString& iText) : VelText(iText.View()) {}

  /// @param[in] iText UTF-16 in the byte order of the machine; each unpaired surrogate becomes U+FFFD
  VEL_PLATFORM_API explicit VelUnicodeString(std::u16string_view iText);

  /// @return the text as UTF-16 in the byte order of the machine, no byte order mark added or taken away. Each maximal
  /// subpart of an ill-formed sequence becomes one U+FFFD, as the Unicode standard recommends.
  VEL_PLATFORM_API std::u16string ToUtf16() const;

  /// @return the same bytes
  VelString ToVelString() const { return VelString(View()); }

  /// @return true when the bytes are UTF-8: no overlong form, no surrogate, nothing above U+10FFFF, nothing cut short
  VEL_PLATFORM_API bool IsWellFormed() const noexcept;

  /// @return the number of code points, where each maximal subpart of an ill-formed sequence counts as one; Length() is
  /// the number of bytes
  VEL_PLATFORM_API std::size_t CodePointCount() const noexcept;

  /// Takes out every occurrence, in one pass from the front: what the removal joins is not looked at again.
  /// @param[in] iText an empty text changes nothing
  VEL_PLATFORM_API void RemoveAll(std::string_view iText);
};

template <>
struct std::hash<VelUnicodeString> {
  std::size_t operator()(const VelUnicodeString& iText) const noexcept {
    return std::hash<std::string_view>()(iText.View());
  }
};

#endif  // PLATFORM_BASE_VELUNICODESTRING_H
