// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageKey.h Names what is made of an image file, so that it need not be made twice.
#ifndef PLATFORM_IMAGES_SERVICES_VELIMAGEKEY_H
#define PLATFORM_IMAGES_SERVICES_VELIMAGEKEY_H

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

struct VelSystemFileStatus;

/// A hash (the first 160 bits of SHA-256) of everything that a result depends on. Each part is added with its length,
/// so that no two lists of parts run into the same bytes.
class VelImageKey {
 public:
  /// Begins with the version of the rules by which results are made: changing those changes every key.
  VelImageKey();
  ~VelImageKey();

  VelImageKey(const VelImageKey&) = delete;
  VelImageKey& operator=(const VelImageKey&) = delete;

  VelImageKey& Add(std::string_view iText);
  VelImageKey& Add(std::int64_t iNumber);
  VelImageKey& Add(const VelSystemFileStatus& iStatus);

  /// @return the key, 40 hexadecimal digits; nothing can be added afterwards
  std::string Finish();

 private:
  struct State;
  std::unique_ptr<State> state_;
};

#endif  // PLATFORM_IMAGES_SERVICES_VELIMAGEKEY_H
