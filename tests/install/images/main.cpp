// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file main.cpp Has an image file made into pixels, and prints its size and its first pixel.
#include <cstddef>
#include <cstdio>

#include "platform/images/VelPixelImage.h"
#include "platform/images/VelRbaImageServices.h"
#include "platform/objectmodeler/VelVar.h"
#include "platform/session/VelPlatformSession.h"

namespace {

bool Draw(const char* iPath) {
  VelPixelImage* image = VelRbaImageServices::CreatePixelImageFromFullPath(iPath, {}, 96);
  if (image == nullptr) return false;
  const auto pixel = image->GetPixels().first(4);
  std::printf("%d x %d, first pixel %u %u %u %u\n", image->GetWidth(), image->GetHeight(),
              std::to_integer<unsigned>(pixel[0]), std::to_integer<unsigned>(pixel[1]),
              std::to_integer<unsigned>(pixel[2]), std::to_integer<unsigned>(pixel[3]));
  image->Release();
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  VelPlatformSession session;
  if (argc != 2 || FAILED(session.Start())) return 2;
  const bool isDrawn = Draw(argv[1]);
  return session.End() == S_OK && isDrawn ? 0 : 1;
}
