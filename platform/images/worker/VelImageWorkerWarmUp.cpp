// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageWorkerWarmUp.cpp Draws and decodes a small picture of everything.
#include "platform/images/worker/VelImageWorkerWarmUp.h"

#include <iconv.h>

#include <array>
#include <chrono>
#include <cstdlib>
#include <span>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "platform/base/system/VelSystemFile.h"
#include "platform/images/pixels/VelImageSource.h"
#include "platform/images/worker/VelImageWorkerOrder.h"
#include "platform/images/worker/VelWorkerFonts.h"
#include "platform/images/worker/VelWorkerPicture.h"

namespace {

using namespace std::string_view_literals;

struct Sample {
  VelImageKind kind;
  std::string_view file;
};

// Each has one pixel, but for the first, which has one letter of each face.
constexpr std::array samples{
    Sample{VelImageKind::Svg,
           "<svg xmlns='http://www.w3.org/2000/svg' width='8' height='8'>"
           "<g font-size='4'><text font-family='sans-serif'>a</text><text font-family='serif'>a</text>"
           "<text font-family='monospace'>a</text><g font-weight='bold'><text font-family='sans-serif'>a</text>"
           "<text font-family='serif'>a</text><text font-family='monospace'>a</text></g></g></svg>"sv},
    Sample{VelImageKind::Bmp,
           "BM\x3A\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\1\0\0\0\1\0\0\0\1\0\x18\0\0\0\0\0\4\0\0\0"
           "\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"sv},
    Sample{VelImageKind::Gif, "GIF89a\1\0\1\0\x80\0\0\0\0\0\xFF\xFF\xFF\x2C\0\0\0\0\1\0\1\0\0\2\2\x44\1\0\x3B"sv},
    Sample{VelImageKind::Tga, "\0\0\2\0\0\0\0\0\0\0\0\0\1\0\1\0\x18\0\0\0\0"sv},
    Sample{VelImageKind::Pnm, "P6 1 1 255\n\0\0\0"sv},
    Sample{VelImageKind::Ico,
           "\0\0\1\0\1\0\1\1\0\0\1\0\x18\0\x30\0\0\0\x16\0\0\0\x28\0\0\0\1\0\0\0\2\0\0\0\1\0\x18\0"
           "\0\0\0\0\4\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"sv},
};

/// What texts are still found in that are not in Unicode. A converter is a library, opened once.
constexpr const char* encodings[] = {"ISO-8859-1",   "ISO-8859-2",   "ISO-8859-15",
                                     "WINDOWS-1250", "WINDOWS-1251", "WINDOWS-1252"};

void Decode(const Sample& iSample) {
  VelImageWorkerOrder order;
  order.kind = iSample.kind;
  order.dpi = 96;
  VelMemoryImageSource source(std::as_bytes(std::span(iSample.file)));
  VelWorkerPicture picture;
  std::vector<std::string> unknown;
  std::string cause;
  static_cast<void>(order.Carry(source, picture, unknown, cause));
}

/// Looking for fonts takes a thread, which ends some time after its work. What it holds when the process is copied
/// would be held in the copy for good.
void AwaitOtherThreads() {
  constexpr int mostMilliseconds = 1000;
  std::vector<std::string> threads;
  std::string cause;
  for (int i = 0; i < mostMilliseconds; ++i) {
    const HRESULT code = VelSystemFile::ListFolder("/proc/self/task", "", threads, cause);
    if (FAILED(code) || threads.size() <= 1) return;
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
}

}  // namespace

void VelImageWorkerWarmUp::Run() {
  // Filters share their work out to threads; the processes are there to use several cores.
  ::setenv("RAYON_NUM_THREADS", "1", 1);
  VelWorkerFonts::Choose();
  // Never closed: a library without a user may be unloaded.
  for (const char* encoding : encodings) static_cast<void>(::iconv_open("UTF-8", encoding));
  for (const Sample& sample : samples) Decode(sample);
  AwaitOtherThreads();
}
