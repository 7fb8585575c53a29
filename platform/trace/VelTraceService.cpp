// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTraceService.cpp Hands settings to the registry and opens the files that the environment names.
#include "platform/trace/VelTraceService.h"

#include <cstdlib>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/base/VelEnvironment.h"
#include "platform/base/VelFormat.h"
#include "platform/base/VelString.h"
#include "platform/trace/VelTraceFile.h"
#include "platform/trace/VelTraceFileSink.h"
#include "platform/trace/VelTraceJsonSink.h"
#include "platform/trace/VelTraceRegistry.h"

namespace {

/// The sinks that the environment asks for.
struct EnvironmentSinks {
  std::unique_ptr<VelTraceFileSink> lines;
  std::unique_ptr<VelTraceJsonSink> json;
};

void FlushEnvironmentSinks();

/// Never destroyed, so that traces of the process's last moments still find their file.
EnvironmentSinks& GetEnvironmentSinks() {
  static EnvironmentSinks& sinks = []() -> EnvironmentSinks& {
    // Nobody else writes out these two when the process ends.
    static_cast<void>(std::atexit(FlushEnvironmentSinks));
    return *new EnvironmentSinks;
  }();
  return sinks;
}

void FlushEnvironmentSinks() {
  // Exit hooks that were registered before the files were opened run after this.
  VelTraceFile::WriteThrough();
  const EnvironmentSinks& sinks = GetEnvironmentSinks();
  if (sinks.lines != nullptr) sinks.lines->Flush();
  if (sinks.json != nullptr) sinks.json->Flush();
}

template <class Sink>
void CloseSink(std::unique_ptr<Sink>& ioSink) {
  if (ioSink == nullptr) return;
  VelTraceRegistry::Get().Sinks().Remove(*ioSink);
  ioSink.reset();
}

/// Replaces one sink by that of a variable, if the variable is set; by none, if it is set to nothing.
template <class Sink>
void OpenSink(const char* iVariable, std::unique_ptr<Sink>& ioSink) {
  VelString path;
  if (!VelEnvironment::Get(iVariable, path)) return;
  CloseSink(ioSink);
  if (path.IsEmpty()) return;
  auto sink = std::make_unique<Sink>();
  std::string cause;
  if (FAILED(sink->Open(path.CString(), cause))) {
    VelTraceRegistry::Get().EmitOwnWarning(
        VelFormat::ToText("The trace file \"%s\" of %s cannot be opened: %s", path, iVariable, cause));
    return;
  }
  ioSink = std::move(sink);
  VelTraceRegistry::Get().Sinks().Add(*ioSink);
}

}  // namespace

void VelTraceService::AddSink(VelTraceSink& ioSink) { VelTraceRegistry::Get().Sinks().Add(ioSink); }

void VelTraceService::RemoveSink(VelTraceSink& ioSink) noexcept { VelTraceRegistry::Get().Sinks().Remove(ioSink); }

VelTraceSink& VelTraceService::StandardErrorSink() noexcept { return VelTraceRegistry::Get().StandardErrorSink(); }

void VelTraceService::SetSwitches(std::string_view iSwitches) {
  std::vector<std::string> complaints;
  VelTraceRegistry::Get().SetSwitches(VelTraceSwitches::Parse(iSwitches, complaints));
  for (const std::string& complaint : complaints) VelTraceRegistry::Get().EmitOwnWarning(complaint);
}

void VelTraceService::ApplyEnvironment() {
  // Without any variable, too, the checks become traces from here on.
  static_cast<void>(VelTraceRegistry::Get());
  // The files first, so that what is wrong with the switches stands in them.
  OpenSink("VEL_TRACE_FILE", GetEnvironmentSinks().lines);
  OpenSink("VEL_TRACE_JSON", GetEnvironmentSinks().json);
  VelString switches;
  if (VelEnvironment::Get("VEL_TRACE", switches)) SetSwitches(switches);
}

void VelTraceService::Flush() noexcept { VelTraceRegistry::Get().Flush(); }

void VelTraceService::Reset() {
  VelTraceRegistry& registry = VelTraceRegistry::Get();
  CloseSink(GetEnvironmentSinks().lines);
  CloseSink(GetEnvironmentSinks().json);
  registry.Sinks().Clear();
  registry.Sinks().Add(registry.StandardErrorSink());
  registry.SetSwitches({});
  registry.SetAvailable(true);
}

void VelTraceService::SetAvailable(bool iAvailable) { VelTraceRegistry::Get().SetAvailable(iAvailable); }

bool VelTraceService::IsAvailable() noexcept { return VelTraceRegistry::Get().IsAvailable(); }

int VelTraceService::OpenChannelCount() noexcept { return VelTraceRegistry::OpenChannelCount(); }
