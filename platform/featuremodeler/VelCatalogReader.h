// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelCatalogReader.h Reads the text of a catalog file.
#ifndef PLATFORM_FEATUREMODELER_VELCATALOGREADER_H
#define PLATFORM_FEATUREMODELER_VELCATALOGREADER_H

#include <string>
#include <string_view>
#include <vector>

#include "platform/featuremodeler/VelSpecAttrKind.h"

/// An attribute as a catalog declares it.
struct VelCatalogAttribute {
  std::string name;
  VelSpecAttrKind kind;
  unsigned capacity;  ///< Of a list of reals; else 0.
  unsigned line;
};

/// A start-up as a catalog declares it.
struct VelCatalogStartUp {
  std::string name;
  std::string base;  ///< Empty for none.
  unsigned line;
  std::vector<VelCatalogAttribute> attributes;  ///< Its own, in file order.
};

/// A catalog file's content, each start-up after its base.
struct VelCatalogText {
  std::string name;
  unsigned line;  ///< Of the name.
  std::vector<VelCatalogStartUp> startUps;
};

/// What is wrong with a catalog file, and where.
struct VelCatalogFault {
  unsigned line;
  std::string cause;  ///< What was found and what was expected.
};

/// Reads a catalog file from memory; docs/catalog.md describes the format. Not exported.
class VelCatalogReader {
 public:
  /// @param[out] oCatalog the content; meaningless when there is a fault
  /// @return true when the text is a catalog without fault
  static bool Read(std::string_view iText, VelCatalogText& oCatalog, VelCatalogFault& oFault);
};

#endif  // PLATFORM_FEATUREMODELER_VELCATALOGREADER_H
