// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshValueView.h Where a caller's value lies: its address, the kind of its elements, and how many there are.
#ifndef RENDERINGSHADER_INTERFACES_VELRSHVALUEVIEW_H
#define RENDERINGSHADER_INTERFACES_VELRSHVALUEVIEW_H

#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "platform/base/VelUnicodeString.h"

/// What a view sees.
enum class VelRshElementKind : std::uint8_t {
  Boolean,  ///< bool
  Integer,  ///< std::int32_t
  Real,     ///< float
  Text,     ///< VelUnicodeString
};

/// @return the kind of a C++ type
template <class Element>
constexpr VelRshElementKind VelRshKindOf() noexcept {
  if constexpr (std::is_same_v<Element, bool>) {
    return VelRshElementKind::Boolean;
  } else if constexpr (std::is_same_v<Element, std::int32_t>) {
    return VelRshElementKind::Integer;
  } else if constexpr (std::is_same_v<Element, float>) {
    return VelRshElementKind::Real;
  } else {
    static_assert(std::is_same_v<Element, VelUnicodeString>, "A view sees bool, std::int32_t, float or a text");
    return VelRshElementKind::Text;
  }
}

/// The common half of VelRshValueSource and VelRshValueTarget, which are made from a pointer to one element, from an
/// array, or from a pointer and a count. A view is passed by value and used at once; it owns nothing.
/// @tparam Address `const void` for what is read, `void` for what is written
template <class Address>
class VelRshValueView {
 public:
  /// @return true for a view of a null address
  constexpr bool IsNull() const noexcept { return address_ == nullptr; }

  constexpr VelRshElementKind Kind() const noexcept { return kind_; }

  /// @return the number of elements there are
  constexpr std::uint32_t Capacity() const noexcept { return capacity_; }

  /// @param[in] iCount how many elements are needed
  /// @return the first element; null when the elements are of another kind, or fewer
  template <class Element>
  constexpr auto As(std::uint32_t iCount = 1) const noexcept {
    using Pointer = std::conditional_t<std::is_const_v<Address>, const Element*, Element*>;
    return kind_ == VelRshKindOf<Element>() && iCount <= capacity_ ? static_cast<Pointer>(address_) : nullptr;
  }

 protected:
  constexpr VelRshValueView(Address* iAddress, VelRshElementKind iKind, std::size_t iCapacity) noexcept
      : address_(iAddress), kind_(iKind), capacity_(static_cast<std::uint32_t>(iCapacity)) {}

 private:
  Address* address_;
  VelRshElementKind kind_;
  std::uint32_t capacity_;
};

#endif  // RENDERINGSHADER_INTERFACES_VELRSHVALUEVIEW_H
