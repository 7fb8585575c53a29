// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file catalog_fuzz.cpp Fuzzes the reader of catalog files with arbitrary bytes.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <set>
#include <string>
#include <string_view>

#include "platform/featuremodeler/VelCatalogReader.h"
#include "tests/fuzz/Require.h"

namespace {

/// @return the number of lines, at least 1
std::size_t LineCount(std::string_view iText) {
  const auto newlines = static_cast<std::size_t>(std::count(iText.begin(), iText.end(), '\n'));
  return std::max<std::size_t>(1, iText.empty() || iText.back() == '\n' ? newlines : newlines + 1);
}

bool IsLine(std::string_view iText, unsigned iLine) { return iLine >= 1 && iLine <= LineCount(iText); }

/// The catalog as the reader understood it.
std::string Write(const VelCatalogText& iCatalog) {
  std::string text = "velrsh-catalog 1\ncatalog " + iCatalog.name + '\n';
  for (const VelCatalogStartUp& startUp : iCatalog.startUps) {
    text += "startup " + startUp.name + (startUp.base.empty() ? "" : " : " + startUp.base) + '\n';
    for (const VelCatalogAttribute& attribute : startUp.attributes) {
      const auto* kind = std::find_if(std::begin(velSpecAttrKinds), std::end(velSpecAttrKinds),
                                      [&](const auto& iKnown) { return iKnown.kind == attribute.kind; });
      Require(kind != std::end(velSpecAttrKinds));
      text += "attribute " + attribute.name + ' ' + std::string(kind->word);
      text += attribute.kind == VelSpecAttrKind::Reals ? ' ' + std::to_string(attribute.capacity) + '\n' : "\n";
    }
  }
  return text;
}

void CheckStartUp(std::string_view iText, const VelCatalogStartUp& iStartUp) {
  Require(!iStartUp.name.empty() && IsLine(iText, iStartUp.line));
  std::set<std::string> names;
  for (const VelCatalogAttribute& attribute : iStartUp.attributes) {
    Require(names.insert(attribute.name).second);
    Require(attribute.line > iStartUp.line && IsLine(iText, attribute.line));
    const bool isList = attribute.kind == VelSpecAttrKind::Reals;
    Require(isList ? attribute.capacity >= 1 && attribute.capacity <= 1024 : attribute.capacity == 0);
  }
}

/// What was accepted has unique names, has each base before what derives from it, and written out means the same.
void CheckAccepted(std::string_view iText, const VelCatalogText& iCatalog) {
  Require(!iCatalog.name.empty() && IsLine(iText, iCatalog.line));
  std::set<std::string> all;
  for (const VelCatalogStartUp& startUp : iCatalog.startUps) Require(all.insert(startUp.name).second);
  std::set<std::string> before;
  for (const VelCatalogStartUp& startUp : iCatalog.startUps) {
    CheckStartUp(iText, startUp);
    Require(!all.contains(startUp.base) || before.contains(startUp.base));
    before.insert(startUp.name);
  }
  const std::string written = Write(iCatalog);
  VelCatalogText again;
  VelCatalogFault fault{};
  Require(VelCatalogReader::Read(written, again, fault));
  Require(Write(again) == written);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* iData, std::size_t iSize) {
  const std::string_view text(reinterpret_cast<const char*>(iData), iSize);
  VelCatalogText catalog;
  VelCatalogFault fault{};
  if (VelCatalogReader::Read(text, catalog, fault)) {
    CheckAccepted(text, catalog);
  } else {
    Require(IsLine(text, fault.line) && !fault.cause.empty());
  }
  return 0;
}
