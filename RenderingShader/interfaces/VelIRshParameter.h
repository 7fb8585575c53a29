// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIRshParameter.h A parameter of a shader: its name, its value, and the shader that is connected to it.
#ifndef RENDERINGSHADER_INTERFACES_VELIRSHPARAMETER_H
#define RENDERINGSHADER_INTERFACES_VELIRSHPARAMETER_H

#include "RenderingShader/interfaces/VelRshInterfacesApi.h"
#include "RenderingShader/interfaces/VelRshValueSource.h"
#include "RenderingShader/interfaces/VelRshValueTarget.h"
#include "platform/base/HResult.h"
#include "platform/base/VelString.h"
#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"

class VelIRshShader;

VEL_RSH_INTERFACES_API extern const VelInterfaceId IID_VelIRshParameter;

/// A parameter, whose start-up decides the type of its value:
///
/// | start-up | value |
/// |---|---|
/// | VelRmaBoolean | bool |
/// | VelRmaInteger | std::int32_t |
/// | VelRmaScalar | float |
/// | VelRmaColor | 4 floats: red, green, blue, alpha |
/// | VelRmaVector | 3 floats: x, y, z |
/// | VelRmaMatrix | 16 floats, in the order in which they are stored |
/// | VelRmaString | VelUnicodeString |
/// | VelRmaTexture, VelRmaLightProfile | a document, an object |
/// | VelRmaVoid, VelRmaParameter | none: every value operation is E_FAIL |
///
/// A view whose elements are of another kind or too few, a view where the value is an object, and an object where it is
/// none, are E_FAIL with nothing touched. A view with more elements than the value has keeps the rest as they are. No
/// value is clamped or checked for its range.
///
/// Implemented by: VelRshParameterBase and the classes that derive from it.
/// Thread: the application thread. Re-entrancy: a change is told to the subscribers before the operation returns. A
/// closed parameter answers E_FAIL.
class VEL_RSH_INTERFACES_API VelIRshParameter : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelIRshParameter);

  /// @param[in] iName the root of the parameter's keys in the configuration
  /// @return S_OK; E_FAIL
  virtual HRESULT SetName(const VelString& iName) = 0;

  /// @return S_OK; E_FAIL, with oName untouched, also when none was set
  virtual HRESULT GetName(VelString& oName) = 0;

  /// @param[out] oType the start-up's name, for instance "VelRmaScalar"
  /// @return S_OK; E_FAIL when the object is no feature
  virtual HRESULT GetType(VelString& oType) = 0;

  /// Sets the value of a parameter of documents. The document is counted, the one before is given back. A bare nullptr
  /// means this operation, whatever the parameter.
  /// @return S_OK; S_FALSE when it is the value already; E_NOINTERFACE when iDocument is null; E_FAIL
  virtual HRESULT SetValue(VelBaseUnknown* iDocument) = 0;

  /// @param[out] oDocument the document with one reference for the caller; null where there is none
  /// @return S_OK, also when there is none; E_FAIL also when oDocument is null
  virtual HRESULT GetValue(VelBaseUnknown** oDocument) = 0;

  /// Sets the value, and tells it to who subscribed.
  /// @param[in] iValue copied
  /// @return S_OK; S_FALSE when it is the value already, which tells nobody; E_NOINTERFACE for a view of null; E_FAIL
  virtual HRESULT SetValue(VelRshValueSource iValue) = 0;

  /// @param[out] oValue the value. Where none was set, what the layout of the parameter supplies; where that fails, the
  ///             default of the type: true, 0, 0.0, an empty text.
  /// @return S_OK; the layout's code when none was set and it fails, E_FAIL where there is no layout, although oValue
  ///         then holds the default; E_FAIL for a view of null (a vector: E_INVALIDARG). A matrix without a value is
  ///         E_FAIL and oValue untouched.
  virtual HRESULT GetValue(VelRshValueTarget oValue) = 0;

  /// Connects a shader, from which the value comes instead, or disconnects the one that is connected.
  /// @param[in] iShader null disconnects. A shader that nobody else is connected to any more is taken out of the nodes
  ///            of its father.
  /// @return S_OK; S_FALSE when it is connected already, which tells nobody; E_INVALIDARG when iShader is no feature;
  ///         E_FAIL also when the shader that was connected before cannot be taken out of its father's nodes, for
  ///         instance because it was never made a node, or the name cannot be read for the notification, although the
  ///         connection has changed then
  virtual HRESULT SetConnection(VelIRshShader* iShader) = 0;

  /// @param[out] oShader the connected shader with one reference for the caller, null where there is none; may be null,
  ///             then only the code tells
  /// @return S_OK; E_FAIL when nothing is connected; E_NOINTERFACE when what is connected is no shader
  virtual HRESULT GetConnection(VelIRshShader** oShader) = 0;

 protected:
  ~VelIRshParameter() = default;
};

using VelIRshParameter_var = VelVar<VelIRshParameter>;

#endif  // RENDERINGSHADER_INTERFACES_VELIRSHPARAMETER_H
