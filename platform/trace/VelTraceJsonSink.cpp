// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTraceJsonSink.cpp Writes each record as one JSON object.
#include "platform/trace/VelTraceJsonSink.h"

#include <string_view>

#include "platform/base/VelFormat.h"
#include "platform/base/VelUnicodeString.h"
#include "platform/trace/VelTraceLine.h"

namespace {

void AppendEscaped(std::string& ioJson, char iCharacter) {
  constexpr std::string_view hexDigits = "0123456789abcdef";
  switch (iCharacter) {
    case '"':
      ioJson += "\\\"";
      return;
    case '\\':
      ioJson += "\\\\";
      return;
    case '\n':
      ioJson += "\\n";
      return;
    case '\r':
      ioJson += "\\r";
      return;
    case '\t':
      ioJson += "\\t";
      return;
    default:
      break;
  }
  const auto code = static_cast<unsigned char>(iCharacter);
  if (code >= 0x20) {
    ioJson += iCharacter;
    return;
  }
  ioJson += "\\u00";
  ioJson += hexDigits[code >> 4U];
  ioJson += hexDigits[code & 0xFU];
}

/// @return the text between quotation marks, as well-formed UTF-8.
std::string Quoted(std::string_view iText) {
  VelUnicodeString text(iText);
  if (!text.IsWellFormed()) text = VelUnicodeString(text.ToUtf16());
  std::string json = "\"";
  for (const char character : text.View()) AppendEscaped(json, character);
  return json + '"';
}

}  // namespace

void VelTraceJsonSink::Write(const VelTraceRecord& iRecord) {
  std::string line = VelFormat::ToText(R"({"sequence":%u,"ticks":%d,"kind":"%s","channel":%s,"text":%s)",
                                       iRecord.sequence, iRecord.ticks, VelTraceLine::WordOf(iRecord.kind),
                                       Quoted(iRecord.channel), Quoted(iRecord.text));
  if (iRecord.kind == VelTraceKind::ClassTrace) line += VelFormat::ToText(R"(,"level":%d)", iRecord.classLevel);
  const std::string_view source = iRecord.position.source;
  if (!source.empty()) {
    line += VelFormat::ToText(R"(,"source":%s,"line":%u)", Quoted(source), iRecord.position.line);
  }
  file_.Write(line + "}\n");
}
