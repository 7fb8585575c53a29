// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRbaFloatShaderModifyNotification.h The notification that a scalar of a shader was modified.
#ifndef PLATFORM_MATERIALS_VELRBAFLOATSHADERMODIFYNOTIFICATION_H
#define PLATFORM_MATERIALS_VELRBAFLOATSHADERMODIFYNOTIFICATION_H

#include "platform/materials/VelRbaTypedModifyNotification.h"

/// A scalar of a shader was modified. The object is not referenced.
class VEL_PLATFORM_API VelRbaFloatShaderModifyNotification final : public VelRbaTypedModifyNotification<double> {
 public:
  VEL_NOTIFICATION(VelRbaFloatShaderModifyNotification);

  using VelRbaTypedModifyNotification::VelRbaTypedModifyNotification;
  ~VelRbaFloatShaderModifyNotification() override;

  VelNotification* Clone() const noexcept override;
};

#endif  // PLATFORM_MATERIALS_VELRBAFLOATSHADERMODIFYNOTIFICATION_H
