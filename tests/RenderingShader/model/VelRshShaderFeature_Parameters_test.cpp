// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshShaderFeature_Parameters_test.cpp The parameters and nodes of a shader: how they are added, listed and
/// taken out, and what is left when that fails.
#include <memory>

#include "RenderingShader/interfaces/VelRshParameterPublisherEvents.h"
#include "RenderingShader/interfaces/VelRshShaderPublisherEvents.h"
#include "tests/RenderingShader/model/ShaderFeatureTest.h"

namespace {

using ParameterEvents = VelRshParameterPublisherEvents;
using ShaderEvents = VelRshShaderPublisherEvents;

class VelRshShaderFeatureParametersTest : public ShaderFeatureTest {
 protected:
  /// Adds a parameter and expects a failure that leaves nothing.
  void ExpectNothingAdded(const VelIRshShader_var& iShader, const char* iStartUp) {
    const int features = hContainer_->CountFeatures();
    // Any pointer that is not null will do: it is to be overwritten, not to be used.
    auto* parameter = reinterpret_cast<VelIRshParameter*>(iShader.Get());
    EXPECT_EQ(iShader->AddParameter("x", iStartUp, &parameter), E_FAIL) << iStartUp;
    EXPECT_EQ(parameter, nullptr) << iStartUp;
    EXPECT_EQ(hContainer_->CountFeatures(), features) << iStartUp;
  }

  static int SizeOf(const VelIRshShader_var& iShader, const char* iAttribute) {
    int size = -1;
    static_cast<void>(VelISpecAttrAccess_var(iShader)->GetSize(Key(iAttribute, VelSpecAttrKind::Components), size));
    return size;
  }

  /// @return the nodes' types; "no list" for none
  static Texts NodesOf(const VelIRshShader_var& iShader) {
    VelListPtrVelBaseUnknown* list = nullptr;
    EXPECT_EQ(iShader->GetNodes(&list), S_OK);
    const std::unique_ptr<VelListPtrVelBaseUnknown> owner(list);
    if (list == nullptr) return {"no list"};
    Texts types;
    for (VelBaseUnknown* node : *list) {
      types.push_back(TypeOfShader(node));
      node->Release();
    }
    return types;
  }
};

constexpr const char* typedStartUps[] = {"VelRmaBoolean", "VelRmaInteger",      "VelRmaScalar",   "VelRmaColor",
                                         "VelRmaMatrix",  "VelRmaVector",       "VelRmaString",   "VelRmaTexture",
                                         "VelRmaVoid",    "VelRmaLightProfile", "VelRmaParameter"};

TEST_F(VelRshShaderFeatureParametersTest, AddParameter_OfEachStartUp_AppendsIt_WithItsName) {
  const VelIRshShader_var hShader = MakeShader();
  Texts names;
  for (const char* startUp : typedStartUps) {
    const std::string name = std::string("a ") + startUp;
    const VelIRshParameter_var hParameter = Add(hShader, name.c_str(), startUp);
    VelString type;
    EXPECT_EQ(hParameter->GetType(type), S_OK);
    EXPECT_EQ(type, startUp);
    EXPECT_EQ(NameOf(hParameter.Get()), name) << "the feature's name";
    names.push_back(name);
    EXPECT_EQ(ParameterNames(hShader), names);
  }
}

TEST_F(VelRshShaderFeatureParametersTest, AddParameter_KeepsTheOrderAndRepeatedNames) {
  const VelIRshShader_var hShader = MakeShader();
  const VelIRshParameter_var hFirst = Add(hShader, "roughness", "VelRmaScalar");
  Add(hShader, "base_color", "VelRmaColor");
  const VelIRshParameter_var hLast = Add(hShader, "roughness", "VelRmaScalar");
  EXPECT_FALSE(IsSameObject(hFirst.Get(), hLast.Get()));
  EXPECT_EQ(ParameterNames(hShader), (Texts{"roughness", "base_color", "roughness"}));
}

TEST_F(VelRshShaderFeatureParametersTest, AddParameter_WithoutAnArgumentForTheResult_Fails) {
  const VelIRshShader_var hShader = MakeShader();
  const int features = hContainer_->CountFeatures();
  EXPECT_EQ(hShader->AddParameter("x", "VelRmaScalar", nullptr), E_FAIL);
  EXPECT_EQ(hContainer_->CountFeatures(), features);
}

TEST_F(VelRshShaderFeatureParametersTest, AddParameter_ToWhatHasNoList_Fails) {
  ExpectNothingAdded(MakeRaw("VelTestBareShader"), "VelRmaScalar");
  ExpectNothingAdded(MakeFeatureless(), "VelRmaScalar");
}

TEST_F(VelRshShaderFeatureParametersTest, AddParameter_TellsTheStartUp) {
  const VelIRshShader_var hShader = MakeShader();
  VelTraceService::SetSwitches("VelRshShaderFeature=3");
  Add(hShader, "quiet", "VelRmaScalar");
  EXPECT_EQ(Told(), Texts{});
  VelTraceService::SetSwitches("VelRshShaderFeature=4");
  Add(hShader, "roughness", "VelRmaColor");
  EXPECT_EQ(Told(), Texts{"4 (VelRshShaderFeature::AddParameter) startUp='VelRmaColor' featType='VelRmaColor'\n"});
}

TEST_F(VelRshShaderFeatureParametersTest, AddParameter_OfAnUnknownStartUp_FailsAndSaysSo) {
  VelTraceService::SetSwitches("VelRshShaderFeature=4");
  for (const char* startUp : {"VelNoSuchStartUp", "", "velrmascalar"}) {
    const VelIRshShader_var hShader = MakeShader();
    traces_.Clear();
    ExpectNothingAdded(hShader, startUp);
    EXPECT_EQ(SizeOf(hShader, "Parameters"), 0);
    EXPECT_EQ(Told(), Texts{std::string("4 (VelRshShaderFeature::AddParameter) ERROR: '") + startUp +
                            "' start-up not found in catalog named VelRscCatalog.feat\n"});
  }
}

/// Makes a shader in a container that does not know the catalog of the parameters.
class ForeignContainer {
 public:
  ForeignContainer() { EXPECT_EQ(VelICatalogManager_var(container)->LoadCatalog(VEL_TEST_SHADER_CATALOG), S_OK); }

  bool Knows(const char* iStartUp) const {
    VelBaseUnknown_var hStartUp;
    return SUCCEEDED(FindStartUp("VelISpecObject", "", iStartUp, *container, hStartUp.Receive()));
  }

  VelIContainer_var container = VelIContainer::Create();
};

TEST_F(VelRshShaderFeatureParametersTest, AddParameter_InAContainerWithoutTheCatalog_LoadsIt) {
  const ForeignContainer foreign;
  const VelIRshShader_var hShader(MakeOddIn(foreign.container, "VelTestListShader"));
  ASSERT_FALSE(foreign.Knows("VelRmaScalar"));
  const VelIRshParameter_var hParameter = Add(hShader, "roughness", "VelRmaScalar");
  VelIContainer_var hContainer;
  EXPECT_EQ(VelISpecObject_var(hParameter)->GetContainer(hContainer.Receive()), S_OK);
  EXPECT_TRUE(IsSameObject(hContainer.Get(), foreign.container.Get()));
  EXPECT_EQ(ParameterNames(hShader), Texts{"roughness"});
}

TEST_F(VelRshShaderFeatureParametersTest, AddParameter_OfAStartUpThatIsKnown_LoadsNoCatalog) {
  const ForeignContainer foreign;
  const VelIRshShader_var hShader(MakeOddIn(foreign.container, "VelTestListShader"));
  Add(hShader, "roughness", "VelTestForeignParameter");
  EXPECT_FALSE(foreign.Knows("VelRmaScalar"));
}

TEST_F(VelRshShaderFeatureParametersTest, AddParameter_OfAnUnknownStartUp_HasLoadedTheCatalogBefore) {
  const ForeignContainer foreign;
  const VelIRshShader_var hShader(MakeOddIn(foreign.container, "VelTestListShader"));
  VelIRshParameter_var hParameter;
  EXPECT_EQ(hShader->AddParameter("x", "VelNoSuchStartUp", hParameter.Receive()), E_FAIL);
  EXPECT_TRUE(foreign.Knows("VelRmaScalar"));
}

TEST_F(VelRshShaderFeatureParametersTest, AddParameter_OfAStartUpThatIsNoParameter_FailsAndKeepsIt) {
  const VelIRshShader_var hShader = MakeShader();
  auto* parameter = reinterpret_cast<VelIRshParameter*>(hShader.Get());
  EXPECT_EQ(hShader->AddParameter("odd", "VelRmaShader", &parameter), E_NOINTERFACE);
  EXPECT_EQ(parameter, nullptr);
  Add(hShader, "roughness", "VelRmaScalar");
  EXPECT_EQ(ParameterNames(hShader), (Texts{"?", "roughness"}));
}

TEST_F(VelRshShaderFeatureParametersTest, AddParameter_WhoseNameCannotBeWritten_GivesThatCode_AndEndsAsEver) {
  VelTestForeign::Instance().setName = E_INVALIDARG;
  const VelIRshShader_var hShader = MakeShader();
  VelIRshParameter_var hParameter;
  EXPECT_EQ(hShader->AddParameter("roughness", "VelTestForeignParameter", hParameter.Receive()), E_INVALIDARG);
  ASSERT_TRUE(hParameter);
  EXPECT_EQ(SizeOf(hShader, "Parameters"), 1);
  EXPECT_EQ(VelTestForeign::Instance().calls,
            (Texts{"SetName roughness", "UpdateValueAndConnection", "AttachToShader BasicMaterial"}));
  EXPECT_TRUE(Hears(ManagerOf(hParameter), ParameterEvents::VALUE_UPDATED(), hShader.Get()));
}

TEST_F(VelRshShaderFeatureParametersTest, AddParameter_ListsNamesUpdatesAttachesAndBindsInThisOrder) {
  const VelIRshShader_var hShader = MakeShader("TheType");
  VelTestForeign::Instance().onUpdate = [&](VelImplementation& ioParameter) {
    EXPECT_EQ(SizeOf(hShader, "Parameters"), 1) << "appended before";
    VelCallbackManager& own = ManagerOf(VelIRshParameter_var(&ioParameter));
    EXPECT_FALSE(Hears(own, ParameterEvents::VALUE_UPDATED(), hShader.Get())) << "bound afterwards";
    EXPECT_FALSE(Hears(ManagerOf(hShader), ShaderEvents::PARAMETER_VALUE_UPDATED(), &ioParameter));
  };
  VelIRshParameter_var hParameter;
  EXPECT_EQ(hShader->AddParameter("roughness", "VelTestForeignParameter", hParameter.Receive()), S_OK)
      << "whatever the update answers";
  VelTestForeign::Instance().onUpdate = nullptr;
  EXPECT_EQ(VelTestForeign::Instance().calls,
            (Texts{"SetName roughness", "UpdateValueAndConnection", "AttachToShader TheType"}));
  EXPECT_TRUE(Hears(ManagerOf(hParameter), ParameterEvents::VALUE_UPDATED(), hShader.Get()));
  EXPECT_TRUE(Hears(ManagerOf(hShader), ShaderEvents::PARAMETER_VALUE_UPDATED(), hParameter.Get()));
}

TEST_F(VelRshShaderFeatureParametersTest, AddParameter_BelowAFeatureThatIsBeingRemoved_LeavesNothing) {
  const VelISpecObject_var hFather = MakeOdd("VelTestForeignShader");
  ASSERT_TRUE(VelIRshShader_var(hFather));
  const VelIRshShader_var hShader = MakeShader();
  ASSERT_EQ(Aggregate(hFather, "Nodes", hShader.Get()), S_OK);
  const int features = hContainer_->CountFeatures();
  bool isAsked = false;
  VelTestForeign::Instance().onClosed = [&] {
    isAsked = true;
    ExpectNothingAdded(hShader, "VelRmaScalar");
  };
  ASSERT_EQ(Remove(hFather.Get()), S_OK);
  VelTestForeign::Instance().onClosed = nullptr;
  EXPECT_TRUE(isAsked);
  EXPECT_EQ(hContainer_->CountFeatures(), features - 2);
}

TEST_F(VelRshShaderFeatureParametersTest, AppendParameter_KeepsTheName_AndUpdatesAttachesAndBinds) {
  const VelIRshShader_var hShader = MakeShader("TheType");
  const VelIRshParameter_var hScalar(Make("VelRmaScalar"));
  ASSERT_EQ(hScalar->SetName("own"), S_OK);
  EXPECT_EQ(hShader->AppendParameter(hScalar.Get()), S_OK);
  EXPECT_EQ(ParameterNames(hShader), Texts{"own"});
  EXPECT_TRUE(Hears(ManagerOf(hScalar), ParameterEvents::VALUE_UPDATED(), hShader.Get()));
  const VelIRshParameter_var hForeign(MakeOdd("VelTestForeignParameter"));
  EXPECT_EQ(hShader->AppendParameter(hForeign.Get()), S_OK);
  EXPECT_EQ(ParameterNames(hShader), (Texts{"own", "foreign"}));
  EXPECT_EQ(VelTestForeign::Instance().calls, (Texts{"UpdateValueAndConnection", "AttachToShader TheType"}));
  EXPECT_TRUE(Hears(ManagerOf(hForeign), ParameterEvents::VALUE_UPDATED(), hShader.Get()));
}

TEST_F(VelRshShaderFeatureParametersTest, AppendParameter_OfWhatCannotBeOwned_FailsAndBindsNothing) {
  const VelIRshShader_var hShader = MakeShader();
  const VelIRshShader_var hOwner = MakeShader();
  const VelIRshParameter_var hOwned = Add(hOwner, "owned", "VelRmaScalar");
  const VelIContainer_var hElsewhere = VelIContainer::Create();
  const VelIRshParameter_var hStranger(MakeIn(hElsewhere, "VelRmaScalar"));
  const VelIRshParameter_var hNoFeature(VelObject::Create("VelTestForeignParameter", nullptr));
  ASSERT_TRUE(hNoFeature);
  for (const VelIRshParameter_var& hParameter : {VelIRshParameter_var(), hOwned, hStranger, hNoFeature}) {
    EXPECT_EQ(hShader->AppendParameter(hParameter.Get()), E_FAIL);
    if (!hParameter) continue;
    EXPECT_FALSE(Hears(ManagerOf(hParameter), ParameterEvents::VALUE_UPDATED(), hShader.Get()));
  }
  EXPECT_EQ(hOwner->AppendParameter(hOwned.Get()), E_FAIL) << "in the list already";
  EXPECT_EQ(ParameterNames(hOwner), Texts{"owned"});
  EXPECT_EQ(SizeOf(hShader, "Parameters"), 0);
  EXPECT_EQ(VelTestForeign::Instance().calls, Texts{});
}

TEST_F(VelRshShaderFeatureParametersTest, AppendParameter_ToWhatHasNoList_Fails) {
  const VelIRshParameter_var hScalar(Make("VelRmaScalar"));
  EXPECT_EQ(MakeRaw("VelTestBareShader")->AppendParameter(hScalar.Get()), E_FAIL);
  EXPECT_EQ(MakeFeatureless()->AppendParameter(hScalar.Get()), E_FAIL);
}

TEST_F(VelRshShaderFeatureParametersTest, GetParameters_HandsOutANewListWithAReferenceEach) {
  const VelIRshShader_var hShader = MakeShader();
  Add(hShader, "a", "VelRmaScalar");
  VelListPtrVelBaseUnknown* first = nullptr;
  VelListPtrVelBaseUnknown* second = nullptr;
  ASSERT_EQ(hShader->GetParameters(&first), S_OK);
  ASSERT_EQ(hShader->GetParameters(&second), S_OK);
  EXPECT_NE(first, second);
  ASSERT_EQ(first->Size(), 1);
  delete second;
  VelBaseUnknown* element = (*first)[1];
  ASSERT_EQ(Remove(element), S_OK);
  EXPECT_EQ(element->GetComponentState(), VelComponentState::Closed) << "kept by the list's references";
  element->Release();
  element->Release();
  delete first;
}

TEST_F(VelRshShaderFeatureParametersTest, GetParameters_OfAnEmptyShader_IsAnEmptyList) {
  VelListPtrVelBaseUnknown* list = nullptr;
  EXPECT_EQ(MakeShader()->GetParameters(&list), S_OK);
  ASSERT_NE(list, nullptr);
  EXPECT_TRUE(list->IsEmpty());
  delete list;
}

TEST_F(VelRshShaderFeatureParametersTest, Lists_OfWhatHasNone_FailAndAreCleared) {
  for (const VelIRshShader_var& hShader : {MakeRaw("VelTestBareShader"), MakeFeatureless()}) {
    VelListPtrVelBaseUnknown before;
    VelListPtrVelBaseUnknown* list = &before;
    EXPECT_EQ(hShader->GetParameters(&list), E_FAIL);
    EXPECT_EQ(list, nullptr);
    list = &before;
    EXPECT_EQ(hShader->GetNodes(&list), E_FAIL);
    EXPECT_EQ(list, nullptr);
    EXPECT_EQ(hShader->GetParameters(nullptr), E_FAIL);
    EXPECT_EQ(hShader->GetNodes(nullptr), E_FAIL);
  }
  EXPECT_EQ(MakeShader()->GetParameters(nullptr), E_FAIL);
  EXPECT_EQ(MakeShader()->GetNodes(nullptr), E_FAIL);
}

TEST_F(VelRshShaderFeatureParametersTest, GetNodes_WithoutNodes_IsNoList) {
  const VelIRshShader_var hShader = MakeShader();
  VelListPtrVelBaseUnknown before;
  VelListPtrVelBaseUnknown* list = &before;
  EXPECT_EQ(hShader->GetNodes(&list), S_OK);
  EXPECT_EQ(list, nullptr);
}

TEST_F(VelRshShaderFeatureParametersTest, Nodes_AreListedInOrder_AndTakenOut) {
  const VelIRshShader_var hShader = MakeShader();
  const VelIRshShader_var hFirst = AddNode(hShader, "first");
  const VelIRshShader_var hSecond = AddNode(hShader, "second");
  EXPECT_EQ(NodesOf(hShader), (Texts{"first", "second"}));
  EXPECT_EQ(hShader->RemoveNode(hFirst.Get()), S_OK);
  EXPECT_EQ(NodesOf(hShader), Texts{"second"});
  EXPECT_EQ(TypeOfShader(hFirst.Get()), "first") << "stays in its container";
  EXPECT_EQ(hShader->RemoveNode(hFirst.Get()), E_FAIL) << "no node any more";
  EXPECT_EQ(hShader->RemoveNode(hSecond.Get()), S_OK);
  EXPECT_EQ(NodesOf(hShader), Texts{"no list"});
  EXPECT_EQ(hShader->AddNode(hFirst.Get()), S_OK) << "free to be a node again";
}

TEST_F(VelRshShaderFeatureParametersTest, AddNode_AndRemoveNode_OfWhatCannotBeOne_Fail) {
  const VelIRshShader_var hShader = MakeShader();
  const VelIRshShader_var hOther = MakeShader();
  const VelIRshShader_var hTaken = AddNode(hOther);
  for (const VelIRshShader_var& hNode : {VelIRshShader_var(), MakeFeatureless(), hTaken, hShader}) {
    EXPECT_EQ(hShader->AddNode(hNode.Get()), E_FAIL);
    EXPECT_EQ(hShader->RemoveNode(hNode.Get()), E_FAIL);
  }
  EXPECT_EQ(NodesOf(hShader), Texts{"no list"});
  const VelIRshShader_var hFree = MakeShader();
  EXPECT_EQ(MakeRaw("VelTestBareShader")->AddNode(hFree.Get()), E_FAIL);
  EXPECT_EQ(MakeRaw("VelTestBareShader")->RemoveNode(hFree.Get()), E_FAIL);
}

TEST_F(VelRshShaderFeatureParametersTest, CreateCopy_WithoutAPlaceForTheCopy_MakesNone) {
  const VelIRshShader_var hShader = MakeShader();
  const int features = hContainer_->CountFeatures();
  VelIRshShader* copy = hShader.Get();
  EXPECT_EQ(hShader->CreateCopy(nullptr, &copy), E_FAIL);
  EXPECT_EQ(copy, nullptr);
  EXPECT_EQ(hShader->CreateCopy(hContainer_.Get(), nullptr), E_FAIL);
  EXPECT_EQ(hContainer_->CountFeatures(), features);
}

}  // namespace
