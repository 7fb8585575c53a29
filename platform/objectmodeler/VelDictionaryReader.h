// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelDictionaryReader.h Reads the text of a dictionary file.
#ifndef PLATFORM_OBJECTMODELER_VELDICTIONARYREADER_H
#define PLATFORM_OBJECTMODELER_VELDICTIONARYREADER_H

#include <string>
#include <string_view>
#include <vector>

#include "platform/objectmodeler/VelModule.h"

/// A line of a dictionary file, word by word.
struct VelDictionaryType {
  std::string lateType;
  std::string base;
  unsigned line;
};
struct VelDictionaryClass {
  std::string name;
  VelTypeOfClass kind;
  unsigned line;
};
struct VelDictionaryRow {
  std::string lateType;
  std::string interfaceName;
  VelMechanism mechanism;
  VelLifetime lifetime;
  std::string className;
  unsigned line;
};

/// A module of a dictionary file. Rows of further late types that a class extends stand written out.
struct VelDictionaryModule {
  std::string name;
  std::string framework;
  std::string library;
  unsigned line;
  std::vector<VelDictionaryType> types;
  std::vector<VelDictionaryClass> classes;
  std::vector<VelDictionaryRow> rows;
};

/// What is wrong with a dictionary file, and where.
struct VelDictionaryFault {
  unsigned line;      ///< From 1; the last line for what is missing at the end.
  std::string cause;  ///< What was found and what was expected.
};

/// Reads a dictionary file from memory; docs/dictionary.md describes the format. Not exported.
class VelDictionaryReader {
 public:
  /// @param[out] oModules the modules in file order; meaningless when there is a fault
  /// @return true when the text is a dictionary without fault
  static bool Read(std::string_view iText, std::vector<VelDictionaryModule>& oModules, VelDictionaryFault& oFault);
};

#endif  // PLATFORM_OBJECTMODELER_VELDICTIONARYREADER_H
