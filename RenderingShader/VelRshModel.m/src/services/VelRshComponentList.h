// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshComponentList.h The features of a component list, listed with a reference each.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_SERVICES_VELRSHCOMPONENTLIST_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_SERVICES_VELRSHCOMPONENTLIST_H

#include "RenderingShader/VelRshModel.m/src/services/VelRshAttribute.h"
#include "platform/base/HResult.h"
#include "platform/base/VelListPtrVelBaseUnknown.h"

class VelRshComponentList {
 public:
  /// Lists the elements of a component list, in order, each with one reference for the caller.
  /// @param[in] iAttribute one that is true
  /// @param[out] oElements empty on failure; what it held before is not released
  /// @return S_OK; E_FAIL when the attribute is no component list or the feature is gone
  static HRESULT Read(const VelRshAttribute& iAttribute, VelListPtrVelBaseUnknown& oElements);

  /// Releases every element and empties the list.
  static void Release(VelListPtrVelBaseUnknown& ioElements) noexcept;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_SERVICES_VELRSHCOMPONENTLIST_H
