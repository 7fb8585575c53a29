// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelViewerInterfaces_test.cpp What the viewer asks a shader for: each interface by itself.
#include <array>
#include <cstdint>
#include <string>

#include <gtest/gtest.h>

#include "platform/objectmodeler/VelDictionary.h"
#include "platform/objectmodeler/VelObject.h"
#include "platform/viewer/TIEVelIHardwareMaterial.h"
#include "platform/viewer/TIEVelIOpenGLShaderMaterial.h"
#include "platform/viewer/TIEVelIRmaMappingManipulator.h"
#include "platform/viewer/TIEVelIRmaMappingManipulatorMaterial.h"
#include "platform/viewer/TIEVelIRmaVisuResourceImage.h"
#include "platform/viewer/TIEVelIRmaVisuTextureCoordinateTransformation.h"

class VelTestViewed final : public VelImplementation {
 public:
  using VelImplementation::VelImplementation;
  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  /// Each answers with a value and a code of its own, by which it is told from the others.
  static HRESULT GetMappingBehavior(std::uint32_t& oBehavior) {
    oBehavior = 7;
    return S_OK;
  }
  static HRESULT GetProjectorFunction(std::uint32_t& oFunction) {
    oFunction = 5;
    return S_FALSE;
  }
  static HRESULT GetTransformation(Vel3x3Matrix& oTransformation) {
    oTransformation = Vel3x3Matrix({1.0F, 2.0F, 3.0F, 4.0F}, {5.0F, 6.0F});
    return E_NOINTERFACE;
  }
  static HRESULT HasResourceImage(bool& oHasImage) {
    oHasImage = true;
    return E_UNEXPECTED;
  }
  HRESULT GetResourceImage(VelBaseUnknown** oResource) {
    if (oResource == nullptr) return E_INVALIDARG;
    *oResource = GetComponent();
    (*oResource)->AddRef();
    return S_OK;
  }
};

#define VEL_GRID_FILE "tests/platform/viewer/VelTestViewed.def"
#include "platform/objectmodeler/VelBindingGrid.inl"

namespace {

struct Case {
  const char* lateType;
  const char* interfaceName;
  const VelInterfaceId& identifier;
};

const std::array cases{
    Case{"VelTestHardware", "VelIHardwareMaterial", IID_VelIHardwareMaterial},
    Case{"VelTestProgram", "VelIOpenGLShaderMaterial", IID_VelIOpenGLShaderMaterial},
    Case{"VelTestMapping", "VelIRmaMappingManipulator", IID_VelIRmaMappingManipulator},
    Case{"VelTestWholeMapping", "VelIRmaMappingManipulatorMaterial", IID_VelIRmaMappingManipulatorMaterial},
    Case{"VelTestResource", "VelIRmaVisuResourceImage", IID_VelIRmaVisuResourceImage},
    Case{"VelTestCoordinates", "VelIRmaVisuTextureCoordinateTransformation",
         IID_VelIRmaVisuTextureCoordinateTransformation},
};

class VelViewerInterfacesTest : public ::testing::Test {
 protected:
  void SetUp() override { ASSERT_EQ(VelDictionary::Declare(velGridTable), S_OK); }
  void TearDown() override { EXPECT_EQ(VelDictionary::Undeclare(velGridTable), S_OK); }
};

TEST_F(VelViewerInterfacesTest, AnObject_AnswersTheInterfaceThatIsBoundAndNoneOfTheOthers) {
  for (const Case& bound : cases) {
    const VelBaseUnknown_var hObject = VelObject::Create(bound.lateType, nullptr);
    for (const Case& asked : cases) {
      SCOPED_TRACE(std::string(bound.lateType) + " asked for " + asked.interfaceName);
      VelBaseUnknown_var hAnswer;
      const bool isBound = &bound == &asked;
      EXPECT_EQ(hObject->QueryInterface(asked.identifier, hAnswer.Receive()), isBound ? S_OK : E_NOINTERFACE);
      ASSERT_EQ(static_cast<bool>(hAnswer), isBound);
      if (!isBound) continue;
      EXPECT_TRUE(hAnswer->IsEqual(hObject.Get()));
      EXPECT_STREQ(hAnswer->ClassName(), asked.interfaceName);
      EXPECT_TRUE(hAnswer->GetImpl()->IsAKindOf("VelTestViewed"));
    }
  }
}

TEST_F(VelViewerInterfacesTest, EachIdentifier_HasTheNameOfItsInterface) {
  for (const Case& row : cases) {
    SCOPED_TRACE(row.interfaceName);
    EXPECT_STREQ(row.identifier.Name(), row.interfaceName);
    EXPECT_EQ(row.identifier.Base(), &IID_VelBaseUnknown);
  }
}

TEST_F(VelViewerInterfacesTest, AHandle_AsksForItsOwnInterface) {
  EXPECT_TRUE(VelIHardwareMaterial_var(VelObject::Create("VelTestHardware", nullptr)));
  EXPECT_TRUE(VelIOpenGLShaderMaterial_var(VelObject::Create("VelTestProgram", nullptr)));
  EXPECT_TRUE(VelIRmaMappingManipulator_var(VelObject::Create("VelTestMapping", nullptr)));
  EXPECT_TRUE(VelIRmaMappingManipulatorMaterial_var(VelObject::Create("VelTestWholeMapping", nullptr)));
  EXPECT_TRUE(VelIRmaVisuResourceImage_var(VelObject::Create("VelTestResource", nullptr)));
  EXPECT_TRUE(VelIRmaVisuTextureCoordinateTransformation_var(VelObject::Create("VelTestCoordinates", nullptr)));
  EXPECT_FALSE(VelIRmaMappingManipulatorMaterial_var(VelObject::Create("VelTestMapping", nullptr)));
}

TEST_F(VelViewerInterfacesTest, TheTransformation_IsAskedOperationByOperation) {
  const VelIRmaVisuTextureCoordinateTransformation_var hShader(VelObject::Create("VelTestCoordinates", nullptr));
  std::uint32_t behavior = 0;
  std::uint32_t function = 0;
  Vel3x3Matrix transformation;
  bool hasImage = false;
  EXPECT_EQ(hShader->GetMappingBehavior(behavior), S_OK);
  EXPECT_EQ(hShader->GetProjectorFunction(function), S_FALSE);
  EXPECT_EQ(hShader->GetTransformation(transformation), E_NOINTERFACE);
  EXPECT_EQ(hShader->HasResourceImage(hasImage), E_UNEXPECTED);
  EXPECT_EQ(behavior, 7U);
  EXPECT_EQ(function, 5U);
  EXPECT_EQ(transformation, Vel3x3Matrix({1.0F, 2.0F, 3.0F, 4.0F}, {5.0F, 6.0F}));
  EXPECT_TRUE(hasImage);
}

TEST_F(VelViewerInterfacesTest, TheResourceImage_IsHandedOverWithItsReference) {
  const VelIRmaVisuResourceImage_var hParameter(VelObject::Create("VelTestResource", nullptr));
  VelBaseUnknown_var hResource;
  EXPECT_EQ(hParameter->GetResourceImage(hResource.Receive()), S_OK);
  EXPECT_TRUE(hParameter->IsEqual(hResource.Get()));
  EXPECT_EQ(hParameter->GetResourceImage(nullptr), E_INVALIDARG);
}

}  // namespace
