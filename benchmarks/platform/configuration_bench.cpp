// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file configuration_bench.cpp What a look-up in the configurations costs, and loading a thousand keys.
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <string>

#include <benchmark/benchmark.h>

#include "platform/configuration/VelRbaConfiguration.h"
#if defined(VEL_BENCH_DICTIONARY)
#include "platform/objectmodeler/VelDictionary.h"
#endif

namespace {

constexpr const char* presentKey = "base_color.Tag";
constexpr const char* missingKey = "missing.Tag";

VelString NameOf(int iLevel) { return VelString("Level" + std::to_string(iLevel)); }

/// Fills a hierarchy whose top alone has the key, a hundred other keys on each level.
void Fill(int iLevels) {
  constexpr int otherKeys = 100;
  VelRbaConfiguration::Clear();
  for (int level = 0; level < iLevels; ++level) {
    if (level + 1 < iLevels) static_cast<void>(VelRbaConfiguration::SetParent(NameOf(level), NameOf(level + 1)));
    for (int i = 0; i < otherKeys; ++i) {
      const VelString other("parameter_" + std::to_string(i) + ".Tag");
      static_cast<void>(VelRbaConfiguration::SetValue(NameOf(level), other, "mapping"));
    }
  }
  static_cast<void>(VelRbaConfiguration::SetValue(NameOf(iLevels - 1), presentKey, "mapping"));
}

void LookUp(const VelString& iConfiguration, const VelString& iKey, VelString& oValue) {
  HRESULT result = VelRbaConfiguration::GetHierarchicalValue(iConfiguration, iKey, oValue);
  benchmark::DoNotOptimize(result);
  benchmark::DoNotOptimize(oValue.View().data());
}

void HeldLookUp(benchmark::State& ioState, const char* iKey) {
  Fill(static_cast<int>(ioState.range(0)));
  const VelString lowest = NameOf(0);
  const VelString key = iKey;
  VelString value;
  for (auto _ : ioState) LookUp(lowest, key, value);
}
BENCHMARK_CAPTURE(HeldLookUp, Found, presentKey)->Arg(1)->Arg(3)->Arg(10);
BENCHMARK_CAPTURE(HeldLookUp, Missing, missingKey)->Arg(3);

void Change(int iTurn) { static_cast<void>(VelRbaConfiguration::SetValue("Other", "key", iTurn % 2 == 0 ? "1" : "2")); }

/// Each look-up after a change, whose own cost is that of ChangeAlone.
void FirstLookUp(benchmark::State& ioState, const char* iKey) {
  Fill(static_cast<int>(ioState.range(0)));
  const VelString lowest = NameOf(0);
  const VelString key = iKey;
  VelString value;
  int turn = 0;
  for (auto _ : ioState) {
    Change(++turn);
    LookUp(lowest, key, value);
  }
}
BENCHMARK_CAPTURE(FirstLookUp, Found, presentKey)->Arg(1)->Arg(3)->Arg(10);
BENCHMARK_CAPTURE(FirstLookUp, Missing, missingKey)->Arg(1)->Arg(3)->Arg(10);

void ChangeAlone(benchmark::State& ioState) {
  Fill(1);
  int turn = 0;
  for (auto _ : ioState) Change(++turn);
}
BENCHMARK(ChangeAlone);

#if defined(VEL_BENCH_DICTIONARY)
/// Reads, checks, parses and enters a file of a thousand keys in twenty configurations.
void LoadThousandKeys(benchmark::State& ioState) {
  constexpr int configurations = 20;
  constexpr int keys = 50;
  const auto path = std::filesystem::temp_directory_path() / "velrsh_configuration_bench.toml";
  {
    std::ofstream file(path);
    for (int i = 0; i < configurations; ++i) {
      file << "[Shader" << i << "]\nparent = \"Shader" << i + 1 << "\"\n";
      for (int k = 0; k < keys; ++k) file << "parameter_" << k << ".Tag = \"mapping,slot" << k << "\"\n";
    }
  }
  static_cast<void>(VelDictionary::LoadFile(VEL_BENCH_DICTIONARY));
  for (auto _ : ioState) {
    VelRbaConfiguration::Clear();
    if (FAILED(VelRbaConfiguration::LoadFile(path.string()))) ioState.SkipWithError("the file is not loaded");
  }
  ioState.SetItemsProcessed(ioState.iterations() * configurations * keys);
  std::filesystem::remove(path);
}
BENCHMARK(LoadThousandKeys)->Unit(benchmark::kMillisecond);
#endif

}  // namespace
