// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file management_bench.cpp What it costs to create, copy and upgrade shaders, to plan upgrades, and to list types.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

#include <benchmark/benchmark.h>

#include "RenderingShader/VelRshModel.m/include/VelRshFeatureModelerCopier.h"
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterCollection.h"
#include "RenderingShader/VelRshModel.m/include/VelRshShaderManager.h"
#include "RenderingShader/interfaces/TIEVelIRmaShaderFactory.h"
#include "platform/featuremodeler/VelCatalog.h"
#include "platform/objectmodeler/VelDictionary.h"
#include "platform/objectmodeler/VelImplementation.h"
#include "platform/trace/VelTraceService.h"

namespace {

constexpr int parameterCount = 20;
constexpr int connectedCount = 10;  ///< Of the parameters, how many have a shader connected at most.

/// What the factory has; one for the process.
struct Definition {
  std::int64_t typeCount = 1;
  std::uint32_t version = 1;
};
Definition definition;

void Expect(HRESULT iCode) {
  if (FAILED(iCode)) std::abort();
}

/// As material types have them: mostly numbers, some colors and switches.
const char* StartUpOf(int iParameter) {
  constexpr const char* startUps[] = {"VelRmaScalar", "VelRmaColor", "VelRmaScalar", "VelRmaBoolean", "VelRmaInteger"};
  return startUps[iParameter % 5];
}

void SetDefault(const VelIRshParameter_var& ioParameter, int iParameter) {
  const float reals[] = {0.5F, 0.25F, 0.125F, 1.0F};
  const bool boolean = false;
  const std::int32_t integer = iParameter;
  if (iParameter % 5 == 1) return Expect(ioParameter->SetValue(reals));
  if (iParameter % 5 == 3) return Expect(ioParameter->SetValue(&boolean));
  if (iParameter % 5 == 4) return Expect(ioParameter->SetValue(&integer));
  Expect(ioParameter->SetValue(&reals[0]));
}

}  // namespace

/// As many types as are measured, each of twenty parameters.
class VelBenchFactory final : public VelImplementation {
 public:
  using VelImplementation::VelImplementation;
  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  static HRESULT ListShaderTypes(VelListValVelString& oTypes) {
    for (std::int64_t i = 0; i < definition.typeCount; ++i) {
      oTypes.Append(VelString(std::string_view("BenchShader" + std::to_string(i))));
    }
    return S_OK;
  }
  static HRESULT GetOutputType(const VelString&, VelString& oOutputType) {
    oOutputType = "VelRmaColor";
    return S_OK;
  }
  static HRESULT GetDisplayName(const VelString& iType, VelUnicodeString& oName) {
    oName = VelUnicodeString(iType);
    return S_OK;
  }
  static HRESULT GetUsageFlags(const VelString&, std::uint32_t& oFlags) {
    oFlags = 0;
    return S_OK;
  }
  static HRESULT GetVersion(const VelString&, std::uint32_t& oVersion) {
    oVersion = definition.version;
    return S_OK;
  }
  static HRESULT InitializeShader(VelIRshShader* ioShader, unsigned char) {
    VEL_RETURN_IF_FAILED(ioShader->SetVersion(definition.version));
    for (int i = 0; i < parameterCount; ++i) {
      VelIRshParameter_var hParameter;
      const VelString name(std::string_view("parameter" + std::to_string(i)));
      VEL_RETURN_IF_FAILED(ioShader->AddParameter(name, StartUpOf(i), hParameter.Receive()));
      SetDefault(hParameter, i);
    }
    return S_OK;
  }
};

#define VEL_GRID_FILE "benchmarks/RenderingShader/fixtures/VelBenchFactory.def"
#include "platform/objectmodeler/VelBindingGrid.inl"

namespace {

/// A manager that knows so many types, in a process without any other factory.
struct Scene {
  explicit Scene(std::int64_t iTypeCount = 1) {
    // Without a rendering material each write would be a warning, and printing it what is measured.
    VelTraceService::SetSwitches("*=error");
    VelCatalog::SetFolders({VEL_BENCH_CATALOGS});
    Expect(VelDictionary::LoadFile(VEL_BENCH_DICTIONARY));
    Expect(VelDictionary::Declare(velGridTable));
    definition = {iTypeCount, 1};
    VelRshShaderManager::CleanUp(0);
  }

  VelIRshShader_var Create() const {
    VelIRshShader_var hShader;
    Expect(Manager().CreateShader(hContainer, "BenchShader0", hShader.Receive(), 0));
    return hShader;
  }

  /// Makes a tree: each shader but the root is a node of another one, and connected to one of its parameters.
  void MakeTree(std::int64_t iShaders) {
    shaders.push_back(Create());
    for (std::int64_t i = 1; i < iShaders; ++i) {
      const VelIRshShader_var& hAbove = shaders[static_cast<std::size_t>((i - 1) / connectedCount)];
      const VelIRshShader_var hShader = Create();
      Expect(hAbove->AddNode(hShader.Get()));
      const auto place = static_cast<std::size_t>((i - 1) % connectedCount);
      Expect(VelRshReaderParameterCollection()(*hAbove)[place]->SetConnection(hShader.Get()));
      shaders.push_back(hShader);
    }
  }

  static VelRshShaderManager& Manager() { return *VelRshShaderManager::GetManager(); }

  VelIContainer_var hContainer = VelIContainer::Create();
  std::vector<VelIRshShader_var> shaders;
};

/// Reports what one parameter of so many shaders costs.
void CountParameters(benchmark::State& ioState, std::int64_t iShaders) {
  ioState.counters["per_parameter"] =
      benchmark::Counter(static_cast<double>(iShaders) * parameterCount,
                         benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

/// Shaders of one type of twenty parameters are created, in a container that is replaced from time to time.
void CreateShader(benchmark::State& ioState) {
  Scene scene;
  int created = 0;
  for (auto _ : ioState) {
    benchmark::DoNotOptimize(scene.Create());
    if (++created % 1000 != 0) continue;
    ioState.PauseTiming();
    scene.hContainer = VelIContainer::Create();
    ioState.ResumeTiming();
  }
  CountParameters(ioState, 1);
}
BENCHMARK(CreateShader);

/// So many shaders in a tree of nodes are copied by the manager, with their connections.
void CopyTree(benchmark::State& ioState) {
  Scene scene;
  scene.MakeTree(ioState.range(0));
  for (auto _ : ioState) {
    const VelIContainer_var hTarget = VelIContainer::Create();
    VelIRshShader_var hCopy;
    Expect(scene.Manager().CreateShaderCopy(hTarget, scene.shaders[0].Get(), hCopy.Receive()));
    ioState.PauseTiming();
    if (hTarget->CountFeatures() != ioState.range(0) * (parameterCount + 1)) std::abort();
    { const VelIRshShader_var hGone = std::move(hCopy); }
    ioState.ResumeTiming();
  }
  CountParameters(ioState, ioState.range(0));
}
BENCHMARK(CopyTree)->Arg(10)->Arg(100)->Arg(1000)->Unit(benchmark::kMicrosecond);

/// The same by the copier of whole graphs.
void CopyGraph(benchmark::State& ioState) {
  Scene scene;
  scene.MakeTree(ioState.range(0));
  for (auto _ : ioState) {
    const VelIContainer_var hTarget = VelIContainer::Create();
    const VelIRshShader_var hCopy = VelRshFeatureModelerCopier(*hTarget).Copy(scene.shaders[0]);
    if (!hCopy) std::abort();
    ioState.PauseTiming();
    if (hTarget->CountFeatures() != ioState.range(0) * (parameterCount + 1)) std::abort();
    ioState.ResumeTiming();
  }
  CountParameters(ioState, ioState.range(0));
}
BENCHMARK(CopyGraph)->Arg(10)->Arg(100)->Arg(1000)->Unit(benchmark::kMicrosecond);

/// So many shaders are upgraded one after the other, all values and connections kept.
void UpgradeTree(benchmark::State& ioState) {
  Scene scene;
  scene.MakeTree(ioState.range(0));
  for (auto _ : ioState) {
    ++definition.version;
    for (const VelIRshShader_var& hShader : scene.shaders) Expect(scene.Manager().UpgradeShader(hShader.Get()));
  }
  CountParameters(ioState, ioState.range(0));
}
BENCHMARK(UpgradeTree)->Arg(10)->Arg(100)->Arg(1000)->Unit(benchmark::kMicrosecond);

/// The same without nodes and connections; each shader's upgrade copies those below it for a while.
void UpgradeApart(benchmark::State& ioState) {
  Scene scene;
  for (std::int64_t i = 0; i < ioState.range(0); ++i) scene.shaders.push_back(scene.Create());
  for (auto _ : ioState) {
    ++definition.version;
    for (const VelIRshShader_var& hShader : scene.shaders) Expect(scene.Manager().UpgradeShader(hShader.Get()));
  }
  CountParameters(ioState, ioState.range(0));
}
BENCHMARK(UpgradeApart)->Arg(10)->Arg(100)->Arg(1000)->Unit(benchmark::kMicrosecond);

/// The upgrades of so many shaders are told, and none is made.
void PlanAll(benchmark::State& ioState, const Scene& iScene) {
  ++definition.version;
  for (auto _ : ioState) {
    for (const VelIRshShader_var& hShader : iScene.shaders) {
      VelRshUpgradePlan plan;
      Expect(iScene.Manager().PlanUpgrade(hShader.Get(), plan));
      if (plan.rows.size() < parameterCount) std::abort();
    }
  }
  CountParameters(ioState, ioState.range(0));
}

/// As UpgradeTree; the shaders below each one are stood in for.
void PlanTree(benchmark::State& ioState) {
  Scene scene;
  scene.MakeTree(ioState.range(0));
  PlanAll(ioState, scene);
}
BENCHMARK(PlanTree)->Arg(10)->Arg(100)->Arg(1000)->Unit(benchmark::kMicrosecond);

/// As UpgradeApart.
void PlanApart(benchmark::State& ioState) {
  Scene scene;
  for (std::int64_t i = 0; i < ioState.range(0); ++i) scene.shaders.push_back(scene.Create());
  PlanAll(ioState, scene);
}
BENCHMARK(PlanApart)->Arg(10)->Arg(100)->Arg(1000)->Unit(benchmark::kMicrosecond);

/// So many types are listed over and over.
void ListTypes(benchmark::State& ioState) {
  const Scene scene(ioState.range(0));
  for (auto _ : ioState) {
    VelListValVelString types;
    VelListValVelUnicodeString names;
    Expect(scene.Manager().ListAvailableShaders(0, "", types, names));
    if (types.Size() != ioState.range(0)) std::abort();
  }
}
BENCHMARK(ListTypes)->Arg(10)->Arg(100)->Arg(1000)->Unit(benchmark::kMicrosecond);

/// The same with the factories asked anew each time, as for the usage 1.
void RescanTypes(benchmark::State& ioState) {
  const Scene scene(ioState.range(0));
  for (auto _ : ioState) {
    VelListValVelString types;
    VelListValVelUnicodeString names;
    Expect(scene.Manager().ListAvailableShaders(1, "", types, names));
    if (types.Size() != ioState.range(0)) std::abort();
  }
}
BENCHMARK(RescanTypes)->Arg(10)->Arg(100)->Arg(1000)->Unit(benchmark::kMicrosecond);

}  // namespace
