// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRbaResetRenderingMaterialNotification.h The notification that a parameter shall go back to its default
/// value.
#ifndef PLATFORM_MATERIALS_VELRBARESETRENDERINGMATERIALNOTIFICATION_H
#define PLATFORM_MATERIALS_VELRBARESETRENDERINGMATERIALNOTIFICATION_H

#include "platform/events/VelModelEntityNotification.h"

class VelBaseUnknown;

/// A parameter of a rendering material shall go back to its default value. The object is not referenced, neither by the
/// notification nor by its clones.
class VEL_PLATFORM_API VelRbaResetRenderingMaterialNotification final : public VelModelEntityNotification {
 public:
  VEL_NOTIFICATION(VelRbaResetRenderingMaterialNotification);

  /// @param[in] iObject the parameter; null where none is told
  explicit VelRbaResetRenderingMaterialNotification(VelBaseUnknown* iObject) noexcept;
  ~VelRbaResetRenderingMaterialNotification() override;

  /// @return the parameter without a reference, null where none was told
  VelBaseUnknown* GetObject() const noexcept { return object_; }

  VelNotification* Clone() const noexcept override;

 private:
  VelRbaResetRenderingMaterialNotification(const VelRbaResetRenderingMaterialNotification&) = default;

  VelBaseUnknown* object_;
};

#endif  // PLATFORM_MATERIALS_VELRBARESETRENDERINGMATERIALNOTIFICATION_H
