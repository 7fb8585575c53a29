// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTraceRegistry.cpp Keeps each channel's bits in step with the switches, the scopes and the availability.
#include "platform/trace/VelTraceRegistry.h"

#include <utility>

#include "platform/base/VelCheck.h"
#include "platform/base/VelClock.h"
#include "platform/base/VelFormat.h"
#include "platform/trace/VelDiagnostics.h"

constinit int VelTraceRegistry::openChannels = 0;

VelTraceRegistry& VelTraceRegistry::Get() noexcept {
  static VelTraceRegistry& registry = *new VelTraceRegistry;
  return registry;
}

VelTraceRegistry::VelTraceRegistry() {
  sinks_.Add(standardErrorSink_);
  VelCheck::AddObserver(checkObserver_);
}

QrnSysTrace& VelTraceRegistry::Channel(std::string_view iName) {
  const auto known = channels_.find(iName);
  if (known != channels_.end()) return *known->second;
  std::unique_ptr<QrnSysTrace> channel(new QrnSysTrace(iName));
  ApplySwitch(*channel);
  return *channels_.emplace(iName, std::move(channel)).first->second;
}

QrnSysTrace* VelTraceRegistry::Open(std::string_view iName) {
  if (!available_) return nullptr;
  QrnSysTrace& channel = Channel(iName);
  ++channel.openCount_;
  ++openChannels;
  return &channel;
}

void VelTraceRegistry::Close(QrnSysTrace& ioChannel) noexcept {
  if (ioChannel.openCount_ == 0) {
    VelCheck::Failed(VEL_HERE("platform/trace/VelTraceRegistry"), "openCount_ > 0",
                     "A trace channel was destroyed more often than created", ioChannel.name_);
    return;
  }
  --ioChannel.openCount_;
  --openChannels;
}

void VelTraceRegistry::SetSwitches(VelTraceSwitches iSwitches) {
  switches_ = std::move(iSwitches);
  ApplyEverywhere();
}

void VelTraceRegistry::SetAvailable(bool iAvailable) {
  available_ = iAvailable;
  ApplyEverywhere();
}

void VelTraceRegistry::AddScope(VelDiagnostics& ioScope) {
  scopes_.push_back(&ioScope);
  ApplyEverywhere();
}

void VelTraceRegistry::RemoveScope(VelDiagnostics& ioScope) noexcept {
  std::erase(scopes_, &ioScope);
  ApplyEverywhere();
}

void VelTraceRegistry::AddMute() noexcept {
  if (mutes_++ == 0) ApplyEverywhere();
}

void VelTraceRegistry::RemoveMute() noexcept {
  if (--mutes_ == 0) ApplyEverywhere();
}

bool VelTraceRegistry::Emit(const QrnSysTrace& iChannel, VelTraceRecord iRecord) noexcept {
  if (mutes_ > 0) return false;
  try {
    iRecord.channel = iChannel.Name();
    return Deliver(iRecord, (iChannel.switched_ & QrnSysTrace::Bit(iRecord.kind)) != 0);
  } catch (...) {
    // A trace that cannot be kept is lost; what it tells about goes on.
    return false;
  }
}

void VelTraceRegistry::Emit(const QrnSysTrace& iChannel, VelTraceRecord iRecord, const char* iFormat,
                            std::span<const VelFormatArgument> iArguments) noexcept {
  try {
    const std::string text = VelFormat::ListToText(iFormat != nullptr ? iFormat : "", iArguments);
    iRecord.text = text;
    Emit(iChannel, iRecord);
  } catch (...) {
    // As above.
  }
}

void VelTraceRegistry::EmitOwnWarning(std::string_view iText) {
  VelTraceRecord record;
  record.kind = VelTraceKind::Warning;
  record.channel = "VelTrace";
  record.text = iText;
  Deliver(record, available_);
}

void VelTraceRegistry::Flush() noexcept {
  sinks_.ForEach([](VelTraceSink& ioSink) { ioSink.Flush(); });
}

bool VelTraceRegistry::Deliver(VelTraceRecord& ioRecord, bool iToSinks) {
  ioRecord.ticks = VelClock::Now();
  ioRecord.sequence = ++sequence_;
  if (ioRecord.kind == VelTraceKind::Warning || ioRecord.kind == VelTraceKind::Error) {
    for (VelDiagnostics* const scope : scopes_) scope->Collect(ioRecord);
  }
  return iToSinks && sinks_.ForEach([&](VelTraceSink& ioSink) { ioSink.Write(ioRecord); });
}

void VelTraceRegistry::ApplySwitch(QrnSysTrace& ioChannel) const noexcept {
  constexpr unsigned errorBit = QrnSysTrace::Bit(VelTraceKind::Error);
  constexpr unsigned warningBit = QrnSysTrace::Bit(VelTraceKind::Warning);
  const bool isHeard = available_ && mutes_ == 0;
  const int level = isHeard ? switches_.LevelOf(ioChannel.name_) : VelTraceLevel::off;
  unsigned bits = 0;
  if (level >= VelTraceLevel::error) bits |= errorBit;
  if (level >= VelTraceLevel::warning) bits |= warningBit;
  if (level >= VelTraceLevel::info) bits |= QrnSysTrace::Bit(VelTraceKind::Information);
  if (level > VelTraceLevel::info) bits |= QrnSysTrace::Bit(VelTraceKind::ClassTrace);
  ioChannel.switched_ = static_cast<std::uint8_t>(bits);
  if (isHeard && !scopes_.empty()) bits |= errorBit | warningBit;
  ioChannel.accepted_ = static_cast<std::uint8_t>(bits);
  ioChannel.classLevel_ = static_cast<std::uint8_t>(level > VelTraceLevel::info ? level - VelTraceLevel::info : 0);
}

void VelTraceRegistry::ApplyEverywhere() noexcept {
  for (const auto& [name, channel] : channels_) ApplySwitch(*channel);
  // Traces that are out of service leave the checks to whoever else observes them, or to the standard error stream.
  if (available_ || !scopes_.empty()) {
    VelCheck::AddObserver(checkObserver_);
  } else {
    VelCheck::RemoveObserver(checkObserver_);
  }
}
