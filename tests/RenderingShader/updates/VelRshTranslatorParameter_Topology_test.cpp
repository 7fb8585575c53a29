// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshTranslatorParameter_Topology_test.cpp Edited connections and documents, and who is told of them.
#include "platform/events/VelIModelEvents.h"
#include "tests/RenderingShader/fixtures/FakeRepLifeCycle.h"
#include "tests/RenderingShader/model/fixtures/VelTestHostListener.h"
#include "tests/RenderingShader/services/fixtures/VelTestListingShader.h"
#include "tests/RenderingShader/updates/TranslatorTest.h"

namespace {

/// Below a material that has model events.
class VelRshTranslatorTopologyTest : public TranslatorTest {
 protected:
  void SetUp() override {
    TranslatorTest::SetUp();
    VelBaseUnknown_var hMade;
    const VelOsmSUHandler handler("VelRmaRenderingMaterial", "", "VelRmaMaterialCatalog.feat");
    ASSERT_EQ(handler.Instanciate(*hContainer_, "", VelIRenderingMaterial::InterfaceId(), hMade.Receive()), S_OK);
    hTold_ = VelIRenderingMaterial_var(hMade);
    MakeTop("Top");
    ASSERT_EQ(listener_.ConnectTo(hTold_.Get()), S_OK);
    listener_.look = [this](VelNotification& ioNotification) {
      received_ = &ioNotification;
      connectionThen_ = TypeOfShader(ConnectionOf(hLink_).Get());
    };
  }
  void TearDown() override {
    hLink_ = nullptr;
    hNode_ = hTop_ = nullptr;
    hTold_ = nullptr;
    TranslatorTest::TearDown();
  }

  /// Puts another shader of a type below the material, with a node that can be connected to its parameter "link".
  void MakeTop(const char* iType) {
    hTop_ = MakeShader(iType);
    EXPECT_EQ(hTold_->SetShader(hTop_.Get()), S_OK);
    hNode_ = AddNode(hTop_, "Sub");
    hLink_ = Add(hTop_, "link", "VelRmaColor");
  }

  /// Sends a change of what a parameter refers to, and expects the material to hear that very notification, or nothing.
  bool SendTopology(VelBaseUnknown* iObject, VelBaseUnknown* iPrevious, VelBaseUnknown* iNext,
                    const VelInterfaceId& iKind, bool iIsTold) {
    listener_.notes.clear();
    received_ = nullptr;
    const VelRbaNotificationTopologyModification notification(
        "p", iObject, VelIRshParameter::InterfaceId(), VelBaseUnknown_var(iPrevious), VelBaseUnknown_var(iNext), iKind);
    const bool isHandled = translate_(notification);
    EXPECT_EQ(listener_.notes, iIsTold ? Texts{"VelRbaNotificationTopologyModification"} : Texts{});
    EXPECT_EQ(received_, iIsTold ? &notification : nullptr);
    return isHandled;
  }
  bool SendShader(VelBaseUnknown* iPrevious, VelBaseUnknown* iNext, bool iIsTold) {
    return SendTopology(hLink_.Get(), iPrevious, iNext, VelIRshShader::InterfaceId(), iIsTold);
  }
  bool SendDocument(const VelIRshParameter_var& iParameter, VelBaseUnknown* iPrevious, VelBaseUnknown* iNext,
                    bool iIsTold) {
    return SendTopology(iParameter.Get(), iPrevious, iNext, VelIPLMDmtDocument::InterfaceId(), iIsTold);
  }

  static VelBaseUnknown_var DocumentOf(const VelIRshParameter_var& iParameter) {
    VelBaseUnknown_var hDocument;
    EXPECT_EQ(iParameter->GetValue(hDocument.Receive()), S_OK);
    return hDocument;
  }

  VelTestHostListener listener_;
  const VelNotification* received_ = nullptr;
  std::string connectionThen_;  ///< The type of what was connected when the material heard.
  VelIRenderingMaterial_var hTold_;
  VelIRshShader_var hTop_;
  VelIRshShader_var hNode_;
  VelIRshParameter_var hLink_;
};

TEST_F(VelRshTranslatorTopologyTest, Shader_IsConnectedAndTheMaterialToldAfterwards) {
  EXPECT_TRUE(SendShader(nullptr, hNode_.Get(), true));
  EXPECT_TRUE(IsSameObject(ConnectionOf(hLink_).Get(), hNode_.Get()));
  EXPECT_EQ(connectionThen_, "Sub");
}

TEST_F(VelRshTranslatorTopologyTest, EmptyShader_IsDisconnected) {
  ASSERT_EQ(hLink_->SetConnection(hNode_.Get()), S_OK);
  EXPECT_TRUE(SendShader(hNode_.Get(), nullptr, true));
  EXPECT_FALSE(ConnectionOf(hLink_));
}

TEST_F(VelRshTranslatorTopologyTest, ShaderThatIsConnectedAlready_IsHandledAndTold) {
  ASSERT_EQ(hLink_->SetConnection(hNode_.Get()), S_OK);
  EXPECT_TRUE(SendShader(nullptr, hNode_.Get(), true));
}

TEST_F(VelRshTranslatorTopologyTest, ShaderBelowADerivingRoot_IsConnectedAndNothingMore) {
  for (const char* type : {"Top", "MPM"}) {
    MakeTop(type);
    const VelIRshShader_var hOther = AddNode(hTop_, "Other");
    ASSERT_EQ(Add(hTop_, "other", "VelRmaColor")->SetConnection(hOther.Get()), S_OK);
    const VelIRshParameter_var hNamesake = Add(hOther, "link", "VelRmaColor");
    EXPECT_TRUE(SendShader(nullptr, hNode_.Get(), true)) << type;
    EXPECT_TRUE(ConnectionOf(hLink_)) << type;
    EXPECT_FALSE(ConnectionOf(hNamesake)) << type;
  }
}

TEST_F(VelRshTranslatorTopologyTest, WhatIsNoShader_ChangesNothing) {
  ASSERT_EQ(hLink_->SetConnection(hNode_.Get()), S_OK);
  EXPECT_FALSE(SendShader(hNode_.Get(), hLink_.Get(), false));
  EXPECT_FALSE(SendShader(hNode_.Get(), FakeDocument::Create().Get(), false));
  EXPECT_TRUE(IsSameObject(ConnectionOf(hLink_).Get(), hNode_.Get()));
}

TEST_F(VelRshTranslatorTopologyTest, ConnectionThatFails_IsNotHandled) {
  const VelIRshShader_var hNoNode = MakeShader("Free");
  ASSERT_EQ(hLink_->SetConnection(hNoNode.Get()), S_OK);
  EXPECT_FALSE(SendShader(hNoNode.Get(), hNode_.Get(), false)) << "the one before cannot be taken out of its father";
}

TEST_F(VelRshTranslatorTopologyTest, Document_BecomesTheValue) {
  const FakeRepLifeCycle references;
  const VelIRshParameter_var hTexture = Add(hTop_, "tex", "VelRmaTexture");
  const VelIRshParameter_var hLight = Add(hTop_, "light", "VelRmaLightProfile");
  const VelIPLMDmtDocument_var hFirst = FakeDocument::Create("first");
  const VelIPLMDmtDocument_var hSecond = FakeDocument::Create("second");
  EXPECT_TRUE(SendDocument(hTexture, nullptr, hFirst.Get(), true));
  EXPECT_TRUE(IsSameObject(DocumentOf(hTexture).Get(), hFirst.Get()));
  EXPECT_TRUE(SendDocument(hTexture, hFirst.Get(), hSecond.Get(), true));
  EXPECT_TRUE(IsSameObject(DocumentOf(hTexture).Get(), hSecond.Get()));
  EXPECT_TRUE(SendDocument(hLight, nullptr, hSecond.Get(), true));
  EXPECT_TRUE(IsSameObject(DocumentOf(hLight).Get(), hSecond.Get()));
}

TEST_F(VelRshTranslatorTopologyTest, Document_ReachesNoSubShader) {
  for (const char* type : {"Top", "MPM"}) {
    MakeTop(type);
    const VelIRshShader_var hSub = AddNode(hTop_, "Sub");
    ASSERT_EQ(Add(hTop_, "other", "VelRmaColor")->SetConnection(hSub.Get()), S_OK);
    const VelIRshParameter_var hBelow = Add(hSub, "tex", "VelRmaTexture");
    const VelIRshParameter_var hTexture = Add(hTop_, "tex", "VelRmaTexture");
    EXPECT_TRUE(SendDocument(hTexture, nullptr, FakeDocument::Create().Get(), true));
    EXPECT_FALSE(DocumentOf(hBelow));
  }
}

TEST_F(VelRshTranslatorTopologyTest, EmptyDocumentAndWhatIsNone_ChangeNothing) {
  const VelIRshParameter_var hTexture = Add(hTop_, "tex", "VelRmaTexture");
  const VelIPLMDmtDocument_var hDocument = FakeDocument::Create();
  ASSERT_EQ(hTexture->SetValue(hDocument.Get()), S_OK);
  EXPECT_FALSE(SendDocument(hTexture, hDocument.Get(), nullptr, false));
  EXPECT_FALSE(SendDocument(hTexture, hDocument.Get(), hNode_.Get(), false));
  EXPECT_TRUE(IsSameObject(DocumentOf(hTexture).Get(), hDocument.Get()));
}

TEST_F(VelRshTranslatorTopologyTest, DocumentOfAParameterThatTakesNone_IsNotHandled) {
  const VelIRshParameter_var hScalar = Add(hTop_, "p", "VelRmaScalar");
  EXPECT_FALSE(SendDocument(hScalar, nullptr, FakeDocument::Create().Get(), false));
}

TEST_F(VelRshTranslatorTopologyTest, OtherKinds_AreNotHandled) {
  for (const VelInterfaceId* kind : {&VelIRshParameter::InterfaceId(), &VelIRenderingMaterial::InterfaceId(),
                                     &VelBaseUnknown::InterfaceId(), &VelISpecObject::InterfaceId()}) {
    EXPECT_FALSE(SendTopology(hLink_.Get(), nullptr, hNode_.Get(), *kind, false)) << kind->Name();
    EXPECT_FALSE(SendTopology(hLink_.Get(), hNode_.Get(), nullptr, *kind, false)) << kind->Name();
  }
  EXPECT_FALSE(ConnectionOf(hLink_));
}

TEST_F(VelRshTranslatorTopologyTest, EqualObjects_AreHandledAndChangeNothing) {
  EXPECT_TRUE(SendShader(nullptr, nullptr, false));
  const VelISpecObject_var hSameByAnotherInterface(hNode_);
  EXPECT_TRUE(SendShader(hNode_.Get(), hSameByAnotherInterface.Get(), false));
  EXPECT_FALSE(ConnectionOf(hLink_));
  EXPECT_TRUE(SendTopology(hLink_.Get(), hNode_.Get(), hNode_.Get(), VelIRshParameter::InterfaceId(), false))
      << "whatever they are meant by";
  const VelIRshParameter_var hAlone(Make("VelRmaColor"));
  EXPECT_TRUE(SendTopology(hAlone.Get(), nullptr, nullptr, VelIRshShader::InterfaceId(), false));
}

TEST_F(VelRshTranslatorTopologyTest, WhatIsNoParameter_IsNotHandled) {
  EXPECT_FALSE(SendTopology(nullptr, nullptr, hNode_.Get(), VelIRshShader::InterfaceId(), false));
  EXPECT_FALSE(SendTopology(hTop_.Get(), nullptr, hNode_.Get(), VelIRshShader::InterfaceId(), false));
  EXPECT_FALSE(SendTopology(hTop_.Get(), nullptr, nullptr, VelIRshShader::InterfaceId(), false)) << "equal or not";
}

TEST_F(VelRshTranslatorTopologyTest, ParameterWithoutARoot_IsWrittenAndNotHandled) {
  const VelIRshParameter_var hAlone(Make("VelRmaColor"));
  ASSERT_EQ(hAlone->SetName("p"), S_OK);
  EXPECT_FALSE(SendTopology(hAlone.Get(), nullptr, hNode_.Get(), VelIRshShader::InterfaceId(), false));
  EXPECT_TRUE(ConnectionOf(hAlone));
}

TEST_F(VelRshTranslatorTopologyTest, RootWhoseTypeCannotBeRead_LeavesTheMaterialUntold) {
  VelTestListingShaders shaders;
  const VelISpecObject_var hBox = VelTestListingShaders::CreateBox(*hContainer_);
  ASSERT_EQ(hTold_->SetShader(hBox.Get()), S_OK);
  const VelIRshParameter_var hBoxed(Make("VelRmaColor"));
  ASSERT_EQ(hBoxed->SetName("p"), S_OK);
  VelTestListingShaders::Put(hBox, hBoxed.Get());
  shaders.type.code = E_FAIL;
  EXPECT_FALSE(SendTopology(hBoxed.Get(), nullptr, hNode_.Get(), VelIRshShader::InterfaceId(), false));
  EXPECT_TRUE(ConnectionOf(hBoxed));
  shaders.type.code = S_OK;
  EXPECT_TRUE(SendTopology(hBoxed.Get(), nullptr, hNode_.Get(), VelIRshShader::InterfaceId(), true));
}

TEST_F(VelRshTranslatorTopologyTest, MaterialWithoutModelEvents_AndNone_AreHandledAllTheSame) {
  ASSERT_FALSE(VelIModelEvents_var(hMaterial_));
  const VelIRshShader_var hNode = AddNode(hRoot_, "Sub");
  const VelIRshParameter_var hLink = Add(hRoot_, "link", "VelRmaColor");
  EXPECT_TRUE(SendTopology(hLink.Get(), nullptr, hNode.Get(), VelIRshShader::InterfaceId(), false));
  const VelIRshShader_var hFree = MakeShader("Free");
  const VelIRshParameter_var hFreeLink = Add(hFree, "link", "VelRmaColor");
  EXPECT_TRUE(SendTopology(hFreeLink.Get(), nullptr, AddNode(hFree).Get(), VelIRshShader::InterfaceId(), false));
}

}  // namespace
