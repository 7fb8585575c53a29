// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelPathResolution.cpp Replaces symbols, then looks along the search folders.
#include "platform/images/services/VelPathResolution.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <string_view>

#include "platform/base/VelEnvironment.h"
#include "platform/base/VelListValVelUnicodeString.h"
#include "platform/base/VelString.h"
#include "platform/base/VelUnicodeString.h"
#include "platform/base/system/VelSystemFile.h"
#include "platform/configuration/VelRbaConfiguration.h"
#include "platform/images/VelRbaImageServices.h"

namespace {

/// How deep configured values may lie in each other: one that is deeper stands for itself.
constexpr int mostLevels = 16;
constexpr std::string_view symbolBegin = "${";

std::optional<std::string> Expand(std::string_view iText, int iLevel);

/// The value of a name: configured, with its own symbols replaced, or as the environment has it.
std::optional<std::string> ValueOf(std::string_view iName, int iLevel) {
  VelString value;
  const VelString name(iName);
  if (SUCCEEDED(VelRbaConfiguration::GetHierarchicalValue(VelPathResolution::configuration, name, value))) {
    return Expand(value.View(), iLevel + 1);
  }
  if (!VelEnvironment::Get(std::string(iName).c_str(), value)) return std::nullopt;
  return std::string(value.View());
}

/// @return the text with all symbols replaced; nothing when one of them has no value
std::optional<std::string> Expand(std::string_view iText, int iLevel) {
  if (iLevel > mostLevels) return std::nullopt;
  std::string result;
  for (std::size_t begin = iText.find(symbolBegin); begin != std::string_view::npos; begin = iText.find(symbolBegin)) {
    const std::size_t end = iText.find('}', begin);
    if (end == std::string_view::npos) break;
    const auto value = ValueOf(iText.substr(begin + 2, end - begin - 2), iLevel);
    if (!value) return std::nullopt;
    result.append(iText.substr(0, begin)).append(*value);
    iText.remove_prefix(end + 1);
  }
  return result.append(iText);
}

bool IsLetter(char iLetter) noexcept {
  return ('a' <= iLetter && iLetter <= 'z') || ('A' <= iLetter && iLetter <= 'Z');
}

bool IsFull(std::string_view iPath) noexcept {
  if (iPath.starts_with('/') || iPath.starts_with("\\\\")) return true;
  return iPath.size() >= 3 && IsLetter(iPath[0]) && iPath[1] == ':' && (iPath[2] == '\\' || iPath[2] == '/');
}

std::vector<std::string> SearchFolders() {
  VelString text;
  std::vector<std::string> folders;
  if (FAILED(VelRbaConfiguration::GetHierarchicalValue(VelPathResolution::configuration,
                                                       VelPathResolution::searchFoldersKey, text))) {
    return folders;
  }
  VelListValVelUnicodeString items;
  VelRbaImageServices::ExtractPathList(VelUnicodeString(text.View()), items);
  for (int i = 1; i <= items.Size(); ++i) {
    if (const auto folder = Expand(items[i].View(), 0); folder && !folder->empty()) folders.push_back(*folder);
  }
  return folders;
}

std::optional<std::string> FindIn(const std::string& iFolder, const std::string& iPath) {
  const std::filesystem::path path = std::filesystem::path(iFolder) / iPath;
  if (!VelSystemFile::Exists(path.string())) return std::nullopt;
  std::error_code error;
  const std::filesystem::path full = std::filesystem::absolute(path, error);
  return (error ? path : full).lexically_normal().string();
}

}  // namespace

std::string VelPathResolution::Resolve(const std::string& iPath) {
  if (IsFull(iPath)) return iPath;
  const auto path = Expand(iPath, 0);
  if (!path || path->empty()) return iPath;
  if (IsFull(*path)) return *path;
  std::string slashed = *path;
  std::replace(slashed.begin(), slashed.end(), '\\', '/');
  for (const std::string& folder : SearchFolders()) {
    if (const auto found = FindIn(folder, *path)) return *found;
    if (const auto found = FindIn(folder, slashed)) return *found;
  }
  return iPath;
}
