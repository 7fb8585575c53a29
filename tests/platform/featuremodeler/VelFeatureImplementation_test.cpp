// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelFeatureImplementation_test.cpp Implementations on features: when they are built, and what they can still do
/// at the end.
#include <functional>
#include <optional>

#include "platform/featuremodeler/TIELifeCycleObject.h"
#include "platform/featuremodeler/VelSpecLifeCycleObjectExt.h"
#include "platform/objectmodeler/VelDictionary.h"
#include "platform/objectmodeler/VelInstanceCounts.h"
#include "platform/objectmodeler/VelObject.h"
#include "platform/objectmodeler/VelPin.h"
#include "tests/platform/featuremodeler/FeatureModelerTest.h"
#include "tests/platform/featuremodeler/NotingHooks.h"

extern const VelInterfaceId IID_VelTestIProbe;
const VelInterfaceId IID_VelTestIProbe{"VelTestIProbe", IID_VelBaseUnknown};

class VelTestIProbe : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelTestIProbe);
  virtual HRESULT RemoveYourself() = 0;

 protected:
  ~VelTestIProbe() = default;
};

template <class Implementation>
class TIEVelTestIProbe final : public VelTie<VelTestIProbe> {
 public:
  using VelTie::VelTie;
  HRESULT RemoveYourself() override {
    return Forward<Implementation>([](Implementation& ioProbe) { return ioProbe.RemoveYourself(); });
  }
};

namespace {

std::vector<std::string>& Notes() {
  static auto& notes = *new std::vector<std::string>;
  return notes;
}

/// What a shader or a document does on hearing of its end, besides noting it.
std::function<void()>& WhenClosed() {
  static auto& whenClosed = *new std::function<void()>;
  return whenClosed;
}

/// What a parameter answers to remove instead of handing on.
std::optional<HRESULT> keptWith;

std::string TypeOrName(VelComponent& ioComponent) {
  const VelISpecObject_var hObject(&ioComponent);
  VelUnicodeString name;
  return hObject && SUCCEEDED(hObject->GetName(name)) ? std::string(name.View()) : "closed";
}

}  // namespace

class VelTestShader final : public VelImplementation {
 public:
  explicit VelTestShader(VelComponent& iFeature) : VelImplementation(iFeature) {
    Notes().push_back("construct " + TypeOrName(iFeature));
  }
  ~VelTestShader() override {
    int size = -1;
    const VelISpecAttrAccess_var hAccess(GetComponent());
    if (hAccess)
      static_cast<void>(hAccess->GetSize(&VelISpecAttrKey::Of("Parameters", VelSpecAttrKind::Components), size));
    Notes().push_back("shader destroyed with " + std::to_string(size));
  }
  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  HRESULT RemoveYourself() { return LifeCycleObject_var(GetComponent())->remove(); }
  void OnComponentStateChange(VelComponentState, VelComponentState) override {
    Notes().emplace_back("shader closed");
    if (WhenClosed()) WhenClosed()();
  }
};

class VelTestParameter final : public VelSpecLifeCycleObjectExt {
 public:
  explicit VelTestParameter(VelComponent& iFeature) : VelSpecLifeCycleObjectExt(iFeature) {
    Notes().push_back("construct " + TypeOrName(iFeature));
  }
  ~VelTestParameter() override {
    // What a destructor needs is still there: the name, the attributes, the connection.
    VelUnicodeString text("unreadable");
    const VelISpecAttrAccess_var hAccess(GetComponent());
    if (hAccess) static_cast<void>(hAccess->GetText(&VelISpecAttrKey::Of("Name", VelSpecAttrKind::Text), text));
    Notes().push_back("parameter destroyed, " + TypeOrName(*GetComponent()) + ", " + std::string(text.View()));
  }
  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  HRESULT RemoveYourself() {
    const HRESULT removed = VelSpecLifeCycleObjectExt::remove();
    Notes().emplace_back("still running");
    return removed;
  }
  HRESULT remove() {  // NOLINT(readability-identifier-naming): the name of the system
    Notes().emplace_back("parameter hears remove");
    if (keptWith) return *keptWith;
    return VelSpecLifeCycleObjectExt::remove();
  }
  void OnComponentStateChange(VelComponentState, VelComponentState) override {
    Notes().emplace_back("parameter closed");
  }
};

/// Answers for colours what VelTestParameter answers for the other parameters.
class VelTestColor final : public VelImplementation {
 public:
  explicit VelTestColor(VelComponent& iFeature) : VelImplementation(iFeature) { Notes().emplace_back("own class"); }
  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  HRESULT RemoveYourself() { return S_FALSE; }
};

class VelTestDocument final : public VelImplementation {
 public:
  explicit VelTestDocument(VelComponent& iDocument) : VelImplementation(iDocument) {}
  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  HRESULT RemoveYourself() { return E_FAIL; }
  void OnComponentStateChange(VelComponentState, VelComponentState iState) override {
    if (iState == VelComponentState::Closed && WhenClosed()) WhenClosed()();
  }
};

#define VEL_GRID_FILE "tests/platform/featuremodeler/fixtures/VelTestFeatureClasses.def"
#include "platform/objectmodeler/VelBindingGrid.inl"

namespace {

using Texts = std::vector<std::string>;

class VelFeatureImplementationTest : public FeatureModelerTest {
 protected:
  void SetUp() override {
    FeatureModelerTest::SetUp();
    ASSERT_EQ(VelDictionary::Declare(velGridTable), S_OK);
    Notes().clear();
  }
  void TearDown() override {
    FeatureModelerTest::TearDown();
    WhenClosed() = nullptr;
    keptWith.reset();
    EXPECT_EQ(VelDictionary::Undeclare(velGridTable), S_OK);
  }

  static VelVar<VelTestIProbe> Probe(const VelISpecObject_var& iFeature) { return VelVar<VelTestIProbe>(iFeature); }
};

TEST_F(VelFeatureImplementationTest, UntouchedFeature_HasBuiltNothing) {
  const VelISpecObject_var hScalar = Make("VelRmaScalar");
  EXPECT_TRUE(hScalar->GetComponent()->OffersInterface(IID_VelTestIProbe)) << "through the base start-up";
  EXPECT_TRUE(hScalar->GetComponent()->OffersInterface(IID_VelISpecAttrAccess));
  EXPECT_TRUE(Access(hScalar)->TestAttrKey(node_));
  EXPECT_EQ(VelInstanceCounts::Now().implementations, 0);
  EXPECT_EQ(VelInstanceCounts::Now().liveParts, 0);
}

TEST_F(VelFeatureImplementationTest, FirstQuery_BuildsTheFathersFirst) {
  const VelISpecObject_var hRoot = Make("VelRmaShader", "root");
  const VelISpecObject_var hShader = Make("VelRmaShader", "shader");
  const VelISpecObject_var hScalar = Make("VelRmaScalar", "scalar");
  ASSERT_EQ(Access(hRoot)->AppendComponent(nodes_, hShader.Get()), S_OK);
  ASSERT_EQ(Access(hShader)->AppendComponent(parameters_, hScalar.Get()), S_OK);
  EXPECT_EQ(Notes(), Texts{}) << "attributes and structure build nothing";
  EXPECT_TRUE(Probe(hScalar));
  EXPECT_EQ(Notes(), (Texts{"construct root", "construct shader", "construct scalar"}));
}

TEST_F(VelFeatureImplementationTest, BuiltFeature_ThatGetsAFather_IsHeardByItFromThenOn) {
  const VelISpecObject_var hRoot = Make("VelRmaShader", "root");
  const VelISpecObject_var hShader = Make("VelRmaShader", "shader");
  const VelISpecObject_var hScalar = Make("VelRmaScalar", "scalar");
  ASSERT_EQ(Access(hRoot)->AppendComponent(nodes_, hShader.Get()), S_OK);
  ASSERT_TRUE(Probe(hScalar));
  ASSERT_EQ(Access(hShader)->AppendComponent(parameters_, hScalar.Get()), S_OK);
  EXPECT_EQ(Notes(), (Texts{"construct scalar", "construct root", "construct shader"}));
}

TEST_F(VelFeatureImplementationTest, Remove_AnnouncesFathersFirstAndDestroysAfterAllIsAnnounced) {
  const VelISpecObject_var hShader = Make("VelRmaShader", "shader");
  const VelISpecObject_var hScalar = Make("VelRmaScalar", "scalar");
  ASSERT_EQ(Access(hShader)->AppendComponent(parameters_, hScalar.Get()), S_OK);
  ASSERT_TRUE(Probe(hScalar));
  ASSERT_EQ(Access(hScalar)->SetText(Key("Name", VelSpecAttrKind::Text), "the name"), S_OK);
  Notes().clear();
  const VelISpecAttrAccess_var hAccess = Access(hScalar);
  EXPECT_EQ(LifeCycleObject_var(hShader)->remove(), S_OK);
  EXPECT_FALSE(hAccess->TestAttrKey(node_)) << "afterwards there is nothing to read";
  VelUnicodeString text;
  EXPECT_EQ(hAccess->GetText(Key("Name", VelSpecAttrKind::Text), text), E_FAIL);
  EXPECT_EQ(hAccess->SetText(Key("Name", VelSpecAttrKind::Text), text), E_FAIL);
  EXPECT_EQ(Notes(), (Texts{"shader closed", "parameter closed", "shader destroyed with 1",
                            "parameter destroyed, scalar, the name"}));
  EXPECT_FALSE(Probe(hScalar)) << "nothing is built on a removed feature";
  EXPECT_EQ(VelInstanceCounts::Now().implementations, 0);
}

TEST_F(VelFeatureImplementationTest, OwnLifeCycle_IsAskedBeforeTheModelers) {
  const VelISpecObject_var hShader = Make("VelRmaShader", "shader");
  const VelISpecObject_var hScalar = Make("VelRmaScalar", "scalar");
  ASSERT_EQ(Access(hShader)->AppendComponent(parameters_, hScalar.Get()), S_OK);
  ASSERT_TRUE(Probe(hScalar));
  Notes().clear();
  EXPECT_EQ(Access(hShader)->EmptyComponents(parameters_), S_OK);
  EXPECT_EQ(Notes(), (Texts{"parameter hears remove", "parameter closed", "parameter destroyed, scalar, unreadable"}));
  EXPECT_FALSE(Access(hShader)->IsValuated(parameters_));
}

TEST_F(VelFeatureImplementationTest, Remove_InsideACallOfItsOwn_EndsWhenTheCallUnwinds) {
  const VelISpecObject_var hScalar = Make("VelRmaScalar", "scalar");
  const VelVar<VelTestIProbe> hProbe = Probe(hScalar);
  Notes().clear();
  EXPECT_EQ(hProbe->RemoveYourself(), S_OK);
  EXPECT_EQ(Notes(), (Texts{"parameter closed", "still running", "parameter destroyed, scalar, unreadable"}));
  EXPECT_EQ(hProbe->RemoveYourself(), E_FAIL);
}

TEST_F(VelFeatureImplementationTest, Remove_OfAFatherInsideACallOfAChild_KeepsTheChildUntilItsCallUnwinds) {
  const VelISpecObject_var hShader = Make("VelRmaShader", "shader");
  const VelISpecObject_var hScalar = Make("VelRmaScalar", "scalar");
  ASSERT_EQ(Access(hShader)->AppendComponent(parameters_, hScalar.Get()), S_OK);
  ASSERT_TRUE(Probe(hScalar));
  Notes().clear();
  {
    const VelPin pin(*hScalar->GetComponent());
    EXPECT_EQ(Probe(hShader)->RemoveYourself(), S_OK);
    EXPECT_EQ(Notes(), (Texts{"shader closed", "parameter closed", "shader destroyed with 1"}));
  }
  EXPECT_EQ(Notes().back(), "parameter destroyed, scalar, unreadable");
  EXPECT_EQ(hContainer_->CountFeatures(), 0);
}

TEST_F(VelFeatureImplementationTest, ClosingTheContainer_EndsWhatIsBuilt) {
  const VelISpecObject_var hShader = Make("VelRmaShader", "shader");
  ASSERT_TRUE(Probe(hShader));
  Notes().clear();
  hContainer_ = nullptr;
  EXPECT_EQ(Notes(), (Texts{"shader closed", "shader destroyed with 0"}));
  EXPECT_EQ(hShader->GetComponentState(), VelComponentState::Closed);
}

TEST_F(VelFeatureImplementationTest, Binding_OfTheOwnStartUp_IsFoundBeforeThoseOfItsBase) {
  ASSERT_TRUE(Probe(Make("VelRmaColor", "colour")));
  EXPECT_EQ(Notes(), Texts{"own class"});
  ASSERT_TRUE(LifeCycleObject_var(Make("VelRmaColor", "other")));
  EXPECT_EQ(Notes(), (Texts{"own class", "construct other"})) << "what it does not answer its base's class does";
}

TEST_F(VelFeatureImplementationTest, AllInterfacesOfAClass_AreAnsweredByOneObject) {
  const VelISpecObject_var hScalar = Make("VelRmaScalar");
  const VelVar<VelTestIProbe> hProbe = Probe(hScalar);
  const LifeCycleObject_var hLife(hScalar);
  EXPECT_EQ(hProbe->GetImpl(), hLife->GetImpl());
  EXPECT_EQ(VelInstanceCounts::Now().implementations, 1);
}

TEST_F(VelFeatureImplementationTest, PointingOwners_AreLiveAndOfferTheInterface_AndNothingIsBuilt) {
  const VelISpecObject_var hTarget = Make("VelRmaShader", "target");
  const VelISpecObject_var hFirst = Make("VelRmaScalar", "first");
  const VelISpecObject_var hRunning = Make("VelRmaScalar", "running");
  for (const VelISpecObject_var& hOwner : {hRunning, hFirst}) {
    ASSERT_EQ(Access(hOwner)->SetReference(node_, hTarget.Get()), S_OK);
  }
  VelListPtrVelBaseUnknown owners;
  EXPECT_EQ(hTarget->ListPointingOwners(IID_VelTestIProbe, owners), S_OK);
  EXPECT_EQ(Names(owners), (Texts{"running", "first"})) << "through the base start-up";
  EXPECT_EQ(VelInstanceCounts::Now().implementations, 0);
  owners.RemoveAll();
  const VelPin pin(*hRunning->GetComponent());
  ASSERT_EQ(LifeCycleObject_var(hRunning)->remove(), S_OK);
  ASSERT_TRUE(Access(hRunning)->IsValuated(node_)) << "a running call still reads what is removed";
  EXPECT_EQ(hTarget->ListPointingOwners(IID_VelTestIProbe, owners), S_OK);
  EXPECT_EQ(Names(owners), Texts{"first"});
}

TEST_F(VelFeatureImplementationTest, Remove_AskedAgainOfAHeldForwarder_IsSuccessWithoutChange) {
  const LifeCycleObject_var hLife(Make("VelRmaScalar"));
  EXPECT_EQ(hLife->remove(), S_OK);
  EXPECT_EQ(hLife->remove(), S_FALSE);
  EXPECT_EQ(Notes().size(), 4U) << "the class hears it once";
}

TEST_F(VelFeatureImplementationTest, FeatureThatIsBuiltWhileItsFatherIsClosed_EndsLikeTheOthers) {
  const VelISpecObject_var hShader = Make("VelRmaShader", "shader");
  const VelISpecObject_var hScalar = Make("VelRmaScalar", "scalar");
  ASSERT_EQ(Access(hShader)->AppendComponent(parameters_, hScalar.Get()), S_OK);
  ASSERT_EQ(Access(hScalar)->SetText(Key("Name", VelSpecAttrKind::Text), "the name"), S_OK);
  ASSERT_TRUE(Probe(hShader));
  WhenClosed() = [&] { EXPECT_TRUE(Probe(hScalar)) << "still open"; };
  Notes().clear();
  EXPECT_EQ(LifeCycleObject_var(hShader)->remove(), S_OK);
  EXPECT_EQ(Notes(), (Texts{"shader closed", "construct scalar", "parameter closed", "shader destroyed with 1",
                            "parameter destroyed, scalar, the name"}));
  EXPECT_EQ(VelInstanceCounts::Now().implementations, 0);
}

TEST_F(VelFeatureImplementationTest, ComponentRemovedOnHearingOfItsFathersEnd_EndsOnce) {
  NotingHooks hooks;
  const VelISpecObject_var hShader = Make("VelRmaShader", "shader");
  const VelISpecObject_var hTexture = Make("VelRmaTexture", "texture");
  const VelBaseUnknown_var hDocument = VelObject::Create("VelTestOther", nullptr);
  ASSERT_EQ(Access(hShader)->AppendComponent(parameters_, hTexture.Get()), S_OK);
  ASSERT_EQ(Access(hTexture)->SetDocument(Key("Value", VelSpecAttrKind::Document), hDocument.Get()), S_OK);
  ASSERT_TRUE(Probe(hShader));
  WhenClosed() = [&] { EXPECT_EQ(LifeCycleObject_var(hTexture)->remove(), S_OK); };
  EXPECT_EQ(LifeCycleObject_var(hShader)->remove(), S_OK);
  EXPECT_EQ(hooks.notes, Texts{"dropped"});
  EXPECT_EQ(hContainer_->CountFeatures(), 0);
  EXPECT_EQ(VelInstanceCounts::Now().implementations, 0);
}

TEST_F(VelFeatureImplementationTest, FeatureBelowOneThatIsBeingRemoved_TakesNoComponentAnyMore) {
  const VelISpecObject_var hShader = Make("VelRmaShader", "shader");
  const VelISpecObject_var hNode = Make("VelRmaShader", "node");
  const VelISpecObject_var hLate = Make("VelRmaScalar", "late");
  ASSERT_EQ(Access(hShader)->AppendComponent(nodes_, hNode.Get()), S_OK);
  ASSERT_TRUE(Probe(hShader));
  WhenClosed() = [&] { EXPECT_EQ(Access(hNode)->AppendComponent(parameters_, hLate.Get()), E_FAIL); };
  EXPECT_EQ(LifeCycleObject_var(hShader)->remove(), S_OK);
  EXPECT_EQ(hLate->GetComponentState(), VelComponentState::InSession);
}

TEST_F(VelFeatureImplementationTest, DocumentHooks_AreCalledOncePerLink_WhateverIsBuilt) {
  NotingHooks hooks;
  const VelBaseUnknown_var hDocument = VelObject::Create("VelTestOther", nullptr);
  const VelISpecObject_var hShader = Make("VelRmaShader", "shader");
  for (const char* name : {"built", "untouched", "without a link"}) {
    const VelISpecObject_var hTexture = Make("VelRmaTexture", name);
    ASSERT_EQ(Access(hShader)->AppendComponent(parameters_, hTexture.Get()), S_OK);
    if (std::string(name) == "without a link") continue;
    ASSERT_EQ(Access(hTexture)->SetDocument(Key("Value", VelSpecAttrKind::Document), hDocument.Get()), S_OK);
    if (std::string(name) != "built") continue;
    ASSERT_TRUE(Probe(hTexture));
  }
  VelBaseUnknown_var hCopy;
  EXPECT_EQ(hShader->InstanciateForCopy("", nullptr, VelISpecObject::InterfaceId(), hCopy.Receive()), S_OK);
  EXPECT_EQ(hooks.notes, (Texts{"copied", "copied"}));
  hooks.notes.clear();
  EXPECT_EQ(LifeCycleObject_var(hShader)->remove(), S_OK);
  EXPECT_EQ(hooks.notes, (Texts{"dropped", "dropped"}));
  ASSERT_TRUE(Probe(VelISpecObject_var(hCopy)));
  hooks.notes.clear();
  hContainer_ = nullptr;
  EXPECT_EQ(hooks.notes, Texts{}) << "closing drops nothing";
}

TEST_F(VelFeatureImplementationTest, ClosingTheContainer_IsAnnouncedToFathersFirst) {
  const VelISpecObject_var hScalar = Make("VelRmaScalar", "scalar");
  const VelISpecObject_var hShader = Make("VelRmaShader", "shader");
  ASSERT_EQ(Access(hShader)->AppendComponent(parameters_, hScalar.Get()), S_OK);
  ASSERT_TRUE(Probe(hScalar));
  Notes().clear();
  hContainer_ = nullptr;
  EXPECT_EQ(Notes(), (Texts{"shader closed", "parameter closed", "shader destroyed with 1",
                            "parameter destroyed, scalar, unreadable"}));
}

TEST_F(VelFeatureImplementationTest, ClosingTheContainer_InsideACallOfAFeature_KeepsItUntilTheCallUnwinds) {
  const VelISpecObject_var hScalar = Make("VelRmaScalar", "scalar");
  ASSERT_TRUE(Probe(hScalar));
  ASSERT_EQ(Access(hScalar)->SetText(Key("Name", VelSpecAttrKind::Text), "the name"), S_OK);
  Notes().clear();
  {
    const VelPin pin(*hScalar->GetComponent());
    hContainer_ = nullptr;
    EXPECT_EQ(Notes(), Texts{"parameter closed"});
  }
  EXPECT_EQ(Notes(), (Texts{"parameter closed", "parameter destroyed, scalar, the name"}));
}

TEST_F(VelFeatureImplementationTest, Container_WhoseLastHolderGoesOnHearingOfAnEnd_EndsTheRestOnce) {
  NotingHooks hooks;
  const VelBaseUnknown_var hDocument = VelObject::Create("VelTestOther", nullptr);
  const VelISpecObject_var hShader = Make("VelRmaShader", "shader");
  const VelISpecObject_var hTexture = Make("VelRmaTexture", "texture");
  const VelISpecObject_var hUnrelated = Make("VelRmaTexture", "unrelated");
  ASSERT_EQ(Access(hShader)->AppendComponent(parameters_, hTexture.Get()), S_OK);
  for (const VelISpecObject_var& hEach : {hTexture, hUnrelated}) {
    ASSERT_EQ(Access(hEach)->SetDocument(Key("Value", VelSpecAttrKind::Document), hDocument.Get()), S_OK);
    ASSERT_TRUE(Probe(hEach));
  }
  WhenClosed() = [&] { hContainer_ = nullptr; };
  EXPECT_EQ(LifeCycleObject_var(hShader)->remove(), S_OK);
  EXPECT_EQ(hooks.notes, Texts{"dropped"}) << "only what was removed";
  EXPECT_EQ(hUnrelated->GetComponentState(), VelComponentState::Closed);
  EXPECT_EQ(VelInstanceCounts::Now().implementations, 0);
}

TEST_F(VelFeatureImplementationTest, EmptyingComponents_TakesOutWhatItsOwnLifeCycleKeeps) {
  for (const HRESULT answer : {E_FAIL, S_OK, S_FALSE}) {
    SCOPED_TRACE(answer);
    const VelISpecObject_var hShader = Make("VelRmaShader", "shader");
    const VelISpecObject_var hScalar = Make("VelRmaScalar", "scalar");
    ASSERT_EQ(Access(hShader)->AppendComponent(parameters_, hScalar.Get()), S_OK);
    keptWith = answer;
    EXPECT_EQ(Access(hShader)->EmptyComponents(parameters_), S_OK);
    EXPECT_FALSE(Access(hShader)->IsValuated(parameters_));
    EXPECT_EQ(hScalar->GetComponentState(), VelComponentState::InSession);
    VelISpecObject_var hFather;
    EXPECT_EQ(hScalar->GetFather(hFather.Receive()), E_FAIL);
  }
}

TEST_F(VelFeatureImplementationTest, DocumentWhoseEndRemovesTheFeature_MayBeReplaced) {
  const VelISpecObject_var hTexture = Make("VelRmaTexture", "texture");
  const VelISpecAttrKey* const value = Key("Value", VelSpecAttrKind::Document);
  VelBaseUnknown_var hFormer = VelObject::Create("VelTestDocument", nullptr);
  ASSERT_TRUE(VelVar<VelTestIProbe>(hFormer));
  ASSERT_EQ(Access(hTexture)->SetDocument(value, hFormer.Get()), S_OK);
  WhenClosed() = [&] { EXPECT_EQ(LifeCycleObject_var(hTexture)->remove(), S_OK); };
  hFormer = nullptr;
  const VelBaseUnknown_var hNext = VelObject::Create("VelTestOther", nullptr);
  EXPECT_EQ(Access(hTexture)->SetDocument(value, hNext.Get()), S_OK);
  EXPECT_EQ(hTexture->GetComponentState(), VelComponentState::Closed);
  EXPECT_FALSE(Access(hTexture)->IsValuated(value)) << "nothing is left in what is removed";
}

}  // namespace
