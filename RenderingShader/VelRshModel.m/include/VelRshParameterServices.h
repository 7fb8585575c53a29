// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterServices.h Finds the way in the graph of shaders and parameters, and values beside a parameter.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHPARAMETERSERVICES_H
#define RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHPARAMETERSERVICES_H

#include "RenderingShader/VelRshModel.m/include/VelRshModelApi.h"
#include "RenderingShader/interfaces/VelIRshParameter.h"
#include "RenderingShader/interfaces/VelIRshShader.h"
#include "platform/base/VelListPtrVelBaseUnknown.h"
#include "platform/base/VelListValVelUnicodeString.h"
#include "platform/materials/VelIRenderingMaterial.h"

/// Services over shaders and parameters. Stateless; nothing throws.
///
/// Parameters and shaders are taken as const where asking changes nothing of them; that interfaces count references is
/// no change. A shader's parameters are listed in its order, and the first that fits counts.
/// Thread: the application thread.
class VEL_RSH_MODEL_API VelRshParameterServices {
 public:
  /// Reads the channel of a material that a parameter feeds, from the configuration of its shader: the value of the key
  /// "<name>.SlotIdentifier", compared as a whole and with case.
  /// @return 1 to 11; 0 without such a value, and for any other text
  static unsigned int ComputeParameterSlot(const VelIRshParameter& iParameter);

  /// @return the shader that owns a parameter: what its private interface says, else its father; empty where there is
  ///         none
  static VelIRshShader_var FindShaderParent(const VelIRshParameter& iParameter);

  /// @return the shader above a shader: what its private interface says, else its father; empty where there is none, as
  ///         for the root shader of a material
  static VelIRshShader_var FindShaderParent(const VelIRshShader& iShader);

  /// @return the shader that the parameter's material carries; without a material, the topmost shader above the
  ///         parameter; empty where there is none
  static VelIRshShader_var FindShaderRoot(const VelIRshParameter& iParameter);

  /// @return the material above a parameter; empty where there is none
  static VelIRenderingMaterial_var FindRenderingMaterial(const VelIRshParameter& iParameter);

  /// @return the material above a shader; empty where there is none
  static VelIRenderingMaterial_var FindRenderingMaterial(const VelIRshShader& iShader);

  /// @return the parameters to which a shader is connected, in the order in which the connections were written, each
  ///         with one reference that the caller releases
  static VelListPtrVelBaseUnknown FindConnectedParameters(VelIRshShader& iShader);
  static VelListPtrVelBaseUnknown FindConnectedParameters(const VelIRshShader& iShader);

  /// @param[in] iShader null has none
  /// @return true when a shown parameter of the shader is connected to a texture that is an SVG file
  static bool IsSVGMapPresent(VelIRshShader* iShader);

  /// @param[in] iShader null has none
  /// @return true when a shown parameter of the shader is connected to a texture
  static bool IsTexturePresent(VelIRshShader* iShader);

  /// Reads the parameter "dpi" of the shader that is the father of a parameter's father.
  /// @param[out] oDpi dots per inch; untouched without such a parameter
  /// @return E_FAIL, always: callers look at the out argument
  static HRESULT RetrieveDpi(VelIRshParameter* iParameter, int& oDpi);

  /// Reads the parameter "group_names" beside a parameter.
  /// @param[in,out] ioGroups the names are appended
  /// @return E_FAIL, always: callers look at the list
  static HRESULT RetrieveGroupList(VelIRshParameter* iParameter, VelListValVelUnicodeString& ioGroups);

  /// Writes the parameter "group_names" beside a parameter, the names joined by ";".
  /// @param[in] iGroups nothing is written for an empty list
  /// @return S_OK, also when nothing is written; E_FAIL without a shader; else why its parameters cannot be listed
  static HRESULT WriteGroupList(VelIRshParameter* iParameter, const VelListValVelUnicodeString& iGroups);

  /// Finds a parameter beside another one.
  /// @param[in] iName not empty
  /// @param[out] oParameter with one reference for the caller; untouched when there is none
  /// @return S_OK; where there is none, the code of the listing, which is S_OK as well unless it fails: the out
  ///         argument tells; E_FAIL for null, an empty name, and without a shader
  static HRESULT RetrieveParameter(VelIRshParameter* iParameter, VelString iName, VelIRshParameter** oParameter);

  /// Reads the value of a parameter beside another one.
  /// @param[out] oValue a view that suits the parameter; untouched when there is none
  /// @return as RetrieveParameter; E_FAIL also for a view of null; else the code of VelIRshParameter::GetValue
  static HRESULT RetrieveParameterValue(VelIRshParameter* iParameter, VelString iName, VelRshValueTarget oValue);
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHPARAMETERSERVICES_H
