// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelFeature_test.cpp Features: where they come from, how they are copied, and how they end.
#include "platform/featuremodeler/VelFeatureSlab.h"
#include "platform/objectmodeler/VelBaseUnknown_WR.h"
#include "platform/objectmodeler/VelDictionary.h"
#include "platform/objectmodeler/VelIDelegation.h"
#include "platform/objectmodeler/VelInstanceCounts.h"
#include "platform/objectmodeler/VelObject.h"
#include "tests/platform/featuremodeler/FeatureModelerTest.h"
#include "tests/platform/featuremodeler/NotingHooks.h"

namespace {

using Texts = std::vector<std::string>;
using VelFeatureTest = FeatureModelerTest;

/// A container of somebody else's.
class ForeignContainer final : public VelIContainer {
 public:
  HRESULT QueryInterface(const VelInterfaceId&, VelBaseUnknown** oInterface) noexcept override {
    *oInterface = nullptr;
    return E_NOINTERFACE;
  }
  std::uint32_t AddRef() noexcept override { return 2; }
  std::uint32_t Release() noexcept override { return 1; }
  VelComponent* GetComponent() noexcept override { return nullptr; }
  VelBaseUnknown* GetImpl() noexcept override { return this; }
  const VelMetaClass& GetMetaObject() const noexcept override { return InterfaceId().MetaObject(); }
  HRESULT ListFeatures(const VelString&, VelListPtrVelBaseUnknown&) override { return S_OK; }
  int CountFeatures() override { return 0; }
};

TEST_F(VelFeatureTest, ContainerOfSomebodyElse_IsRefused) {
  ForeignContainer container;
  const VelInterfaceId& object = VelISpecObject::InterfaceId();
  VelBaseUnknown_var hFound;
  VelBaseUnknown_var hMade;
  EXPECT_EQ(FindStartUp("VelISpecObject", "", "VelRmaScalar", container, hFound.Receive()), E_INVALIDARG);
  EXPECT_EQ(
      VelOsmSUHandler("VelRmaScalar", "", "VelRmaCatalog.feat").Instanciate(container, "", object, hMade.Receive()),
      E_INVALIDARG);
  ASSERT_EQ(FindStartUp("VelISpecObject", "", "VelRmaScalar", *hContainer_, hFound.Receive()), S_OK);
  EXPECT_EQ(VelISpecObject_var(hFound)->Instanciate("", &container, object, hMade.Receive()), E_INVALIDARG);
  EXPECT_EQ(Make("VelRmaScalar")->InstanciateForCopy("", &container, object, hMade.Receive()), E_INVALIDARG);
}

TEST_F(VelFeatureTest, ObjectOfALateTypeOfTheModeler_IsNeitherFeatureNorStartUpNorContainer) {
  Make("VelRmaScalar");
  for (const char* lateType : {"VelRmaScalar", "VelFeature", "VelStartUp", "VelContainer"}) {
    SCOPED_TRACE(lateType);
    const VelBaseUnknown_var hObject = VelObject::Create(lateType, nullptr);
    EXPECT_FALSE(VelISpecObject_var(hObject));
    EXPECT_FALSE(VelISpecAttrAccess_var(hObject));
    EXPECT_FALSE(LifeCycleObject_var(hObject));
    EXPECT_FALSE(VelIContainer_var(hObject));
    EXPECT_FALSE(VelICatalogManager_var(hObject));
  }
}

TEST_F(VelFeatureTest, Feature_KnowsItsTypeNameAndContainer) {
  const VelISpecObject_var hFeature = Make("VelRmaScalar", "a name");
  VelString type;
  VelUnicodeString name;
  VelIContainer_var hContainer;
  EXPECT_EQ(hFeature->GetType(type), S_OK);
  EXPECT_EQ(type, VelString("VelRmaScalar"));
  EXPECT_EQ(hFeature->GetName(name), S_OK);
  EXPECT_EQ(name.View(), "a name");
  EXPECT_EQ(hFeature->SetName(""), S_OK);
  EXPECT_EQ(hFeature->GetName(name), S_OK);
  EXPECT_TRUE(name.IsEmpty());
  EXPECT_EQ(hFeature->GetContainer(hContainer.Receive()), S_OK);
  EXPECT_TRUE(hContainer->IsEqual(hContainer_.Get()));
  EXPECT_EQ(hFeature->GetFather(nullptr), E_INVALIDARG);
  EXPECT_EQ(hFeature->GetContainer(nullptr), E_INVALIDARG);
  EXPECT_EQ(hFeature->GetComponent()->LateTypeName(), "VelRmaScalar");
  EXPECT_EQ(hFeature->GetComponentState(), VelComponentState::InSession);
}

TEST_F(VelFeatureTest, EveryFeature_HasALifeCycleAndADelegation_WithoutABindingOfItsOwn) {
  for (const char* type : {"VelRmaShader", "VelRmaParameter", "VelRmaScalar", "VelRmaVoid"}) {
    SCOPED_TRACE(type);
    const VelISpecObject_var hFeature = Make(type);
    EXPECT_TRUE(LifeCycleObject_var(hFeature));
    EXPECT_TRUE(VelIDelegation_var(hFeature));
  }
}

TEST_F(VelFeatureTest, FindStartUp_FindsWhatTheContainersCatalogsDeclareAndLoadsNone) {
  VelBaseUnknown_var hStartUp;
  EXPECT_EQ(FindStartUp("VelISpecObject", "", "VelRmaScalar", *hContainer_, hStartUp.Receive()), S_OK);
  VelString type;
  EXPECT_EQ(VelISpecObject_var(hStartUp)->GetType(type), S_OK);
  EXPECT_EQ(type, VelString("VelRmaScalar"));
  EXPECT_EQ(FindStartUp("VelISpecObject", "", "VelRmaNothing", *hContainer_, hStartUp.Receive()), E_FAIL);
  EXPECT_FALSE(hStartUp);
  EXPECT_EQ(FindStartUp("VelIContainer", "", "VelRmaScalar", *hContainer_, hStartUp.Receive()), E_NOINTERFACE);
  EXPECT_EQ(FindStartUp(nullptr, "", "VelRmaScalar", *hContainer_, hStartUp.Receive()), E_NOINTERFACE);
  EXPECT_EQ(FindStartUp("VelISpecObject", "", "VelRmaScalar", *hContainer_, nullptr), E_INVALIDARG);
  const VelIContainer_var hFresh = VelIContainer::Create();
  EXPECT_EQ(FindStartUp("VelISpecObject", "", "VelRmaScalar", *hFresh, hStartUp.Receive()), E_FAIL)
      << "another container knows the catalog, this one does not";
}

TEST_F(VelFeatureTest, StartUp_InstantiatesAndIsNoFeature) {
  VelBaseUnknown_var hFound;
  ASSERT_EQ(FindStartUp("VelISpecObject", "", "VelRmaColor", *hContainer_, hFound.Receive()), S_OK);
  const VelISpecObject_var hStartUp(hFound);
  VelBaseUnknown_var hFeature;
  EXPECT_EQ(hStartUp->Instanciate("c", hContainer_.Get(), VelISpecAttrAccess::InterfaceId(), hFeature.Receive()), S_OK);
  EXPECT_TRUE(VelISpecAttrAccess_var(hFeature)->TestAttrKey(Key("Value", VelSpecAttrKind::Reals)));
  EXPECT_EQ(hStartUp->Instanciate("", nullptr, VelISpecObject::InterfaceId(), hFeature.Receive()), E_INVALIDARG);
  EXPECT_EQ(hStartUp->Instanciate("", hContainer_.Get(), VelISpecObject::InterfaceId(), nullptr), E_INVALIDARG);
  EXPECT_EQ(hStartUp->Instanciate("", hContainer_.Get(), VelIContainer::InterfaceId(), hFeature.Receive()),
            E_NOINTERFACE);
  EXPECT_EQ(hContainer_->CountFeatures(), 2) << "the feature that does not answer stays in the container";
  EXPECT_EQ(hStartUp->InstanciateForCopy("", nullptr, VelISpecObject::InterfaceId(), hFeature.Receive()), E_FAIL);
  VelISpecObject_var hFather;
  EXPECT_EQ(hStartUp->GetFather(hFather.Receive()), E_FAIL);
  EXPECT_EQ(hStartUp->SetName("other"), E_FAIL);
  VelUnicodeString name;
  EXPECT_EQ(hStartUp->GetName(name), S_OK);
  EXPECT_EQ(name.View(), "VelRmaColor");
  EXPECT_EQ(Make("VelRmaScalar")->Instanciate("", hContainer_.Get(), VelISpecObject::InterfaceId(), hFeature.Receive()),
            E_FAIL);
}

TEST_F(VelFeatureTest, Handler_LoadsTheCatalogIntoAContainerThatDoesNotKnowIt) {
  const VelIContainer_var hFresh = VelIContainer::Create();
  EXPECT_TRUE(MakeIn(hFresh, "VelRmaShader"));
  EXPECT_EQ(VelICatalogManager_var(hFresh)->LoadCatalog("VelRmaCatalog.feat"), S_FALSE) << "twice is once";
  VelBaseUnknown_var hFeature;
  EXPECT_EQ(VelOsmSUHandler("VelRmaNothing", "", "VelRmaCatalog.feat")
                .Instanciate(*hFresh, "", VelISpecObject::InterfaceId(), hFeature.Receive()),
            E_FAIL);
  EXPECT_EQ(VelOsmSUHandler("VelRmaNothing", "", "NoCatalog.feat")
                .Instanciate(*hFresh, "", VelISpecObject::InterfaceId(), hFeature.Receive()),
            E_FAIL);
  EXPECT_EQ(VelOsmSUHandler("VelRmaShader", "", "VelRmaCatalog.feat")
                .Instanciate(*hFresh, "", VelISpecObject::InterfaceId(), nullptr),
            E_INVALIDARG);
}

TEST_F(VelFeatureTest, Container_ListsFeaturesByTypeAndItsDerivedTypes) {
  Make("VelRmaScalar", "scalar");
  Make("VelRmaColor", "colour");
  Make("VelRmaShader", "shader");
  struct Case {
    const char* type;
    std::size_t count;
  };
  for (const Case& test : {Case{"VelRmaParameter", 2}, Case{"VelRmaScalar", 1}, Case{"VelRmaShader", 1},
                           Case{"VelRmaMatrix", 0}, Case{"", 3}}) {
    SCOPED_TRACE(test.type);
    VelListPtrVelBaseUnknown features;
    EXPECT_EQ(hContainer_->ListFeatures(test.type, features), S_OK);
    EXPECT_EQ(Names(features).size(), test.count);
  }
}

TEST_F(VelFeatureTest, Copy_IsDeepInComponentsAndKeepsReferencesAndDocuments) {
  NotingHooks hooks;
  const VelISpecObject_var hShader = Make("VelRmaShader", "shader");
  const VelISpecObject_var hNode = Make("VelRmaShader", "node");
  const VelISpecObject_var hTexture = Make("VelRmaTexture", "texture");
  const VelISpecObject_var hFather = Make("VelRmaShader", "father");
  const VelISpecAttrKey* const value = Key("Value", VelSpecAttrKind::Document);
  const VelBaseUnknown_var hDocument = VelObject::Create("VelTestDocument", nullptr);
  ASSERT_EQ(Access(hShader)->SetText(type_, "BasicMaterial"), S_OK);
  ASSERT_EQ(Access(hShader)->AppendComponent(parameters_, hTexture.Get()), S_OK);
  ASSERT_EQ(Access(hFather)->AppendComponent(nodes_, hShader.Get()), S_OK);
  ASSERT_EQ(Access(hTexture)->SetReference(node_, hNode.Get()), S_OK);
  ASSERT_EQ(Access(hTexture)->SetDocument(value, hDocument.Get()), S_OK);

  const VelIContainer_var hOther = VelIContainer::Create();
  VelBaseUnknown_var hMade;
  ASSERT_EQ(hShader->InstanciateForCopy("copy", hOther.Get(), VelISpecObject::InterfaceId(), hMade.Receive()), S_OK);
  const VelISpecObject_var hCopy(hMade);
  VelUnicodeString text;
  EXPECT_EQ(Access(hCopy)->GetText(type_, text), S_OK);
  EXPECT_EQ(text.View(), "BasicMaterial");
  EXPECT_EQ(NameOf(hCopy.Get()), "copy");
  VelISpecObject_var hNone;
  EXPECT_EQ(hCopy->GetFather(hNone.Receive()), E_FAIL) << "the copy has no father";
  VelBaseUnknown_var hElement;
  ASSERT_EQ(Access(hCopy)->GetComponentAt(parameters_, 1, hElement.Receive()), S_OK);
  const VelISpecObject_var hTextureCopy(hElement);
  EXPECT_FALSE(hTextureCopy->IsEqual(hTexture.Get()));
  EXPECT_EQ(NameOf(hTextureCopy.Get()), "texture");
  VelBaseUnknown_var hRead;
  EXPECT_EQ(Access(hTextureCopy)->GetReference(node_, hRead.Receive()), S_OK);
  EXPECT_TRUE(hRead->IsEqual(hNode.Get()));
  EXPECT_EQ(Access(hTextureCopy)->GetDocument(value, hRead.Receive()), S_OK);
  EXPECT_TRUE(hRead->IsEqual(hDocument.Get()));
  EXPECT_EQ(hooks.notes, Texts{"copied"});
  EXPECT_EQ(hOther->CountFeatures(), 2);
  VelListPtrVelBaseUnknown owners;
  EXPECT_EQ(hNode->ListPointingOwners(VelISpecObject::InterfaceId(), owners), S_OK);
  EXPECT_EQ(Names(owners), (Texts{"texture", "texture"}));

  ASSERT_EQ(hShader->InstanciateForCopy("", nullptr, VelISpecObject::InterfaceId(), hMade.Receive()), S_OK);
  EXPECT_EQ(hContainer_->CountFeatures(), 6) << "without a container it is made beside the original";
}

TEST_F(VelFeatureTest, Remove_ClosesTheFeatureAndAllThatItAggregates) {
  NotingHooks hooks;
  const VelISpecObject_var hFather = Make("VelRmaShader", "father");
  const VelISpecObject_var hShader = Make("VelRmaShader", "shader");
  const VelISpecObject_var hTexture = Make("VelRmaTexture", "texture");
  const VelISpecObject_var hPointing = Make("VelRmaScalar", "pointing");
  const VelBaseUnknown_var hDocument = VelObject::Create("VelTestDocument", nullptr);
  ASSERT_EQ(Access(hFather)->AppendComponent(nodes_, hShader.Get()), S_OK);
  ASSERT_EQ(Access(hShader)->AppendComponent(parameters_, hTexture.Get()), S_OK);
  ASSERT_EQ(Access(hTexture)->SetDocument(Key("Value", VelSpecAttrKind::Document), hDocument.Get()), S_OK);
  ASSERT_EQ(Access(hPointing)->SetReference(node_, hShader.Get()), S_OK);
  const VelBaseUnknown_WR weak(hTexture.Get());
  const LifeCycleObject_var hLife(hShader);

  EXPECT_EQ(hLife->remove(), S_OK);
  EXPECT_EQ(hLife->remove(), S_FALSE);
  EXPECT_EQ(hTexture->GetComponentState(), VelComponentState::Closed);
  EXPECT_EQ(weak.Get(), nullptr);
  EXPECT_FALSE(Access(hPointing)->IsValuated(node_)) << "a reference to what is removed has no value";
  EXPECT_FALSE(Access(hFather)->IsValuated(nodes_)) << "it left its father's list";
  EXPECT_EQ(hooks.notes, Texts{"dropped"});
  EXPECT_EQ(hContainer_->CountFeatures(), 2);
  VelString type;
  VelIContainer_var hContainer;
  EXPECT_EQ(hShader->GetType(type), E_FAIL);
  EXPECT_EQ(hShader->GetContainer(hContainer.Receive()), E_FAIL);
  EXPECT_EQ(Access(hFather)->AppendComponent(nodes_, hShader.Get()), E_FAIL);
  EXPECT_EQ(Access(hPointing)->SetReference(node_, hShader.Get()), E_INVALIDARG);
  VelBaseUnknown_var hCopy;
  EXPECT_EQ(hShader->InstanciateForCopy("", nullptr, VelISpecObject::InterfaceId(), hCopy.Receive()), E_FAIL);
}

TEST_F(VelFeatureTest, ClosingTheContainer_ClosesFeaturesWithoutDroppingDocuments) {
  NotingHooks hooks;
  VelISpecObject_var hTexture = Make("VelRmaTexture", "texture");
  const VelBaseUnknown_var hDocument = VelObject::Create("VelTestDocument", nullptr);
  VelISpecAttrAccess_var hAccess = Access(hTexture);
  ASSERT_EQ(hAccess->SetDocument(Key("Value", VelSpecAttrKind::Document), hDocument.Get()), S_OK);
  hContainer_ = nullptr;
  EXPECT_EQ(hTexture->GetComponentState(), VelComponentState::Closed);
  EXPECT_FALSE(hAccess->TestAttrKey(Key("Value", VelSpecAttrKind::Document)));
  EXPECT_EQ(hooks.notes, Texts{});
  EXPECT_EQ(LifeCycleObject_var(hTexture)->remove(), S_FALSE) << "nor does whoever removes it afterwards";
  EXPECT_EQ(hooks.notes, Texts{});
  EXPECT_EQ(VelFeatureSlab::Count(), 1) << "the slab outlives its container while a block of it is held";
  hAccess = nullptr;
  hTexture = nullptr;
  EXPECT_EQ(VelFeatureSlab::Count(), 0) << "and goes with the last";
}

TEST_F(VelFeatureTest, RemovedFeature_KeepsItsBlockWhileItIsHeld) {
  VelISpecObject_var hRemoved = Make("VelRmaScalar", "removed");
  VelComponent* const block = hRemoved->GetComponent();
  ASSERT_EQ(LifeCycleObject_var(hRemoved)->remove(), S_OK);
  EXPECT_NE(Make("VelRmaScalar", "next")->GetComponent(), block);
  VelUnicodeString name;
  EXPECT_EQ(hRemoved->GetName(name), E_FAIL);
  EXPECT_EQ(hRemoved->GetComponentState(), VelComponentState::Closed);
  hRemoved = nullptr;
  EXPECT_EQ(Make("VelRmaScalar", "later")->GetComponent(), block) << "used again once nobody holds it";
}

TEST_F(VelFeatureTest, ClosingAContainerThatIsStillHeld_ClosesItsFeatures) {
  const VelISpecObject_var hFeature = Make("VelRmaScalar", "feature");
  const VelISpecObject_var hElsewhere = MakeIn(VelIContainer::Create(), "VelRmaShader");
  const VelIContainer_var hOther = VelIContainer::Create();
  const VelISpecObject_var hTarget = MakeIn(hOther, "VelRmaShader");
  ASSERT_EQ(Access(hFeature)->SetReference(node_, hTarget.Get()), S_OK);
  EXPECT_EQ(hElsewhere->GetComponentState(), VelComponentState::Closed);
  VelObject::From(hOther.Get())->EndLife();
  EXPECT_EQ(hTarget->GetComponentState(), VelComponentState::Closed);
  EXPECT_FALSE(Access(hFeature)->IsValuated(node_)) << "a reference to what is closed has no value";
  EXPECT_EQ(hFeature->GetComponentState(), VelComponentState::InSession);
}

TEST_F(VelFeatureTest, Memory_IsGivenBackWithTheLastHolder) {
  hContainer_ = nullptr;
  EXPECT_EQ(VelFeatureSlab::Count(), 0);
  const VelIContainer_var hContainer = VelIContainer::Create();
  for (int i = 0; i < 3000; ++i) {
    const VelISpecObject_var hFeature = MakeIn(hContainer, "VelRmaScalar");
    if (i % 2 != 0) continue;
    EXPECT_EQ(LifeCycleObject_var(hFeature)->remove(), S_OK);
  }
  EXPECT_EQ(hContainer->CountFeatures(), 1500);
  EXPECT_EQ(VelFeatureSlab::Count(), 2) << "80 bytes a feature, and the blocks of removed ones are used again";
  EXPECT_EQ(VelInstanceCounts::Now().components, 1501);
}

TEST_F(VelFeatureTest, DeepAggregation_IsCopiedAndRemovedWithoutRecursion) {
  VelISpecObject_var hRoot = Make("VelRmaShader");
  VelISpecObject_var hLast = hRoot;
  for (int i = 0; i < 50000; ++i) {
    // From the inside out, so that the search for a cycle stays short.
    const VelISpecObject_var hNext = Make("VelRmaShader");
    ASSERT_EQ(Access(hNext)->AppendComponent(nodes_, hLast.Get()), S_OK);
    hLast = hNext;
  }
  VelBaseUnknown_var hCopy;
  EXPECT_EQ(hLast->InstanciateForCopy("", nullptr, VelISpecObject::InterfaceId(), hCopy.Receive()), S_OK);
  EXPECT_EQ(hContainer_->CountFeatures(), 100002);
  EXPECT_EQ(LifeCycleObject_var(hLast)->remove(), S_OK);
  EXPECT_EQ(hContainer_->CountFeatures(), 50001);
  EXPECT_EQ(hRoot->GetComponentState(), VelComponentState::Closed);
}

TEST_F(VelFeatureTest, BaseOfAStartUp_OutlivesADictionaryThatDeclaresItToo) {
  const VelModuleType types[] = {{"VelRmaBoolean", "VelRmaParameter"}};
  const VelModuleTable table{"VelTestSameBase", "FeatureModelerTests", types, {}, {}, {}};
  ASSERT_EQ(VelDictionary::Declare(table), S_OK);
  ASSERT_EQ(VelDictionary::Undeclare(table), S_OK);
  EXPECT_TRUE(Access(Make("VelRmaBoolean"))->TestAttrKey(node_));
}

TEST_F(VelFeatureTest, ClosedContainer_TakesNothingIn) {
  const VelISpecObject_var hFeature = Make("VelRmaScalar");
  const VelIContainer_var hOther = VelIContainer::Create();
  VelObject::From(hOther.Get())->EndLife();
  VelBaseUnknown_var hMade;
  EXPECT_EQ(hFeature->InstanciateForCopy("", hOther.Get(), VelISpecObject::InterfaceId(), hMade.Receive()), E_FAIL);
  EXPECT_EQ(VelOsmSUHandler("VelRmaScalar", "", "VelRmaCatalog.feat")
                .Instanciate(*hOther, "", VelISpecObject::InterfaceId(), hMade.Receive()),
            E_FAIL);
  VelListPtrVelBaseUnknown features;
  EXPECT_EQ(hOther->ListFeatures("", features), E_FAIL);
  EXPECT_EQ(hOther->CountFeatures(), 0);
}

}  // namespace
