// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file objectmodeler_bench.cpp What a query, a call through a forwarder and a copy of a handle cost.
#include <cstdint>
#include <cstdlib>
#include <vector>

#include <benchmark/benchmark.h>

#include "examples/first_component/interfaces/TIEVelIExColor.h"
#include "examples/first_component/module/VelExSwatchColor.h"
#include "examples/first_component/module/VelExSwatchReport.h"
#include "platform/objectmodeler/VelBaseUnknown_WR.h"
#include "platform/objectmodeler/VelDictionary.h"
#include "platform/objectmodeler/VelObject.h"

// The classes of the example, linked in: opening a library is no part of what is measured.
#define VEL_GRID_FILE "examples/first_component/module/VelExSwatch.def"
#include "platform/objectmodeler/VelBindingGrid.inl"

namespace {

const VelInterfaceId absentInterface{"VelIExAbsent", IID_VelBaseUnknown};

VelBaseUnknown_var MakeSwatch() {
  static const HRESULT declared = VelDictionary::Declare(velGridTable);
  if (FAILED(declared)) std::abort();
  return VelObject::Create("VelExSwatch", "VelExSwatchObject");
}

/// The yardstick: a virtual call that adds a reference and one that drops it.
void AddRefAndRelease(benchmark::State& ioState) {
  const VelBaseUnknown_var hSwatch = MakeSwatch();
  for (auto _ : ioState) {
    benchmark::DoNotOptimize(hSwatch->AddRef());
    benchmark::DoNotOptimize(hSwatch->Release());
  }
}
BENCHMARK(AddRefAndRelease);

void QueryHeldBefore(benchmark::State& ioState) {
  const VelBaseUnknown_var hSwatch = MakeSwatch();
  const VelIExColor_var hHeld(hSwatch);
  for (auto _ : ioState) {
    VelBaseUnknown* answer = nullptr;
    benchmark::DoNotOptimize(hSwatch->QueryInterface(IID_VelIExColor, &answer));
    answer->Release();
  }
}
BENCHMARK(QueryHeldBefore);

void QueryHeldBeforeThroughAForwarder(benchmark::State& ioState) {
  const VelBaseUnknown_var hSwatch = MakeSwatch();
  const VelIExColor_var hHeld(hSwatch);
  for (auto _ : ioState) {
    VelBaseUnknown* answer = nullptr;
    benchmark::DoNotOptimize(hHeld->QueryInterface(IID_VelIExColor, &answer));
    answer->Release();
  }
}
BENCHMARK(QueryHeldBeforeThroughAForwarder);

/// The query without the release: per item, over answers that are released while the clock stands.
void QueryHeldBeforeAlone(benchmark::State& ioState) {
  const VelBaseUnknown_var hSwatch = MakeSwatch();
  const VelIExColor_var hHeld(hSwatch);
  std::vector<VelBaseUnknown*> answers(512);
  for (auto _ : ioState) {
    for (VelBaseUnknown*& answer : answers) {
      benchmark::DoNotOptimize(hSwatch->QueryInterface(IID_VelIExColor, &answer));
    }
    ioState.PauseTiming();
    for (VelBaseUnknown* answer : answers) answer->Release();
    ioState.ResumeTiming();
  }
  ioState.SetItemsProcessed(ioState.iterations() * static_cast<std::int64_t>(answers.size()));
}
BENCHMARK(QueryHeldBeforeAlone);

/// The first query of a fresh component: it builds the implementation. Making and ending the component is timed apart.
void QueryFirst(benchmark::State& ioState) {
  for (auto _ : ioState) {
    const VelBaseUnknown_var hSwatch = MakeSwatch();
    benchmark::DoNotOptimize(VelIExColor_var(hSwatch));
  }
}
BENCHMARK(QueryFirst);

void ComponentWithoutAQuery(benchmark::State& ioState) {
  for (auto _ : ioState) benchmark::DoNotOptimize(MakeSwatch());
}
BENCHMARK(ComponentWithoutAQuery);

void QueryAbsent(benchmark::State& ioState) {
  const VelBaseUnknown_var hSwatch = MakeSwatch();
  for (auto _ : ioState) {
    VelBaseUnknown* answer = nullptr;
    benchmark::DoNotOptimize(hSwatch->QueryInterface(absentInterface, &answer));
    benchmark::DoNotOptimize(answer);
  }
}
BENCHMARK(QueryAbsent);

void QueryByName(benchmark::State& ioState) {
  const VelBaseUnknown_var hSwatch = MakeSwatch();
  const VelIExColor_var hHeld(hSwatch);
  for (auto _ : ioState) {
    VelBaseUnknown* answer = nullptr;
    benchmark::DoNotOptimize(hSwatch->QueryInterfaceByName("VelIExColor", &answer));
    answer->Release();
  }
}
BENCHMARK(QueryByName);

void QueryOfADelegatingExtension(benchmark::State& ioState) {
  const VelBaseUnknown_var hSwatch = MakeSwatch();
  for (auto _ : ioState) benchmark::DoNotOptimize(VelIExReport_var(hSwatch));
}
BENCHMARK(QueryOfADelegatingExtension);

void HandleCopy(benchmark::State& ioState) {
  const VelIExColor_var hColor{VelIExColor_var(MakeSwatch())};
  for (auto _ : ioState) {
    const VelIExColor_var hCopy = hColor;
    benchmark::DoNotOptimize(hCopy.Get());
  }
}
BENCHMARK(HandleCopy);

void CallThroughAForwarder(benchmark::State& ioState) {
  const VelIExColor_var hColor{VelIExColor_var(MakeSwatch())};
  if (FAILED(hColor->SetColor({0.5F, 0.25F, 0.75F}))) std::abort();
  VelExRgb color{};
  for (auto _ : ioState) {
    benchmark::DoNotOptimize(hColor->GetColor(color));
    benchmark::DoNotOptimize(color);
  }
}
BENCHMARK(CallThroughAForwarder);

void WeakReferenceResolved(benchmark::State& ioState) {
  const VelBaseUnknown_var hSwatch = MakeSwatch();
  const VelBaseUnknown_WR weak(hSwatch.Get());
  for (auto _ : ioState) {
    VelIExColor_var hColor;
    benchmark::DoNotOptimize(weak.Query(hColor.Receive()));
  }
}
BENCHMARK(WeakReferenceResolved);

void QueryOverManyComponents(benchmark::State& ioState) {
  std::vector<VelBaseUnknown_var> swatches;
  for (std::int64_t i = 0; i < ioState.range(0); ++i) {
    swatches.push_back(MakeSwatch());
    benchmark::DoNotOptimize(VelIExColor_var(swatches.back()));
  }
  for (auto _ : ioState) {
    for (const VelBaseUnknown_var& hSwatch : swatches) benchmark::DoNotOptimize(VelIExColor_var(hSwatch));
  }
  ioState.SetItemsProcessed(ioState.iterations() * ioState.range(0));
}
BENCHMARK(QueryOverManyComponents)->Arg(1000)->Arg(10000)->Arg(100000);

}  // namespace
