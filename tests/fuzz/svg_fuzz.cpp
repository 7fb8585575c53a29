// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file svg_fuzz.cpp Fuzzes what stands before the drawing of SVG files, and the drawing of small ones.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/base/VelVisibility.h"
#include "platform/images/pixels/VelImageSource.h"
#include "platform/images/worker/VelSvgDrawing.h"
#include "platform/images/worker/VelSvgGroups.h"
#include "platform/images/worker/VelSvgOutline.h"
#include "platform/images/worker/VelSvgText.h"
#include "platform/images/worker/VelWorkerPicture.h"
#include "tests/fuzz/Require.h"

// The libraries that draw keep the entities of texts and the list of fonts for good. The names are the sanitizer's.
extern "C" VEL_EXPORT const char* __lsan_default_suppressions();  // NOLINT
extern "C" VEL_EXPORT const char* __lsan_default_suppressions() {
  return "leak:libxml2\nleak:libfontconfig\n";
}  // NOLINT

namespace {

/// Resolutions at which nearly all pictures have few pixels.
constexpr int mostDpi = 8;

/// Elements stand in the text, in order, and inside their parents.
void CheckOutline(std::string_view iText, const VelSvgOutline& iOutline) {
  const std::vector<VelSvgElement>& elements = iOutline.Elements();
  for (std::size_t i = 0; i < elements.size(); ++i) {
    const VelSvgElement& element = elements[i];
    Require(element.begin < element.tagEnd && element.tagEnd <= element.end && element.end <= iText.size());
    Require(i == 0 ? element.parent == 0 : element.parent < i);
    if (i == 0 || !iOutline.IsWritten()) continue;
    const VelSvgElement& parent = elements[element.parent];
    Require(parent.tagEnd <= element.begin && element.end <= parent.end);
    Require(element.begin >= elements[i - 1].tagEnd);
  }
}

/// What was cut out can be read again, and draws the same groups.
void CheckGroups(std::string_view iText, const VelSvgOutline& iOutline, const std::vector<std::string>& iNames) {
  std::string part;
  std::string cause;
  if (VelSvgGroups::Cut(iText, iOutline, iNames, part, cause) != S_OK) return;
  VelSvgOutline outline;
  const HRESULT code = outline.Read(part, iNames, cause);
  // The definitions around what is put away count against the limits, too.
  if (FAILED(code)) Require(cause.find("expected at most") != std::string::npos);
  if (FAILED(code)) return;
  const auto countNamed = [](const VelSvgOutline& iRead) {
    return std::ranges::count_if(iRead.Elements(),
                                 [](const VelSvgElement& iElement) { return iElement.name.has_value(); });
  };
  Require(countNamed(outline) <= countNamed(iOutline));
}

void CheckDrawing(VelImageSource& ioSource, int iDpi, const std::vector<std::string>& iNames) {
  VelWorkerPicture picture;
  std::vector<std::string> unknown;
  std::string cause;
  const HRESULT code = VelSvgDrawing::Draw(ioSource, iDpi, iNames, picture, unknown, cause);
  Require(FAILED(code) == !cause.empty());
  if (FAILED(code)) return;
  const std::span<const std::byte> bytes = picture.Bytes();
  Require(bytes.size() == std::size_t{4} * static_cast<std::size_t>(picture.GetWidth()) *
                              static_cast<std::size_t>(picture.GetHeight()));
  Require(unknown.empty() || std::ranges::all_of(bytes, [](std::byte iByte) { return iByte == std::byte{0}; }));
}

}  // namespace

// The first byte is the resolution and whether groups are named, which the seeds have as "a", "b" and "Layer 1".
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* iData, std::size_t iSize) {
  if (iSize == 0) return 0;
  const int dpi = 1 + iData[0] % mostDpi;
  std::vector<std::string> names;
  if (iData[0] >= 0x60) names = {"Layer 1", "a", "b"};
  VelMemoryImageSource source(std::as_bytes(std::span(iData + 1, iSize - 1)));
  std::string text;
  std::string cause;
  if (FAILED(VelSvgText::Read(source, text, cause))) return 0;
  VelSvgOutline outline;
  if (FAILED(outline.Read(text, names, cause))) return 0;
  CheckOutline(text, outline);
  if (!names.empty()) CheckGroups(text, outline, names);
  CheckDrawing(source, dpi, names);
  return 0;
}
