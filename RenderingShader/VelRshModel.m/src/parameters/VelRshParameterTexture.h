// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterTexture.h A parameter that holds an image document.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHPARAMETERTEXTURE_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHPARAMETERTEXTURE_H

#include "RenderingShader/VelRshModel.m/include/VelRshModelApi.h"
#include "RenderingShader/VelRshModel.m/src/model/VelRshParameterBase.h"

class VelPixelImage;

/// Implements a feature of start-up VelRmaTexture.
class VelRshParameterTexture final : public VelRshParameterBase {
 public:
  using VelRshParameterBase::GetValue;
  using VelRshParameterBase::SetValue;
  using VelRshParameterBase::VelRshParameterBase;
  ~VelRshParameterTexture() override;
  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  HRESULT SetValue(VelBaseUnknown* iDocument);
  HRESULT GetValue(VelBaseUnknown** oDocument);
  HRESULT IsTexture() { return S_OK; }

  /// Reads the path that the appearance keeps for the default slot into which the texture is plugged.
  /// @param[out] oPath empty when there is none
  /// @return S_OK; E_FAIL when the texture is not plugged into a default slot of a material with an appearance; else
  ///         what the appearance answers
  VEL_RSH_MODEL_API HRESULT GetCachedPath(VelUnicodeString& oPath);

  /// Reads the image that the appearance keeps for that slot.
  /// @param[out] oImage with one reference for the caller; null when there is none
  /// @return as GetCachedPath; E_FAIL also when oImage is null
  VEL_RSH_MODEL_API HRESULT GetCachedImage(VelPixelImage** oImage);

 private:
  void Publish(const VelBaseUnknown_var& iPrevious, const VelBaseUnknown_var& iNext);
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHPARAMETERTEXTURE_H
