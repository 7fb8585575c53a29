// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file text_fuzz.cpp Fuzzes the strings and the tokeniser with arbitrary bytes.
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

#include "platform/base/VelString.h"
#include "platform/base/VelToken.h"
#include "platform/base/VelUnicodeString.h"
#include "tests/fuzz/Require.h"

namespace {

/// Well-formed text comes back from UTF-16 exactly; ill-formed text comes back well-formed, and a second way there and
/// back changes nothing more.
void CheckUtf16(std::string_view iBytes) {
  const VelUnicodeString text(iBytes);
  Require(text.View() == iBytes && text.ToVelString().View() == iBytes);

  const std::u16string units = text.ToUtf16();
  const VelUnicodeString mended{std::u16string_view(units)};
  Require(mended.IsWellFormed());
  Require((mended == text) == text.IsWellFormed());
  Require(mended.CodePointCount() == text.CodePointCount());
  Require(mended.ToUtf16() == units);
}

/// Any 16-bit units make well-formed text, which then comes back exactly.
void CheckUnits(std::string_view iBytes) {
  std::u16string units(iBytes.size() / sizeof(char16_t), u'\0');
  if (!units.empty()) std::memcpy(units.data(), iBytes.data(), units.size() * sizeof(char16_t));
  const VelUnicodeString text{std::u16string_view(units)};
  Require(text.IsWellFormed());
  Require(text.ToUtf16().size() == units.size());
  Require(VelUnicodeString(text.ToUtf16()) == text);
}

/// The words hold every byte that separates nothing, in order, and nothing else; the tokeniser comes to an end.
void CheckWords(std::string_view iBytes, std::string_view iSeparators) {
  std::string expected;
  for (const char byte : iBytes) {
    const bool ascii = static_cast<unsigned char>(byte) < 0x80;
    if (!ascii || iSeparators.find(byte) == std::string_view::npos) expected += byte;
  }
  std::string joined;
  VelToken token{VelString(iBytes), VelString(iSeparators)};
  for (VelString word = token.Next(); !word.IsEmpty(); word = token.Next()) {
    Require(joined.size() < iBytes.size());
    joined += word.View();
  }
  Require(joined == expected);
  Require(token.Next().IsEmpty());
}

void CheckRemoval(std::string_view iBytes, std::string_view iRemoved) {
  VelUnicodeString text(iBytes);
  text.RemoveAll(iRemoved);
  Require(text.Length() <= iBytes.size());
  // One byte cannot overlap itself, so that none of it may be left.
  if (iRemoved.size() == 1) Require(!text.Find(iRemoved).has_value());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* iData, std::size_t iSize) {
  const std::string_view bytes(reinterpret_cast<const char*>(iData), iSize);
  CheckUtf16(bytes);
  CheckUnits(bytes);
  CheckWords(bytes, VelToken::whiteSpace);
  if (bytes.empty()) return 0;

  // The first byte says how many of the following are the separators or the text to remove.
  const std::string_view rest = bytes.substr(1);
  const std::size_t count = static_cast<unsigned char>(bytes.front()) % (rest.size() + 1);
  CheckWords(rest.substr(count), rest.substr(0, count));
  CheckRemoval(rest.substr(count), rest.substr(0, count));
  return 0;
}
