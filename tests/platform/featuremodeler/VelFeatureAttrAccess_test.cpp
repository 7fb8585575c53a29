// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelFeatureAttrAccess_test.cpp Attributes of every kind, read and written through their keys.
#include <limits>

#include "platform/featuremodeler/VelInternedText.h"
#include "platform/featuremodeler/VelSpecAttrKeyServices.h"
#include "platform/objectmodeler/VelBaseUnknown_WR.h"
#include "platform/objectmodeler/VelObject.h"
#include "tests/platform/featuremodeler/FeatureModelerTest.h"
#include "tests/support/VelAllocationCounter.h"

namespace {

using Texts = std::vector<std::string>;
using VelFeatureAttrAccessTest = FeatureModelerTest;

TEST_F(VelFeatureAttrAccessTest, Key_GoesByNameAndKind) {
  const VelISpecAttrAccess_var hScalar = Access(Make("VelRmaScalar"));
  struct Case {
    const char* name;
    VelSpecAttrKind kind;
    bool expected;
  };
  for (const Case& test :
       {Case{"Value", VelSpecAttrKind::Real, true}, Case{"Value", VelSpecAttrKind::Boolean, false},
        Case{"Value", VelSpecAttrKind::Reals, false}, Case{"Name", VelSpecAttrKind::Text, true},
        Case{"Group", VelSpecAttrKind::Text, true}, Case{"Node", VelSpecAttrKind::Reference, true},
        Case{"Node", VelSpecAttrKind::Components, false}, Case{"Parameters", VelSpecAttrKind::Components, false}}) {
    SCOPED_TRACE(test.name);
    EXPECT_EQ(hScalar->TestAttrKey(Key(test.name, test.kind)), test.expected);
  }
  EXPECT_FALSE(hScalar->TestAttrKey(nullptr));
  EXPECT_FALSE(hScalar->IsValuated(nullptr));
}

TEST_F(VelFeatureAttrAccessTest, ColourKey_ServesColourVectorAndMatrix) {
  const VelISpecAttrKey* const reals = Key("Value", VelSpecAttrKind::Reals);
  struct Case {
    const char* type;
    int capacity;
  };
  for (const Case& test : {Case{"VelRmaColor", 4}, Case{"VelRmaVector", 3}, Case{"VelRmaMatrix", 16}}) {
    SCOPED_TRACE(test.type);
    const VelISpecAttrAccess_var hAccess = Access(Make(test.type));
    double values[17];
    for (int i = 0; i < 17; ++i) values[i] = i + 0.5;
    int size = -1;
    EXPECT_EQ(hAccess->GetSize(reals, size), S_OK);
    EXPECT_EQ(size, 0);
    EXPECT_EQ(hAccess->SetReals(reals, values, test.capacity + 1), E_INVALIDARG);
    EXPECT_EQ(hAccess->SetReals(reals, values, -1), E_INVALIDARG);
    EXPECT_EQ(hAccess->SetReals(reals, nullptr, 1), E_INVALIDARG);
    EXPECT_FALSE(hAccess->IsValuated(reals));
    EXPECT_EQ(hAccess->SetReals(reals, values, test.capacity), S_OK);
    EXPECT_EQ(hAccess->GetSize(reals, size), S_OK);
    EXPECT_EQ(size, test.capacity);
    double value = 0;
    for (int i = 1; i <= test.capacity; ++i) {
      EXPECT_EQ(hAccess->GetRealAt(reals, i, value), S_OK);
      EXPECT_EQ(value, i - 0.5);
    }
    EXPECT_EQ(hAccess->GetRealAt(reals, 0, value), E_INVALIDARG);
    EXPECT_EQ(hAccess->GetRealAt(reals, test.capacity + 1, value), E_INVALIDARG);
    EXPECT_EQ(hAccess->SetReals(reals, nullptr, 0), S_OK);
    EXPECT_FALSE(hAccess->IsValuated(reals)) << "a list is valuated while it has elements";
    EXPECT_EQ(hAccess->GetRealAt(reals, 1, value), E_FAIL);
  }
}

TEST_F(VelFeatureAttrAccessTest, PlainValues_AreReadAsTheyWereWritten) {
  const VelISpecAttrAccess_var hBoolean = Access(Make("VelRmaBoolean"));
  const VelISpecAttrAccess_var hInteger = Access(Make("VelRmaInteger"));
  const VelISpecAttrAccess_var hScalar = Access(Make("VelRmaScalar"));
  const VelISpecAttrAccess_var hShader = Access(Make("VelRmaShader"));
  bool boolean = true;
  EXPECT_EQ(hBoolean->SetBoolean(Key("Value", VelSpecAttrKind::Boolean), false), S_OK);
  EXPECT_EQ(hBoolean->GetBoolean(Key("Value", VelSpecAttrKind::Boolean), boolean), S_OK);
  EXPECT_FALSE(boolean);
  std::int32_t integer = 0;
  EXPECT_EQ(hInteger->SetInteger(Key("Value", VelSpecAttrKind::Integer), std::numeric_limits<std::int32_t>::min()),
            S_OK);
  EXPECT_EQ(hInteger->GetInteger(Key("Value", VelSpecAttrKind::Integer), integer), S_OK);
  EXPECT_EQ(integer, std::numeric_limits<std::int32_t>::min());
  double real = 0;
  EXPECT_EQ(hScalar->SetReal(Key("Value", VelSpecAttrKind::Real), -0.1), S_OK);
  EXPECT_EQ(hScalar->GetReal(Key("Value", VelSpecAttrKind::Real), real), S_OK);
  EXPECT_EQ(real, -0.1);
  std::uint32_t number = 0;
  EXPECT_EQ(hShader->SetUnsigned(Key("Version", VelSpecAttrKind::Unsigned), 0xFFFFFFFFU), S_OK);
  EXPECT_EQ(hShader->GetUnsigned(Key("Version", VelSpecAttrKind::Unsigned), number), S_OK);
  EXPECT_EQ(number, 0xFFFFFFFFU);
  EXPECT_FALSE(hShader->IsValuated(Key("Usage", VelSpecAttrKind::Unsigned))) << "the neighbour is untouched";
}

TEST_F(VelFeatureAttrAccessTest, Reads_WithoutAValueOrWithAWrongKey_FailAndTouchNothing) {
  const VelISpecAttrAccess_var hScalar = Access(Make("VelRmaScalar"));
  double real = 7;
  EXPECT_EQ(hScalar->GetReal(Key("Value", VelSpecAttrKind::Real), real), E_FAIL);
  EXPECT_EQ(hScalar->GetReal(nullptr, real), E_FAIL);
  EXPECT_EQ(hScalar->SetReal(Key("Name", VelSpecAttrKind::Text), 1.0), E_FAIL);
  EXPECT_EQ(real, 7);
  VelUnicodeString text("kept");
  EXPECT_EQ(hScalar->GetText(Key("Value", VelSpecAttrKind::Real), text), E_FAIL);
  EXPECT_EQ(hScalar->GetText(Key("Name", VelSpecAttrKind::Text), text), E_FAIL);
  EXPECT_EQ(text.View(), "kept");
  int size = 9;
  EXPECT_EQ(hScalar->GetSize(Key("Value", VelSpecAttrKind::Real), size), E_FAIL);
  EXPECT_EQ(hScalar->GetSize(nullptr, size), E_FAIL);
  EXPECT_EQ(size, 9);
}

TEST_F(VelFeatureAttrAccessTest, Text_AnEmptyOneIsAValue_AndEachIsKeptOnce) {
  const std::size_t before = VelInternedText::Count();
  {
    const VelISpecAttrAccess_var hFirst = Access(Make("VelRmaScalar", "first"));
    const VelISpecAttrAccess_var hSecond = Access(Make("VelRmaScalar", "second"));
    const VelISpecAttrKey* const name = Key("Name", VelSpecAttrKind::Text);
    VelUnicodeString text;
    EXPECT_EQ(hFirst->SetText(name, ""), S_OK);
    EXPECT_TRUE(hFirst->IsValuated(name));
    EXPECT_EQ(hFirst->GetText(name, text), S_OK);
    EXPECT_EQ(hFirst->SetText(name, "scale_u"), S_OK);
    EXPECT_EQ(hSecond->SetText(name, "scale_u"), S_OK);
    EXPECT_EQ(VelInternedText::Count(), before + 3) << "two feature names and one value";
    EXPECT_EQ(hSecond->SetText(name, "scale_u"), S_OK);
    EXPECT_EQ(hSecond->GetText(name, text), S_OK);
    EXPECT_EQ(text.View(), "scale_u");
  }
  hContainer_ = nullptr;
  EXPECT_EQ(VelInternedText::Count(), before) << "freed with the last holder";
}

TEST_F(VelFeatureAttrAccessTest, Reference_IsReadResetAndListedInTheOrderOfWriting) {
  const VelISpecObject_var hTarget = Make("VelRmaShader", "target");
  const VelISpecObject_var hFirst = Make("VelRmaScalar", "first");
  const VelISpecObject_var hSecond = Make("VelRmaColor", "second");
  VelBaseUnknown_var hRead;
  EXPECT_EQ(Access(hFirst)->GetReference(node_, hRead.Receive()), E_FAIL);
  EXPECT_EQ(Access(hFirst)->SetReference(node_, nullptr), E_INVALIDARG);
  EXPECT_EQ(Access(hFirst)->SetReference(node_, hContainer_.Get()), E_INVALIDARG) << "no feature";
  EXPECT_EQ(Access(hSecond)->SetReference(node_, hTarget.Get()), S_OK);
  EXPECT_EQ(Access(hFirst)->SetReference(node_, hTarget.Get()), S_OK);
  EXPECT_EQ(Access(hFirst)->GetReference(node_, hRead.Receive()), S_OK);
  EXPECT_TRUE(hRead->IsEqual(hTarget.Get()));
  VelListPtrVelBaseUnknown owners;
  EXPECT_EQ(hTarget->ListPointingOwners(VelISpecObject::InterfaceId(), owners), S_OK);
  EXPECT_EQ(Names(owners), (Texts{"second", "first"}));
  owners.RemoveAll();
  EXPECT_EQ(hTarget->ListPointingOwners(VelIContainer::InterfaceId(), owners), S_OK);
  EXPECT_TRUE(owners.IsEmpty()) << "only owners that offer the interface";
  EXPECT_EQ(Access(hSecond)->SetReference(node_, hTarget.Get()), S_OK) << "written again, so it is the last";
  EXPECT_EQ(hTarget->ListPointingOwners(VelISpecObject::InterfaceId(), owners), S_OK);
  EXPECT_EQ(Names(owners), (Texts{"first", "second"}));
  EXPECT_EQ(Access(hFirst)->ResetReference(node_), S_OK);
  EXPECT_EQ(Access(hFirst)->ResetReference(node_), S_FALSE);
  EXPECT_FALSE(Access(hFirst)->IsValuated(node_));
  owners.RemoveAll();
  EXPECT_EQ(hTarget->ListPointingOwners(VelISpecObject::InterfaceId(), owners), S_OK);
  EXPECT_EQ(Names(owners), (Texts{"second"}));
}

TEST_F(VelFeatureAttrAccessTest, Components_AreOwnedInOrder) {
  const VelISpecObject_var hShader = Make("VelRmaShader", "shader");
  const VelISpecObject_var hFirst = Make("VelRmaScalar", "first");
  const VelISpecObject_var hSecond = Make("VelRmaScalar", "second");
  const VelISpecAttrAccess_var hAccess = Access(hShader);
  EXPECT_EQ(hAccess->AppendComponent(parameters_, nullptr), E_INVALIDARG);
  EXPECT_EQ(hAccess->AppendComponent(parameters_, hContainer_.Get()), E_INVALIDARG);
  EXPECT_EQ(hAccess->AppendComponent(parameters_, hFirst.Get()), S_OK);
  EXPECT_EQ(hAccess->AppendComponent(parameters_, hSecond.Get()), S_OK);
  EXPECT_EQ(hAccess->AppendComponent(parameters_, hFirst.Get()), E_FAIL) << "in the list already";
  EXPECT_EQ(hAccess->AppendComponent(nodes_, hFirst.Get()), E_FAIL) << "has a father";
  VelISpecObject_var hFather;
  EXPECT_EQ(hFirst->GetFather(hFather.Receive()), S_OK);
  EXPECT_TRUE(hFather->IsEqual(hShader.Get()));
  VelBaseUnknown_var hElement;
  EXPECT_EQ(hAccess->GetComponentAt(parameters_, 2, hElement.Receive()), S_OK);
  EXPECT_EQ(NameOf(hElement.Get()), "second");
  EXPECT_EQ(hAccess->GetComponentAt(parameters_, 0, hElement.Receive()), E_INVALIDARG);
  EXPECT_EQ(hAccess->GetComponentAt(parameters_, 3, hElement.Receive()), E_INVALIDARG);
  EXPECT_EQ(hAccess->RemoveComponent(parameters_, hFirst.Get()), S_OK);
  EXPECT_EQ(hAccess->RemoveComponent(parameters_, hFirst.Get()), E_FAIL);
  EXPECT_EQ(hFirst->GetFather(hFather.Receive()), E_FAIL);
  EXPECT_FALSE(hFather);
  EXPECT_EQ(hContainer_->CountFeatures(), 3) << "only detached, still in the container";
  EXPECT_EQ(hAccess->RemoveComponent(parameters_, hSecond.Get()), S_OK);
  EXPECT_FALSE(hAccess->IsValuated(parameters_));
}

TEST_F(VelFeatureAttrAccessTest, Components_RefuseACycleOfFathersAndFeaturesOfAnotherContainer) {
  const VelISpecObject_var hRoot = Make("VelRmaShader", "root");
  const VelISpecObject_var hMiddle = Make("VelRmaShader", "middle");
  const VelISpecObject_var hLeaf = Make("VelRmaShader", "leaf");
  EXPECT_EQ(Access(hRoot)->AppendComponent(nodes_, hMiddle.Get()), S_OK);
  EXPECT_EQ(Access(hMiddle)->AppendComponent(nodes_, hLeaf.Get()), S_OK);
  EXPECT_EQ(Access(hLeaf)->AppendComponent(nodes_, hRoot.Get()), E_FAIL);
  EXPECT_EQ(Access(hRoot)->AppendComponent(nodes_, hRoot.Get()), E_FAIL);
  const VelIContainer_var hOther = VelIContainer::Create();
  EXPECT_EQ(Access(hRoot)->AppendComponent(nodes_, MakeIn(hOther, "VelRmaShader").Get()), E_FAIL);
}

TEST_F(VelFeatureAttrAccessTest, EmptyingComponents_RemovesThemThroughTheirLifeCycle) {
  const VelISpecObject_var hShader = Make("VelRmaShader", "shader");
  const VelISpecObject_var hNode = Make("VelRmaShader", "node");
  const VelISpecObject_var hParameter = Make("VelRmaScalar", "parameter");
  EXPECT_EQ(Access(hShader)->EmptyComponents(parameters_), S_FALSE);
  ASSERT_EQ(Access(hShader)->AppendComponent(parameters_, hParameter.Get()), S_OK);
  ASSERT_EQ(Access(hShader)->AppendComponent(parameters_, Make("VelRmaColor").Get()), S_OK);
  ASSERT_EQ(Access(hParameter)->SetReference(node_, hNode.Get()), S_OK);
  EXPECT_EQ(Access(hShader)->EmptyComponents(parameters_), S_OK);
  EXPECT_FALSE(Access(hShader)->IsValuated(parameters_));
  EXPECT_EQ(hParameter->GetComponentState(), VelComponentState::Closed);
  VelListPtrVelBaseUnknown owners;
  EXPECT_EQ(hNode->ListPointingOwners(VelISpecObject::InterfaceId(), owners), S_OK);
  EXPECT_TRUE(owners.IsEmpty()) << "nothing keeps pointing at what they were connected to";
  EXPECT_EQ(hContainer_->CountFeatures(), 2);
}

TEST_F(VelFeatureAttrAccessTest, Document_IsReferencedWhileItIsLinked) {
  const VelISpecAttrAccess_var hTexture = Access(Make("VelRmaTexture"));
  const VelISpecAttrKey* const value = Key("Value", VelSpecAttrKind::Document);
  VelBaseUnknown_var hDocument = VelObject::Create("VelTestDocument", nullptr);
  const VelBaseUnknown_WR document(hDocument.Get());
  EXPECT_EQ(hTexture->SetDocument(value, hDocument.Get()), S_OK);
  hDocument = nullptr;
  EXPECT_EQ(hTexture->GetDocument(value, hDocument.Receive()), S_OK);
  EXPECT_EQ(hDocument->GetComponent(), document.Get());
  EXPECT_EQ(hTexture->SetDocument(value, hDocument.Get()), S_OK) << "the same again";
  hDocument = nullptr;
  EXPECT_NE(document.Get(), nullptr);
  EXPECT_EQ(hTexture->SetDocument(value, nullptr), S_OK);
  EXPECT_EQ(document.Get(), nullptr);
  EXPECT_FALSE(hTexture->IsValuated(value));
  EXPECT_EQ(hTexture->GetDocument(value, hDocument.Receive()), E_FAIL);
}

TEST_F(VelFeatureAttrAccessTest, Read_WithoutAPlaceForTheAnswer_IsRefused) {
  const VelISpecAttrAccess_var hShader = Access(Make("VelRmaShader"));
  const VelISpecAttrAccess_var hTexture = Access(Make("VelRmaTexture"));
  EXPECT_EQ(hShader->GetComponentAt(nodes_, 1, nullptr), E_INVALIDARG);
  EXPECT_EQ(hTexture->GetReference(node_, nullptr), E_INVALIDARG);
  EXPECT_EQ(hTexture->GetDocument(Key("Value", VelSpecAttrKind::Document), nullptr), E_INVALIDARG);
}

TEST_F(VelFeatureAttrAccessTest, HeldReadsAndKeyTests_AllocateNothing) {
  if (!VelAllocationCounter::CountsForwarders()) GTEST_SKIP() << "the sanitizer allocates each forwarder by itself";
  const VelISpecObject_var hScalar = Make("VelRmaScalar");
  const VelISpecAttrKey* const value = Key("Value", VelSpecAttrKind::Real);
  ASSERT_EQ(Access(hScalar)->SetReal(value, 0.5), S_OK);
  const VelAllocationCounter counter;
  double real = 0;
  for (int i = 0; i < 100; ++i) {
    const VelISpecAttrAccess_var hAccess(hScalar);
    EXPECT_TRUE(hAccess->TestAttrKey(value));
    EXPECT_EQ(hAccess->GetReal(value, real), S_OK);
  }
  EXPECT_EQ(counter.Count(), 0);
}

TEST_F(VelFeatureAttrAccessTest, KeyRecord_IsResolvedByTheFirstProperFeatureAndByNoOther) {
  VelSpecAttrKeyRecord record{"VelRmaCatalog", "VelRmaColor", "Value"};
  EXPECT_EQ(VelSpecAttrKeyServices::Get(record, Access(Make("VelRmaShader")).Get()), nullptr);
  EXPECT_EQ(VelSpecAttrKeyServices::Get(record, Access(Make("VelRmaScalar")).Get()), nullptr) << "another kind";
  EXPECT_EQ(VelSpecAttrKeyServices::Get(record, nullptr), nullptr);
  EXPECT_EQ(record.key, nullptr);
  EXPECT_EQ(VelSpecAttrKeyServices::Get(record, Access(Make("VelRmaMatrix")).Get()),
            Key("Value", VelSpecAttrKind::Reals));
  EXPECT_EQ(record.key, Key("Value", VelSpecAttrKind::Reals));
  for (VelSpecAttrKeyRecord unknown : {VelSpecAttrKeyRecord{"NoCatalog", "VelRmaColor", "Value"},
                                       VelSpecAttrKeyRecord{"VelRmaCatalog", "NoStartUp", "Value"},
                                       VelSpecAttrKeyRecord{"VelRmaCatalog", "VelRmaColor", "NoAttribute"}}) {
    EXPECT_EQ(VelSpecAttrKeyServices::Get(unknown, Access(Make("VelRmaColor")).Get()), nullptr);
  }
}

}  // namespace
