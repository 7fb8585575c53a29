// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelAlgVizNotificationSubstanceGraphOutputChanged.h The notification that an output of a graph changed.
#ifndef PLATFORM_SUBSTANCE_VELALGVIZNOTIFICATIONSUBSTANCEGRAPHOUTPUTCHANGED_H
#define PLATFORM_SUBSTANCE_VELALGVIZNOTIFICATIONSUBSTANCEGRAPHOUTPUTCHANGED_H

#include "platform/events/VelModelEntityNotification.h"

class VelIAlgSubstanceGraphOutput;

/// An output of a graph of the Substance engine changed. The output is not referenced, neither by the notification nor
/// by its clones, and has to outlive them.
class VEL_PLATFORM_API VelAlgVizNotificationSubstanceGraphOutputChanged final : public VelModelEntityNotification {
 public:
  VEL_NOTIFICATION(VelAlgVizNotificationSubstanceGraphOutputChanged);

  explicit VelAlgVizNotificationSubstanceGraphOutputChanged(VelIAlgSubstanceGraphOutput& iOutput) noexcept;
  ~VelAlgVizNotificationSubstanceGraphOutputChanged() override;

  VelIAlgSubstanceGraphOutput& GetOutput() const noexcept { return *output_; }

  VelNotification* Clone() const noexcept override;

 private:
  VelAlgVizNotificationSubstanceGraphOutputChanged(const VelAlgVizNotificationSubstanceGraphOutputChanged&) = default;

  VelIAlgSubstanceGraphOutput* output_;
};

#endif  // PLATFORM_SUBSTANCE_VELALGVIZNOTIFICATIONSUBSTANCEGRAPHOUTPUTCHANGED_H
