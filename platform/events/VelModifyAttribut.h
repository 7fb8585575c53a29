// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelModifyAttribut.h The notification that an attribute of an object was modified.
#ifndef PLATFORM_EVENTS_VELMODIFYATTRIBUT_H
#define PLATFORM_EVENTS_VELMODIFYATTRIBUT_H

#include "platform/base/VelUnicodeString.h"
#include "platform/events/VelModelEntityNotification.h"

class VelBaseUnknown;
class VelISpecAttrKey;
class VelInterfaceId;

/// An attribute of an object was modified. All is given at construction and stays. Nothing that is pointed to is owned,
/// neither by the notification nor by its clones.
class VEL_PLATFORM_API VelModifyAttribut : public VelModelEntityNotification {
 public:
  VEL_NOTIFICATION(VelModifyAttribut);

  /// @param[in] iModifiedObject the object; null where none is told
  /// @param[in] iAttribute the key of the attribute; null where the attribute has none
  /// @param[in] iInterface the interface through which the object was modified; null where none is told
  /// @param[in] iAttributeKind the code of the attribute's kind
  /// @param[in] iPathElement where in the object the attribute lies; may be empty
  VelModifyAttribut(VelBaseUnknown* iModifiedObject, VelISpecAttrKey* iAttribute, const VelInterfaceId* iInterface,
                    int iAttributeKind, const VelUnicodeString& iPathElement = {});
  ~VelModifyAttribut() override;

  /// @return the object without a reference, null where none was told
  VelBaseUnknown* GetModifiedObject() const noexcept { return modifiedObject_; }

  /// @return the key without a reference, null where the attribute has none
  VelISpecAttrKey* GetAttribute() const noexcept { return attribute_; }

  /// @return the identifier of the interface, null where none was told
  const VelInterfaceId* GetInterface() const noexcept { return interface_; }

  int GetAttributeKind() const noexcept { return attributeKind_; }

  const VelUnicodeString& GetPathElement() const noexcept { return pathElement_; }

  VelNotification* Clone() const noexcept override;

 protected:
  VelModifyAttribut(const VelModifyAttribut&) = default;

 private:
  VelBaseUnknown* modifiedObject_;
  VelISpecAttrKey* attribute_;
  const VelInterfaceId* interface_;
  int attributeKind_;
  VelUnicodeString pathElement_;
};

#endif  // PLATFORM_EVENTS_VELMODIFYATTRIBUT_H
