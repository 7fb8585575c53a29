// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRbaIntegralShaderModifyNotification.h The notification that an integer of a shader was modified.
#ifndef PLATFORM_MATERIALS_VELRBAINTEGRALSHADERMODIFYNOTIFICATION_H
#define PLATFORM_MATERIALS_VELRBAINTEGRALSHADERMODIFYNOTIFICATION_H

#include <cstdint>

#include "platform/materials/VelRbaTypedModifyNotification.h"

/// An integer of a shader was modified. The object is not referenced.
class VEL_PLATFORM_API VelRbaIntegralShaderModifyNotification final
    : public VelRbaTypedModifyNotification<std::int32_t> {
 public:
  VEL_NOTIFICATION(VelRbaIntegralShaderModifyNotification);

  using VelRbaTypedModifyNotification::VelRbaTypedModifyNotification;
  ~VelRbaIntegralShaderModifyNotification() override;

  VelNotification* Clone() const noexcept override;
};

#endif  // PLATFORM_MATERIALS_VELRBAINTEGRALSHADERMODIFYNOTIFICATION_H
