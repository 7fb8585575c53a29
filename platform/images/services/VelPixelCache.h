// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelPixelCache.h Keeps the images that were made last, so that asking again costs a look-up.
#ifndef PLATFORM_IMAGES_SERVICES_VELPIXELCACHE_H
#define PLATFORM_IMAGES_SERVICES_VELPIXELCACHE_H

#include <cstddef>
#include <list>
#include <string>
#include <string_view>
#include <unordered_map>

#include "platform/images/VelPixelImage.h"
#include "platform/objectmodeler/VelVar.h"

/// Images by key (VelImageInput::KeyOf), each with one reference of the cache's own. Where they are more bytes than
/// fit, those that were used longest ago go. Thread: the application thread.
class VelPixelCache {
 public:
  static constexpr std::size_t defaultBytes = std::size_t{128} << 20U;

  explicit VelPixelCache(std::size_t iMostBytes = defaultBytes) : mostBytes_(iMostBytes) {}
  ~VelPixelCache() { Clear(); }

  VelPixelCache(const VelPixelCache&) = delete;
  VelPixelCache& operator=(const VelPixelCache&) = delete;

  /// The one of the process, which is emptied at the platform's end (VelPlatformTerminate).
  static VelPixelCache& OfProcess();

  /// @return the image with one reference for the caller; null when the cache has none of that key
  [[nodiscard]] VelPixelImage* Find(std::string_view iKey);

  /// Keeps an image. One that is larger than the whole cache is not kept.
  void Keep(const std::string& iKey, VelPixelImage& iImage);

  void Clear() noexcept;

  /// @return the bytes of the images that are kept
  std::size_t HeldBytes() const noexcept { return heldBytes_; }

 private:
  struct Entry {
    std::string key;
    VelPixelImage* image;
  };

  void DropOldest() noexcept;

  std::size_t mostBytes_;
  std::size_t heldBytes_ = 0;
  std::list<Entry> entries_;  ///< The one that was used last stands first.
  std::unordered_map<std::string_view, std::list<Entry>::iterator> byKey_;
};

#endif  // PLATFORM_IMAGES_SERVICES_VELPIXELCACHE_H
