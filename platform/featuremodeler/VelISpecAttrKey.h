// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelISpecAttrKey.h The key by which an attribute is addressed.
#ifndef PLATFORM_FEATUREMODELER_VELISPECATTRKEY_H
#define PLATFORM_FEATUREMODELER_VELISPECATTRKEY_H

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/base/VelPlatformApi.h"
#include "platform/featuremodeler/VelSpecAttrKind.h"

/// An attribute's name and declared kind. One key per pair and process, made on first use and kept to its end, so that
/// keys outlive every container and are compared by address. A key is valid for every feature whose start-up, or a base
/// of it, declares an attribute of that name and kind.
class VEL_PLATFORM_API VelISpecAttrKey {
 public:
  VelISpecAttrKey(const VelISpecAttrKey&) = delete;
  VelISpecAttrKey& operator=(const VelISpecAttrKey&) = delete;

  const std::string& Name() const noexcept { return name_; }
  VelSpecAttrKind Kind() const noexcept { return kind_; }

  /// @return the number of the key, from 0 upwards without gaps
  std::uint32_t Index() const noexcept { return index_; }

  /// @return the key of a name and kind
  static const VelISpecAttrKey& Of(std::string_view iName, VelSpecAttrKind iKind);

 private:
  VelISpecAttrKey(std::string_view iName, VelSpecAttrKind iKind, std::uint32_t iIndex)
      : name_(iName), kind_(iKind), index_(iIndex) {}

  std::string name_;
  VelSpecAttrKind kind_;
  std::uint32_t index_;
};

#endif  // PLATFORM_FEATUREMODELER_VELISPECATTRKEY_H
