// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelLateType.cpp Interns the late types and looks up their answers.
#include "platform/objectmodeler/VelLateType.h"

#include <map>
#include <memory>

#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelModuleOpener.h"
#include "platform/trace/VelTraceHandle.h"

VelBinding VelLateType::unanswered{};
std::uint64_t VelLateType::forgettings = 0;

namespace {

using Types = std::map<std::string, VelLateType*, std::less<>>;

Types& AllTypes() {
  static Types& types = *new Types;
  return types;
}

}  // namespace

VelLateType& VelLateType::Of(std::string_view iName) {
  if (VelLateType* known = Find(iName)) return *known;
  auto* made = new VelLateType(iName);
  AllTypes().emplace(std::string(iName), made);
  return *made;
}

VelLateType* VelLateType::Find(std::string_view iName) noexcept {
  const auto found = AllTypes().find(iName);
  return found == AllTypes().end() ? nullptr : found->second;
}

VelLateType& VelLateType::Root() {
  static VelLateType& root = Of("VelComponent");
  return root;
}

VelLateType& VelLateType::BaseByClass(std::string_view iName) noexcept {
  const VelMetaClass* metaClass = VelMetaClass::Find(iName);
  for (metaClass = metaClass != nullptr ? metaClass->Base() : nullptr; metaClass != nullptr;
       metaClass = metaClass->Base()) {
    if (VelLateType* base = Find(metaClass->Name())) return *base;
  }
  return Root();
}

VelLateType* VelLateType::Base() const noexcept {
  if (base_ != nullptr) return base_;
  if (this == &Root()) return nullptr;
  VelLateType& base = BaseByClass(name_);
  return LeadsBackToThis(base) ? &Root() : &base;
}

bool VelLateType::LeadsBackToThis(const VelLateType& iBase) const noexcept {
  const VelLateType* type = &iBase;
  // A cycle that this type is not part of ends with the count.
  for (std::size_t left = AllTypes().size(); left > 0 && type != &Root(); --left) {
    if (type == this) return true;
    type = type->base_ != nullptr ? type->base_ : &BaseByClass(type->name_);
  }
  return false;
}

void VelLateType::DeclareBase(VelLateType* iBase, const VelDictionarySource* iSource) noexcept {
  base_ = iBase;
  baseSource_ = iSource;
}

void VelLateType::Add(VelBinding& ioRow) { rows_.push_back(&ioRow); }

void VelLateType::RemoveRowsOf(const VelDictionarySource& iSource) noexcept {
  std::erase_if(rows_, [&](const VelBinding* iRow) { return iRow->source == &iSource; });
}

VelBinding* VelLateType::Declared(std::uint32_t iInterfaceIndex) const noexcept {
  for (const VelLateType* type = this; type != nullptr; type = type->Base()) {
    for (VelBinding* row : type->rows_) {
      if (row->interfaceIndex == iInterfaceIndex) return row;
    }
  }
  return nullptr;
}

VelBinding* VelLateType::MainImplementation() {
  for (const VelLateType* type = this; type != nullptr; type = type->Base()) {
    for (VelBinding* row : type->rows_) {
      if (row->kind == VelTypeOfClass::Implementation && VelModuleOpener::EnsureOpen(*row)) return row;
    }
  }
  return nullptr;
}

VelBinding* VelLateType::FindAnswer(std::uint32_t iInterfaceIndex) {
  VelBinding* row = nullptr;
  // Opening a library can add rows and meta-classes. Then the row that was found may no longer be the first to answer.
  for (std::uint64_t before = ~forgettings; before != forgettings;) {
    before = forgettings;
    row = Declared(iInterfaceIndex);
    if (row != nullptr && !VelModuleOpener::EnsureOpen(*row)) row = nullptr;
  }
  if (iInterfaceIndex >= answerCount_) {
    answerStorage_.resize(answerCount_);
    answerStorage_.resize(iInterfaceIndex + 1, &unanswered);
    answers_ = answerStorage_.data();
    answerCount_ = answerStorage_.size();
  }
  answers_[iInterfaceIndex] = row;
  if (row == nullptr) TraceAbsence(iInterfaceIndex);
  return row;
}

void VelLateType::TraceAbsence(std::uint32_t iInterfaceIndex) const {
  const VelTraceHandle trace("VelDictionary");
  if (iInterfaceIndex == IID_VelBaseUnknown.Index() || !trace.IsOn(VelTraceKind::Information)) return;
  trace.Info("Nothing answers { late type = %s, interface = %s, rows of the late type = %d }", name_,
             VelInterfaceId::NameOf(iInterfaceIndex), rows_.size());
}

void VelLateType::ForgetAnswers() noexcept {
  ++forgettings;
  for (const auto& [name, type] : AllTypes()) type->answerCount_ = 0;
}
