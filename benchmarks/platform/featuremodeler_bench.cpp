// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file featuremodeler_bench.cpp What features cost: making one, its memory, and reading and writing its attributes.
#include <malloc.h>

#include <cstdint>
#include <cstdlib>

#include <benchmark/benchmark.h>

#include "platform/featuremodeler/FindStartUp.h"
#include "platform/featuremodeler/VelCatalog.h"
#include "platform/featuremodeler/VelICatalogManager.h"
#include "platform/featuremodeler/VelISpecAttrAccess.h"
#include "platform/featuremodeler/VelISpecObject.h"

namespace {

const VelISpecAttrKey* const valueKey = &VelISpecAttrKey::Of("Value", VelSpecAttrKind::Real);
const VelISpecAttrKey* const nameKey = &VelISpecAttrKey::Of("Name", VelSpecAttrKind::Text);

/// A container that knows the catalog, and the start-up of scalar parameters.
struct Scene {
  Scene() {
    VelCatalog::SetFolders({VEL_BENCH_CATALOGS});
    if (FAILED(VelICatalogManager_var(hContainer)->LoadCatalog("VelRmaCatalog.feat"))) std::abort();
    VelBaseUnknown_var hFound;
    if (FAILED(FindStartUp("VelISpecObject", "", "VelRmaScalar", *hContainer, hFound.Receive()))) std::abort();
    hStartUp = VelISpecObject_var(hFound);
  }

  /// A scalar parameter with its name, as a shader adds it.
  VelISpecAttrAccess_var MakeParameter() const {
    VelBaseUnknown_var hMade;
    if (FAILED(hStartUp->Instanciate("scale_u", hContainer.Get(), IID_VelISpecAttrAccess, hMade.Receive())))
      std::abort();
    VelISpecAttrAccess_var hAccess = VelISpecAttrAccess_var::Adopt(static_cast<VelISpecAttrAccess*>(hMade.Detach()));
    if (FAILED(hAccess->SetText(nameKey, "scale_u"))) std::abort();
    return hAccess;
  }

  VelIContainer_var hContainer = VelIContainer::Create();
  VelISpecObject_var hStartUp;
};

/// The bytes that are allocated, large blocks included.
double AllocatedBytes() {
  const struct mallinfo2 figures = ::mallinfo2();
  return static_cast<double>(figures.uordblks) + static_cast<double>(figures.hblkhd);
}

/// Time and memory of a parameter that nobody asks anything: with its feature name and its name.
void InstantiateParameters(benchmark::State& ioState) {
  double bytes = 0;
  for (auto _ : ioState) {
    ioState.PauseTiming();
    {
      const Scene scene;
      const double before = AllocatedBytes();
      ioState.ResumeTiming();
      for (std::int64_t i = 0; i < ioState.range(0); ++i) benchmark::DoNotOptimize(scene.MakeParameter());
      ioState.PauseTiming();
      bytes = AllocatedBytes() - before;
    }
    ioState.ResumeTiming();
  }
  ioState.SetItemsProcessed(ioState.iterations() * ioState.range(0));
  ioState.counters["bytes/feature"] = bytes / static_cast<double>(ioState.range(0));
}
BENCHMARK(InstantiateParameters)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMicrosecond);

void TestKey(benchmark::State& ioState) {
  const Scene scene;
  const VelISpecAttrAccess_var hAccess = scene.MakeParameter();
  for (auto _ : ioState) benchmark::DoNotOptimize(hAccess->TestAttrKey(valueKey));
}
BENCHMARK(TestKey);

void ReadReal(benchmark::State& ioState) {
  const Scene scene;
  const VelISpecAttrAccess_var hAccess = scene.MakeParameter();
  if (FAILED(hAccess->SetReal(valueKey, 0.5))) std::abort();
  double value = 0;
  for (auto _ : ioState) {
    benchmark::DoNotOptimize(hAccess->GetReal(valueKey, value));
    benchmark::DoNotOptimize(value);
  }
}
BENCHMARK(ReadReal);

void WriteReal(benchmark::State& ioState) {
  const Scene scene;
  const VelISpecAttrAccess_var hAccess = scene.MakeParameter();
  double value = 0;
  for (auto _ : ioState) benchmark::DoNotOptimize(hAccess->SetReal(valueKey, value += 1.0));
}
BENCHMARK(WriteReal);

/// The query for the attributes included, as a caller that holds another interface pays it.
void QueryAndReadReal(benchmark::State& ioState) {
  const Scene scene;
  const VelISpecAttrAccess_var hAccess = scene.MakeParameter();
  if (FAILED(hAccess->SetReal(valueKey, 0.5))) std::abort();
  const VelISpecObject_var hObject(hAccess);
  double value = 0;
  for (auto _ : ioState) {
    const VelISpecAttrAccess_var hAgain(hObject);
    benchmark::DoNotOptimize(hAgain->GetReal(valueKey, value));
    benchmark::DoNotOptimize(value);
  }
}
BENCHMARK(QueryAndReadReal);

void WriteText(benchmark::State& ioState) {
  const Scene scene;
  const VelISpecAttrAccess_var hAccess = scene.MakeParameter();
  const VelUnicodeString first("scale_u");
  const VelUnicodeString second("scale_v");
  bool turn = false;
  for (auto _ : ioState) {
    turn = !turn;
    benchmark::DoNotOptimize(hAccess->SetText(nameKey, turn ? first : second));
  }
}
BENCHMARK(WriteText);

}  // namespace
