// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRbaBooleanShaderModifyNotification.h The notification that a boolean of a shader was modified.
#ifndef PLATFORM_MATERIALS_VELRBABOOLEANSHADERMODIFYNOTIFICATION_H
#define PLATFORM_MATERIALS_VELRBABOOLEANSHADERMODIFYNOTIFICATION_H

#include "platform/materials/VelRbaTypedModifyNotification.h"

/// A boolean of a shader was modified. The object is not referenced.
class VEL_PLATFORM_API VelRbaBooleanShaderModifyNotification final : public VelRbaTypedModifyNotification<bool> {
 public:
  VEL_NOTIFICATION(VelRbaBooleanShaderModifyNotification);

  using VelRbaTypedModifyNotification::VelRbaTypedModifyNotification;
  ~VelRbaBooleanShaderModifyNotification() override;

  VelNotification* Clone() const noexcept override;
};

#endif  // PLATFORM_MATERIALS_VELRBABOOLEANSHADERMODIFYNOTIFICATION_H
