// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file HostTest.h The fixture of the host's tests: the component, the host, and a material with a root shader.
#ifndef TESTS_HOST_HOSTTEST_H
#define TESTS_HOST_HOSTTEST_H

#include <string>

#include "platform/configuration/VelRbaConfiguration.h"
#include "platform/featuremodeler/VelOsmSUHandler.h"
#include "platform/materials/VelIRenderingMaterial.h"
#include "tests/RenderingShader/RshModelTest.h"

/// Shaders are of the type "HostedType" where a test names none; its configuration is empty until a test fills it.
class HostTest : public RshModelTest {
 protected:
  static constexpr const char* type = "HostedType";

  void SetUp() override;
  void TearDown() override;

  static void Configure(const char* iKey, const char* iValue, const char* iConfiguration = type) {
    ASSERT_TRUE(SUCCEEDED(VelRbaConfiguration::SetValue(iConfiguration, iKey, iValue)));
  }

  /// @return a new material that carries a shader
  VelIRenderingMaterial_var MakeMaterial(const VelIRshShader_var& iShader) {
    VelBaseUnknown_var hMade;
    const VelOsmSUHandler handler("VelRmaRenderingMaterial", "", "VelRmaMaterialCatalog.feat");
    EXPECT_EQ(handler.Instanciate(*hContainer_, "", VelIRenderingMaterial::InterfaceId(), hMade.Receive()), S_OK);
    const VelIRenderingMaterial_var hMaterial(hMade);
    EXPECT_EQ(hMaterial->SetShader(iShader.Get()), S_OK);
    return hMaterial;
  }
};

#endif  // TESTS_HOST_HOSTTEST_H
