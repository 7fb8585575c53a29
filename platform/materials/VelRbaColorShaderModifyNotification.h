// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRbaColorShaderModifyNotification.h The notification that a colour of a shader was modified.
#ifndef PLATFORM_MATERIALS_VELRBACOLORSHADERMODIFYNOTIFICATION_H
#define PLATFORM_MATERIALS_VELRBACOLORSHADERMODIFYNOTIFICATION_H

#include "platform/materials/VelRbaTypedModifyNotification.h"
#include "platform/materials/rgba_t.h"

/// A colour of a shader was modified. The object is not referenced.
class VEL_PLATFORM_API VelRbaColorShaderModifyNotification final : public VelRbaTypedModifyNotification<rgba_t> {
 public:
  VEL_NOTIFICATION(VelRbaColorShaderModifyNotification);

  using VelRbaTypedModifyNotification::VelRbaTypedModifyNotification;
  ~VelRbaColorShaderModifyNotification() override;

  VelNotification* Clone() const noexcept override;
};

#endif  // PLATFORM_MATERIALS_VELRBACOLORSHADERMODIFYNOTIFICATION_H
