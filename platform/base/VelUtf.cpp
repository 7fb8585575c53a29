// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelUtf.cpp Reads and writes single code points as UTF-8 and UTF-16.
#include "platform/base/VelUtf.h"

namespace {

/// What may follow a lead byte. Only the second byte is ever restricted: that is what keeps out overlong forms,
/// surrogates and what lies above U+10FFFF.
struct LeadByte {
  unsigned char first;  ///< The range of lead bytes that this row is about.
  unsigned char last;
  unsigned char length;      ///< Of the whole sequence, in bytes.
  unsigned char lowestNext;  ///< The range of the second byte.
  unsigned char highestNext;
  unsigned char payload;  ///< The bits of the lead byte that belong to the code point.
};

constexpr LeadByte leadBytes[] = {
    {0xC2, 0xDF, 2, 0x80, 0xBF, 0x1F}, {0xE0, 0xE0, 3, 0xA0, 0xBF, 0x0F}, {0xE1, 0xEC, 3, 0x80, 0xBF, 0x0F},
    {0xED, 0xED, 3, 0x80, 0x9F, 0x0F}, {0xEE, 0xEF, 3, 0x80, 0xBF, 0x0F}, {0xF0, 0xF0, 4, 0x90, 0xBF, 0x07},
    {0xF1, 0xF3, 4, 0x80, 0xBF, 0x07}, {0xF4, 0xF4, 4, 0x80, 0x8F, 0x07},
};

const LeadByte* FindLeadByte(unsigned char iByte) noexcept {
  for (const LeadByte& row : leadBytes) {
    if (row.first <= iByte && iByte <= row.last) return &row;
  }
  return nullptr;
}

constexpr bool IsHighSurrogate(char16_t iUnit) noexcept { return 0xD800 <= iUnit && iUnit <= 0xDBFF; }
constexpr bool IsLowSurrogate(char16_t iUnit) noexcept { return 0xDC00 <= iUnit && iUnit <= 0xDFFF; }

/// The byte that carries six bits of a code point behind its lead byte.
constexpr char Trail(char32_t iCodePoint, unsigned iShift) noexcept {
  return static_cast<char>(0x80U | ((iCodePoint >> iShift) & 0x3FU));
}

}  // namespace

VelUtf::CodePoint VelUtf::NextOfUtf8(std::string_view iText, std::size_t& ioPosition) noexcept {
  const auto lead = static_cast<unsigned char>(iText[ioPosition++]);
  if (lead < 0x80) return {lead, true};
  const LeadByte* row = FindLeadByte(lead);
  if (row == nullptr) return {replacement, false};

  char32_t codePoint = lead & row->payload;
  unsigned char lowest = row->lowestNext;
  unsigned char highest = row->highestNext;
  for (unsigned read = 1; read < row->length; ++read) {
    if (ioPosition == iText.size()) return {replacement, false};
    const auto next = static_cast<unsigned char>(iText[ioPosition]);
    // The byte that does not fit is left to be read as the start of what comes next.
    if (next < lowest || highest < next) return {replacement, false};
    codePoint = (codePoint << 6U) | (next & 0x3FU);
    lowest = 0x80;
    highest = 0xBF;
    ++ioPosition;
  }
  return {codePoint, true};
}

char32_t VelUtf::NextOfUtf16(std::u16string_view iText, std::size_t& ioPosition) noexcept {
  const char16_t unit = iText[ioPosition++];
  if (IsLowSurrogate(unit)) return replacement;
  if (!IsHighSurrogate(unit)) return unit;
  if (ioPosition == iText.size() || !IsLowSurrogate(iText[ioPosition])) return replacement;
  const char16_t low = iText[ioPosition++];
  return 0x10000U + ((static_cast<char32_t>(unit) - 0xD800U) << 10U) + (static_cast<char32_t>(low) - 0xDC00U);
}

void VelUtf::AppendUtf8(char32_t iCodePoint, std::string& ioText) {
  if (iCodePoint < 0x80) {
    ioText += static_cast<char>(iCodePoint);
    return;
  }
  if (iCodePoint < 0x800) {
    ioText += {static_cast<char>(0xC0U | (iCodePoint >> 6U)), Trail(iCodePoint, 0)};
    return;
  }
  if (iCodePoint < 0x10000) {
    ioText += {static_cast<char>(0xE0U | (iCodePoint >> 12U)), Trail(iCodePoint, 6), Trail(iCodePoint, 0)};
    return;
  }
  ioText += {static_cast<char>(0xF0U | (iCodePoint >> 18U)), Trail(iCodePoint, 12), Trail(iCodePoint, 6),
             Trail(iCodePoint, 0)};
}

void VelUtf::AppendUtf16(char32_t iCodePoint, std::u16string& ioText) {
  if (iCodePoint < 0x10000) {
    ioText += static_cast<char16_t>(iCodePoint);
    return;
  }
  const char32_t offset = iCodePoint - 0x10000U;
  ioText += {static_cast<char16_t>(0xD800U + (offset >> 10U)), static_cast<char16_t>(0xDC00U + (offset & 0x3FFU))};
}
