// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file events_bench.cpp What it costs to emit an event and to ask whether anybody hears it.
#include <cstdint>
#include <cstdlib>
#include <vector>

#include <benchmark/benchmark.h>

#include "examples/first_component/interfaces/TIEVelIExColor.h"
#include "examples/first_component/module/VelExSwatchColor.h"
#include "examples/first_component/module/VelExSwatchReport.h"
#include "platform/events/VelCallbackManager.h"
#include "platform/objectmodeler/VelDictionary.h"
#include "platform/objectmodeler/VelObject.h"

// The classes of the example, linked in, serve as publishers and subscribers.
#define VEL_GRID_FILE "examples/first_component/module/VelExSwatch.def"
#include "platform/objectmodeler/VelBindingGrid.inl"

namespace {

constexpr VelEventName updated = "updated";
constexpr VelEventName unheard = "unheard";

std::int64_t received = 0;

void Receive(VelImplementation&, VelEventName, VelBaseUnknown*, VelNotification*) { ++received; }

const VelReceiverTable& Receivers() {
  static const VelReceiverRow rows[] = {{unheard, &Receive}, {updated, &Receive}};
  static const VelReceiverTable table(rows);
  return table;
}

VelIExColor_var MakeSwatch() {
  static const HRESULT declared = VelDictionary::Declare(velGridTable);
  if (FAILED(declared)) std::abort();
  return VelIExColor_var(VelObject::Create("VelExSwatch", "VelExSwatchObject"));
}

/// A publisher with subscribers to one event, each of another component.
struct Audience {
  explicit Audience(std::int64_t iCount) {
    for (std::int64_t i = 0; i < iCount; ++i) {
      subscribers.push_back(MakeSwatch());
      if (callbacks.AddCallback(updated, subscribers.back().Get(), Receivers()) != S_OK) std::abort();
    }
  }

  VelIExColor_var publisher = MakeSwatch();
  std::vector<VelIExColor_var> subscribers;
  VelCallbackManager callbacks;
};

/// The yardstick: the receiver called through its pointer.
void CallOfTheReceiver(benchmark::State& ioState) {
  Audience audience(1);
  auto& subscriber = static_cast<VelImplementation&>(*audience.subscribers[0]->GetImpl());
  VelReceiver receive = &Receive;
  benchmark::DoNotOptimize(receive);
  for (auto _ : ioState) receive(subscriber, updated, audience.publisher.Get(), nullptr);
}
BENCHMARK(CallOfTheReceiver);

void Emit(benchmark::State& ioState) {
  Audience audience(ioState.range(0));
  for (auto _ : ioState) audience.callbacks.Dispatch(updated, nullptr, audience.publisher.Get());
  ioState.SetItemsProcessed(ioState.iterations() * ioState.range(0));
}
BENCHMARK(Emit)->Arg(1)->Arg(20)->Arg(1000);

/// Nobody ever subscribed.
void EmitUnheardByAnybody(benchmark::State& ioState) {
  Audience audience(0);
  for (auto _ : ioState) {
    audience.callbacks.Dispatch(updated, nullptr, audience.publisher.Get());
    benchmark::ClobberMemory();
  }
}
BENCHMARK(EmitUnheardByAnybody);

/// The publisher has subscribers, but to another event.
void EmitOfAnotherEvent(benchmark::State& ioState) {
  Audience audience(ioState.range(0));
  for (auto _ : ioState) audience.callbacks.Dispatch(unheard, nullptr, audience.publisher.Get());
}
BENCHMARK(EmitOfAnotherEvent)->Arg(1)->Arg(20);

void HasSubscriber(benchmark::State& ioState) {
  const Audience audience(ioState.range(0));
  for (auto _ : ioState) {
    benchmark::DoNotOptimize(audience.callbacks.HasSubscriber(updated));
    benchmark::ClobberMemory();
  }
}
BENCHMARK(HasSubscriber)->Arg(0)->Arg(1)->Arg(20);

void HasSubscriberOfAnotherEvent(benchmark::State& ioState) {
  const Audience audience(ioState.range(0));
  for (auto _ : ioState) {
    benchmark::DoNotOptimize(audience.callbacks.HasSubscriber(unheard));
    benchmark::ClobberMemory();
  }
}
BENCHMARK(HasSubscriberOfAnotherEvent)->Arg(1)->Arg(20);

}  // namespace
