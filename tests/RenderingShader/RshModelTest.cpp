// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file RshModelTest.cpp The fixture of the component's tests.
#include "tests/RenderingShader/RshModelTest.h"

#include <memory>

#include "RenderingShader/VelRshModel.m/include/VelRshModelFactoryFeature.h"
#include "platform/configuration/VelMsgCatalog.h"
#include "platform/configuration/VelRbaConfiguration.h"
#include "platform/objectmodeler/VelDictionary.h"
#include "platform/trace/VelTraceService.h"

namespace {

constexpr const char* dictionary = VEL_TEST_LIBRARY_FOLDER "/dictionaries/VelRshModel.dictionary";

}  // namespace

void RshModelTest::SetUp() {
  FeatureModelerTest::SetUp();
  VelTraceService::Reset();
  VelTraceService::RemoveSink(VelTraceService::StandardErrorSink());
  VelTraceService::AddSink(traces_);
  ASSERT_EQ(VelDictionary::LoadFile(dictionary), S_OK);
}

void RshModelTest::TearDown() {
  FeatureModelerTest::TearDown();
  EXPECT_EQ(VelDictionary::Unload(dictionary), S_OK);
  VelRbaConfiguration::Clear();
  VelMsgCatalog::Clear();
  VelTraceService::Reset();
  EXPECT_EQ(checks_.Messages(), Texts{}) << "a test that expects a check clears it";
}

VelIRshShader_var RshModelTest::MakeShader(const char* iType) {
  const VelIRshShader_var hShader = VelRshModelFactoryFeature(*hContainer_).CreateShader(iType);
  EXPECT_TRUE(hShader) << iType;
  return hShader;
}

VelIRshParameter_var RshModelTest::Add(const VelIRshShader_var& iShader, const char* iName, const char* iStartUp) {
  VelIRshParameter_var hParameter;
  EXPECT_EQ(iShader->AddParameter(iName, iStartUp, hParameter.Receive()), S_OK) << iName;
  return hParameter;
}

VelIRshShader_var RshModelTest::AddNode(const VelIRshShader_var& iShader, const char* iType) {
  const VelIRshShader_var hNode = MakeShader(iType);
  EXPECT_EQ(iShader->AddNode(hNode.Get()), S_OK);
  return hNode;
}

Texts RshModelTest::ParameterNames(const VelIRshShader_var& iShader) {
  VelListPtrVelBaseUnknown* list = nullptr;
  EXPECT_EQ(iShader->GetParameters(&list), S_OK);
  const std::unique_ptr<VelListPtrVelBaseUnknown> owner(list);
  Texts names;
  if (list == nullptr) return names;
  for (VelBaseUnknown* element : *list) {
    names.push_back(NameOfParameter(element));
    element->Release();
  }
  return names;
}

std::string RshModelTest::NameOfParameter(VelBaseUnknown* iParameter) {
  const VelIRshParameter_var hParameter(iParameter);
  VelString name("?");
  if (hParameter && FAILED(hParameter->GetName(name))) name = "?";
  return std::string(name.View());
}

std::string RshModelTest::TypeOfShader(VelBaseUnknown* iShader) {
  const VelIRshShader_var hShader(iShader);
  VelString type("?");
  if (hShader && FAILED(hShader->GetType(type))) type = "?";
  return std::string(type.View());
}

VelIRshShader_var RshModelTest::ConnectionOf(const VelIRshParameter_var& iParameter) {
  VelIRshShader_var hShader;
  static_cast<void>(iParameter->GetConnection(hShader.Receive()));
  return hShader;
}

VelCallbackManager& RshModelTest::ManagerOf(const VelIRshShader_var& iShader) {
  return *VelIRshShaderPublisher_var(iShader)->GetCallbackManager();
}

VelCallbackManager& RshModelTest::ManagerOf(const VelIRshParameter_var& iParameter) {
  return *VelIRshParameterPublisher_var(iParameter)->GetCallbackManager();
}

bool IsSameObject(VelBaseUnknown* iLeft, VelBaseUnknown* iRight) {
  return iLeft == iRight || (iLeft != nullptr && iLeft->IsEqual(iRight));
}
