// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageWorkerWarmUp.cpp Draws a small picture of everything.
#include "platform/images/worker/VelImageWorkerWarmUp.h"

#include <cstdlib>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/images/pixels/VelImageSource.h"
#include "platform/images/worker/VelSvgDrawing.h"
#include "platform/images/worker/VelWorkerPicture.h"

namespace {

constexpr std::string_view sample =
    "<svg xmlns='http://www.w3.org/2000/svg' width='8' height='8'><rect width='4' height='4' fill='red'/></svg>";

void DrawSample(std::string_view iText) {
  VelMemoryImageSource source(std::as_bytes(std::span(iText)));
  VelWorkerPicture picture;
  std::vector<std::string> unknown;
  std::string cause;
  static_cast<void>(VelSvgDrawing::Draw(source, 96, {}, picture, unknown, cause));
}

}  // namespace

void VelImageWorkerWarmUp::Run() {
  // Filters share their work out to threads; the processes are there to use several cores.
  ::setenv("RAYON_NUM_THREADS", "1", 1);
  DrawSample(sample);
}
