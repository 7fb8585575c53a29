// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelAllocationCounter.h Counts the allocations of a stretch of code.
#ifndef TESTS_SUPPORT_VELALLOCATIONCOUNTER_H
#define TESTS_SUPPORT_VELALLOCATIONCOUNTER_H

/// Counts what is allocated through operator new, by any library of the process, while it lives. Test programs that use
/// it link VelAllocationCounter.cpp, which replaces the operator.
class VelAllocationCounter {
 public:
  VelAllocationCounter() : before_(Total()) {}

  /// @return the allocations since the construction
  long Count() const { return Total() - before_; }

  /// @return false where each forwarder is allocated by itself, so that its uses after the end are found
  static bool CountsForwarders();

 private:
  static long Total();

  long before_;
};

#endif  // TESTS_SUPPORT_VELALLOCATIONCOUNTER_H
