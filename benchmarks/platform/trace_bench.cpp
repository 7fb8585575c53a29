// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file trace_bench.cpp What a trace line costs that is switched off, and one that is on.
#include <benchmark/benchmark.h>

#include "platform/trace/QrnSysTrace.h"
#include "platform/trace/VelClassTrace.h"
#include "platform/trace/VelTraceService.h"
#include "platform/trace/VelTraceSink.h"

namespace {

/// A sink that drops what it gets.
class NoSink final : public VelTraceSink {
 public:
  void Write(const VelTraceRecord& iRecord) override { benchmark::DoNotOptimize(iRecord.text.data()); }
  void Flush() override {}
};

constinit VelClassTrace classTrace{"TraceBench"};

/// Opens a channel under given switches, with nothing but a sink that drops everything.
class BenchChannel {
 public:
  explicit BenchChannel(const char* iSwitches) : trace(QrnSysTraceCreate("TraceBench")) {
    VelTraceService::RemoveSink(VelTraceService::StandardErrorSink());
    VelTraceService::AddSink(sink_);
    VelTraceService::SetSwitches(iSwitches);
  }
  ~BenchChannel() {
    VelTraceService::RemoveSink(sink_);
    QrnSysTraceDestroy(trace);
    VelTraceService::Reset();
  }
  BenchChannel(const BenchChannel&) = delete;
  BenchChannel& operator=(const BenchChannel&) = delete;

  QrnSysTrace* trace;

 private:
  NoSink sink_;
};

/// The yardstick: a loop with nothing in it that the compiler could take out.
void EmptyLoop(benchmark::State& ioState) {
  int value = 0;
  for (auto _ : ioState) benchmark::DoNotOptimize(++value);
}
BENCHMARK(EmptyLoop);

void ChannelOff(benchmark::State& ioState) {
  const BenchChannel channel("*=off");
  int value = 0;
  for (auto _ : ioState) {
    channel.trace->Info("Value changed { name = %s, value = %d }", "base_color", value);
    benchmark::DoNotOptimize(++value);
  }
}
BENCHMARK(ChannelOff);

void ClassTraceOff(benchmark::State& ioState) {
  const BenchChannel channel("*=off");
  int value = 0;
  for (auto _ : ioState) {
    classTrace.Print(4, "(TraceBench::ClassTraceOff) value=%d\n", value);
    benchmark::DoNotOptimize(++value);
  }
}
BENCHMARK(ClassTraceOff);

void ChannelOn(benchmark::State& ioState) {
  const BenchChannel channel("*=info");
  int value = 0;
  for (auto _ : ioState) {
    channel.trace->Info("Value changed { name = %s, value = %d }", "base_color", value);
    benchmark::DoNotOptimize(++value);
  }
}
BENCHMARK(ChannelOn);

void ChannelCreateAndDestroy(benchmark::State& ioState) {
  const BenchChannel channel("*=off");
  for (auto _ : ioState) {
    QrnSysTrace* trace = QrnSysTraceCreate("TraceBench");
    benchmark::DoNotOptimize(trace);
    QrnSysTraceDestroy(trace);
  }
}
BENCHMARK(ChannelCreateAndDestroy);

}  // namespace
