// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaPendingUpdates.h The parameters that changed and whose material was not updated yet.
#ifndef HOST_REFRESH_VELRMAPENDINGUPDATES_H
#define HOST_REFRESH_VELRMAPENDINGUPDATES_H

#include <cstddef>
#include <cstdint>
#include <map>
#include <utility>
#include <vector>

#include "platform/objectmodeler/VelBaseUnknown_WR.h"

/// What changed of a parameter.
enum class VelRmaChange : std::uint8_t { Value, Connection };

/// Each parameter and change once, in the order in which they came. While a run works on them, what it has taken stays
/// noted, so that nothing is updated twice in a run, however the updates change one another's parameters.
class VelRmaPendingUpdates {
 public:
  struct Update {
    VelBaseUnknown_WR parameter;
    VelRmaChange change;
  };

  /// Notes a change, unless it is noted already.
  /// @param[in] iParameter what stands for the parameter; what is closed is not noted
  void Note(VelBaseUnknown* iParameter, VelRmaChange iChange);

  /// @return true when Take has something to give
  bool HasNext() const noexcept { return taken_ < updates_.size(); }

  /// @return the next update; only where HasNext
  Update Take() { return updates_[taken_++]; }

  /// Calls for each parameter that is still to be taken.
  template <class Call>
  void Visit(const Call& iCall) const {
    for (std::size_t i = taken_; i < updates_.size(); ++i) iCall(updates_[i].parameter);
  }

  /// Forgets what is noted of a parameter.
  void Forget(const VelBaseUnknown_WR& iParameter);

  /// Forgets everything, as at the end of a run.
  void Clear();

 private:
  std::vector<Update> updates_;
  std::size_t taken_ = 0;
  /// Where each stands. A parameter may have been made where one that is gone was before.
  std::map<std::pair<const VelComponent*, VelRmaChange>, std::size_t> noted_;
};

#endif  // HOST_REFRESH_VELRMAPENDINGUPDATES_H
