// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file ShaderFeatureTest.h The fixture of the tests of a shader: what they make beside the shipped start-ups.
#ifndef TESTS_RENDERINGSHADER_MODEL_SHADERFEATURETEST_H
#define TESTS_RENDERINGSHADER_MODEL_SHADERFEATURETEST_H

#include <optional>
#include <string>

#include "platform/objectmodeler/VelIDelegation.h"
#include "platform/objectmodeler/VelObject.h"
#include "platform/trace/VelTraceService.h"
#include "tests/RenderingShader/RshModelTest.h"
#include "tests/RenderingShader/model/fixtures/VelTestForeignFeatures.h"

/// The container knows the start-ups of VelTestShaderCatalog, and they have classes.
class ShaderFeatureTest : public RshModelTest {
 protected:
  static constexpr const char* channel = "VelRshShaderFeature";

  void SetUp() override;
  void TearDown() override;

  /// @return a feature of VelTestShaderCatalog
  static VelISpecObject_var MakeOddIn(const VelIContainer_var& iContainer, const char* iType) {
    VelBaseUnknown_var hStartUp;
    EXPECT_EQ(FindStartUp("VelISpecObject", "", iType, *iContainer, hStartUp.Receive()), S_OK) << iType;
    VelBaseUnknown_var hFeature;
    EXPECT_EQ(VelISpecObject_var(hStartUp)->Instanciate("odd", iContainer.Get(), VelISpecObject::InterfaceId(),
                                                        hFeature.Receive()),
              S_OK)
        << iType;
    return VelISpecObject_var(hFeature);
  }
  VelISpecObject_var MakeOdd(const char* iType) { return MakeOddIn(hContainer_, iType); }

  /// @return a shader of a start-up of either catalog, which nobody has asked for anything but the interface
  VelIRshShader_var MakeRaw(const char* iStartUp) {
    VelIRshShader_var hShader(MakeOdd(iStartUp));
    EXPECT_TRUE(hShader) << iStartUp;
    return hShader;
  }

  /// @return a shader that is no feature
  static VelIRshShader_var MakeFeatureless() {
    return VelIRshShader_var(VelObject::Create("VelTestFeaturelessShader", nullptr));
  }

  /// Puts a feature into the list of another one, past its interfaces.
  static HRESULT Aggregate(const VelISpecObject_var& iFather, const char* iAttribute, VelBaseUnknown* iFeature) {
    return Access(iFather)->AppendComponent(Key(iAttribute, VelSpecAttrKind::Components), iFeature);
  }

  static HRESULT Remove(VelBaseUnknown* iFeature) { return LifeCycleObject_var(iFeature)->remove(); }

  /// @return the delegate of a shader, empty for none
  static VelBaseUnknown_var DelegateOf(VelBaseUnknown* iShader) {
    VelBaseUnknown_var hDelegate;
    static_cast<void>(VelIDelegation_var(iShader)->GetDelegate(hDelegate.Receive()));
    return hDelegate;
  }

  /// @return the late type of a shader's delegate, "none" without one
  static std::string DelegateTypeOf(VelBaseUnknown* iShader) {
    const VelBaseUnknown_var hDelegate = DelegateOf(iShader);
    return hDelegate ? hDelegate->GetComponent()->LateTypeName() : "none";
  }

  /// What the shader's class told, the level before each text.
  Texts Told() const {
    Texts told;
    for (const VelTraceRecorder::Entry& entry : traces_.Entries()) {
      if (entry.channel == channel) told.push_back(std::to_string(entry.classLevel) + " " + entry.text);
    }
    return told;
  }

  std::optional<VelTestForeignBindings> foreign_;
};

#endif  // TESTS_RENDERINGSHADER_MODEL_SHADERFEATURETEST_H
