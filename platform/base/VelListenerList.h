// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelListenerList.h A list of listeners that may change, fail or call back while it is being walked.
#ifndef PLATFORM_BASE_VELLISTENERLIST_H
#define PLATFORM_BASE_VELLISTENERLIST_H

#include <algorithm>
#include <cstddef>
#include <vector>

/// Listeners in the order in which they were added; none is owned. Used on the application thread only.
///
/// During a walk a listener that is removed is not called any more, one that is added waits for the next walk, and one
/// that causes a walk itself is left out of it: two listeners can never keep each other going for ever.
template <class Listener>
class VelListenerList {
 public:
  /// Adds a listener at the end. Adding one twice changes nothing.
  void Add(Listener& ioListener) {
    if (!Contains(ioListener)) entries_.push_back({&ioListener, false});
  }

  /// Takes a listener out. One that is not in the list changes nothing.
  void Remove(const Listener& iListener) noexcept {
    for (Entry& entry : entries_) {
      if (entry.listener == &iListener) entry.listener = nullptr;
    }
    DropRemoved();
  }

  /// Takes all listeners out.
  void Clear() noexcept {
    for (Entry& entry : entries_) entry.listener = nullptr;
    DropRemoved();
  }

  /// @return true when the listener is in the list.
  [[nodiscard]] bool Contains(const Listener& iListener) const noexcept {
    return std::any_of(entries_.begin(), entries_.end(),
                       [&](const Entry& iEntry) { return iEntry.listener == &iListener; });
  }

  /// Calls every listener that is in the list now and is not being called already. What a listener throws ends there.
  /// @param[in] iCall takes a Listener&
  /// @return true when at least one listener was called and did not throw
  template <class Call>
  bool ForEach(Call iCall) noexcept {
    bool heard = false;
    ++depth_;
    const std::size_t countAtEntry = entries_.size();
    for (std::size_t index = 0; index < countAtEntry; ++index) {
      Listener* const listener = entries_[index].listener;
      if (listener == nullptr || entries_[index].busy) continue;
      entries_[index].busy = true;
      try {
        iCall(*listener);
        heard = true;
      } catch (...) {
        // A listener that fails must not keep the report from those after it, nor stop whoever raised it.
      }
      entries_[index].busy = false;
    }
    --depth_;
    DropRemoved();
    return heard;
  }

 private:
  struct Entry {
    Listener* listener;  ///< Null once removed, until no walk needs the place any more.
    bool busy;           ///< The listener is being called.
  };

  void DropRemoved() noexcept {
    if (depth_ > 0) return;
    std::erase_if(entries_, [](const Entry& iEntry) { return iEntry.listener == nullptr; });
  }

  std::vector<Entry> entries_;
  int depth_ = 0;
};

#endif  // PLATFORM_BASE_VELLISTENERLIST_H
