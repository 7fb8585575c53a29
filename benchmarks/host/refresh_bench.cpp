// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file refresh_bench.cpp What it costs to keep materials up to date: one edit, and a thousand materials with
/// textures.
#include <benchmark/benchmark.h>
#include <stdlib.h>
#include <sys/resource.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "RenderingShader/VelRshModel.m/include/VelRshModelFactoryFeature.h"
#include "RenderingShader/VelRshModel.m/include/VelRshTranslatorParameter.h"
#include "host/refresh/VelIRmaRefresh.h"
#include "platform/base/VelCallOnExit.h"
#include "platform/configuration/VelRbaConfiguration.h"
#include "platform/documents/VelRbaDocumentServices.h"
#include "platform/featuremodeler/VelCatalog.h"
#include "platform/featuremodeler/VelOsmSUHandler.h"
#include "platform/images/encoders/VelPngEncoder.h"
#include "platform/images/pixels/VelPixelBuffer.h"
#include "platform/materials/VelIRenderingMaterial.h"
#include "platform/materials/VelRbaFloatShaderModifyNotification.h"
#include "platform/objectmodeler/VelDictionary.h"
#include "platform/objectmodeler/VelObject.h"
#include "platform/trace/VelTraceService.h"

namespace {

constexpr const char* type = "BenchedType";
constexpr int textureSide = 256;  ///< Pixels.

void Expect(HRESULT iCode) {
  if (FAILED(iCode)) std::abort();
}

/// The services, and a folder for what they keep, which goes with the process.
struct Services {
  Services() {
    VelTraceService::RemoveSink(VelTraceService::StandardErrorSink());
    std::string name = (std::filesystem::temp_directory_path() / "velrsh-bench-XXXXXX").string();
    if (::mkdtemp(name.data()) == nullptr) std::abort();
    folder = name;
    ::setenv("XDG_CACHE_HOME", folder.c_str(), 1);
    VelCatalog::SetFolders({VEL_BENCH_CATALOGS});
    for (const char* module : {"VelRshModel", "VelRshHost", "VelPlatformDocuments", "VelPlatformImages"}) {
      Expect(VelDictionary::LoadFile(std::string(VEL_BENCH_DICTIONARIES) + "/" + module + ".dictionary"));
    }
    Expect(VelRbaConfiguration::SetValue(type, "map.SlotIdentifier", "reflectance.diffuse.color"));
    Expect(VelRbaConfiguration::SetValue(type, "scale_u.Tag", "mapping"));
  }
  ~Services() {
    VelPlatformTerminate();
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
  }
  Services(const Services&) = delete;
  Services& operator=(const Services&) = delete;

  static void Start() { static const Services services; }

  std::string folder;
};

VelIRshParameter_var Add(const VelIRshShader_var& iShader, const char* iName, const char* iStartUp) {
  VelIRshParameter_var hParameter;
  Expect(iShader->AddParameter(iName, iStartUp, hParameter.Receive()));
  return hParameter;
}

/// A material whose colour is fed by a texture of its own.
struct Material {
  Material(VelIContainer& ioContainer, const VelIPLMDmtDocument_var& iDocument) {
    const VelRshModelFactoryFeature factory(ioContainer);
    const VelIRshShader_var hRoot = factory.CreateShader(type);
    const VelIRshShader_var hTexture = factory.CreateShader("vel_phen_texture");
    Expect(hRoot->AddNode(hTexture.Get()));
    hMap = Add(hRoot, "map", "VelRmaColor");
    hScale = Add(hRoot, "scale_u", "VelRmaScalar");
    const VelIRshParameter_var hFile = Add(hTexture, "tex", "VelRmaTexture");
    const float scale = 1.0F;
    Expect(hScale->SetValue(&scale));
    Expect(Add(hTexture, "scale_u", "VelRmaScalar")->SetValue(&scale));
    if (iDocument) Expect(hFile->SetValue(static_cast<VelBaseUnknown*>(iDocument.Get())));
    Expect(hMap->SetConnection(hTexture.Get()));
    VelBaseUnknown_var hMade;
    const VelOsmSUHandler handler("VelRmaRenderingMaterial", "", "VelRmaMaterialCatalog.feat");
    Expect(handler.Instanciate(ioContainer, "", VelIRenderingMaterial::InterfaceId(), hMade.Receive()));
    hMaterial = VelIRenderingMaterial_var(hMade);
    Expect(hMaterial->SetShader(hRoot.Get()));
  }

  VelIRenderingMaterial_var hMaterial;
  VelIRshParameter_var hMap;
  VelIRshParameter_var hScale;
};

VelIRmaRefresh_var MakeRefresh() { return VelIRmaRefresh_var(VelObject::Create("VelRmaRefresh", nullptr)); }

/// An editor's edit of a mapping value, from the notification to the end of the refresh.
void EditOfAMappingValue(benchmark::State& ioState) {
  Services::Start();
  const VelIContainer_var hContainer = VelIContainer::Create();
  const Material material(*hContainer, {});
  const VelIRmaRefresh_var hRefresh = MakeRefresh();
  if (ioState.range(0) == 1) Expect(hRefresh->Attach(material.hMaterial.Get()));
  const VelRshTranslatorParameter translate;
  double value = 1.0;
  for (auto step : ioState) {
    const double next = value + 1.0;
    if (!translate(VelRbaFloatShaderModifyNotification("scale_u", material.hScale.Get(),
                                                       VelIRshParameter::InterfaceId(), value, next))) {
      ioState.SkipWithError("not translated");
    }
    value = next;
  }
}

/// A PNG document whose picture no other one has.
VelIPLMDmtDocument_var MakeDocument(int iNumber) {
  VelPixelBuffer pixels;
  std::string bytes;
  std::string cause;
  Expect(pixels.Allocate(textureSide, textureSide, VelPixelImage::Format::Rgba8, cause));
  std::size_t place = 0;
  for (std::byte& byte : pixels.Bytes())
    byte = static_cast<std::byte>((place++ * 31 + static_cast<std::size_t>(iNumber)) >> 3U);
  Expect(VelPngEncoder::Encode(pixels, bytes, cause));
  return VelRbaDocumentServices::CreateFromBytes(VelUnicodeString("t" + std::to_string(iNumber) + ".png"), "png",
                                                 bytes);
}

double PeakMegabytes() {
  struct rusage usage {};
  ::getrusage(RUSAGE_SELF, &usage);
  return static_cast<double>(usage.ru_maxrss) / 1024.0;
}

/// So many materials with a texture of 256 x 256 pixels each, which is 256 KiB, all connected anew and refreshed at
/// once. Then a second refresh, with nothing changed.
void ManyMaterials(benchmark::State& ioState, bool iIsChanged) {
  Services::Start();
  const VelIContainer_var hContainer = VelIContainer::Create();
  const VelIRmaRefresh_var hRefresh = MakeRefresh();
  std::vector<Material> materials;
  for (int i = 0; i < ioState.range(0); ++i) {
    materials.emplace_back(*hContainer, MakeDocument(i));
    Expect(hRefresh->Attach(materials.back().hMaterial.Get()));
  }
  for (auto step : ioState) {
    ioState.PauseTiming();
    for (const Material& material : materials) {
      VelIRshShader_var hTexture;
      if (!iIsChanged || FAILED(material.hMap->GetConnection(hTexture.Receive()))) continue;
      Expect(material.hMap->SetConnection(nullptr));
      Expect(material.hMap->SetConnection(hTexture.Get()));
    }
    ioState.ResumeTiming();
    Expect(hRefresh->Flush());
  }
  ioState.counters["peak_MB"] = PeakMegabytes();
}

// 0 without the service, 1 with it.
BENCHMARK(EditOfAMappingValue)->Arg(0)->Arg(1);
BENCHMARK_CAPTURE(ManyMaterials, Unchanged, false)->Arg(10)->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ManyMaterials, Changed, true)->Arg(10)->Arg(1000)->Unit(benchmark::kMillisecond)->Iterations(1);

}  // namespace
