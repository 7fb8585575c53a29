// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelCatalogReader.cpp The line-by-line reader of catalog files.
#include "platform/featuremodeler/VelCatalogReader.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <map>
#include <optional>
#include <set>
#include <utility>

#include "platform/base/VelLineReader.h"
#include "platform/featuremodeler/VelFeatureLayout.h"

namespace {

using Fault = std::optional<std::string>;

constexpr unsigned capacityLimit = 1024;
constexpr std::size_t startUpLimit = 4096;

std::string Quoted(std::string_view iWord) { return "'" + std::string(iWord) + "'"; }

/// Reads one file; each Take function handles one keyword and says what is wrong with its line, or nothing.
class Reading {
 public:
  explicit Reading(VelCatalogText& oCatalog) : catalog_(oCatalog) {}

  Fault TakeLine(const VelWords& iWords, unsigned iLine) {
    line_ = iLine;
    if (!headerSeen_) return TakeHeader(iWords);
    if (iWords.front() == "catalog") return TakeCatalog(iWords);
    if (catalog_.name.empty()) return "expected the line 'catalog <name>' before this one";
    if (iWords.front() == "startup") return TakeStartUp(iWords);
    if (iWords.front() == "attribute") return TakeAttribute(iWords);
    return "unknown word " + Quoted(iWords.front()) + ", expected catalog, startup or attribute";
  }

  Fault Finish() const {
    if (!headerSeen_) return "the file is empty, expected the line 'velrsh-catalog 1'";
    if (catalog_.name.empty()) return "the file names no catalog, expected a 'catalog' line";
    return std::nullopt;
  }

 private:
  Fault TakeHeader(const VelWords& iWords) {
    if (iWords.size() != 2 || iWords[0] != "velrsh-catalog") {
      return "expected the line 'velrsh-catalog 1' before anything else";
    }
    if (iWords[1] != "1") return "catalog version " + Quoted(iWords[1]) + " is unknown, expected '1'";
    headerSeen_ = true;
    return std::nullopt;
  }

  Fault TakeCatalog(const VelWords& iWords) {
    if (!catalog_.name.empty()) return "the catalog is named already";
    if (iWords.size() != 2 || !VelIsName(iWords[1])) return "'catalog' takes a name of letters, digits and '_'";
    catalog_.name = iWords[1];
    catalog_.line = line_;
    return std::nullopt;
  }

  Fault TakeStartUp(const VelWords& iWords) {
    const bool hasBase = iWords.size() == 4 && iWords[2] == ":";
    if (iWords.size() != 2 && !hasBase) return "'startup' takes a name, or a name, ':' and the name of its base";
    for (const std::string_view name : {iWords[1], iWords.back()}) {
      if (!VelIsName(name)) return Quoted(name) + " is no name, expected letters, digits and '_'";
    }
    if (catalog_.startUps.size() >= startUpLimit) {
      return "a catalog holds at most " + std::to_string(startUpLimit) + " start-ups";
    }
    const auto [known, isNew] = lines_.emplace(iWords[1], line_);
    if (!isNew) return "the start-up " + Quoted(iWords[1]) + " stands already at line " + std::to_string(known->second);
    attributeNames_.clear();
    catalog_.startUps.push_back({std::string(iWords[1]), std::string(hasBase ? iWords[3] : ""), line_, {}});
    return std::nullopt;
  }

  Fault TakeAttribute(const VelWords& iWords) {
    if (catalog_.startUps.empty()) return "expected a 'startup' line before this one";
    if (iWords.size() < 3) return "'attribute' takes a name and a kind, and for reals their number";
    if (!VelIsName(iWords[1])) return Quoted(iWords[1]) + " is no name, expected letters, digits and '_'";
    const VelSpecAttrKindWord* kind = FindKind(iWords[2]);
    if (kind == nullptr) return "unknown kind " + Quoted(iWords[2]) + ", expected " + KindWords();
    VelCatalogAttribute attribute{std::string(iWords[1]), kind->kind, 0, line_};
    if (Fault fault = TakeCapacity(iWords, attribute)) return fault;
    if (!attributeNames_.insert(attribute.name).second) {
      return "the attribute " + Quoted(attribute.name) + " stands twice in " + Quoted(catalog_.startUps.back().name);
    }
    catalog_.startUps.back().attributes.push_back(std::move(attribute));
    return std::nullopt;
  }

  static Fault TakeCapacity(const VelWords& iWords, VelCatalogAttribute& ioAttribute) {
    if (ioAttribute.kind != VelSpecAttrKind::Reals) {
      if (iWords.size() == 3) return std::nullopt;
      return "nothing follows the kind " + Quoted(iWords[2]) + ", found " + Quoted(iWords[3]);
    }
    const std::string_view word = iWords.size() == 4 ? iWords[3] : std::string_view();
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), ioAttribute.capacity);
    const bool isNumber = error == std::errc() && end == word.data() + word.size();
    if (isNumber && ioAttribute.capacity >= 1 && ioAttribute.capacity <= capacityLimit) return std::nullopt;
    return "'reals' is followed by the number of elements, from 1 to " + std::to_string(capacityLimit);
  }

  static const VelSpecAttrKindWord* FindKind(std::string_view iWord) {
    for (const VelSpecAttrKindWord& known : velSpecAttrKinds) {
      if (known.word == iWord) return &known;
    }
    return nullptr;
  }

  static std::string KindWords() {
    std::string words;
    for (const VelSpecAttrKindWord& known : velSpecAttrKinds) {
      if (!words.empty()) words += &known == std::end(velSpecAttrKinds) - 1 ? " or " : ", ";
      words += known.word;
    }
    return words;
  }

  VelCatalogText& catalog_;
  std::map<std::string, unsigned, std::less<>> lines_;  ///< Where each start-up stands.
  std::set<std::string> attributeNames_;                ///< Those of the start-up that is being read.
  unsigned line_ = 0;
  bool headerSeen_ = false;
};

/// Puts every start-up after its base. A base that this catalog does not declare may be one of another catalog.
/// @return the start-up that stands in a cycle of bases, null when there is none
const VelCatalogStartUp* Sort(std::vector<VelCatalogStartUp>& ioStartUps) {
  std::map<std::string_view, VelCatalogStartUp*> byName;
  for (VelCatalogStartUp& startUp : ioStartUps) byName.emplace(startUp.name, &startUp);
  std::set<const VelCatalogStartUp*> placed;
  std::vector<VelCatalogStartUp*> order;
  for (VelCatalogStartUp& startUp : ioStartUps) {
    std::vector<VelCatalogStartUp*> climb;
    for (VelCatalogStartUp* next = &startUp; next != nullptr && !placed.contains(next);) {
      if (climb.size() > ioStartUps.size()) return next;
      climb.push_back(next);
      const auto base = byName.find(next->base);
      next = base != byName.end() ? base->second : nullptr;
    }
    for (auto next = climb.rbegin(); next != climb.rend(); ++next) {
      placed.insert(*next);
      order.push_back(*next);
    }
  }
  std::vector<VelCatalogStartUp> sorted;
  for (VelCatalogStartUp* next : order) sorted.push_back(std::move(*next));
  ioStartUps = std::move(sorted);
  return nullptr;
}

bool Refuse(VelCatalogFault& oFault, unsigned iLine, std::string iCause) {
  oFault.line = iLine;
  oFault.cause = std::move(iCause);
  return false;
}

}  // namespace

bool VelCatalogReader::Read(std::string_view iText, VelCatalogText& oCatalog, VelCatalogFault& oFault) {
  oCatalog = {};
  Reading reading(oCatalog);
  VelLineReader lines(iText);
  while (lines.Next()) {
    if (Fault fault = reading.TakeLine(lines.Words(), lines.Line())) return Refuse(oFault, lines.Line(), *fault);
  }
  if (Fault fault = reading.Finish()) return Refuse(oFault, std::max(lines.Line(), 1U), *fault);
  const VelCatalogStartUp* startUp = Sort(oCatalog.startUps);
  if (startUp == nullptr) return true;
  return Refuse(oFault, startUp->line, "the start-up " + Quoted(startUp->name) + " would derive from itself");
}
