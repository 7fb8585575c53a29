// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelCatalog.cpp Finds, checks and compiles catalogs.
#include "platform/featuremodeler/VelCatalog.h"

#include <algorithm>
#include <map>
#include <memory>
#include <optional>
#include <utility>

#include "platform/base/VelEnvironment.h"
#include "platform/base/system/VelSystemFile.h"
#include "platform/featuremodeler/VelCatalogReader.h"
#include "platform/featuremodeler/VelFeature.h"
#include "platform/featuremodeler/VelFeatureLayout.h"
#include "platform/featuremodeler/VelFeatureSlab.h"
#include "platform/objectmodeler/VelDictionarySource.h"
#include "platform/objectmodeler/VelLateType.h"
#include "platform/trace/VelTraceHandle.h"

using AttributeNames = std::vector<std::string>;

/// The catalogs and start-ups of the process; never destroyed.
struct VelCatalogRegistry {
  std::map<std::string, const VelCatalog*, std::less<>> catalogs;
  std::map<std::string, const VelFeatureLayout*, std::less<>> startUps;
  std::vector<std::string> folders;
  /// One per catalog: whom the dictionary names when a file of its own contradicts a base.
  std::vector<std::unique_ptr<VelDictionarySource>> sources;

  static VelCatalogRegistry& Get() {
    static auto& registry = *new VelCatalogRegistry;
    return registry;
  }

  const VelCatalog* FindByPath(const std::string& iPath) const {
    for (const auto& [name, catalog] : catalogs) {
      if (catalog->path_ == iPath) return catalog;
    }
    return nullptr;
  }

  std::optional<AttributeNames> NamesOf(const VelCatalogStartUp& iStartUp,
                                        const std::map<std::string, AttributeNames>& iOwn) const;
  VelCatalogFault FindTaken(const VelCatalogStartUp& iStartUp) const;
  VelCatalogFault FindContradiction(const VelCatalogText& iText) const;
  VelCatalogFault FindOversize(const VelCatalogText& iText) const;
  const VelCatalog& Enter(const VelCatalogText& iText, std::string iPath);
};

namespace {

constexpr std::size_t fileByteLimit = 1U << 20U;
constexpr const char* channel = "VelCatalog";

void ReportError(const std::string& iText) {
  VelTraceHandle(channel).Error(VEL_HERE("platform/featuremodeler/VelCatalog"), "%s", iText);
}

bool IsAbsolute(const std::string& iFile) { return iFile.starts_with('/'); }

/// @return the folders in which a relative path is looked for after the current one, in order
std::vector<std::string> ListFolders() {
  std::vector<std::string> folders = VelCatalogRegistry::Get().folders;
  for (const std::string& folder : VelEnvironment::GetPaths("VEL_CATALOG_PATH")) folders.push_back(folder);
  return folders;
}

void ReportNowhere(const std::string& iFile) {
  if (IsAbsolute(iFile)) {
    ReportError("the catalog '" + iFile + "' does not exist");
    return;
  }
  std::string listed;
  for (const std::string& folder : ListFolders()) listed += (listed.empty() ? "'" : ", '") + folder + "'";
  ReportError("the catalog '" + iFile + "' is neither in the current folder nor in a folder of catalogs (" +
              (listed.empty() ? "there is none" : listed) + ")");
}

/// @return the canonical path of a catalog file, empty when it is nowhere
std::string Locate(const std::string& iFile) {
  std::vector<std::string> candidates{iFile};
  if (!IsAbsolute(iFile)) {
    for (const std::string& folder : ListFolders()) candidates.push_back(folder + '/' + iFile);
  }
  std::string path;
  std::string cause;
  for (const std::string& candidate : candidates) {
    if (SUCCEEDED(VelSystemFile::CanonicalPath(candidate, path, cause))) return path;
  }
  return {};
}

}  // namespace

/// The names of a start-up's attributes, those of its bases included; empty for an unknown base.
std::optional<AttributeNames> VelCatalogRegistry::NamesOf(const VelCatalogStartUp& iStartUp,
                                                          const std::map<std::string, AttributeNames>& iOwn) const {
  if (iStartUp.base.empty()) return AttributeNames();
  if (const auto own = iOwn.find(iStartUp.base); own != iOwn.end()) return own->second;
  const auto loaded = startUps.find(iStartUp.base);
  if (loaded == startUps.end()) return std::nullopt;
  AttributeNames names;
  for (const VelFeatureAttribute& attribute : loaded->second->Attributes()) names.push_back(attribute.key->Name());
  return names;
}

/// A start-up is a late type of its own, whose base is given by the catalog alone.
VelCatalogFault VelCatalogRegistry::FindTaken(const VelCatalogStartUp& iStartUp) const {
  if (startUps.contains(iStartUp.name)) {
    return {iStartUp.line, "another catalog declares the start-up '" + iStartUp.name + "' already"};
  }
  // Features derive from the first two; the components of the last two are no features.
  for (const char* own : {"VelComponent", "VelFeature", "VelContainer", "VelStartUp"}) {
    if (iStartUp.name == own) return {iStartUp.line, "the name '" + iStartUp.name + "' is the platform's own"};
  }
  // Nor can a start-up derive from itself through what a dictionary puts above all features.
  for (const VelLateType* above = &VelLateType::Of("VelFeature"); above != nullptr; above = above->Base()) {
    if (above->Name() == iStartUp.name) {
      return {iStartUp.line, "every feature derives from '" + iStartUp.name + "' already"};
    }
  }
  const VelLateType* lateType = VelLateType::Find(iStartUp.name);
  if (lateType == nullptr || lateType->DeclaredBase() == nullptr) return {0, {}};
  return {iStartUp.line, "a dictionary declares a base of '" + iStartUp.name + "' already"};
}

/// A feature lies in one block of a slab.
VelCatalogFault VelCatalogRegistry::FindOversize(const VelCatalogText& iText) const {
  const std::size_t limit = (VelFeatureSlab::largestBlock - sizeof(VelFeature)) / sizeof(VelFeatureSlot);
  std::map<std::string_view, std::size_t> own;
  for (const VelCatalogStartUp& startUp : iText.startUps) {
    const auto base = own.find(startUp.base);
    const auto loaded = startUps.find(startUp.base);
    std::size_t slots = base != own.end() ? base->second : 0;
    if (loaded != startUps.end()) slots = loaded->second->SlotBytes() / sizeof(VelFeatureSlot);
    for (const VelCatalogAttribute& attribute : startUp.attributes) slots += 1 + attribute.capacity;
    if (slots > limit) {
      return {startUp.line, "the lists of reals of '" + startUp.name + "' are too long for one feature"};
    }
    own.emplace(startUp.name, slots);
  }
  return {0, {}};
}

/// Two start-ups of one name would be one late type; an attribute is declared once along a line of bases.
VelCatalogFault VelCatalogRegistry::FindContradiction(const VelCatalogText& iText) const {
  if (catalogs.contains(iText.name)) {
    return {iText.line, "the catalog '" + iText.name + "' is loaded already from another file"};
  }
  std::map<std::string, AttributeNames> own;
  for (const VelCatalogStartUp& startUp : iText.startUps) {
    if (VelCatalogFault fault = FindTaken(startUp); !fault.cause.empty()) return fault;
    std::optional<AttributeNames> names = NamesOf(startUp, own);
    if (!names) return {startUp.line, "the base '" + startUp.base + "' of '" + startUp.name + "' is not declared"};
    for (const VelCatalogAttribute& attribute : startUp.attributes) {
      if (std::find(names->begin(), names->end(), attribute.name) != names->end()) {
        return {attribute.line, "a base of '" + startUp.name + "' has the attribute '" + attribute.name + "' already"};
      }
      names->push_back(attribute.name);
    }
    if (names->size() > VelFeatureLayout::attributeLimit) {
      return {startUp.line, "the start-up '" + startUp.name + "' has " + std::to_string(names->size()) +
                                " attributes with those of its bases, at most " +
                                std::to_string(VelFeatureLayout::attributeLimit) + " are possible"};
    }
    own.emplace(startUp.name, *std::move(names));
  }
  return FindOversize(iText);
}

const VelCatalog& VelCatalogRegistry::Enter(const VelCatalogText& iText, std::string iPath) {
  auto* catalog = new VelCatalog;
  catalog->name_ = iText.name;
  catalog->path_ = std::move(iPath);
  const auto& source = sources.emplace_back(std::make_unique<VelDictionarySource>());
  source->file = catalog->path_;
  for (const VelCatalogStartUp& startUp : iText.startUps) {
    const auto base = startUps.find(startUp.base);
    const VelFeatureLayout* baseLayout = base != startUps.end() ? base->second : nullptr;
    VelLateType& lateType = VelLateType::Of(startUp.name);
    lateType.DeclareBase(baseLayout != nullptr ? &baseLayout->LateType() : &VelLateType::Of("VelFeature"),
                         source.get());
    auto* layout = new VelFeatureLayout(startUp.name, baseLayout, lateType);
    lateType.SetLayout(*layout);
    for (const VelCatalogAttribute& attribute : startUp.attributes) {
      layout->Add(VelISpecAttrKey::Of(attribute.name, attribute.kind), attribute.capacity);
    }
    startUps.emplace(startUp.name, layout);
    catalog->startUps_.push_back(layout);
  }
  catalogs.emplace(catalog->name_, catalog);
  VelLateType::ForgetAnswers();
  return *catalog;
}

const VelFeatureLayout* VelCatalog::FindStartUp(std::string_view iName) const noexcept {
  for (const VelFeatureLayout* startUp : startUps_) {
    if (startUp->Name() == iName) return startUp;
  }
  return nullptr;
}

const VelCatalog* VelCatalog::Load(const std::string& iFile) {
  VelCatalogRegistry& registry = VelCatalogRegistry::Get();
  const std::string path = Locate(iFile);
  if (path.empty()) {
    ReportNowhere(iFile);
    return nullptr;
  }
  if (const VelCatalog* known = registry.FindByPath(path)) return known;
  std::string bytes;
  std::string cause;
  if (FAILED(VelSystemFile::ReadWholeFile(path, fileByteLimit, bytes, cause))) {
    ReportError("the catalog '" + path + "' cannot be read: " + cause);
    return nullptr;
  }
  VelCatalogText text;
  VelCatalogFault fault{};
  if (VelCatalogReader::Read(bytes, text, fault)) fault = registry.FindContradiction(text);
  if (!fault.cause.empty()) {
    ReportError(path + ':' + std::to_string(fault.line) + ": " + fault.cause);
    return nullptr;
  }
  VelTraceHandle(channel).Info("Catalog loaded { file = %s, start-ups = %d }", path, text.startUps.size());
  return &registry.Enter(text, path);
}

const VelCatalog* VelCatalog::Find(std::string_view iName) noexcept {
  const auto found = VelCatalogRegistry::Get().catalogs.find(iName);
  return found != VelCatalogRegistry::Get().catalogs.end() ? found->second : nullptr;
}

void VelCatalog::SetFolders(std::vector<std::string> iFolders) {
  VelCatalogRegistry::Get().folders = std::move(iFolders);
}
