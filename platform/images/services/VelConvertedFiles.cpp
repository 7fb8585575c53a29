// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelConvertedFiles.cpp Finds, keeps and sweeps the files.
#include "platform/images/services/VelConvertedFiles.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <filesystem>
#include <memory>
#include <span>
#include <system_error>
#include <utility>
#include <vector>

#include "platform/base/VelString.h"
#include "platform/base/system/VelSystemFile.h"
#include "platform/base/system/VelSystemWrite.h"
#include "platform/configuration/VelRbaConfiguration.h"
#include "platform/images/decoders/VelExrDecoder.h"
#include "platform/images/pixels/VelImageSource.h"
#include "platform/images/pixels/VelPixelBuffer.h"
#include "platform/images/services/VelCacheFolder.h"

namespace {

namespace fs = std::filesystem;
using Clock = fs::file_time_type::clock;

constexpr std::chrono::hours usedLately(1);
constexpr std::string_view unfinishedMark = ".new-";

/// The last chunk of every PNG file.
bool EndsAsPng(const VelSystemInputFile& iFile) {
  static constexpr std::array<unsigned char, 12> end{0, 0, 0, 0, 'I', 'E', 'N', 'D', 0xAE, 0x42, 0x60, 0x82};
  const std::uint64_t size = iFile.GetStatus().size;
  std::array<unsigned char, end.size()> last{};
  if (size < end.size()) return false;
  return iFile.ReadAt(size - end.size(), std::as_writable_bytes(std::span(last))) == end.size() && last == end;
}

bool IsReadableExr(const VelSystemInputFile& iFile) {
  VelFileImageSource source(iFile);
  VelPixelBuffer pixels;
  std::string cause;
  return SUCCEEDED(VelExrDecoder::Decode(source, pixels, cause));
}

struct KeptFile {
  fs::path path;
  std::uint64_t bytes;
  fs::file_time_type usedAt;
};

/// What is in a folder and below. Files that others remove meanwhile are left out.
std::vector<KeptFile> ListFiles(const std::string& iFolder) {
  std::vector<KeptFile> files;
  std::error_code error;
  fs::recursive_directory_iterator file(iFolder, error);
  for (; !error && file != fs::recursive_directory_iterator(); file.increment(error)) {
    std::error_code gone;
    if (!file->is_regular_file(gone) || gone) continue;
    const std::uintmax_t bytes = file->file_size(gone);
    const fs::file_time_type usedAt = file->last_write_time(gone);
    if (!gone) files.push_back({file->path(), bytes, usedAt});
  }
  return files;
}

bool Remove(const fs::path& iPath) {
  std::error_code error;
  return fs::remove(iPath, error) && !error;
}

/// A use is noted in the file's time, at most once in a while, so that finding a file writes nothing as a rule.
void NoteUse(const std::string& iPath) {
  std::error_code error;
  const auto now = Clock::now();
  const auto noted = fs::last_write_time(iPath, error);
  if (!error && now - noted > usedLately / 2) fs::last_write_time(iPath, now, error);
}

/// The cap that is configured, else the default.
std::uint64_t ConfiguredCap() {
  VelString text;
  std::uint64_t megabytes = 0;
  if (FAILED(VelRbaConfiguration::GetHierarchicalValue("Images", "ConvertedFilesMegabytes", text))) {
    return VelConvertedFiles::defaultCap;
  }
  const std::string_view digits = text.View();
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), megabytes);
  const bool isNumber = error == std::errc() && end == digits.data() + digits.size() && megabytes < (1U << 30U);
  return isNumber ? megabytes << 20U : VelConvertedFiles::defaultCap;
}

}  // namespace

VelConvertedFiles::VelConvertedFiles(std::string iFolder, std::uint64_t iCap)
    : folder_(std::move(iFolder)), cap_(iCap) {}

VelConvertedFiles* VelConvertedFiles::OfUser() {
  static auto& files = *new std::unique_ptr<VelConvertedFiles>;
  const std::string caches = VelCacheFolder::Find();
  if (caches.empty()) return nullptr;
  const std::string folder = caches + "/velrsh/images/v1";
  if (files == nullptr || files->folder_ != folder) files = std::make_unique<VelConvertedFiles>(folder);
  return files.get();
}

HRESULT VelConvertedFiles::Find(const std::string& iKey, std::string_view iFormat, std::string& oPath) {
  const std::string path = PathOf(iKey, iFormat);
  if (!VelSystemFile::Exists(path)) return S_FALSE;
  if (!IsWhole(path, iFormat)) {
    Remove(path);
    return S_FALSE;
  }
  NoteUse(path);
  oPath = path;
  return S_OK;
}

HRESULT VelConvertedFiles::Keep(const std::string& iKey, std::string_view iFormat, std::string_view iBytes,
                                std::string& oPath, std::string& oCause) {
  const std::string path = PathOf(iKey, iFormat);
  std::string cause;
  if (FAILED(VelCacheFolder::Make(VelSystemFile::FolderOf(path), cause)) ||
      FAILED(VelSystemWrite::ReplaceFile(path, iBytes, cause))) {
    oCause = "cannot be converted to '" + path + "': " + cause;
    return E_FAIL;
  }
  oPath = path;
  if (bytesUntilSweep_ <= iBytes.size()) {
    Sweep();
  } else {
    bytesUntilSweep_ -= iBytes.size();
  }
  return S_OK;
}

void VelConvertedFiles::Sweep() {
  const std::uint64_t cap = cap_ == defaultCap ? ConfiguredCap() : cap_;
  bytesUntilSweep_ = cap / 20;
  std::vector<KeptFile> files = ListFiles(folder_);
  std::uint64_t held = 0;
  for (const KeptFile& file : files) held += file.bytes;
  std::sort(files.begin(), files.end(),
            [](const KeptFile& iOne, const KeptFile& iOther) { return iOne.usedAt < iOther.usedAt; });
  const auto oldEnough = Clock::now() - usedLately;
  const std::uint64_t aim = held > cap ? cap / 5 * 4 : cap;
  for (const KeptFile& file : files) {
    if (file.usedAt >= oldEnough) break;
    const bool isUnfinished = file.path.filename().string().find(unfinishedMark) != std::string::npos;
    if ((isUnfinished || held > aim) && Remove(file.path)) held -= file.bytes;
  }
}

std::string VelConvertedFiles::PathOf(const std::string& iKey, std::string_view iFormat) const {
  return folder_ + "/" + iKey.substr(0, 2) + "/" + iKey.substr(2) + "." + std::string(iFormat);
}

bool VelConvertedFiles::IsWhole(const std::string& iPath, std::string_view iFormat) {
  VelSystemInputFile file;
  std::string cause;
  if (FAILED(file.Open(iPath, cause))) return false;
  VelSystemFileStatus& whole = whole_[iPath];
  if (whole == file.GetStatus()) return true;
  if (iFormat == "png" ? !EndsAsPng(file) : !IsReadableExr(file)) return false;
  whole = file.GetStatus();
  return true;
}
