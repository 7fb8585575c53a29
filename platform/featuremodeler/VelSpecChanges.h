// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSpecChanges.h Tells that names or places of features may have changed.
#ifndef PLATFORM_FEATUREMODELER_VELSPECCHANGES_H
#define PLATFORM_FEATUREMODELER_VELSPECCHANGES_H

#include <cstdint>

#include "platform/base/VelPlatformApi.h"

/// Counts, over all containers, the texts that were written and the features that got or lost a father. Whoever
/// remembers what follows from the names and places of features keeps a count with it, and looks anew when it has
/// grown. Thread: the application thread.
class VEL_PLATFORM_API VelSpecChanges {
 public:
  /// @return how many texts and places changed, a number that never falls
  static std::uint64_t Count() noexcept { return texts_ + places_; }

  /// @return how many features got or lost a father, a number that never falls
  static std::uint64_t CountOfPlaces() noexcept { return places_; }

  /// For the feature modeler.
  static void NoteText() noexcept { ++texts_; }
  static void NotePlace() noexcept { ++places_; }

 private:
  static std::uint64_t texts_;
  static std::uint64_t places_;
};

#endif  // PLATFORM_FEATUREMODELER_VELSPECCHANGES_H
