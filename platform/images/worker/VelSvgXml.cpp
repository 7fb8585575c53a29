// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSvgXml.cpp Has expat read the text, and the system's converters its encoding.
#include "platform/images/worker/VelSvgXml.h"

#include <expat.h>
#include <iconv.h>

#include <cstdint>
#include <memory>
#include <type_traits>

namespace {

using Parser = std::unique_ptr<std::remove_pointer_t<XML_Parser>, decltype(&XML_ParserFree)>;

/// What the callbacks of one reading share.
struct Reading {
  XML_Parser parser;
  std::string_view text;
  VelSvgXmlListener& listener;
  HRESULT code = S_OK;
  std::string cause;
};

void Check(Reading& ioReading, HRESULT iCode) {
  if (!FAILED(iCode)) return;
  ioReading.code = iCode;
  XML_StopParser(ioReading.parser, XML_FALSE);
}

std::size_t PlaceOf(const Reading& iReading) {
  return static_cast<std::size_t>(XML_GetCurrentByteIndex(iReading.parser));
}

// The length is 0 at the end of an element without content.
std::size_t LengthOf(const Reading& iReading) {
  return static_cast<std::size_t>(XML_GetCurrentByteCount(iReading.parser));
}

void XMLCALL OnStart(void* ioReading, const XML_Char* iName, const XML_Char** iAttributes) {
  Reading& reading = *static_cast<Reading*>(ioReading);
  if (FAILED(reading.code)) return;
  const std::size_t begin = PlaceOf(reading);
  // What an entity brings has the place of the reference to it.
  const bool isWritten = reading.text[begin] != '&';
  const VelSvgPlace place{begin, begin + LengthOf(reading), isWritten};
  Check(reading, reading.listener.OnStart(iName, VelSvgAttributes(iAttributes), place, reading.cause));
}

void XMLCALL OnEnd(void* ioReading, const XML_Char* /*iName*/) {
  Reading& reading = *static_cast<Reading*>(ioReading);
  if (!FAILED(reading.code)) reading.listener.OnEnd(PlaceOf(reading) + LengthOf(reading));
}

void XMLCALL OnText(void* ioReading, const XML_Char* /*iText*/, int iLength) {
  Reading& reading = *static_cast<Reading*>(ioReading);
  if (FAILED(reading.code)) return;
  Check(reading, reading.listener.OnText(static_cast<std::size_t>(iLength), reading.cause));
}

/// @return the letter that a byte stands for; -1 for a byte that stands for none by itself
int LetterOf(iconv_t iConverter, int iByte) {
  char byte = static_cast<char>(iByte);
  char* input = &byte;
  std::size_t inputLength = 1;
  std::uint32_t letter = 0;
  char* output = reinterpret_cast<char*>(&letter);
  std::size_t outputLength = sizeof letter;
  ::iconv(iConverter, nullptr, nullptr, nullptr, nullptr);
  const bool isWhole = ::iconv(iConverter, &input, &inputLength, &output, &outputLength) != std::size_t(-1);
  return isWhole && outputLength == 0 && letter <= 0xFFFF ? static_cast<int>(letter) : -1;
}

int XMLCALL OnUnknownEncoding(void* /*iUnused*/, const XML_Char* iName, XML_Encoding* oEncoding) {
  const iconv_t converter = ::iconv_open("UCS-4LE", iName);
  if (converter == iconv_t(-1)) return XML_STATUS_ERROR;
  for (int byte = 0; byte < 256; ++byte) oEncoding->map[byte] = LetterOf(converter, byte);
  ::iconv_close(converter);
  return XML_STATUS_OK;
}

std::string CauseOfFault(XML_Parser iParser) {
  return std::string("is no SVG file: line ") + std::to_string(XML_GetCurrentLineNumber(iParser)) + ", column " +
         std::to_string(XML_GetCurrentColumnNumber(iParser) + 1) + ": " + XML_ErrorString(XML_GetErrorCode(iParser));
}

}  // namespace

std::size_t VelSvgAttributes::Count() const noexcept {
  std::size_t count = 0;
  while (pairs_[2 * count] != nullptr) ++count;
  return count;
}

std::optional<std::string_view> VelSvgAttributes::Find(std::string_view iName) const noexcept {
  for (const char* const* pair = pairs_; *pair != nullptr; pair += 2) {
    if (iName == *pair) return pair[1];
  }
  return std::nullopt;
}

HRESULT VelSvgXml::Read(std::string_view iText, VelSvgXmlListener& ioListener, std::string& oCause) {
  const Parser parser(XML_ParserCreate(nullptr), &XML_ParserFree);
  if (parser == nullptr) {
    oCause = "needs more memory than there is";
    return E_FAIL;
  }
  Reading reading{parser.get(), iText, ioListener, S_OK, {}};
  XML_SetUserData(parser.get(), &reading);
  XML_SetElementHandler(parser.get(), &OnStart, &OnEnd);
  XML_SetCharacterDataHandler(parser.get(), &OnText);
  XML_SetUnknownEncodingHandler(parser.get(), &OnUnknownEncoding, nullptr);
  const auto status = XML_Parse(parser.get(), iText.data(), static_cast<int>(iText.size()), XML_TRUE);
  if (!FAILED(reading.code) && status == XML_STATUS_OK) return S_OK;
  const bool isRefused = FAILED(reading.code);
  oCause = isRefused ? reading.cause : CauseOfFault(parser.get());
  return isRefused ? reading.code : E_FAIL;
}
