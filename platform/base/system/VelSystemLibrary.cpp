// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemLibrary.cpp The dynamic loader of POSIX systems.
#include "platform/base/system/VelSystemLibrary.h"

#include <dlfcn.h>

void* VelSystemLibrary::Open(const std::string& iPath, std::string& oCause) {
  void* library = ::dlopen(iPath.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
  if (library != nullptr) return library;
  const char* cause = ::dlerror();
  oCause = cause != nullptr ? cause : "unknown cause";
  return nullptr;
}

void* VelSystemLibrary::FindSymbol(void* iLibrary, const std::string& iName) noexcept {
  return ::dlsym(iLibrary, iName.c_str());
}

std::string VelSystemLibrary::PathOf(const void* iAddress) {
  Dl_info information{};
  if (::dladdr(iAddress, &information) == 0 || information.dli_fname == nullptr) return {};
  return information.dli_fname;
}
