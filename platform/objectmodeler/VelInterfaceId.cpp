// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelInterfaceId.cpp Hands out the numbers of interface names.
#include "platform/objectmodeler/VelInterfaceId.h"

#include <deque>
#include <string>
#include <unordered_map>

#include "platform/objectmodeler/VelMetaClass.h"

namespace {

/// The names by number and the numbers by name. Never destroyed: identifiers are used to the end of the process.
struct Names {
  std::unordered_map<std::string_view, std::uint32_t> numbers;
  std::deque<std::string> names;
};

Names& AllNames() {
  static Names& names = *new Names;
  return names;
}

}  // namespace

VelInterfaceId::VelInterfaceId(const char* iName)
    : name_(iName != nullptr ? iName : ""), base_(nullptr), index_(IndexOf(name_)) {}

VelInterfaceId::VelInterfaceId(const char* iName, const VelInterfaceId& iBase)
    : name_(iName != nullptr ? iName : ""), base_(&iBase), index_(IndexOf(name_)) {}

std::uint32_t VelInterfaceId::IndexOf(std::string_view iName) {
  Names& all = AllNames();
  if (const auto known = all.numbers.find(iName); known != all.numbers.end()) return known->second;
  const auto number = static_cast<std::uint32_t>(all.names.size());
  all.numbers.emplace(all.names.emplace_back(iName), number);
  return number;
}

std::uint32_t VelInterfaceId::FindIndex(std::string_view iName) noexcept {
  const auto known = AllNames().numbers.find(iName);
  return known != AllNames().numbers.end() ? known->second : noNumber;
}

std::string_view VelInterfaceId::NameOf(std::uint32_t iIndex) noexcept {
  return iIndex < AllNames().names.size() ? std::string_view(AllNames().names[iIndex]) : std::string_view();
}

const VelMetaClass& VelInterfaceId::MetaObject() const noexcept {
  const VelMetaClass* base = base_ != nullptr ? &base_->MetaObject() : nullptr;
  return fct_RetrieveMetaObject(name_, base, VelTypeOfClass::Interface, name_);
}
