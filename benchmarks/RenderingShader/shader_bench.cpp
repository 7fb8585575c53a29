// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file shader_bench.cpp What an edit of a shader costs: writing, reading, connecting, and a parameter that is alive.
#include <malloc.h>

#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "RenderingShader/VelRshModel.m/include/VelRshModelFactoryFeature.h"
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterCollection.h"
#include "RenderingShader/interfaces/VelIRshParameterPrivate.h"
#include "platform/configuration/VelRbaConfiguration.h"
#include "platform/featuremodeler/VelCatalog.h"
#include "platform/featuremodeler/VelISpecObject.h"
#include "platform/objectmodeler/VelDictionary.h"
#include "platform/trace/VelTraceService.h"
#include "platform/viewer/VelIRmaVisuTextureCoordinateTransformation.h"

namespace {

void Expect(HRESULT iCode) {
  if (FAILED(iCode)) std::abort();
}

/// A container in which the component answers.
struct Scene {
  Scene() {
    VelCatalog::SetFolders({VEL_BENCH_CATALOGS});
    Expect(VelDictionary::LoadFile(VEL_BENCH_DICTIONARY));
  }

  VelIRshShader_var MakeShader() const { return VelRshModelFactoryFeature(*hContainer).CreateShader("BasicMaterial"); }

  /// A shader of scalar parameters, all of them alive.
  VelIRshShader_var MakeShader(std::int64_t iParameters) const {
    VelIRshShader_var hShader = MakeShader();
    for (std::int64_t i = 0; i < iParameters; ++i) Add(hShader, "scale_" + std::to_string(i));
    return hShader;
  }

  static VelIRshParameter_var Add(const VelIRshShader_var& iShader, const std::string& iName) {
    VelIRshParameter_var hParameter;
    Expect(iShader->AddParameter(VelString(std::string_view(iName)), "VelRmaScalar", hParameter.Receive()));
    return hParameter;
  }

  static VelIRshParameter_var First(const VelIRshShader_var& iShader) {
    return VelRshReaderParameterCollection()(*iShader).front();
  }

  VelIContainer_var hContainer = VelIContainer::Create();
};

double AllocatedBytes() {
  const struct mallinfo2 figures = ::mallinfo2();
  return static_cast<double>(figures.uordblks) + static_cast<double>(figures.hblkhd);
}

void WriteEachTime(benchmark::State& ioState, const VelIRshParameter_var& iParameter) {
  float value = 0.0F;
  for (auto _ : ioState) {
    value += 1.0F;
    benchmark::DoNotOptimize(iParameter->SetValue(&value));
  }
}

/// One parameter of a shader of so many is written; the shader and the other parameters hear it.
void WriteScalar(benchmark::State& ioState) {
  const Scene scene;
  const VelIRshShader_var hShader = scene.MakeShader(ioState.range(0));
  WriteEachTime(ioState, scene.First(hShader));
}
BENCHMARK(WriteScalar)->Arg(1)->Arg(20)->Arg(200);

/// The same with a sub-shader of as many parameters connected to another parameter, to which the change is forwarded.
void WriteScalarBesideConnection(benchmark::State& ioState) {
  const Scene scene;
  const VelIRshShader_var hShader = scene.MakeShader(ioState.range(0));
  const VelIRshShader_var hNode = scene.MakeShader(ioState.range(0));
  Expect(hShader->AddNode(hNode.Get()));
  const VelIRshParameter_var hConnected = scene.Add(hShader, "connected");
  Expect(hConnected->SetConnection(hNode.Get()));
  WriteEachTime(ioState, scene.First(hShader));
}
BENCHMARK(WriteScalarBesideConnection)->Arg(1)->Arg(20)->Arg(200);

/// The same with a tag on the written parameter and on the last one of the sub-shader, which takes the value over.
void WriteScalarThatIsFollowed(benchmark::State& ioState) {
  const Scene scene;
  Expect(VelRbaConfiguration::SetValue("BasicMaterial", "followed.Tag", "scale_u"));
  const VelIRshShader_var hShader = scene.MakeShader(ioState.range(0) - 1);
  const VelIRshParameter_var hFollowed = scene.Add(hShader, "followed");
  float above = 0.5F;
  Expect(hFollowed->SetValue(&above));
  const VelIRshShader_var hNode = scene.MakeShader(ioState.range(0) - 1);
  const VelIRshParameter_var hFollower = scene.Add(hNode, "followed");
  Expect(hShader->AddNode(hNode.Get()));
  const VelIRshParameter_var hConnected = scene.Add(hShader, "connected");
  Expect(hConnected->SetConnection(hNode.Get()));
  WriteEachTime(ioState, hFollowed);
  float below = -1.0F;
  Expect(hFollowed->GetValue(&above));
  Expect(hFollower->GetValue(&below));
  if (above != below) std::abort();
}
BENCHMARK(WriteScalarThatIsFollowed)->Arg(2)->Arg(20)->Arg(200);

/// One parameter is asked over and over whether it has a tag; nothing changes in between.
void TestTagHeld(benchmark::State& ioState) {
  const Scene scene;
  Expect(VelRbaConfiguration::SetValue("BasicMaterial", "scale_u.Tag", "diffuse scale_u"));
  const VelIRshShader_var hShader = scene.MakeShader();
  const VelIRshParameterPrivate_var hPrivate(scene.Add(hShader, "scale_u"));
  Expect(hPrivate->HasTag(VelIRshParameterPrivate::Tag::ScaleU));
  for (auto _ : ioState) benchmark::DoNotOptimize(hPrivate->HasTag(VelIRshParameterPrivate::Tag::ScaleU));
}
BENCHMARK(TestTagHeld);

/// The same after any text of any feature was written, so that shader and name are read again.
void TestTagAfterAText(benchmark::State& ioState) {
  const Scene scene;
  Expect(VelRbaConfiguration::SetValue("BasicMaterial", "scale_u.Tag", "diffuse scale_u"));
  const VelIRshShader_var hShader = scene.MakeShader();
  const VelIRshParameterPrivate_var hPrivate(scene.Add(hShader, "scale_u"));
  const VelIRshParameter_var hOther = scene.Add(hShader, "other");
  for (auto _ : ioState) {
    Expect(hOther->SetName("other"));
    benchmark::DoNotOptimize(hPrivate->HasTag(VelIRshParameterPrivate::Tag::ScaleU));
  }
}
BENCHMARK(TestTagAfterAText);

/// A write that changes nothing, which tells nobody.
void WriteSameScalar(benchmark::State& ioState) {
  const Scene scene;
  const VelIRshParameter_var hParameter = scene.Add(scene.MakeShader(), "scale_u");
  const float value = 0.5F;
  Expect(hParameter->SetValue(&value));
  for (auto _ : ioState) benchmark::DoNotOptimize(hParameter->SetValue(&value));
}
BENCHMARK(WriteSameScalar);

void ReadHeldScalar(benchmark::State& ioState) {
  const Scene scene;
  const VelIRshParameter_var hParameter = scene.Add(scene.MakeShader(), "scale_u");
  float value = 0.5F;
  Expect(hParameter->SetValue(&value));
  for (auto _ : ioState) {
    benchmark::DoNotOptimize(hParameter->GetValue(&value));
    benchmark::DoNotOptimize(value);
  }
}
BENCHMARK(ReadHeldScalar);

/// The last of so many parameters is found by its name and read.
void ReadScalarByName(benchmark::State& ioState) {
  const Scene scene;
  const VelIRshShader_var hShader = scene.MakeShader(ioState.range(0) - 1);
  float value = 0.5F;
  Expect(scene.Add(hShader, "roughness")->SetValue(&value));
  const VelRshReaderParameterCollection collection;
  for (auto _ : ioState) {
    const VelIRshParameter_var hFound = collection(collection(*hShader), "roughness");
    benchmark::DoNotOptimize(hFound->GetValue(&value));
  }
}
BENCHMARK(ReadScalarByName)->Arg(1)->Arg(20)->Arg(200);

/// The texture transformation of a shader of so many parameters, of which the configuration names two for the scale.
/// Without a material, so that the errors that tell so are part of it, on a channel that is off.
void GetTransformation(benchmark::State& ioState) {
  VelTraceService::SetSwitches("*=off");
  const Scene scene;
  Expect(VelRbaConfiguration::SetValue("BasicMaterial", "MappingScale.ParameterValue", "scale_0 scale_1"));
  const VelIRshShader_var hShader = scene.MakeShader(ioState.range(0));
  const VelIRmaVisuTextureCoordinateTransformation_var hMapping(hShader);
  Vel3x3Matrix matrix;
  for (auto _ : ioState) {
    benchmark::DoNotOptimize(hMapping->GetTransformation(matrix));
    benchmark::DoNotOptimize(matrix);
  }
  VelRbaConfiguration::Clear();
  VelTraceService::Reset();
}
BENCHMARK(GetTransformation)->Arg(2)->Arg(20)->Arg(200);

void ConnectAndDisconnect(benchmark::State& ioState) {
  const Scene scene;
  const VelIRshShader_var hShader = scene.MakeShader(ioState.range(0));
  const VelIRshParameter_var hParameter = scene.First(hShader);
  const VelIRshShader_var hNode = scene.MakeShader(ioState.range(0));
  for (auto _ : ioState) {
    Expect(hShader->AddNode(hNode.Get()));
    Expect(hParameter->SetConnection(hNode.Get()));
    Expect(hParameter->SetConnection(nullptr));  // Takes the node out as well.
  }
}
BENCHMARK(ConnectAndDisconnect)->Arg(1)->Arg(20)->Arg(200);

/// Time and memory of a parameter that is added to a shader of twenty, and so is alive; the shader's share included.
void AddLiveParameters(benchmark::State& ioState) {
  constexpr std::int64_t perShader = 20;
  double bytes = 0;
  for (auto _ : ioState) {
    ioState.PauseTiming();
    {
      const Scene scene;
      Expect(scene.MakeShader(1)->SetVersion(1));
      const double before = AllocatedBytes();
      ioState.ResumeTiming();
      for (std::int64_t i = 0; i < ioState.range(0); i += perShader) {
        const VelIRshShader_var hShader = scene.MakeShader();
        for (std::int64_t j = 0; j < perShader; ++j) benchmark::DoNotOptimize(scene.Add(hShader, "scale_u"));
      }
      ioState.PauseTiming();
      bytes = AllocatedBytes() - before;
    }
    ioState.ResumeTiming();
  }
  ioState.SetItemsProcessed(ioState.iterations() * ioState.range(0));
  ioState.counters["bytes/parameter"] = bytes / static_cast<double>(ioState.range(0));
}
BENCHMARK(AddLiveParameters)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMicrosecond);

}  // namespace
