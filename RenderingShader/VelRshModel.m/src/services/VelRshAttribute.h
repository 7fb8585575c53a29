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
  VelRshAttribute(VelBaseUnknown* iObject, Accessor iAccessor) noexcept
      : hAccess_(iObject), key_(hAccess_ ? iAccessor(hAccess_.Get()) : nullptr) {}

  /// Tests the key.
  explicit operator bool() const noexcept { return hAccess_ && hAccess_->TestAttrKey(key_); }

  /// @return false for what is no feature; then nothing is asked of it, not even for a value that may not be there
  bool HasAccess() const noexcept { return static_cast<bool>(hAccess_); }

  /// @return the feature's attributes; only for one that has access
  VelISpecAttrAccess* operator->() const noexcept { return hAccess_.Get(); }

  /// @return the key; null while it cannot be resolved, which every operation refuses
  const VelISpecAttrKey* Key() const noexcept { return key_; }

  /// @return true when the feature has the attribute, and a value for it
  bool IsValuated() const noexcept { return hAccess_ && hAccess_->IsValuated(key_); }

 private:
  VelISpecAttrAccess_var hAccess_;
  const VelISpecAttrKey* key_;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_SERVICES_VELRSHATTRIBUTE_H
