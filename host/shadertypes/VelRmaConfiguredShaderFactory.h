// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaConfiguredShaderFactory.h The host's factory: shaders of the types that files describe.
#ifndef HOST_SHADERTYPES_VELRMACONFIGUREDSHADERFACTORY_H
#define HOST_SHADERTYPES_VELRMACONFIGUREDSHADERFACTORY_H

#include <cstdint>

#include "RenderingShader/interfaces/VelIRmaShaderFactory.h"
#include "platform/objectmodeler/VelImplementation.h"

/// Extends the manager of shaders by VelIRmaShaderFactory; docs/shader_types.md describes the files. To list the types
/// looks for files again. A type whose file has vanished or become faulty is answered as it was last read, so that the
/// manager, which never forgets a type, and the documents that are open go on with it.
class VelRmaConfiguredShaderFactory final : public VelImplementation {
 public:
  using VelImplementation::VelImplementation;

  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  // VelIRmaShaderFactory
  static HRESULT ListShaderTypes(VelListValVelString& oTypes);
  static HRESULT GetOutputType(const VelString& iType, VelString& oOutputType);
  static HRESULT GetDisplayName(const VelString& iType, VelUnicodeString& oName);
  static HRESULT GetUsageFlags(const VelString& iType, std::uint32_t& oFlags);
  static HRESULT GetVersion(const VelString& iType, std::uint32_t& oVersion);

  /// Every option gives the plain set: all parameters of the file with their defaults.
  static HRESULT InitializeShader(VelIRshShader* ioShader, unsigned char iOption);
};

#endif  // HOST_SHADERTYPES_VELRMACONFIGUREDSHADERFACTORY_H
