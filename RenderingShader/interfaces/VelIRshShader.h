// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIRshShader.h A shader: its type, usage and version, its parameters in order, and its nodes.
#ifndef RENDERINGSHADER_INTERFACES_VELIRSHSHADER_H
#define RENDERINGSHADER_INTERFACES_VELIRSHSHADER_H

#include <cstdint>

#include "RenderingShader/interfaces/VelRshInterfacesApi.h"
#include "platform/base/HResult.h"
#include "platform/base/VelListPtrVelBaseUnknown.h"
#include "platform/base/VelString.h"
#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"

class VelIContainer;
class VelIRshParameter;

VEL_RSH_INTERFACES_API extern const VelInterfaceId IID_VelIRshShader;

/// A shader of a material.
///
/// Every operation but SetType and CreateCopy first makes the delegate of the shader's type, once; that never makes an
/// operation fail. A failed operation leaves its out arguments untouched unless it says otherwise, and E_FAIL is also
/// the answer of a closed shader.
///
/// Implemented by: VelRshShaderFeature, for start-up VelRmaShader; others may implement it for nodes of their own.
/// Thread: the application thread. Re-entrancy: a change is told to the subscribers before the operation returns.
class VEL_RSH_INTERFACES_API VelIRshShader : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelIRshShader);

  /// Gives a new shader its type, and makes the delegate of that type. To be called before any other operation: a
  /// shader that has a delegate keeps its type.
  /// @param[in] iType for instance "BasicMaterial". A type that the shader holds already is not overwritten, though the
  ///            delegate is made by iType.
  /// @return S_OK; E_FAIL when the shader has a delegate, and when its parameters cannot be listed
  virtual HRESULT SetType(const VelString& iType) = 0;

  /// @param[out] oType the type; that of the feature itself while none was set
  /// @return S_OK; E_FAIL when neither can be read
  virtual HRESULT GetType(VelString& oType) = 0;

  /// @param[in] iType the start-up name of the value that the shader produces, for instance "VelRmaColor"
  /// @return S_OK; E_FAIL
  virtual HRESULT SetOutputType(const VelString& iType) = 0;

  /// @return S_OK; E_FAIL also when none was set
  virtual HRESULT GetOutputType(VelString& oType) = 0;

  /// @param[in] iUsage the contexts in which the shader is used, a bit each
  /// @return S_OK; E_FAIL
  virtual HRESULT SetUsage(std::uint32_t iUsage) = 0;

  /// @return S_OK; E_FAIL also when none was set
  virtual HRESULT GetUsage(std::uint32_t& oUsage) = 0;

  /// @param[in] iVersion the version of the type's definition by which the parameters were made
  /// @return S_OK; E_FAIL
  virtual HRESULT SetVersion(std::uint32_t iVersion) = 0;

  /// @return S_OK; E_FAIL also when none was set
  virtual HRESULT GetVersion(std::uint32_t& oVersion) = 0;

  /// Appends a parameter that exists. It keeps its name.
  /// @param[in] iParameter a feature without a father
  /// @return S_OK; E_FAIL also when iParameter is null or has a father
  virtual HRESULT AppendParameter(VelIRshParameter* iParameter) = 0;

  /// Makes a parameter and appends it. Names may repeat.
  /// @param[in] iStartUp one of the typed start-ups, for instance "VelRmaScalar"
  /// @param[out] oParameter with one reference for the caller; null on failure, unless it is only the name that could
  ///             not be written
  /// @return S_OK; E_FAIL when oParameter is null, the shader is in no container, cannot take a parameter in, or the
  ///         start-up is unknown; E_NOINTERFACE when the start-up is none of a parameter; the parameter's own code when
  ///         its name cannot be written. After the last two the new feature stays in the list.
  virtual HRESULT AddParameter(const VelString& iName, const VelString& iStartUp, VelIRshParameter** oParameter) = 0;

  /// Lists the parameters in order: every feature of the list, each with one reference for the caller.
  /// @param[out] oParameters a new list, which the caller deletes; null on failure. An empty one where there is none.
  /// @return S_OK; E_FAIL also when oParameters is null
  virtual HRESULT GetParameters(VelListPtrVelBaseUnknown** oParameters) = 0;

  /// Aggregates a shader as a node.
  /// @param[in] iNode a feature without a father
  /// @return S_OK; E_FAIL also when iNode is null or has a father
  virtual HRESULT AddNode(VelIRshShader* iNode) = 0;

  /// Takes a node out. It stays in its container.
  /// @return S_OK; E_FAIL also when iNode is null or no node of this shader
  virtual HRESULT RemoveNode(VelIRshShader* iNode) = 0;

  /// Lists the nodes, each with one reference for the caller.
  /// @param[out] oNodes a new list, which the caller deletes; null where there is no node, and on failure
  /// @return S_OK; E_FAIL also when oNodes is null
  virtual HRESULT GetNodes(VelListPtrVelBaseUnknown** oNodes) = 0;

  /// Copies the shader into a container, through the shader manager.
  /// @param[in] iContainer null makes no copy
  /// @param[out] oCopy with one reference for the caller; null when there is no copy
  /// @return E_FAIL, always. It is the out argument that tells whether there is a copy.
  virtual HRESULT CreateCopy(VelIContainer* iContainer, VelIRshShader** oCopy) = 0;

 protected:
  ~VelIRshShader() = default;
};

using VelIRshShader_var = VelVar<VelIRshShader>;

#endif  // RENDERINGSHADER_INTERFACES_VELIRSHSHADER_H
