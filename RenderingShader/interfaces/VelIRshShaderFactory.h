// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIRshShaderFactory.h Contributes shader types.
#ifndef RENDERINGSHADER_INTERFACES_VELIRSHSHADERFACTORY_H
#define RENDERINGSHADER_INTERFACES_VELIRSHSHADERFACTORY_H

#include <cstdint>

#include "RenderingShader/interfaces/VelIRshShader.h"
#include "RenderingShader/interfaces/VelRshInterfacesApi.h"
#include "platform/base/VelListValVelString.h"
#include "platform/base/VelString.h"
#include "platform/base/VelUnicodeString.h"
#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"

VEL_RSH_INTERFACES_API extern const VelInterfaceId IID_VelIRshShaderFactory;

/// The shader types of one contributor, by name. A framework that contributes declares an interface of its own, which
/// derives from this one and adds nothing, and binds it in its dictionary to the late type "VelRshShaderManager". The
/// manager finds it there and opens the library. Where two factories list a type, the first one that was found owns it.
///
/// Implemented by: extensions of late type "VelRshShaderManager" of whoever contributes shader types.
/// Thread: the application thread. Re-entrancy: must not call the manager.
class VEL_RSH_INTERFACES_API VelIRshShaderFactory : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelIRshShaderFactory);

  /// @param[out] oTypes replaced by the names of the types that this factory can create
  /// @return S_OK; any failure makes the manager pass this factory over
  virtual HRESULT ListShaderTypes(VelListValVelString& oTypes) = 0;

  /// @param[in] iType one of the types listed
  /// @param[out] oOutputType the start-up of the value that such a shader produces, for instance "VelRmaColor" or
  ///             "VelRmaVoid"; untouched on failure
  /// @return S_OK; E_FAIL for an unknown type
  virtual HRESULT GetOutputType(const VelString& iType, VelString& oOutputType) = 0;

  /// @param[out] oName the name that people see, in the language in force; untouched on failure
  /// @return S_OK; E_FAIL for an unknown type
  virtual HRESULT GetDisplayName(const VelString& iType, VelUnicodeString& oName) = 0;

  /// @param[out] oFlags the contexts in which the type may be offered, a bit each; 0 is any; untouched on failure
  /// @return S_OK; E_FAIL for an unknown type
  virtual HRESULT GetUsageFlags(const VelString& iType, std::uint32_t& oFlags) = 0;

  /// @param[out] oVersion the current version of the type's definition; compared for equality alone; untouched on
  ///             failure
  /// @return S_OK; E_FAIL for an unknown type
  virtual HRESULT GetVersion(const VelString& iType, std::uint32_t& oVersion) = 0;

  /// Fills a shader without parameters: writes its output type, usage and version, then adds the parameters of its type
  /// in order, each with its default as value. A parameter without a value cannot be copied.
  /// @param[in] ioShader a shader whose type is one of those listed; not null
  /// @param[in] iOption what the manager's caller asked for; 0 is the plain set
  /// @return S_OK; any failure, with the parameters that were added by then
  virtual HRESULT InitializeShader(VelIRshShader* ioShader, unsigned char iOption) = 0;

 protected:
  ~VelIRshShaderFactory() = default;
};

using VelIRshShaderFactory_var = VelVar<VelIRshShaderFactory>;

#endif  // RENDERINGSHADER_INTERFACES_VELIRSHSHADERFACTORY_H
