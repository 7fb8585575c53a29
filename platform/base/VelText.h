// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelText.h What VelString and VelUnicodeString have in common: bytes and the operations on them.
#ifndef PLATFORM_BASE_VELTEXT_H
#define PLATFORM_BASE_VELTEXT_H

#include <algorithm>
#include <compare>
#include <cstddef>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

/// The shared half of the two string classes. Everything is inline, so that nothing of it is part of what a library
/// exports, and a text costs what its std::string costs. Positions, lengths and counts are bytes throughout. Bytes are
/// kept as they came, ill-formed UTF-8 and embedded NULs included.
///
/// A text reads as a std::string_view where one is asked for, which must not outlive it. The two classes neither
/// compare with nor concatenate with each other: a conversion has to be written out.
/// @tparam Text the class that derives from this one
template <class Text>
class VelText {
 public:
  /// Every byte up to the end of the text, for the operations that take a count.
  static constexpr std::size_t rest = std::numeric_limits<std::size_t>::max();

  /// @return the bytes followed by a NUL, never null, until the text changes. A reader of C strings stops at an
  /// embedded NUL; View() does not.
  const char* CString() const noexcept { return bytes_.c_str(); }

  /// @return all bytes, until the text changes
  std::string_view View() const noexcept { return bytes_; }
  operator std::string_view() const noexcept { return bytes_; }  // NOLINT(google-explicit-constructor)

  /// @return the number of bytes
  std::size_t Length() const noexcept { return bytes_.size(); }
  bool IsEmpty() const noexcept { return bytes_.empty(); }

  bool StartsWith(std::string_view iText) const noexcept { return View().starts_with(iText); }
  bool EndsWith(std::string_view iText) const noexcept { return View().ends_with(iText); }

  /// @return the position of the first occurrence, counted from 0; nothing where there is none. An empty text is found
  /// at 0.
  std::optional<std::size_t> Find(std::string_view iText) const noexcept {
    const std::size_t position = bytes_.find(iText);
    if (position == std::string::npos) return std::nullopt;
    return position;
  }

  /// @param[in] iPosition the first byte, counted from 0; past the end the result is empty
  /// @param[in] iCount cut down to what there is
  Text SubString(std::size_t iPosition, std::size_t iCount = rest) const {
    return Text(View().substr(std::min(iPosition, Length()), iCount));
  }

  Text& Append(std::string_view iText) {
    bytes_.append(iText);
    return static_cast<Text&>(*this);
  }
  Text& operator+=(const Text& iText) { return Append(iText.View()); }
  /// @param[in] iText null appends nothing
  Text& operator+=(const char* iText) { return Append(ViewOf(iText)); }

  void Clear() noexcept { bytes_.clear(); }

  friend Text operator+(Text iLeft, const Text& iRight) { return std::move(iLeft += iRight); }
  friend Text operator+(Text iLeft, const char* iRight) { return std::move(iLeft += iRight); }

  /// Equality and order are those of the unsigned bytes, in no language. A null C string equals the empty text.
  friend bool operator==(const Text& iLeft, const Text& iRight) noexcept { return iLeft.View() == iRight.View(); }
  friend bool operator==(const Text& iLeft, const char* iRight) noexcept { return iLeft.View() == ViewOf(iRight); }
  friend std::strong_ordering operator<=>(const Text& iLeft, const Text& iRight) noexcept {
    return iLeft.View() <=> iRight.View();
  }

 protected:
  VelText() = default;
  explicit VelText(std::string_view iText) : bytes_(iText) {}
  explicit VelText(std::string&& iBytes) noexcept : bytes_(std::move(iBytes)) {}

  static std::string_view ViewOf(const char* iText) noexcept {
    return iText != nullptr ? std::string_view(iText) : std::string_view();
  }

  std::string bytes_;
};

#endif  // PLATFORM_BASE_VELTEXT_H
