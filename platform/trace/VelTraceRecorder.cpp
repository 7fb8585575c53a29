// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTraceRecorder.cpp Copies records and picks their texts.
#include "platform/trace/VelTraceRecorder.h"

namespace {

template <class Wanted>
std::vector<std::string> TextsOf(const std::vector<VelTraceRecorder::Entry>& iEntries, Wanted iWanted) {
  std::vector<std::string> texts;
  for (const VelTraceRecorder::Entry& entry : iEntries) {
    if (iWanted(entry)) texts.push_back(entry.text);
  }
  return texts;
}

}  // namespace

void VelTraceRecorder::Write(const VelTraceRecord& iRecord) {
  entries_.push_back({iRecord.kind, iRecord.classLevel, std::string(iRecord.channel), std::string(iRecord.text),
                      std::string(iRecord.position.source), iRecord.position.line, iRecord.ticks, iRecord.sequence});
}

std::vector<std::string> VelTraceRecorder::Texts() const {
  return TextsOf(entries_, [](const Entry&) { return true; });
}

std::vector<std::string> VelTraceRecorder::Texts(std::string_view iChannel) const {
  return TextsOf(entries_, [&](const Entry& iEntry) { return iEntry.channel == iChannel; });
}

std::vector<std::string> VelTraceRecorder::Texts(VelTraceKind iKind) const {
  return TextsOf(entries_, [&](const Entry& iEntry) { return iEntry.kind == iKind; });
}

std::vector<std::string> VelTraceRecorder::Texts(std::string_view iChannel, VelTraceKind iKind) const {
  return TextsOf(entries_, [&](const Entry& iEntry) { return iEntry.channel == iChannel && iEntry.kind == iKind; });
}

void VelTraceRecorder::Clear() noexcept {
  entries_.clear();
  flushCount_ = 0;
}
