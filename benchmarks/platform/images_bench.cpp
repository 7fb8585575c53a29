// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file images_bench.cpp What a drawing costs by way of the helper program, beside the renderer in this very process.
#include <benchmark/benchmark.h>
#include <librsvg/rsvg.h>
#include <stdlib.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>

#include "platform/base/VelCallOnExit.h"
#include "platform/images/VelPixelImage.h"
#include "platform/images/VelRbaImageServices.h"
#include "platform/objectmodeler/VelDictionary.h"
#include "platform/objectmodeler/VelVar.h"

namespace {

namespace fs = std::filesystem;

constexpr int side = 1024;
constexpr int groupCount = 20;

/// A picture of 20 groups, each of 50 discs under a gradient.
std::string MakePicture() {
  const std::string length = std::to_string(side);
  std::string text = "<svg xmlns='http://www.w3.org/2000/svg' width='" + length + "' height='" + length +
                     "'><linearGradient id='shade'><stop stop-color='#fff'/><stop offset='1' stop-color='#048'/>"
                     "</linearGradient>";
  for (int group = 0; group < groupCount; ++group) {
    text += "<g id='g" + std::to_string(group) + "'>";
    for (int i = 0; i < 50; ++i) {
      text += "<circle fill='url(#shade)' r='24' cx='" + std::to_string((i * 199 + group * 37) % side) + "' cy='" +
              std::to_string((i * 83 + group * 151) % side) + "'/>";
    }
    text += "</g>";
  }
  return text + "</svg>";
}

/// The picture as a file, in a folder that goes with the process, and the image services.
class World {
 public:
  static World& Get() {
    static World world;
    return world;
  }

  World() {
    std::string name = (fs::temp_directory_path() / "velrsh-bench-XXXXXX").string();
    if (::mkdtemp(name.data()) == nullptr) std::abort();
    folder_ = name;
    path = folder_ + "/picture.svg";
    std::ofstream(path) << picture;
    ::setenv("XDG_CACHE_HOME", folder_.c_str(), 1);
    if (FAILED(VelDictionary::LoadFile(VEL_BENCH_DICTIONARY))) std::abort();
    // A file that was just written is told from others by its content, which is not the usual case.
    std::this_thread::sleep_for(std::chrono::milliseconds(2100));
  }
  ~World() {
    VelPlatformTerminate();
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
  }
  World(const World&) = delete;
  World& operator=(const World&) = delete;

  /// Makes the file another one, so that nothing that was made of it counts any more.
  void Renew() {
    age_ += std::chrono::seconds(1);
    fs::last_write_time(path, fs::file_time_type::clock::now() - std::chrono::hours(24) + age_);
  }

  const std::string picture = MakePicture();
  std::string path;

 private:
  std::string folder_;
  std::chrono::seconds age_{0};
};

void Draw(benchmark::State& ioState, const VelListValVelUnicodeString& iGroups) {
  const auto hImage = VelBaseUnknown_var::Adopt(
      VelRbaImageServices::CreatePixelImageFromFullPath(VelUnicodeString(World::Get().path), iGroups, 96));
  if (!hImage) ioState.SkipWithError("no image");
}

VelListValVelUnicodeString GroupsOf(const benchmark::State& iState) {
  VelListValVelUnicodeString groups;
  if (iState.range(0) == 1) groups.Append(VelUnicodeString("g7"));
  return groups;
}

/// The renderer alone, which draws all groups, or one as its own layer.
void RendererAlone(benchmark::State& ioState) {
  const World& world = World::Get();
  const RsvgRectangle viewport{0, 0, side, side};
  for (auto step : ioState) {
    const auto* bytes = reinterpret_cast<const guint8*>(world.picture.data());
    RsvgHandle* handle = rsvg_handle_new_from_data(bytes, world.picture.size(), nullptr);
    cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, side, side);
    cairo_t* context = cairo_create(surface);
    if (ioState.range(0) == 1) {
      rsvg_handle_render_layer(handle, context, "#g7", &viewport, nullptr);
    } else {
      rsvg_handle_render_document(handle, context, &viewport, nullptr);
    }
    cairo_destroy(context);
    cairo_surface_destroy(surface);
    g_object_unref(handle);
  }
}

/// With the helper program still to be started.
void FirstDrawing(benchmark::State& ioState) {
  const VelListValVelUnicodeString groups = GroupsOf(ioState);
  for (auto step : ioState) {
    ioState.PauseTiming();
    VelPlatformTerminate();
    World::Get().Renew();
    ioState.ResumeTiming();
    Draw(ioState, groups);
  }
}

void NextDrawing(benchmark::State& ioState) {
  const VelListValVelUnicodeString groups = GroupsOf(ioState);
  Draw(ioState, groups);
  for (auto step : ioState) {
    ioState.PauseTiming();
    World::Get().Renew();
    ioState.ResumeTiming();
    Draw(ioState, groups);
  }
}

void CachedDrawing(benchmark::State& ioState) {
  const VelListValVelUnicodeString groups = GroupsOf(ioState);
  World::Get().Renew();
  std::this_thread::sleep_for(std::chrono::milliseconds(2100));
  Draw(ioState, groups);
  for (auto step : ioState) Draw(ioState, groups);
}

void CachedConversion(benchmark::State& ioState) {
  const VelListValVelUnicodeString groups = GroupsOf(ioState);
  for (auto step : ioState) {
    VelUnicodeString path(World::Get().path);
    if (VelRbaImageServices::ConvertUnsupportedTexture(path, groups, 96) != S_OK) ioState.SkipWithError("no file");
  }
}

// 20 draws all groups, 1 draws one.
BENCHMARK(RendererAlone)->Arg(groupCount)->Arg(1)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(FirstDrawing)->Arg(groupCount)->Arg(1)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(NextDrawing)->Arg(groupCount)->Arg(1)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(CachedDrawing)->Arg(groupCount)->Arg(1)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(CachedConversion)->Arg(groupCount)->Arg(1)->Unit(benchmark::kMicrosecond)->UseRealTime();

}  // namespace
