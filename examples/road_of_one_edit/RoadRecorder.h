// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file RoadRecorder.h Notes what an edit sets in motion: events and traces, in order, with their time.
#ifndef EXAMPLES_ROAD_OF_ONE_EDIT_ROADRECORDER_H
#define EXAMPLES_ROAD_OF_ONE_EDIT_ROADRECORDER_H

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "platform/base/VelString.h"
#include "platform/events/VelCallbackProbe.h"
#include "platform/trace/VelTraceSink.h"

class VelBaseUnknown;
class VelComponent;

/// Records while it lives: every delivery of an event, and what the channels of the translation and of the appearance
/// tell, which are switched on meanwhile, and not printed on the standard error stream. Where the environment variable
/// VEL_TRACE says what is told, that holds. One recorder at a time.
class RoadRecorder final : public VelCallbackProbe, public VelTraceSink {
 public:
  /// What people call the shaders of a graph, by their component.
  using Names = std::map<const VelComponent*, std::string>;

  /// A step of the road: what is told, or one delivery.
  struct Step {
    std::int64_t ticks;  ///< Since the recording began, in 100 ns.
    int depth;           ///< The deliveries inside which it happened.
    std::string text;
    std::string to;  ///< Who hears it; empty for what is told.
  };

  /// The switches of a host that records nothing: below no material there is no appearance to bring up to date, which
  /// would be told for each parameter of a shader that is being made.
  static void SwitchOff();

  explicit RoadRecorder(Names iNames);
  ~RoadRecorder();
  RoadRecorder(const RoadRecorder&) = delete;
  RoadRecorder& operator=(const RoadRecorder&) = delete;

  const std::vector<Step>& Steps() const noexcept { return steps_; }

  /// @return the steps laid out, with a line for all who hear the same event one after another
  std::vector<std::string> Lines() const;

  void OnDelivery(const VelCallbackDelivery& iDelivery) noexcept override;
  void Write(const VelTraceRecord& iRecord) override;
  void Flush() override {}

 private:
  std::string NameOf(VelBaseUnknown* iObject) const;

  Names names_;
  std::int64_t begin_;
  std::vector<Step> steps_;
  VelCallbackProbe* formerProbe_;
};

#endif  // EXAMPLES_ROAD_OF_ONE_EDIT_ROADRECORDER_H
