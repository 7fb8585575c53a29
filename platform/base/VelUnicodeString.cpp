// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelUnicodeString.cpp The string of the system for what people read and write: labels, paths, values.
#include "platform/base/VelUnicodeString.h"

#include <utility>

#include "platform/base/VelUtf.h"

VelUnicodeString::VelUnicodeString(std::u16string_view iText) {
  bytes_.reserve(iText.size());
  for (std::size_t position = 0; position < iText.size();) {
    VelUtf::AppendUtf8(VelUtf::NextOfUtf16(iText, position), bytes_);
  }
}

std::u16string VelUnicodeString::ToUtf16() const {
  std::u16string units;
  units.reserve(Length());
  for (std::size_t position = 0; position < Length();) {
    VelUtf::AppendUtf16(VelUtf::NextOfUtf8(View(), position).codePoint, units);
  }
  return units;
}

bool VelUnicodeString::IsWellFormed() const noexcept {
  for (std::size_t position = 0; position < Length();) {
    if (!VelUtf::NextOfUtf8(View(), position).wellFormed) return false;
  }
  return true;
}

std::size_t VelUnicodeString::CodePointCount() const noexcept {
  std::size_t count = 0;
  for (std::size_t position = 0; position < Length(); ++count) VelUtf::NextOfUtf8(View(), position);
  return count;
}

void VelUnicodeString::RemoveAll(std::string_view iText) {
  if (iText.empty()) return;
  std::string kept;
  std::size_t start = 0;
  for (std::size_t found = bytes_.find(iText); found != std::string::npos; found = bytes_.find(iText, start)) {
    kept.append(bytes_, start, found - start);
    start = found + iText.size();
  }
  if (start == 0) return;
  kept.append(bytes_, start);
  bytes_ = std::move(kept);
}
