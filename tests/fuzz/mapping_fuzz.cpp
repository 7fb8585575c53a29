// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file mapping_fuzz.cpp Fuzzes the readers of texture mapping with arbitrary keys, against a model of their own made
/// of sscanf and snprintf in the "C" locale.
#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "RenderingShader/VelRshModel.m/include/VelRshModelFactoryFeature.h"
#include "RenderingShader/VelRshModel.m/src/services/VelRshReaderMappingFlip.h"
#include "RenderingShader/VelRshModel.m/src/services/VelRshReaderMappingOffset.h"
#include "RenderingShader/VelRshModel.m/src/services/VelRshReaderMappingOperator.h"
#include "RenderingShader/VelRshModel.m/src/services/VelRshReaderMappingRatio.h"
#include "RenderingShader/VelRshModel.m/src/services/VelRshReaderMappingRotation.h"
#include "RenderingShader/VelRshModel.m/src/services/VelRshReaderMappingScale.h"
#include "platform/configuration/VelRbaConfiguration.h"
#include "platform/featuremodeler/VelCatalog.h"
#include "platform/featuremodeler/VelICatalogManager.h"
#include "platform/objectmodeler/VelDictionary.h"
#include "platform/trace/VelTraceRecorder.h"
#include "platform/trace/VelTraceService.h"
#include "tests/fuzz/Require.h"

namespace {

constexpr const char* type = "FuzzedType";
constexpr VelRshMappingPair fallBack{0.125, -8.0};

/// A parameter of the shader, and what each reader makes of it.
struct Known {
  std::string name;
  const char* startUp;
  double flip;  ///< 0 where it is not compatible.
  double scalar;
};

const std::vector<Known>& KnownParameters() {
  static const auto& known =
      *new std::vector<Known>{{"n", "VelRmaInteger", 0.0, 0.0},    {"u", "VelRmaScalar", 0.0, 2.5},
                              {"i", "VelRmaInteger", 0.0, 0.0},    {"on", "VelRmaBoolean", -1.0, 0.0},
                              {"off", "VelRmaBoolean", 1.0, 0.0},  {"none", "VelRmaBoolean", 1.0, 0.0},
                              {"v", "VelRmaScalar", 0.0, -0.0625}, {"c", "VelRmaColor", 0.0, 0.5},
                              {"s", "VelRmaString", 0.0, 0.0},     {std::string(254, 'x'), "VelRmaScalar", 0.0, 3.0}};
  return known;
}

/// The one shader, on which every input is read.
class World {
 public:
  World() {
    VelTraceService::RemoveSink(VelTraceService::StandardErrorSink());
    VelTraceService::AddSink(traces);
    VelTraceService::SetSwitches("VelRshReaderMapping*");
    Require(SUCCEEDED(VelDictionary::LoadFile(VEL_TEST_LIBRARY_FOLDER "/dictionaries/VelRshModel.dictionary")));
    VelCatalog::SetFolders({VEL_TEST_CATALOGS});
    hContainer_ = VelIContainer::Create();
    Require(SUCCEEDED(VelICatalogManager_var(hContainer_)->LoadCatalog("VelRmaCatalog.feat")));
    hShader = VelRshModelFactoryFeature(*hContainer_).CreateShader(type);
    for (const Known& known : KnownParameters()) {
      VelIRshParameter_var hParameter;
      Require(SUCCEEDED(hShader->AddParameter(VelString(known.name), known.startUp, hParameter.Receive())));
      SetValue(known, *hParameter);
      if (known.name == "i") hInteger = hParameter;
    }
  }

  VelTraceRecorder traces;
  VelIRshShader_var hShader;
  VelIRshParameter_var hInteger;

 private:
  static void SetValue(const Known& iKnown, VelIRshParameter& ioParameter) {
    const auto scalar = static_cast<float>(iKnown.scalar);
    const std::array<float, 4> color{0.25F, 0.5F, 0.75F, 1.0F};
    const bool isOn = iKnown.flip < 0.0;
    if (std::strcmp(iKnown.startUp, "VelRmaScalar") == 0) Require(SUCCEEDED(ioParameter.SetValue(&scalar)));
    if (std::strcmp(iKnown.startUp, "VelRmaColor") == 0) {
      Require(SUCCEEDED(ioParameter.SetValue({color.data(), color.size()})));
    }
    if (iKnown.name == "on" || iKnown.name == "off") Require(SUCCEEDED(ioParameter.SetValue(&isOn)));
  }

  VelIContainer_var hContainer_;
};

World& TheWorld() {
  static World& world = *new World;
  return world;
}

using Lines = std::vector<std::pair<VelTraceKind, std::string>>;

/// The words of a reader, and whether it reads one component or two.
struct Subject {
  const char* name;
  int count;
  const char* parseWord;
};

constexpr std::array<Subject, 5> subjects{{{"Flip", 2, "configuflipn"},
                                           {"Offset", 2, "configuration"},
                                           {"Ratio", 2, "configuration"},
                                           {"Scale", 2, "configuration"},
                                           {"Rotation", 1, "configuration"}}};

std::string ThreePlaces(double iValue) {
  if (std::isnan(iValue)) return "nan";
  std::array<char, 400> text{};
  std::snprintf(text.data(), text.size(), "%.3f", iValue);
  return text.data();
}

/// What a reader has to answer and to tell, worked out on another way.
class Model {
 public:
  explicit Model(const Subject& iSubject) : subject_(iSubject) {
    if (Is("Offset")) Info("Default mode { multiplier = ( 1.000, 1.000 ) }");
    if (!Is("Scale")) return;
    Error("R418 mode could not fetch unit and VelIRmaDimension2D");
    Error("VelIPlasticMaterial not accessible");
  }

  void Read(const std::string& iNames, const std::string& iDefault) {
    if (!iNames.empty()) {
      ReadNames(iNames);
    } else if (!iDefault.empty()) {
      values = {1.0, 1.0};
      const int count = subject_.count == 2 ? std::sscanf(iDefault.c_str(), "%lf %lf", &values[0], &values[1])
                                            : std::sscanf(iDefault.c_str(), "%lf", values.data());
      Tell(count == subject_.count ? VelTraceKind::Information : VelTraceKind::Error, "defaulted to", values);
    } else {
      values = {fallBack.first, fallBack.second};
      Tell(VelTraceKind::Information, "fall back to", values);
    }
  }

  std::array<double, 2> values{};
  Lines lines;

 private:
  using Pair = std::array<double, 2>;

  bool Is(std::string_view iName) const { return iName == subject_.name; }
  void Info(std::string iText) { lines.emplace_back(VelTraceKind::Information, std::move(iText)); }
  void Error(std::string iText) { lines.emplace_back(VelTraceKind::Error, std::move(iText)); }

  void Tell(VelTraceKind iKind, const char* iVerb, const Pair& iValues) {
    std::string text = std::string("Mapping ") + subject_.name + ' ' + iVerb + " ( " + ThreePlaces(iValues[0]);
    if (subject_.count == 2) text += ", " + ThreePlaces(iValues[1]);
    lines.emplace_back(iKind, text + " )");
  }

  void ReadNames(const std::string& iNames) {
    std::array<char, 255> first{};
    std::array<char, 255> second{};
    const int count = subject_.count == 2 ? std::sscanf(iNames.c_str(), "%254s %254s", first.data(), second.data())
                                          : std::sscanf(iNames.c_str(), "%254s", first.data());
    if (count == 1) second = first;
    if (count < 1) {
      Error(std::string("Error while parsing ") + subject_.parseWord + " { catalog = " + type + ", key = Mapping" +
            subject_.name + ".ParameterValue, value = " + iNames + " }");
      Tell(VelTraceKind::Information, "fall back to", {fallBack.first, fallBack.second});
    }
    const Known* const found[] = {Find(first.data(), subject_.count == 2 ? "First parameter" : "Parameter"),
                                  subject_.count == 2 ? Find(second.data(), "Second parameter") : nullptr};
    values[0] = ValueOf(found[0]);
    if (subject_.count == 2) values[1] = ValueOf(found[1]);
    Tell(VelTraceKind::Information, "read as", values);
  }

  const Known* Find(std::string_view iName, const std::string& iWhich) {
    const auto& known = KnownParameters();
    const auto found =
        std::find_if(known.begin(), known.end(), [&](const Known& iEach) { return iEach.name == iName; });
    lines.emplace_back(found == known.end() ? VelTraceKind::Error : VelTraceKind::Information,
                       iWhich + " found { name = " + std::string(iName) + " }");
    return found == known.end() ? nullptr : &*found;
  }

  double ValueOf(const Known* iKnown) {
    if (iKnown == nullptr) return 1.0;
    if (!Is("Flip")) return iKnown->scalar;
    if (iKnown->flip == 0.0) Error("Non-compatible parameter type for flip");
    return iKnown->flip == 0.0 ? 1.0 : iKnown->flip;
  }

  const Subject& subject_;
};

VelRshMappingPair ReadWith(std::size_t iSubject, const VelIRshShader& iShader) {
  switch (iSubject) {
    case 0:
      return VelRshReaderMappingFlip()(iShader, fallBack);
    case 1:
      return VelRshReaderMappingOffset()(iShader, fallBack);
    case 2:
      return VelRshReaderMappingRatio()(iShader, fallBack);
    case 3:
      return VelRshReaderMappingScale()(iShader, fallBack);
    default:
      return {VelRshReaderMappingRotation()(iShader, fallBack.first), 0.0};
  }
}

bool IsSame(double iLeft, double iRight) {
  return std::isnan(iLeft) ? std::isnan(iRight) : iLeft == iRight && std::signbit(iLeft) == std::signbit(iRight);
}

/// A hexadecimal point without digits is read as 0 by some C libraries and as no number by others.
bool IsComparable(std::string iText) {
  for (char& byte : iText) byte = static_cast<char>(std::tolower(static_cast<unsigned char>(byte)));
  for (auto at = iText.find("0x."); at != std::string::npos; at = iText.find("0x.", at + 1)) {
    if (at + 3 >= iText.size() || std::isxdigit(static_cast<unsigned char>(iText[at + 3])) == 0) return false;
  }
  return true;
}

void SetKey(const std::string& iKey, std::string_view iValue) {
  Require(SUCCEEDED(VelRbaConfiguration::SetValue(type, VelString(iKey), VelString(iValue))));
}

/// @param[in] iText the names, and after the first "|" the default
void CheckReader(std::size_t iSubject, std::string_view iText) {
  const auto bar = std::min(iText.find('|'), iText.size());
  const std::string names(iText.substr(0, bar));
  const std::string value(iText.substr(std::min(bar + 1, iText.size())));
  if (names.empty() && !IsComparable(value)) return;
  const Subject& subject = subjects.at(iSubject);
  SetKey(std::string("Mapping") + subject.name + ".ParameterValue", names);
  SetKey(std::string("Mapping") + subject.name + ".DefaultValue", value);
  World& world = TheWorld();
  world.traces.Clear();
  const VelRshMappingPair read = ReadWith(iSubject, *world.hShader);
  Model model(subject);
  model.Read(names, value);
  Require(IsSame(read.first, model.values[0]));
  if (subject.count == 2) Require(IsSame(read.second, model.values[1]));
  Require(world.traces.Entries().size() == model.lines.size());
  for (std::size_t line = 0; line < model.lines.size(); ++line) {
    const VelTraceRecorder::Entry& entry = world.traces.Entries()[line];
    Require(entry.kind == model.lines[line].first && entry.text == model.lines[line].second);
    Require(entry.channel == std::string("VelRshReaderMapping") + subject.name);
  }
}

/// @param[in] iText its first byte says which parameters carry the tag, the next one the value; the last one may hold
///            any other tag
void CheckOperator(std::string_view iText) {
  const auto bits = static_cast<unsigned char>(iText.empty() ? '\0' : iText[0]);
  const std::int32_t value = iText.size() < 2 ? -1 : iText[1] * 65537;
  const auto tag = [&](unsigned iBit) { return (bits & iBit) != 0 ? "projector-function" : "mapping-behavior"; };
  SetKey("n.Tag", tag(1));
  SetKey("u.Tag", tag(2));
  SetKey("i.Tag", tag(4));
  World& world = TheWorld();
  Require(SUCCEEDED(world.hInteger->SetValue(&value)));
  Require(VelRshReaderMappingOperator()(*world.hShader) == ((bits & 7U) == 4 ? value : 6));
  for (const char* key : {"n.Tag", "u.Tag", "i.Tag"}) SetKey(key, "");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* iData, std::size_t iSize) {
  const std::string_view text(reinterpret_cast<const char*>(iData), iSize);
  if (text.empty()) return 0;
  const std::size_t subject = static_cast<unsigned char>(text[0]) % (subjects.size() + 1);
  if (subject == subjects.size()) {
    CheckOperator(text.substr(1));
  } else {
    CheckReader(subject, text.substr(1));
  }
  return 0;
}
