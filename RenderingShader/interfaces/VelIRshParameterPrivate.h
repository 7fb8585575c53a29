// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIRshParameterPrivate.h What a parameter does for the component: its updates, its tags, its shader.
#ifndef RENDERINGSHADER_INTERFACES_VELIRSHPARAMETERPRIVATE_H
#define RENDERINGSHADER_INTERFACES_VELIRSHPARAMETERPRIVATE_H

#include "RenderingShader/interfaces/VelIRshShader.h"
#include "platform/base/VelListVal.h"

VEL_RSH_INTERFACES_API extern const VelInterfaceId IID_VelIRshParameterPrivate;

/// The private side of a parameter.
///
/// Implemented by: the parameters of all types but light profiles and sub-shaders.
/// Thread: the application thread. Re-entrancy: the updates call the host's image services. A closed parameter answers
/// E_FAIL.
class VEL_RSH_INTERFACES_API VelIRshParameterPrivate : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelIRshParameterPrivate);

  /// What a parameter is for, by which services find it whatever its name. Each has a word in the configuration.
  enum class Tag : int {
#define VEL_RSH_TAG(Enumerator, Word) Enumerator,
#include "RenderingShader/interfaces/VelRshTags.def"
#undef VEL_RSH_TAG
  };

  /// Brings the material's appearance up to date with the parameter's value, then with its connection.
  /// @return S_OK; E_NOINTERFACE, after a report, when the object answers no VelIRshParameter
  virtual HRESULT UpdateValueAndConnection() = 0;

  /// As UpdateValueAndConnection, with the value alone.
  virtual HRESULT UpdateValue() = 0;

  /// As UpdateValueAndConnection, with the connection alone.
  virtual HRESULT UpdateConnection() = 0;

  /// Tells whether the configuration gives the parameter a tag. A word that is not in the vocabulary counts as "dpi",
  /// and is reported each time it is met.
  /// @return S_OK; E_FAIL when it has not, also without any tags; E_UNEXPECTED when the parameter has no name or
  ///         answers no VelIRshParameter, which is reported
  virtual HRESULT HasTag(Tag iTag) = 0;

  /// @param[out] oTags the codes of the parameter's tags, in the order of the configuration, with repetitions; empty
  ///             where it has none
  /// @return S_OK
  virtual HRESULT GetTags(VelListVal<int>& oTags) = 0;

  /// Reads the text value of the parameter's layout as a yes or no.
  /// @return S_OK when it is "yes", "true" or "1" in any case; E_FAIL for any other text, and when it cannot be read;
  ///         E_NOINTERFACE without a layout
  virtual HRESULT GetLayoutFlag() = 0;

  /// Tells whether the value is an image document.
  /// @return S_OK for a texture; E_FAIL for every other parameter
  virtual HRESULT IsTexture() = 0;

  /// Takes note of the shader that the parameter has been added to. Without effect: the father tells it.
  /// @param[in] iShader may be null
  /// @return S_FALSE, always
  virtual HRESULT AttachToShader(VelIRshShader* iShader) = 0;

  /// @param[out] oShader the shader that owns the parameter; empty where it has none; untouched when the parameter is
  ///             closed
  virtual void GetParentShader(VelIRshShader_var& oShader) = 0;

 protected:
  ~VelIRshParameterPrivate() = default;
};

using VelIRshParameterPrivate_var = VelVar<VelIRshParameterPrivate>;

#endif  // RENDERINGSHADER_INTERFACES_VELIRSHPARAMETERPRIVATE_H
