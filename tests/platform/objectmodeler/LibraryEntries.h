// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file LibraryEntries.h Lists the functions of a library by which the dictionary enters it.
#ifndef TESTS_PLATFORM_OBJECTMODELER_LIBRARYENTRIES_H
#define TESTS_PLATFORM_OBJECTMODELER_LIBRARYENTRIES_H

#include <array>
#include <cstdio>
#include <memory>
#include <set>
#include <string>

/// @param[in] iLister the program that lists symbols, "nm"
/// @param[in] iLibrary the path of a shared library
/// @return the symbols of C linkage that the dictionary looks for and that the library exports
inline std::set<std::string> EntriesOf(const std::string& iLister, const std::string& iLibrary) {
  const std::string command = "'" + iLister + "' -D --defined-only '" + iLibrary + "'";
  const std::unique_ptr<FILE, int (*)(FILE*)> pipe(::popen(command.c_str(), "r"), &::pclose);
  std::set<std::string> names;
  std::array<char, 1024> line{};
  while (pipe != nullptr && std::fgets(line.data(), line.size(), pipe.get()) != nullptr) {
    std::string name(line.data());
    name = name.substr(name.rfind(' ') + 1);
    name.erase(name.find('\n'));
    if (name.starts_with("Create") || name.starts_with("VelModule")) names.insert(name);
  }
  return names;
}

#endif  // TESTS_PLATFORM_OBJECTMODELER_LIBRARYENTRIES_H
