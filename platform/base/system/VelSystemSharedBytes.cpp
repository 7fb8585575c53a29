// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemSharedBytes.cpp Memory files with seals.
#include "platform/base/system/VelSystemSharedBytes.h"

#include <fcntl.h>
#include <linux/magic.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "platform/base/system/VelSystemError.h"

namespace {

constexpr int contentSeals = F_SEAL_WRITE | F_SEAL_GROW | F_SEAL_SHRINK;

HRESULT RefuseNoBytes(std::string& oCause) {
  oCause = "has to have at least one byte";
  return E_INVALIDARG;
}

/// @return S_OK when the memory can change no more and is of that size
HRESULT CheckSealed(int iDescriptor, std::size_t iExpectedSize, std::string& oCause) {
  const int seals = ::fcntl(iDescriptor, F_GET_SEALS);
  struct stat status {};
  struct statfs fileSystem {};
  // Memory of huge pages has seals too, but may turn out not to be there when it is read.
  const bool isMemory = seals >= 0 && ::fstat(iDescriptor, &status) == 0 && ::fstatfs(iDescriptor, &fileSystem) == 0 &&
                        std::cmp_equal(fileSystem.f_type, TMPFS_MAGIC);
  if (!isMemory) {
    oCause = "is not memory";
    return E_FAIL;
  }
  if ((seals & contentSeals) != contentSeals) {
    oCause = "is not sealed against writing, growing and shrinking";
    return E_FAIL;
  }
  if (std::cmp_equal(status.st_size, iExpectedSize)) return S_OK;
  oCause = "has " + std::to_string(status.st_size) + " bytes where " + std::to_string(iExpectedSize) + " were expected";
  return E_FAIL;
}

}  // namespace

VelSystemSharedBytes::~VelSystemSharedBytes() { Unmap(); }

void VelSystemSharedBytes::Unmap() noexcept {
  if (bytes_ != nullptr) ::munmap(bytes_, size_);
  bytes_ = nullptr;
  size_ = 0;
  isWritable_ = false;
}

HRESULT VelSystemSharedBytes::MapAs(std::size_t iSize, bool iIsToBeWritten, std::string& oCause) {
  // What is sealed against writing may not be mapped as shared by every kernel, even to be read.
  void* bytes = iIsToBeWritten ? ::mmap(nullptr, iSize, PROT_READ | PROT_WRITE, MAP_SHARED, GetDescriptor(), 0)
                               : ::mmap(nullptr, iSize, PROT_READ, MAP_PRIVATE, GetDescriptor(), 0);
  if (bytes == MAP_FAILED) {
    oCause = "cannot be mapped: " + VelSystemError::CauseOf(errno);
    descriptor_ = VelSystemDescriptor();
    return E_FAIL;
  }
  bytes_ = static_cast<std::byte*>(bytes);
  size_ = iSize;
  isWritable_ = iIsToBeWritten;
  return S_OK;
}

HRESULT VelSystemSharedBytes::Create(std::size_t iSize, std::string& oCause) {
  Unmap();
  descriptor_ = VelSystemDescriptor();
  if (iSize == 0) return RefuseNoBytes(oCause);
  VelSystemDescriptor memory(::memfd_create("velrsh", MFD_CLOEXEC | MFD_ALLOW_SEALING));
  const bool isThere =
      memory.IsOpen() && std::in_range<off_t>(iSize) && ::ftruncate(memory.Get(), static_cast<off_t>(iSize)) == 0;
  if (!isThere) {
    oCause = "of " + std::to_string(iSize) + " bytes is not to be had";
    return E_FAIL;
  }
  descriptor_ = std::move(memory);
  return MapAs(iSize, true, oCause);
}

std::span<std::byte> VelSystemSharedBytes::WritableBytes() noexcept {
  return isWritable_ ? std::span<std::byte>(bytes_, size_) : std::span<std::byte>();
}

HRESULT VelSystemSharedBytes::Seal(std::string& oCause) {
  if (!isWritable_) {
    oCause = "is not there to be sealed";
    return E_UNEXPECTED;
  }
  Unmap();
  if (::fcntl(GetDescriptor(), F_ADD_SEALS, contentSeals | F_SEAL_SEAL) == 0) return S_OK;
  oCause = "cannot be sealed: " + VelSystemError::CauseOf(errno);
  return E_FAIL;
}

HRESULT VelSystemSharedBytes::Map(int iDescriptor, std::size_t iExpectedSize, VelSystemSharedBytes& oBytes,
                                  std::string& oCause) {
  VelSystemDescriptor memory(iDescriptor);
  oBytes.Unmap();
  oBytes.descriptor_ = VelSystemDescriptor();
  if (iExpectedSize == 0) return RefuseNoBytes(oCause);
  VEL_RETURN_IF_FAILED(CheckSealed(memory.Get(), iExpectedSize, oCause));
  oBytes.descriptor_ = std::move(memory);
  return oBytes.MapAs(iExpectedSize, false, oCause);
}
