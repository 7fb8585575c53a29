// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelViewerInterfaces_test.cpp What the viewer asks a shader for: each interface by itself.
#include <array>
#include <string>

#include <gtest/gtest.h>

#include "platform/objectmodeler/VelDictionary.h"
#include "platform/objectmodeler/VelObject.h"
#include "platform/viewer/TIEVelIHardwareMaterial.h"
#include "platform/viewer/TIEVelIOpenGLShaderMaterial.h"
#include "platform/viewer/TIEVelIRmaMappingManipulator.h"
#include "platform/viewer/TIEVelIRmaMappingManipulatorMaterial.h"

class VelTestViewed final : public VelImplementation {
 public:
  using VelImplementation::VelImplementation;
  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;
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
  EXPECT_FALSE(VelIRmaMappingManipulatorMaterial_var(VelObject::Create("VelTestMapping", nullptr)));
}

}  // namespace
