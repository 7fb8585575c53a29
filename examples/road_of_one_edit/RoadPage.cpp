// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file RoadPage.cpp Asks the appearance cache for its pictures, and writes them and a page of them.
#include "examples/road_of_one_edit/RoadPage.h"

#include <cstdint>
#include <cstdio>
#include <fstream>
#include <utility>

#include "RenderingShader/VelRshModel.m/include/VelRshParameterServices.h"
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterCollection.h"
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

/// @return the name of the parameter that feeds a channel; "?" when there is none
std::string FeederOf(const VelIRenderingMaterial_var& iMaterial, std::uint32_t iSlot) {
  VelBaseUnknown_var hCarried;
  static_cast<void>(iMaterial->GetShader(hCarried.Receive()));
  const VelIRshShader_var hShader(hCarried);
  if (!hShader) return "?";
  for (const VelIRshParameter_var& hParameter : VelRshReaderParameterCollection()(*hShader)) {
    VelString name;
    const bool isFeeder = VelRshParameterServices::ComputeParameterSlot(*hParameter) == iSlot;
    if (isFeeder && SUCCEEDED(hParameter->GetName(name))) return name.CString();
  }
  return "?";
}

/// A channel of a material that has a picture.
struct Channel {
  std::uint32_t slot;
  std::string caption;  ///< Number, parameter and size.
  std::string path;     ///< Of the file that the picture is of.
  VelPixelImage& image;
};

/// Calls with each channel that has a picture, until a call says false.
/// @return whether none did; false for a material that keeps no pictures, too
template <class Visit>
bool VisitChannels(const VelIRenderingMaterial_var& iMaterial, const Visit& iVisit) {
  const VelIRmaAppearanceCache_var hCache(iMaterial);
  if (!hCache) return false;
  for (std::uint32_t slot = 1; slot <= lastSlot; ++slot) {
    VelPixelImage* image = nullptr;
    if (FAILED(hCache->GetImage(slot, &image)) || image == nullptr) continue;
    const auto hImage = VelBaseUnknown_var::Adopt(image);
    VelUnicodeString path;
    static_cast<void>(hCache->GetPath(slot, path));
    const std::string caption = "channel " + std::to_string(slot) + ", " + FeederOf(iMaterial, slot) + ", " +
                                std::to_string(image->GetWidth()) + " x " + std::to_string(image->GetHeight()) +
                                " pixels";
    if (!iVisit(Channel{slot, caption, std::string(path.View()), *image})) return false;
  }
  return true;
}

}  // namespace

RoadPage::RoadPage(std::string iFolder) : folder_(std::move(iFolder)) {}

bool RoadPage::Add(const std::string& iTitle, const std::string& iName, const std::vector<std::string>& iTree,
                   const std::vector<std::string>& iRoad, const VelIRenderingMaterial_var& iMaterial) {
  body_ += "<h2>" + Escaped(iTitle) + "</h2>\n";
  const auto write = [&](const Channel& iChannel) {
    const std::string file =
        iName + "-channel-" + std::to_string(iChannel.slot) + '.' + VelRbaImageFiles::ExtensionFor(iChannel.image);
    const std::string path = folder_ + '/' + file;
    if (FAILED(VelRbaImageFiles::Write(&iChannel.image, VelUnicodeString(path)))) return false;
    files_.push_back(path);
    const std::string caption = Escaped(iChannel.caption);
    body_ +=
        "<figure><img src=\"" + file + "\" alt=\"" + caption + "\"><figcaption>" + caption + "</figcaption></figure>\n";
    return true;
  };
  if (!VisitChannels(iMaterial, write)) return false;
  body_ += Block(iTree) + Block(iRoad);
  return true;
}

std::vector<std::string> RoadPage::Channels(const VelIRenderingMaterial_var& iMaterial) {
  std::vector<std::string> lines;
  VisitChannels(iMaterial, [&](const Channel& iChannel) {
    lines.push_back(iChannel.caption + ": " + iChannel.path);
    return true;
  });
  return lines;
}

bool RoadPage::Write() {
  const std::string path = folder_ + "/index.html";
  std::ofstream page(path);
  page << pageBegin << body_ << "</body>\n</html>\n";
  page.close();
  if (!page) {
    std::fprintf(stderr, "'%s' cannot be written\n", path.c_str());
    return false;
  }
  files_.push_back(path);
  return true;
}
