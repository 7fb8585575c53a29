// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelListVal.h The list of the host's services: counted from 1, every position checked.
#ifndef PLATFORM_BASE_VELLISTVAL_H
#define PLATFORM_BASE_VELLISTVAL_H

#include <algorithm>
#include <cstddef>
#include <type_traits>
#include <utility>
#include <vector>

#include "platform/base/HResult.h"
#include "platform/base/VelPlatformApi.h"

/// Reports a position outside a list as a check. Out of line, so that the lists draw in nothing of the checks.
/// @param[in] iLast the last position that the operation takes: the size, or one more where something is inserted
VEL_PLATFORM_API void VelReportListPosition(int iPosition, int iSize, int iLast) noexcept;

/// A list of values whose first position is 1. A position outside the list is reported as a check ("List position out
/// of range"); reading then answers an empty value, writing is refused. A reference to an element holds until the list
/// changes.
/// @tparam T copyable, comparable by == and constructible without arguments, which makes the empty value
template <class T>
class VelListVal {
  static_assert(!std::is_same_v<T, bool>, "elements are handed out by reference");

 public:
  using const_iterator = typename std::vector<T>::const_iterator;

  int Size() const noexcept { return static_cast<int>(values_.size()); }
  bool IsEmpty() const noexcept { return values_.empty(); }

  /// Adds a value at the end. It may be an element of this list.
  void Append(const T& iValue) { values_.push_back(iValue); }
  void Append(T&& iValue) { values_.push_back(std::move(iValue)); }

  /// @param[in] iPosition 1 to Size()
  /// @return the value; an empty one, after a report, for any other position
  const T& operator[](int iPosition) const {
    if (IsInside(iPosition, Size())) return values_[Index(iPosition)];
    return EmptyValue();
  }

  /// @param[in] iPosition 1 to Size()
  /// @return
  /// - S_OK: the value was replaced
  /// - E_INVALIDARG: there is no such position; reported, nothing changed
  HRESULT Set(int iPosition, const T& iValue) {
    if (!IsInside(iPosition, Size())) return E_INVALIDARG;
    values_[Index(iPosition)] = iValue;
    return S_OK;
  }

  /// @return the first position that holds an equal value, 0 when there is none
  int Locate(const T& iValue) const {
    const auto found = std::find(values_.begin(), values_.end(), iValue);
    return found == values_.end() ? 0 : static_cast<int>(found - values_.begin()) + 1;
  }

  /// @param[in] iPosition where the value will stand: 1 to Size() + 1, the last of which appends
  /// @return
  /// - S_OK: the value was inserted, what stood there and behind moved up by one
  /// - E_INVALIDARG: there is no such position; reported, nothing changed
  HRESULT InsertAt(int iPosition, const T& iValue) {
    if (!IsInside(iPosition, Size() + 1)) return E_INVALIDARG;
    values_.insert(values_.begin() + (iPosition - 1), iValue);
    return S_OK;
  }

  /// @param[in] iPosition 1 to Size()
  /// @return
  /// - S_OK: the value was taken out, what stood behind moved down by one
  /// - E_INVALIDARG: there is no such position; reported, nothing changed
  HRESULT RemovePosition(int iPosition) {
    if (!IsInside(iPosition, Size())) return E_INVALIDARG;
    values_.erase(values_.begin() + (iPosition - 1));
    return S_OK;
  }

  /// Takes out the first equal value.
  /// @return
  /// - S_OK: it was taken out
  /// - S_FALSE: there is none
  HRESULT RemoveValue(const T& iValue) {
    const int position = Locate(iValue);
    return position == 0 ? S_FALSE : RemovePosition(position);
  }

  void RemoveAll() noexcept { values_.clear(); }

  const_iterator begin() const noexcept { return values_.begin(); }
  const_iterator end() const noexcept { return values_.end(); }

  friend bool operator==(const VelListVal& iLeft, const VelListVal& iRight) { return iLeft.values_ == iRight.values_; }

 private:
  static std::size_t Index(int iPosition) noexcept { return static_cast<std::size_t>(iPosition) - 1; }

  bool IsInside(int iPosition, int iLast) const noexcept {
    if (1 <= iPosition && iPosition <= iLast) return true;
    VelReportListPosition(iPosition, Size(), iLast);
    return false;
  }

  /// Never freed: a list may be read while the statics of the process are torn down.
  static const T& EmptyValue() {
    static const T* const empty = new T();
    return *empty;
  }

  std::vector<T> values_;
};

#endif  // PLATFORM_BASE_VELLISTVAL_H
