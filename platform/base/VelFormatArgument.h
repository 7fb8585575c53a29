// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelFormatArgument.h One argument of a message template: a small tagged value that owns nothing.
#ifndef PLATFORM_BASE_VELFORMATARGUMENT_H
#define PLATFORM_BASE_VELFORMATARGUMENT_H

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>

#include "platform/base/VelPlatformApi.h"

class VelString;
class VelUnicodeString;

/// Made implicitly from whatever a message prints. A text is not copied, so an argument must not outlive the value that
/// it was made from; within one call of VelFormat or of a trace that is never a concern.
class VEL_PLATFORM_API VelFormatArgument {
 public:
  // NOLINTBEGIN(google-explicit-constructor): arguments are written as plain values
  /// What an argument is, which together with the placeholder decides how it prints.
  enum class Kind : std::uint8_t { Boolean, Signed, Unsigned, Real, Text, Pointer };

  template <std::same_as<bool> T>
  VelFormatArgument(T iValue) noexcept : unsigned_(iValue ? 1U : 0U), kind_(Kind::Boolean), width_(1) {}

  /// Every integer type, the characters included, remembers its own width.
  template <std::signed_integral T>
  VelFormatArgument(T iValue) noexcept : signed_(iValue), kind_(Kind::Signed), width_(sizeof(T)) {}

  template <std::unsigned_integral T>
  requires(!std::same_as<T, bool>) VelFormatArgument(T iValue)
  noexcept : unsigned_(iValue), kind_(Kind::Unsigned), width_(sizeof(T)) {}

  /// An enumerator prints as the integer that it stands for.
  template <class T>
  requires std::is_enum_v<T> VelFormatArgument(T iValue)
  noexcept : VelFormatArgument(static_cast<std::underlying_type_t<T>>(iValue)) {}

  template <class T>
  requires(std::same_as<T, float> || std::same_as<T, double>) VelFormatArgument(T iValue)
  noexcept : real_(iValue), kind_(Kind::Real), width_(sizeof(double)) {}

  /// @param[in] iText null prints as the empty text
  VelFormatArgument(const char* iText) noexcept
      : VelFormatArgument(iText != nullptr ? std::string_view(iText) : std::string_view()) {}
  VelFormatArgument(std::string_view iText) noexcept
      : text_(iText.data()), size_(iText.size()), kind_(Kind::Text), width_(sizeof(void*)) {}
  VelFormatArgument(const std::string& iText) noexcept : VelFormatArgument(std::string_view(iText)) {}
  VelFormatArgument(const VelString& iText) noexcept;
  VelFormatArgument(const VelUnicodeString& iText) noexcept;

  /// Any pointer that is not a text.
  VelFormatArgument(const void* iPointer) noexcept : pointer_(iPointer), kind_(Kind::Pointer), width_(sizeof(void*)) {}
  VelFormatArgument(std::nullptr_t) noexcept : VelFormatArgument(static_cast<const void*>(nullptr)) {}
  // NOLINTEND(google-explicit-constructor)

  [[nodiscard]] Kind GetKind() const noexcept { return kind_; }

  /// @return the value of a Signed argument.
  [[nodiscard]] std::int64_t Signed() const noexcept { return signed_; }

  /// @return the value of an Unsigned argument, or 1 and 0 for a Boolean one.
  [[nodiscard]] std::uint64_t Unsigned() const noexcept { return unsigned_; }

  /// @return the value of a Real argument, a float widened.
  [[nodiscard]] double Real() const noexcept { return real_; }

  /// @return the characters of a Text argument.
  [[nodiscard]] std::string_view Text() const noexcept { return {text_, size_}; }

  /// @return what all hexadecimal digits of the argument stand for: the bits of an integer of its own width in two's
  /// complement, the address of a pointer, the address of the characters of a text. Not for a Real argument.
  [[nodiscard]] std::uint64_t Bits() const noexcept;

 private:
  union {
    std::int64_t signed_;
    std::uint64_t unsigned_;
    double real_;
    const char* text_;
    const void* pointer_;
  };
  std::size_t size_ = 0;  ///< Characters of a Text.
  Kind kind_;
  std::uint8_t width_;  ///< Bytes of an integer.
};

#endif  // PLATFORM_BASE_VELFORMATARGUMENT_H
