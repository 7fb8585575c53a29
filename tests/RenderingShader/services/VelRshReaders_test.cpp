// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshReaders_test.cpp The readers of configuration, name, type and collection.
#include "RenderingShader/VelRshModel.m/include/VelRshReaderConfiguration.h"
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterCollection.h"
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterName.h"
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterType.h"
#include "platform/configuration/VelRbaConfiguration.h"
#include "platform/objectmodeler/VelObject.h"
#include "tests/RenderingShader/RshModelTest.h"
#include "tests/RenderingShader/fixtures/FakeRenderingMaterial.h"
#include "tests/RenderingShader/model/fixtures/VelTestConnectedShader.h"

namespace {

using Collection = VelRshReaderParameterCollection;
using Type = VelRshReaderParameterType;

class VelRshReadersTest : public RshModelTest {
 protected:
  static Texts NamesOf(const Collection::Parameters& iParameters) {
    Texts names;
    for (const VelIRshParameter_var& hParameter : iParameters) names.push_back(NameOfParameter(hParameter.Get()));
    return names;
  }
};

TEST_F(VelRshReadersTest, Configuration_IsTheTypeOfTheShaderConcerned) {
  const VelRshReaderConfiguration read;
  const VelIRshShader_var hShader = MakeShader("BasicMaterial");
  EXPECT_EQ(read(*hShader), "BasicMaterial");
  for (const char* startUp : {"VelRmaScalar", "VelRmaVoid", "VelRmaLightProfile", "VelRmaParameter"}) {
    EXPECT_EQ(read(*Add(hShader, "p", startUp)), "BasicMaterial") << startUp;
    EXPECT_EQ(read(*VelIRshParameter_var(Make(startUp))), "") << startUp;
  }
}

TEST_F(VelRshReadersTest, ConfigurationOfAShader_IsWhatItsPrivateSideGives) {
  const VelTestConnectedShaderBindings bindings;
  const VelIRshShader_var hShader(FakeRenderingMaterial::Create(*hContainer_));
  EXPECT_EQ(VelRshReaderConfiguration()(*hShader), "private type");
}

TEST_F(VelRshReadersTest, ConfigurationOfAClosedShader_IsEmpty) {
  const VelIRshShader_var hShader = MakeShader();
  const VelIRshParameter_var hParameter = Add(hShader, "p", "VelRmaScalar");
  const VelISpecObject_var hFeature(hShader);
  EXPECT_EQ(LifeCycleObject_var(hFeature)->remove(), S_OK);
  EXPECT_EQ(VelRshReaderConfiguration()(*hShader), "");
  EXPECT_EQ(VelRshReaderConfiguration()(*hParameter), "");
}

TEST_F(VelRshReadersTest, Name_IsEmptyWhereItCannotBeRead) {
  const VelRshReaderParameterName read;
  const VelIRshParameter_var hParameter(Make("VelRmaVoid"));
  EXPECT_EQ(read(*hParameter), "");
  EXPECT_EQ(hParameter->SetName("base"), S_OK);
  EXPECT_EQ(read(*hParameter), "base");
  EXPECT_EQ(LifeCycleObject_var(hParameter)->remove(), S_OK);
  EXPECT_EQ(read(*hParameter), "");
}

TEST_F(VelRshReadersTest, Type_IsTheNumberOfTheStartUp) {
  const struct {
    const char* startUp;
    int type;
  } cases[] = {{"VelRmaVoid", 1},    {"VelRmaBoolean", 2},      {"VelRmaColor", 3},    {"VelRmaScalar", 4},
               {"VelRmaInteger", 5}, {"VelRmaString", 6},       {"VelRmaVector", 7},   {"VelRmaTexture", 8},
               {"VelRmaMatrix", 0},  {"VelRmaLightProfile", 0}, {"VelRmaParameter", 0}};
  for (const auto& test : cases) {
    const VelIRshParameter_var hParameter(Make(test.startUp));
    EXPECT_EQ(static_cast<int>(Type()(*hParameter)), test.type) << test.startUp;
    EXPECT_EQ(LifeCycleObject_var(hParameter)->remove(), S_OK);
    EXPECT_EQ(Type()(*hParameter), Type::Unknown) << test.startUp;
  }
}

TEST_F(VelRshReadersTest, Collection_ListsTheParametersInOrderAndNothingElse) {
  const VelIRshShader_var hShader = MakeShader();
  Add(hShader, "b", "VelRmaScalar");
  EXPECT_EQ(VelISpecAttrAccess_var(hShader)->AppendComponent(parameters_, MakeShader().Get()), S_OK);
  Add(hShader, "a", "VelRmaVoid");
  Add(hShader, "b", "VelRmaColor");
  EXPECT_EQ(NamesOf(Collection()(*hShader)), (Texts{"b", "a", "b"}));
  EXPECT_EQ(NamesOf(Collection()(*MakeShader())), Texts{});
}

TEST_F(VelRshReadersTest, CollectionOfAShaderThatCannotList_IsEmpty) {
  const VelTestConnectedShaderBindings bindings;
  const VelIRshShader_var hShader(FakeRenderingMaterial::Create(*hContainer_));
  EXPECT_EQ(NamesOf(Collection()(*hShader)), Texts{});
}

TEST_F(VelRshReadersTest, CollectionByTag_TakesThoseWhosePrivateSideConfirms) {
  const VelIRshShader_var hShader = MakeShader("TaggedType");
  for (const char* key : {"a.Tag", "b.Tag", "d.Tag"}) {
    EXPECT_EQ(VelRbaConfiguration::SetValue("TaggedType", key, "bump mapping"), S_OK);
  }
  Add(hShader, "a", "VelRmaScalar");
  Add(hShader, "b", "VelRmaVoid");  // Has no private side.
  Add(hShader, "c", "VelRmaScalar");
  Add(hShader, "d", "VelRmaTexture");
  Collection::Parameters parameters = Collection()(*hShader);
  parameters.insert(parameters.begin(), nullptr);
  EXPECT_EQ(NamesOf(Collection()(parameters, VelIRshParameterPrivate::Tag::Mapping)), (Texts{"a", "d"}));
  EXPECT_EQ(NamesOf(Collection()(parameters, VelIRshParameterPrivate::Tag::Angle)), Texts{});
}

TEST_F(VelRshReadersTest, CollectionByName_TakesTheFirst) {
  const VelIRshShader_var hShader = MakeShader();
  const VelIRshParameter_var hNameless(Make("VelRmaScalar"));
  EXPECT_EQ(hShader->AppendParameter(hNameless.Get()), S_OK);
  const VelIRshParameter_var hFirst = Add(hShader, "b", "VelRmaScalar");
  Add(hShader, "b", "VelRmaColor");
  Add(hShader, "", "VelRmaColor");
  Collection::Parameters parameters = Collection()(*hShader);
  parameters.insert(parameters.begin(), nullptr);
  const Collection read;
  EXPECT_TRUE(IsSameObject(read(parameters, "b").Get(), hFirst.Get()));
  EXPECT_FALSE(read(parameters, "B"));
  EXPECT_FALSE(read(parameters, "bb"));
  EXPECT_FALSE(read(parameters, nullptr));
  EXPECT_TRUE(IsSameObject(read(parameters, "").Get(), parameters.back().Get())) << "no name is not the empty name";
}

}  // namespace
