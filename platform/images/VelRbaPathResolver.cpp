// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRbaPathResolver.cpp Hands paths to the provider that the dictionary names.
#include "platform/images/VelRbaPathResolver.h"

#include <utility>

#include "platform/images/VelImageProvider.h"

HRESULT VelRbaPathResolver::Resolve(const VelUnicodeString& iPath, VelUnicodeString& oPath) {
  const VelIImageServices_var hProvider = VelImageProvider::Find();
  if (!hProvider) return E_FAIL;
  VelUnicodeString path;
  const HRESULT code = hProvider->ResolvePath(iPath, path);
  if (SUCCEEDED(code)) oPath = std::move(path);
  return code;
}
