// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelWorkerFonts.cpp Gives fontconfig a configuration of six faces.
#include "platform/images/worker/VelWorkerFonts.h"

#include <fontconfig/fontconfig.h>

#include <memory>
#include <set>
#include <string>
#include <string_view>

namespace {

using Pattern = std::unique_ptr<FcPattern, decltype(&FcPatternDestroy)>;

constexpr const char* families[] = {"sans-serif", "serif", "monospace"};
constexpr int weights[] = {FC_WEIGHT_REGULAR, FC_WEIGHT_BOLD};

const FcChar8* LettersOf(const char* iText) { return reinterpret_cast<const FcChar8*>(iText); }

std::string ValueOf(const FcPattern* iPattern, const char* iName) {
  FcChar8* value = nullptr;
  if (FcPatternGetString(iPattern, iName, 0, &value) != FcResultMatch) return {};
  return reinterpret_cast<const char*>(value);
}

Pattern Match(const char* iFamily, int iWeight) {
  const Pattern wanted(FcPatternCreate(), &FcPatternDestroy);
  FcPatternAddString(wanted.get(), FC_FAMILY, LettersOf(iFamily));
  FcPatternAddInteger(wanted.get(), FC_WEIGHT, iWeight);
  FcPatternAddBool(wanted.get(), FC_SCALABLE, FcTrue);
  FcConfigSubstitute(nullptr, wanted.get(), FcMatchPattern);
  FcDefaultSubstitute(wanted.get());
  FcResult result = FcResultMatch;
  return {FcFontMatch(nullptr, wanted.get(), &result), &FcPatternDestroy};
}

std::string Escape(std::string_view iText) {
  std::string text;
  for (const char letter : iText) text += letter == '&' ? "&amp;" : letter == '<' ? "&lt;" : std::string(1, letter);
  return text;
}

/// The rule by which a family stands for another.
std::string Alias(std::string_view iFamily, std::string_view iFace) {
  return "<alias binding='same'><family>" + std::string(iFamily) + "</family><prefer><family>" + Escape(iFace) +
         "</family></prefer></alias>";
}

/// The rule by which a face stands for all families that are not known.
std::string LastResort(std::string_view iFace) {
  return "<match><edit name='family' mode='append_last'><string>" + Escape(iFace) + "</string></edit></match>";
}

}  // namespace

void VelWorkerFonts::Choose() {
  std::set<std::string> files;
  std::string rules = "<?xml version='1.0'?><fontconfig>";
  std::string resort;
  for (const char* family : families) {
    for (const int weight : weights) {
      const Pattern face = Match(family, weight);
      if (face == nullptr) continue;
      files.insert(ValueOf(face.get(), FC_FILE));
      if (weight == weights[0]) rules += Alias(family, ValueOf(face.get(), FC_FAMILY));
      if (resort.empty()) resort = LastResort(ValueOf(face.get(), FC_FAMILY));
    }
  }
  rules += resort + "</fontconfig>";
  FcConfig* configuration = FcConfigCreate();
  FcConfigParseAndLoadFromMemory(configuration, LettersOf(rules.c_str()), FcFalse);
  for (const std::string& file : files) FcConfigAppFontAddFile(configuration, LettersOf(file.c_str()));
  // Files are not looked at again, which would not be allowed later.
  FcConfigSetRescanInterval(configuration, 0);
  FcConfigSetCurrent(configuration);
  FcConfigDestroy(configuration);
}
