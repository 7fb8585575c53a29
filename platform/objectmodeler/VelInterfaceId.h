// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelInterfaceId.h The identity of an interface: a name, the interface that it derives from, and a small number
/// for fast look-up.
#ifndef PLATFORM_OBJECTMODELER_VELINTERFACEID_H
#define PLATFORM_OBJECTMODELER_VELINTERFACEID_H

#include <cstdint>
#include <string_view>

#include "platform/base/VelPlatformApi.h"

class VelMetaClass;

/// The identifier of an interface. Each interface has one, defined out of line in the library that exports the
/// interface and named IID_ and the interface. Two identifiers of one name are the same identifier, whichever library
/// defines them, since the number behind them is handed out by name, once per process.
class VEL_PLATFORM_API VelInterfaceId {
 public:
  /// Defines the identifier of the root of all interfaces.
  /// @param[in] iName the interface's name; not copied, must live as long as the process; null counts as empty
  explicit VelInterfaceId(const char* iName);

  /// Defines the identifier of an interface that derives from another one.
  /// @param[in] iName as above
  /// @param[in] iBase the identifier of the interface that it derives from
  VelInterfaceId(const char* iName, const VelInterfaceId& iBase);

  VelInterfaceId(const VelInterfaceId&) = delete;
  VelInterfaceId& operator=(const VelInterfaceId&) = delete;

  /// @return the name of the interface, never null
  const char* Name() const noexcept { return name_; }

  /// @return the number of the name, from 0 upwards without gaps
  std::uint32_t Index() const noexcept { return index_; }

  /// @return the identifier of the interface that this one derives from, null for the root
  const VelInterfaceId* Base() const noexcept { return base_; }

  /// @return the meta-class that stands for the interface, its base being that of the interface it derives from
  const VelMetaClass& MetaObject() const noexcept;

  /// @return the number of a name, handed out on first use
  static std::uint32_t IndexOf(std::string_view iName);

  /// @return the number of a name, noNumber when it was never handed out
  static std::uint32_t FindIndex(std::string_view iName) noexcept;

  static constexpr std::uint32_t noNumber = 0xFFFFFFFFU;  ///< The number of no interface.

  /// @return the name of a number that was handed out, empty for any other
  static std::string_view NameOf(std::uint32_t iIndex) noexcept;

  friend bool operator==(const VelInterfaceId& iLeft, const VelInterfaceId& iRight) noexcept {
    return iLeft.index_ == iRight.index_;
  }

 private:
  friend class VelBaseUnknown;
  VelInterfaceId(const char* iName, std::uint32_t iIndex) noexcept : name_(iName), base_(nullptr), index_(iIndex) {}

  const char* name_;
  const VelInterfaceId* base_;
  std::uint32_t index_;
};

#endif  // PLATFORM_OBJECTMODELER_VELINTERFACEID_H
