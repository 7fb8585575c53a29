// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTemporaryFolder.h A folder of a test's own, which goes with the test.
#ifndef TESTS_PLATFORM_BASE_SYSTEM_VELTEMPORARYFOLDER_H
#define TESTS_PLATFORM_BASE_SYSTEM_VELTEMPORARYFOLDER_H

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>

#include <stdlib.h>

/// A new folder under the system's folder for temporary files.
class VelTemporaryFolder {
 public:
  VelTemporaryFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "velrsh-test-XXXXXX").string();
    if (::mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder: " + name);
    path_ = name;
  }

  ~VelTemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  VelTemporaryFolder(const VelTemporaryFolder&) = delete;
  VelTemporaryFolder& operator=(const VelTemporaryFolder&) = delete;

  /// @return the path of an entry, which need not exist; the folder itself without a name
  std::string Path(std::string_view iName = {}) const {
    return iName.empty() ? path_.string() : (path_ / iName).string();
  }

  /// @return the path of the file
  std::string Write(std::string_view iName, std::string_view iBytes) const {
    std::ofstream file(path_ / iName, std::ios::binary);
    file << iBytes;
    if (!file.flush()) throw std::runtime_error("cannot write " + Path(iName));
    return Path(iName);
  }

  std::string Read(std::string_view iName) const {
    std::ifstream file(path_ / iName, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

 private:
  std::filesystem::path path_;
};

#endif  // TESTS_PLATFORM_BASE_SYSTEM_VELTEMPORARYFOLDER_H
