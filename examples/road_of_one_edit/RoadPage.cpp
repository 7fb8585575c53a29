// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file RoadPage.cpp Asks the appearance cache for its pictures, and writes them and a page of them.
#include "examples/road_of_one_edit/RoadPage.h"

#include <cstdint>
#include <fstream>
#include <utility>

#include "platform/images/VelPixelImage.h"
#include "platform/images/VelRbaImageFiles.h"
#include "platform/materials/VelIRmaAppearanceCache.h"

namespace {

constexpr std::uint32_t lastSlot = 11;

constexpr const char* pageBegin =
    "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n<title>The road of one "
    "edit</title>\n<style>\n"
    "body { font-family: sans-serif; margin: 2em; }\n"
    "pre { background: #f4f4f4; padding: 1em; overflow-x: auto; }\n"
    "img { image-rendering: pixelated; border: 1px solid #999; background: repeating-conic-gradient(#ddd 0 25%, #fff 0 "
    "50%) 0 0 / 16px 16px; }\n"
    "figure { display: inline-block; margin: 0 2em 1em 0; }\n"
    "</style>\n</head>\n<body>\n<h1>The road of one edit</h1>\n";

std::string Escaped(const std::string& iText) {
  std::string text;
  for (const char letter : iText) {
    switch (letter) {
      case '&':
        text += "&amp;";
        break;
      case '<':
        text += "&lt;";
        break;
      case '>':
        text += "&gt;";
        break;
      default:
        text += letter;
    }
  }
  return text;
}

std::string Block(const std::vector<std::string>& iLines) {
  if (iLines.empty()) return {};
  std::string block = "<pre>";
  for (const std::string& line : iLines) block += Escaped(line) + '\n';
  return block + "</pre>\n";
}

std::string Caption(std::uint32_t iSlot, const VelPixelImage& iImage) {
  return "channel " + std::to_string(iSlot) + ", " + std::to_string(iImage.GetWidth()) + " x " +
         std::to_string(iImage.GetHeight()) + " pixels";
}

/// Calls with the number and the image of each channel that has one, until a call says false.
/// @return whether none did; false for a material that keeps no pictures, too
template <class Visit>
bool VisitChannels(const VelIRenderingMaterial_var& iMaterial, const Visit& iVisit) {
  const VelIRmaAppearanceCache_var hCache(iMaterial);
  if (!hCache) return false;
  for (std::uint32_t slot = 1; slot <= lastSlot; ++slot) {
    VelPixelImage* image = nullptr;
    if (FAILED(hCache->GetImage(slot, &image)) || image == nullptr) continue;
    const auto hImage = VelBaseUnknown_var::Adopt(image);
    if (!iVisit(*hCache, slot, *image)) return false;
  }
  return true;
}

}  // namespace

RoadPage::RoadPage(std::string iFolder) : folder_(std::move(iFolder)) {}

bool RoadPage::Add(const std::string& iTitle, const std::string& iName, const std::vector<std::string>& iTree,
                   const std::vector<std::string>& iRoad, const VelIRenderingMaterial_var& iMaterial) {
  body_ += "<h2>" + Escaped(iTitle) + "</h2>\n";
  const auto write = [&](VelIRmaAppearanceCache&, std::uint32_t iSlot, VelPixelImage& iImage) {
    const std::string file = iName + "-channel-" + std::to_string(iSlot) + '.' + VelRbaImageFiles::ExtensionFor(iImage);
    const std::string path = folder_ + '/' + file;
    if (FAILED(VelRbaImageFiles::Write(&iImage, VelUnicodeString(path)))) return false;
    files_.push_back(path);
    body_ +=
        "<figure><img src=\"" + file + "\" alt=\"\"><figcaption>" + Caption(iSlot, iImage) + "</figcaption></figure>\n";
    return true;
  };
  if (!VisitChannels(iMaterial, write)) return false;
  body_ += Block(iTree) + Block(iRoad);
  return true;
}

std::vector<std::string> RoadPage::Channels(const VelIRenderingMaterial_var& iMaterial) {
  std::vector<std::string> lines;
  VisitChannels(iMaterial, [&](VelIRmaAppearanceCache& iCache, std::uint32_t iSlot, const VelPixelImage& iImage) {
    VelUnicodeString path;
    static_cast<void>(iCache.GetPath(iSlot, path));
    lines.push_back(Caption(iSlot, iImage) + ": " + std::string(path.View()));
    return true;
  });
  return lines;
}

bool RoadPage::Write() {
  const std::string path = folder_ + "/index.html";
  std::ofstream page(path);
  page << pageBegin << body_ << "</body>\n</html>\n";
  page.close();
  if (!page) return false;
  files_.push_back(path);
  return true;
}
