// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaImageBudget.cpp A list of all images that are held, in the order of their last use.
#include "platform/materials/VelRmaImageBudget.h"

#include <utility>

#include "platform/images/VelRbaImageServices.h"
#include "platform/materials/VelRmaImageEntry.h"

namespace {

struct Ledger {
  std::size_t budget = VelRmaImageBudget::defaultBytes;
  std::size_t held = 0;
  VelRmaImageEntry* oldest = nullptr;
  VelRmaImageEntry* youngest = nullptr;
};

constinit Ledger ledger;

/// A vector image may have been drawn at any resolution and by any of its groups, which its path does not tell.
bool CanBeLoadedAgain(const VelRmaImageEntry& iEntry) {
  if (iEntry.path.IsEmpty()) return false;
  const VelString extension = VelRbaImageServices::SplitPath(iEntry.path).extension.ToVelString().ToLower();
  return extension != "svg" && extension != "svgz";
}

bool IsLinked(const VelRmaImageEntry& iEntry) { return iEntry.bytes != 0; }

void Unlink(VelRmaImageEntry& ioEntry) {
  (ioEntry.older != nullptr ? ioEntry.older->younger : ledger.oldest) = ioEntry.younger;
  (ioEntry.younger != nullptr ? ioEntry.younger->older : ledger.youngest) = ioEntry.older;
  ioEntry.older = ioEntry.younger = nullptr;
  ledger.held -= std::exchange(ioEntry.bytes, 0);
}

void LinkAsYoungest(VelRmaImageEntry& ioEntry, std::size_t iBytes) {
  ioEntry.bytes = iBytes;
  ioEntry.older = ledger.youngest;
  (ledger.youngest != nullptr ? ledger.youngest->younger : ledger.oldest) = &ioEntry;
  ledger.youngest = &ioEntry;
  ledger.held += iBytes;
}

}  // namespace

void VelRmaImageBudget::Set(std::size_t iBytes) noexcept {
  ledger.budget = iBytes;
  DropDownToBudget();
}

std::size_t VelRmaImageBudget::HeldBytes() noexcept { return ledger.held; }

void VelRmaImageBudget::Use(VelRmaImageEntry& ioEntry) noexcept {
  Forget(ioEntry);
  const VelPixelImage* image = VelPixelImage::From(ioEntry.image.Get());
  if (image == nullptr) return;
  LinkAsYoungest(ioEntry, image->GetPixels().size());
  DropDownToBudget();
}

void VelRmaImageBudget::Forget(VelRmaImageEntry& ioEntry) noexcept {
  if (IsLinked(ioEntry)) Unlink(ioEntry);
}

void VelRmaImageBudget::DropDownToBudget() noexcept {
  VelRmaImageEntry* entry = ledger.oldest;
  while (entry != nullptr && entry != ledger.youngest && ledger.held > ledger.budget) {
    VelRmaImageEntry* const next = entry->younger;
    if (CanBeLoadedAgain(*entry)) {
      Unlink(*entry);
      entry->wasDropped = true;
      entry->image = nullptr;
    }
    entry = next;
  }
}
