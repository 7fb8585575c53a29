// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRbaStringShaderModifyNotification.h The notification that a text of a shader was modified.
#ifndef PLATFORM_MATERIALS_VELRBASTRINGSHADERMODIFYNOTIFICATION_H
#define PLATFORM_MATERIALS_VELRBASTRINGSHADERMODIFYNOTIFICATION_H

#include "platform/base/VelUnicodeString.h"
#include "platform/materials/VelRbaTypedModifyNotification.h"

/// A text of a shader was modified. The object is not referenced.
class VEL_PLATFORM_API VelRbaStringShaderModifyNotification final
    : public VelRbaTypedModifyNotification<VelUnicodeString> {
 public:
  VEL_NOTIFICATION(VelRbaStringShaderModifyNotification);

  using VelRbaTypedModifyNotification::VelRbaTypedModifyNotification;
  ~VelRbaStringShaderModifyNotification() override;

  VelNotification* Clone() const noexcept override;
};

#endif  // PLATFORM_MATERIALS_VELRBASTRINGSHADERMODIFYNOTIFICATION_H
