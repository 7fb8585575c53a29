// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshAttribute.h One attribute of a feature: its access and its key, looked up together.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_SERVICES_VELRSHATTRIBUTE_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_SERVICES_VELRSHATTRIBUTE_H

#include <utility>

#include "platform/featuremodeler/VelISpecAttrAccess.h"
#include "platform/featuremodeler/VelISpecAttrKey.h"

/// What every read and write begins with: the feature's attributes, and a key that the feature has. False when the
/// object is no feature or has no such attribute; then nothing else is asked of it.
///
///     const VelRshAttribute version(shader, &VelKeySetVelRmaCatalog::GetKeyVelRmaShaderVersion);
///     return version ? version->GetUnsigned(version.Key(), oVersion) : E_FAIL;
class VelRshAttribute {
 public:
  using Accessor = const VelISpecAttrKey* (*)(VelISpecAttrAccess* iAccess);

  /// @param[in] iObject any pointer that stands for the feature; null has no attributes
  /// @param[in] iAccessor an accessor of VelKeySetVelRmaCatalog
  VelRshAttribute(VelBaseUnknown* iObject, Accessor iAccessor) noexcept : hAccess_(iObject) {
    if (!hAccess_) return;
    const VelISpecAttrKey* key = iAccessor(hAccess_.Get());
    if (hAccess_->TestAttrKey(key)) key_ = key;
  }

  explicit operator bool() const noexcept { return key_ != nullptr; }

  /// @return the feature's attributes; only for one that is true
  VelISpecAttrAccess* operator->() const noexcept { return hAccess_.Get(); }

  /// @return the key; null for one that is false
  const VelISpecAttrKey* Key() const noexcept { return key_; }

  /// @return true when the feature has the attribute, and a value for it
  bool IsValuated() const noexcept { return key_ != nullptr && hAccess_->IsValuated(key_); }

 private:
  VelISpecAttrAccess_var hAccess_;
  const VelISpecAttrKey* key_ = nullptr;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_SERVICES_VELRSHATTRIBUTE_H
