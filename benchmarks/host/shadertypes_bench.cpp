// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file shadertypes_bench.cpp What it costs to read shader types from files, and to make shaders of the shipped ones.
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>
#include <string>

#include <benchmark/benchmark.h>
#include <stdlib.h>

#include "RenderingShader/VelRshModel.m/include/VelRshShaderManager.h"
#include "platform/configuration/VelRbaConfiguration.h"
#include "platform/featuremodeler/VelICatalogManager.h"
#include "platform/session/VelPlatformSession.h"
#include "platform/trace/VelTraceService.h"

namespace {

void Expect(bool iHolds) {
  if (!iHolds) std::abort();
}

/// A folder with copies of a shipped type of 30 parameters under names of their own; gone at the end.
class TypeFiles {
 public:
  explicit TypeFiles(std::int64_t iCount) {
    std::string path = (std::filesystem::temp_directory_path() / "velrsh-bench-XXXXXX").string();
    Expect(::mkdtemp(path.data()) != nullptr);
    folder_ = path;
    std::ostringstream text;
    text << std::ifstream(VEL_BENCH_SHADER_TYPES "/CustomShader.toml").rdbuf();
    const std::string shipped = text.str();
    const std::string word = "\"CustomShader\"";
    for (std::int64_t i = 0; i < iCount; ++i) {
      const std::string name = "Bench" + std::to_string(i);
      std::string own = shipped;
      own.replace(own.find(word), word.size(), '"' + name + '"');
      std::ofstream(folder_ / (name + ".toml")) << own;
    }
    ::setenv("VEL_SHADER_TYPES_PATH", folder_.c_str(), 1);
  }
  ~TypeFiles() {
    ::unsetenv("VEL_SHADER_TYPES_PATH");
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
  }
  TypeFiles(const TypeFiles&) = delete;
  TypeFiles& operator=(const TypeFiles&) = delete;

 private:
  std::filesystem::path folder_;
};

/// A session with the component, the host and the reader of files.
class Session {
 public:
  Session() {
    VelPlatformOptions options;
    for (const char* name : {"VelRshModel", "VelRshHost", "VelPlatformFiles"}) {
      options.dictionaries.push_back(std::string(VEL_BENCH_DICTIONARIES "/") + name + ".dictionary");
    }
    options.catalogs.emplace_back(VEL_BENCH_CATALOGS "/VelRmaCatalog.feat");
    Expect(SUCCEEDED(session_.Start(options)));
    // Below no material every parameter that is added is a warning.
    VelTraceService::SetSwitches("*=error");
  }

  static VelIContainer_var MakeContainer() {
    VelIContainer_var hContainer = VelIContainer::Create();
    Expect(SUCCEEDED(VelICatalogManager_var(hContainer)->LoadCatalog("VelRmaCatalog.feat")));
    return hContainer;
  }

  static std::int64_t Rescan() {
    VelListValVelString types;
    VelListValVelUnicodeString names;
    static_cast<void>(VelRshShaderManager::GetManager()->ListAvailableShaders(1, "", types, names));
    return types.Size();
  }

 private:
  VelPlatformSession session_;
};

/// From the start of a session to the list of all types: every file is read.
void ReadFiles(benchmark::State& ioState) {
  const TypeFiles files(ioState.range(0));
  for (auto _ : ioState) {
    const Session session;
    Expect(Session::Rescan() >= ioState.range(0));
  }
  ioState.SetItemsProcessed(ioState.iterations() * ioState.range(0));
}
BENCHMARK(ReadFiles)->Arg(1)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);

/// The list again, when no file has changed.
void RescanUnchanged(benchmark::State& ioState) {
  const TypeFiles files(ioState.range(0));
  const Session session;
  Expect(Session::Rescan() >= ioState.range(0));
  for (auto _ : ioState) benchmark::DoNotOptimize(Session::Rescan());
  ioState.SetItemsProcessed(ioState.iterations() * ioState.range(0));
}
BENCHMARK(RescanUnchanged)->Arg(1)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);

/// From the start of a session to the first answer of one type among many: its file alone is read.
void FirstLookUp(benchmark::State& ioState) {
  const TypeFiles files(ioState.range(0));
  for (auto _ : ioState) {
    const Session session;
    VelString tag;
    Expect(SUCCEEDED(VelRbaConfiguration::GetHierarchicalValue("Bench0", "dpi.Tag", tag)));
  }
}
BENCHMARK(FirstLookUp)->Arg(1)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);

/// A new shader of a shipped type.
void Create(benchmark::State& ioState, const char* iType) {
  const Session session;
  VelIContainer_var hContainer = Session::MakeContainer();
  int made = 0;
  for (auto _ : ioState) {
    VelIRshShader_var hShader;
    Expect(SUCCEEDED(VelRshShaderManager::GetManager()->CreateShader(hContainer, iType, hShader.Receive(), 0)));
    if (++made % 1000 != 0) continue;
    ioState.PauseTiming();
    hShader = nullptr;
    hContainer = Session::MakeContainer();
    ioState.ResumeTiming();
  }
}
BENCHMARK_CAPTURE(Create, BasicMaterial, "BasicMaterial")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Create, CarPaintG2, "CarPaintG2")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Create, CustomShader, "CustomShader")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Create, MpmSurface, "MPM_surface")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Create, mia_material, "mia_material")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Create, mia_phen_material, "mia_phen_material")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Create, vel_phen_bump, "vel_phen_bump")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Create, vel_phen_scalar, "vel_phen_scalar")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Create, vel_phen_texture, "vel_phen_texture")->Unit(benchmark::kMicrosecond);

}  // namespace
