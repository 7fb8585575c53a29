// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTestShaderPlugin.cpp A plug-in that contributes the shader type "TestPluginShader".
#include "RenderingShader/interfaces/VelIRshParameter.h"
#include "RenderingShader/interfaces/VelRshShaderFactoryTie.h"
#include "platform/objectmodeler/VelImplementation.h"

extern const VelInterfaceId IID_VelITestShaderPluginFactory;

class VelITestShaderPluginFactory : public VelIRshShaderFactory {
 public:
  VEL_INTERFACE(VelITestShaderPluginFactory);

 protected:
  ~VelITestShaderPluginFactory() = default;
};

const VelInterfaceId IID_VelITestShaderPluginFactory("VelITestShaderPluginFactory", IID_VelIRshShaderFactory);

template <class Implementation>
class TIEVelITestShaderPluginFactory final
    : public VelRshShaderFactoryTie<VelITestShaderPluginFactory, Implementation> {
 public:
  using VelRshShaderFactoryTie<VelITestShaderPluginFactory, Implementation>::VelRshShaderFactoryTie;
};

/// One type, of a vector, for the usages 4 and 8; its parameter "gain" begins as the option.
class VelTestShaderPluginFactory final : public VelImplementation {
 public:
  using VelImplementation::VelImplementation;
  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  static HRESULT ListShaderTypes(VelListValVelString& oTypes) {
    oTypes.Append("TestPluginShader");
    return S_OK;
  }
  static HRESULT GetOutputType(const VelString&, VelString& oOutputType) {
    oOutputType = "VelRmaVector";
    return S_OK;
  }
  static HRESULT GetDisplayName(const VelString&, VelUnicodeString& oName) {
    oName = "Shader of a plug-in";
    return S_OK;
  }
  static HRESULT GetUsageFlags(const VelString&, std::uint32_t& oFlags) {
    oFlags = 12;
    return S_OK;
  }
  static HRESULT GetVersion(const VelString&, std::uint32_t& oVersion) {
    oVersion = 7;
    return S_OK;
  }
  static HRESULT InitializeShader(VelIRshShader* ioShader, unsigned char iOption) {
    VelIRshParameter_var hGain;
    VEL_RETURN_IF_FAILED(ioShader->SetVersion(7));
    VEL_RETURN_IF_FAILED(ioShader->AddParameter("gain", "VelRmaScalar", hGain.Receive()));
    const float gain = iOption;
    return hGain->SetValue(&gain);
  }
};

#define VEL_GRID_FILE "tests/RenderingShader/management/modules/VelTestShaderPlugin.def"
#include "platform/objectmodeler/VelBindingGrid.inl"
