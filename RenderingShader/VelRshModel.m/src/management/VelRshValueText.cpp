// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshValueText.cpp The text of each kind of value.
#include "RenderingShader/VelRshModel.m/src/management/VelRshValueText.h"

#include <array>
#include <charconv>
#include <utility>

#include "platform/base/VelFormat.h"
#include "platform/documents/VelIPLMDmtDocument.h"

namespace {

template <class Number>
std::string Shortest(Number iValue) {
  std::array<char, 32> digits;
  const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), iValue);
  return {digits.data(), result.ptr};
}

void AppendEscaped(char iCharacter, std::string& ioText) {
  constexpr const char* hexadecimal = "0123456789abcdef";
  const auto code = static_cast<unsigned char>(iCharacter);
  if (iCharacter == '"' || iCharacter == '\\') {
    ioText += {'\\', iCharacter};
  } else if (iCharacter == '\n') {
    ioText += "\\n";
  } else if (iCharacter == '\t') {
    ioText += "\\t";
  } else if (code < 0x20 || code == 0x7F) {
    ioText += {'\\', 'x', hexadecimal[code >> 4U], hexadecimal[code & 0xFU]};
  } else {
    ioText += iCharacter;
  }
}

}  // namespace

std::string VelRshValueText::Of(std::span<const bool, 1> iValue) { return iValue[0] ? "true" : "false"; }

std::string VelRshValueText::Of(std::span<const std::int32_t, 1> iValue) { return Shortest(iValue[0]); }

std::string VelRshValueText::Of(std::span<const float> iValues) {
  if (iValues.size() == 1) return Shortest(iValues[0]);
  std::string text;
  for (const float value : iValues) text += (text.empty() ? "(" : ", ") + Shortest(value);
  return text + ")";
}

std::string VelRshValueText::Of(std::span<const VelUnicodeString, 1> iValue) {
  return '"' + Escape(iValue[0].View()) + '"';
}

std::string VelRshValueText::Of(VelBaseUnknown& iDocument) {
  const VelIPLMDmtDocument_var hDocument(&iDocument);
  VelUnicodeString name;
  if (!hDocument || FAILED(hDocument->GetName(name))) return "document";
  return "document \"" + Escape(name.View()) + '"';
}

std::string VelRshValueText::Of(HRESULT iCode) {
  constexpr std::array<std::pair<HRESULT, const char*>, 6> names{{{S_OK, "S_OK"},
                                                                  {S_FALSE, "S_FALSE"},
                                                                  {E_NOINTERFACE, "E_NOINTERFACE"},
                                                                  {E_FAIL, "E_FAIL"},
                                                                  {E_UNEXPECTED, "E_UNEXPECTED"},
                                                                  {E_INVALIDARG, "E_INVALIDARG"}}};
  for (const auto& [code, name] : names) {
    if (code == iCode) return name;
  }
  return VelFormat::ToText("0x%x", static_cast<std::uint32_t>(iCode));
}

std::string VelRshValueText::Escape(std::string_view iText) {
  std::string escaped;
  for (const char character : iText) AppendEscaped(character, escaped);
  return escaped;
}
