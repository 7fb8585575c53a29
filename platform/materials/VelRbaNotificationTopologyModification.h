// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRbaNotificationTopologyModification.h The notification that what a parameter of a shader refers to was
/// modified.
#ifndef PLATFORM_MATERIALS_VELRBANOTIFICATIONTOPOLOGYMODIFICATION_H
#define PLATFORM_MATERIALS_VELRBANOTIFICATIONTOPOLOGYMODIFICATION_H

#include "platform/materials/VelRbaTypedModifyNotification.h"
#include "platform/objectmodeler/VelVar.h"

/// What a parameter of a shader refers to was modified: its sub-shader or its document. The previous and the next one
/// are referenced by the notification and by its clones; the modified object is not.
class VEL_PLATFORM_API VelRbaNotificationTopologyModification final
    : public VelRbaTypedModifyNotification<VelBaseUnknown_var> {
 public:
  VEL_NOTIFICATION(VelRbaNotificationTopologyModification);

  /// @param[in] iName the name of the parameter
  /// @param[in] iObject the modified object, not referenced; null where none is told
  /// @param[in] iInterface the interface through which it was modified; must live as long as the process
  /// @param[in] iPrevious what it referred to; empty for nothing
  /// @param[in] iNext what it refers to now, or shall refer to; empty for nothing
  /// @param[in] iSubComponentsIID the interface by which both are meant: what kind of thing the parameter refers to;
  ///            must live as long as the process
  VelRbaNotificationTopologyModification(const VelString& iName, VelBaseUnknown* iObject,
                                         const VelInterfaceId& iInterface, const VelBaseUnknown_var& iPrevious,
                                         const VelBaseUnknown_var& iNext, const VelInterfaceId& iSubComponentsIID);
  ~VelRbaNotificationTopologyModification() override;

  /// @return the interface by which the previous and the next one are meant
  const VelInterfaceId& GetSubComponentsIID() const noexcept { return *subComponents_; }

  VelNotification* Clone() const noexcept override;

 private:
  VelRbaNotificationTopologyModification(const VelRbaNotificationTopologyModification&) = default;

  const VelInterfaceId* subComponents_;
};

#endif  // PLATFORM_MATERIALS_VELRBANOTIFICATIONTOPOLOGYMODIFICATION_H
