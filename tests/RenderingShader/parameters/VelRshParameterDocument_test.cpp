// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterDocument_test.cpp Textures and light profiles: the document, its references and who is told.
#include "RenderingShader/interfaces/VelRshModelNotificationValueChanged.h"
#include "RenderingShader/interfaces/VelRshParameterPublisherEvents.h"
#include "platform/documents/VelRbaRepLifeCycle.h"
#include "platform/events/VelIModelEvents.h"
#include "platform/featuremodeler/VelSpecDocumentLinkHooks.h"
#include "platform/materials/VelRbaStringShaderModifyNotification.h"
#include "platform/objectmodeler/VelDictionary.h"
#include "tests/RenderingShader/RshModelTest.h"
#include "tests/RenderingShader/fixtures/FakeDocument.h"
#include "tests/RenderingShader/fixtures/FakeImageServices.h"
#include "tests/RenderingShader/fixtures/FakeRepLifeCycle.h"
#include "tests/RenderingShader/model/fixtures/VelTestEventRecorder.h"
#include "tests/RenderingShader/model/fixtures/VelTestHostListener.h"

namespace {

using Counts = FakeRepLifeCycle::Counts;
using Events = VelRshParameterPublisherEvents;

/// Counts the links of copies and of removed features, as a document store does.
class CountingHooks final : public VelSpecDocumentLinkHooks {
 public:
  CountingHooks() { VelSpecDocumentLinkHooks::Install(this); }
  ~CountingHooks() { VelSpecDocumentLinkHooks::Install(nullptr); }
  CountingHooks(const CountingHooks&) = delete;
  CountingHooks& operator=(const CountingHooks&) = delete;

  void OnCopied(VelBaseUnknown& ioDocument) override { EXPECT_EQ(VelRbaRepLifeCycle::AddReference(&ioDocument), S_OK); }
  void OnDropped(VelBaseUnknown& ioDocument) override {
    EXPECT_EQ(VelRbaRepLifeCycle::RemoveReference(&ioDocument), S_OK);
  }
};

constexpr const char* documentTypes[] = {"VelRmaTexture", "VelRmaLightProfile"};

class VelRshParameterDocumentTest : public RshModelTest {
 protected:
  void SetUp() override {
    RshModelTest::SetUp();
    hShader_ = MakeShader();
    hFirst_ = FakeDocument::Create("first");
    hSecond_ = FakeDocument::Create("second");
    images_.SetProjectionPathOf(*hFirst_, "/projection/first.png");
    images_.SetProjectionPathOf(*hSecond_, "/projection/second.png");
  }
  void TearDown() override {
    hShader_ = nullptr;
    hFirst_ = nullptr;
    hSecond_ = nullptr;
    RshModelTest::TearDown();
  }

  static VelBaseUnknown_var ValueOf(const VelIRshParameter_var& iParameter) {
    VelBaseUnknown_var hValue;
    EXPECT_EQ(iParameter->GetValue(hValue.Receive()), S_OK);
    return hValue;
  }

  FakeDocumentBindings documents_;
  FakeRepLifeCycle references_;
  FakeImageServices images_;
  VelIRshShader_var hShader_;
  VelIPLMDmtDocument_var hFirst_;
  VelIPLMDmtDocument_var hSecond_;
};

TEST_F(VelRshParameterDocumentTest, WithoutADocument_ReadsAsNullAndSOk) {
  for (const char* startUp : documentTypes) {
    VelBaseUnknown* read = hFirst_.Get();
    EXPECT_EQ(Add(hShader_, "t", startUp)->GetValue(&read), S_OK) << startUp;
    EXPECT_EQ(read, nullptr) << startUp;
  }
}

TEST_F(VelRshParameterDocumentTest, NullArguments_AnswerTheirOwnCodes) {
  for (const char* startUp : documentTypes) {
    const VelIRshParameter_var hParameter = Add(hShader_, "t", startUp);
    EXPECT_EQ(hParameter->SetValue(hFirst_.Get()), S_OK) << startUp;
    EXPECT_EQ(hParameter->SetValue(static_cast<VelBaseUnknown*>(nullptr)), E_NOINTERFACE) << startUp;
    EXPECT_EQ(hParameter->GetValue(static_cast<VelBaseUnknown**>(nullptr)), E_FAIL) << startUp;
    EXPECT_TRUE(IsSameObject(ValueOf(hParameter).Get(), hFirst_.Get())) << startUp;
  }
}

TEST_F(VelRshParameterDocumentTest, Documents_AreCountedOnceAndReplaced) {
  for (const char* startUp : documentTypes) {
    SCOPED_TRACE(startUp);
    const Counts first = references_.Of(hFirst_.Get());
    const Counts second = references_.Of(hSecond_.Get());
    const VelIRshParameter_var hParameter = Add(hShader_, "t", startUp);
    EXPECT_EQ(hParameter->SetValue(hFirst_.Get()), S_OK);
    EXPECT_EQ(hParameter->SetValue(hFirst_.Get()), S_FALSE);
    EXPECT_EQ(references_.Of(hFirst_.Get()), (Counts{first.added + 1, first.removed}));
    EXPECT_EQ(hParameter->SetValue(hSecond_.Get()), S_OK);
    EXPECT_TRUE(IsSameObject(ValueOf(hParameter).Get(), hSecond_.Get()));
    EXPECT_EQ(references_.Of(hFirst_.Get()), (Counts{first.added + 1, first.removed + 1}));
    EXPECT_EQ(references_.Of(hSecond_.Get()), (Counts{second.added + 1, second.removed}));
  }
}

TEST_F(VelRshParameterDocumentTest, Replacing_CountsTheNewOneBeforeItDropsTheOld) {
  for (const char* startUp : documentTypes) {
    const VelIRshParameter_var hParameter = Add(hShader_, "t", startUp);
    EXPECT_EQ(hParameter->SetValue(hFirst_.Get()), S_OK);
    references_.notes.clear();
    EXPECT_EQ(hParameter->SetValue(hSecond_.Get()), S_OK) << startUp;
    EXPECT_EQ(references_.notes, (Texts{"add", "remove"})) << startUp;
  }
}

TEST_F(VelRshParameterDocumentTest, StoreThatCannotCount_DoesNotKeepTheDocumentFromBeingSet) {
  references_.addCode = E_FAIL;
  for (const char* startUp : documentTypes) {
    const VelIRshParameter_var hParameter = Add(hShader_, "t", startUp);
    EXPECT_EQ(hParameter->SetValue(hFirst_.Get()), S_OK) << startUp;
    EXPECT_TRUE(IsSameObject(ValueOf(hParameter).Get(), hFirst_.Get())) << startUp;
  }
}

TEST_F(VelRshParameterDocumentTest, CopiesAndRemovals_AreCountedByTheHooksAlone) {
  const CountingHooks hooks;
  for (const char* startUp : documentTypes) {
    SCOPED_TRACE(startUp);
    const VelIRshParameter_var hParameter = Add(hShader_, "t", startUp);
    EXPECT_EQ(hParameter->SetValue(hFirst_.Get()), S_OK);
    const int held = references_.Held();
    VelIRshParameter_var hCopy;
    {
      VelBaseUnknown_var hMade;
      EXPECT_EQ(VelISpecObject_var(hParameter)
                    ->InstanciateForCopy("copy", nullptr, VelISpecObject::InterfaceId(), hMade.Receive()),
                S_OK);
      hCopy = VelIRshParameter_var(hMade);
    }
    EXPECT_TRUE(IsSameObject(ValueOf(hCopy).Get(), hFirst_.Get()));
    EXPECT_EQ(references_.Held(), held + 1);
    EXPECT_EQ(LifeCycleObject_var(hCopy)->remove(), S_OK);
    EXPECT_EQ(references_.Held(), held);
    EXPECT_EQ(LifeCycleObject_var(hParameter)->remove(), S_OK);
    EXPECT_EQ(references_.Held(), held - 1);
  }
}

TEST_F(VelRshParameterDocumentTest, ClosedParameter_AnswersEFailAndCountsNothing) {
  for (const char* startUp : documentTypes) {
    const VelIRshParameter_var hParameter = Add(hShader_, "t", startUp);
    EXPECT_EQ(LifeCycleObject_var(hParameter)->remove(), S_OK);
    EXPECT_EQ(hParameter->SetValue(hFirst_.Get()), E_FAIL) << startUp;
    EXPECT_EQ(hParameter->SetValue(static_cast<VelBaseUnknown*>(nullptr)), E_FAIL) << startUp;
    VelBaseUnknown* read = hFirst_.Get();
    EXPECT_EQ(hParameter->GetValue(&read), E_FAIL) << startUp;
    EXPECT_EQ(read, hFirst_.Get()) << startUp;
  }
  EXPECT_EQ(references_.calls, 0);
}

TEST_F(VelRshParameterDocumentTest, Texture_TellsSubscribersOfOldAndNewDocument) {
  const VelIRshParameter_var hTexture = Add(hShader_, "t", "VelRmaTexture");
  VelTestRecorder recorder;
  recorder.Hear(ManagerOf(hTexture), Events::VALUE_UPDATED());
  std::vector<VelBaseUnknown_var> documents;
  bool isPublisher = false;
  recorder.Do([&](VelEventName, VelBaseUnknown* iPublisher, VelNotification* ioNotification) {
    const auto* changed = VelNotificationCast<VelRshModelNotificationParameterPLMDocumentChanged>(ioNotification);
    ASSERT_NE(changed, nullptr);
    documents.push_back(changed->GetOld());
    documents.push_back(changed->GetNew());
    isPublisher = IsSameObject(iPublisher, hTexture.Get());
  });
  EXPECT_EQ(hTexture->SetValue(hFirst_.Get()), S_OK);
  EXPECT_EQ(hTexture->SetValue(hFirst_.Get()), S_FALSE);
  EXPECT_EQ(hTexture->SetValue(hSecond_.Get()), S_OK);
  ASSERT_EQ(documents.size(), 4U);
  EXPECT_FALSE(documents[0]);
  EXPECT_TRUE(IsSameObject(documents[1].Get(), hFirst_.Get()));
  EXPECT_TRUE(IsSameObject(documents[2].Get(), hFirst_.Get()));
  EXPECT_TRUE(IsSameObject(documents[3].Get(), hSecond_.Get()));
  EXPECT_TRUE(isPublisher);
}

TEST_F(VelRshParameterDocumentTest, Texture_TellsTheHostTheProjectionPaths) {
  const VelIRshParameter_var hTexture = Add(hShader_, "wood", "VelRmaTexture");
  VelTestHostListener host;
  EXPECT_EQ(host.ConnectTo(hTexture.Get()), S_OK);
  std::vector<VelUnicodeString> paths;
  host.look = [&](VelNotification& ioNotification) {
    const auto* changed = VelNotificationCast<VelRbaStringShaderModifyNotification>(&ioNotification);
    ASSERT_NE(changed, nullptr) << ioNotification.ClassName();
    EXPECT_EQ(changed->GetName(), "wood");
    EXPECT_EQ(changed->GetObject(), hTexture->GetImpl());
    EXPECT_EQ(&changed->GetInterface(), &VelIRshParameter::InterfaceId());
    paths.push_back(changed->GetPrevious());
    paths.push_back(changed->GetNext());
  };
  EXPECT_EQ(hTexture->SetValue(hFirst_.Get()), S_OK);
  EXPECT_EQ(hTexture->SetValue(hSecond_.Get()), S_OK);
  EXPECT_EQ(paths, (std::vector<VelUnicodeString>{"", "/projection/first.png", "/projection/first.png",
                                                  "/projection/second.png"}));
}

TEST_F(VelRshParameterDocumentTest, TextureWhosePathCannotBeTold_IsToldWithAnEmptyOne) {
  images_.projectionPath.code = E_FAIL;
  const VelIRshParameter_var hTexture = Add(hShader_, "wood", "VelRmaTexture");
  VelTestHostListener host;
  EXPECT_EQ(host.ConnectTo(hTexture.Get()), S_OK);
  VelUnicodeString path("before");
  host.look = [&](VelNotification& ioNotification) {
    path = VelNotificationCast<VelRbaStringShaderModifyNotification>(&ioNotification)->GetNext();
  };
  EXPECT_EQ(hTexture->SetValue(hFirst_.Get()), S_OK);
  EXPECT_EQ(path, "");
  EXPECT_EQ(images_.projectionCalls, 1);
}

TEST_F(VelRshParameterDocumentTest, TextureOfWhichNoHostHears_AsksForNoPath) {
  const VelISpecObject_var hFeature = Make("VelRmaTexture");
  const VelIRshParameter_var hFree(hFeature);
  EXPECT_EQ(hFree->SetValue(hFirst_.Get()), S_OK);
  const VelIRshParameter_var hNameless(Make("VelRmaTexture"));
  EXPECT_EQ(hShader_->AppendParameter(hNameless.Get()), S_OK);
  EXPECT_EQ(hNameless->SetValue(hFirst_.Get()), S_OK);
  EXPECT_EQ(images_.projectionCalls, 0);
}

TEST_F(VelRshParameterDocumentTest, TextureClosedByASubscriber_IsSOkAndTheHostIsNotTold) {
  const VelIRshParameter_var hTexture = Add(hShader_, "t", "VelRmaTexture");
  VelTestHostListener host;
  EXPECT_EQ(host.ConnectTo(hTexture.Get()), S_OK);
  VelTestRecorder recorder;
  recorder.Hear(ManagerOf(hTexture), Events::VALUE_UPDATED());
  recorder.Do([&](VelEventName, VelBaseUnknown* iPublisher, VelNotification*) {
    EXPECT_EQ(LifeCycleObject_var(iPublisher)->remove(), S_OK);
  });
  EXPECT_EQ(hTexture->SetValue(hFirst_.Get()), S_OK);
  EXPECT_EQ(host.notes, Texts{});
  EXPECT_EQ(images_.projectionCalls, 0);
}

TEST_F(VelRshParameterDocumentTest, TypesWithoutEvents_BringThemselvesUpToDateAfterEachWrite) {
  const VelIRshParameter_var hProfile = Add(hShader_, "l", "VelRmaLightProfile");
  const VelIRshParameter_var hMatrix = Add(hShader_, "m", "VelRmaMatrix");
  const float matrix[16] = {1.0F};
  // The update of what is no parameter any more reports itself, by which it can be seen.
  const std::string dictionary = VEL_TEST_LIBRARY_FOLDER "/dictionaries/VelRshModel.dictionary";
  ASSERT_EQ(VelDictionary::Unload(dictionary), S_OK);
  for (const HRESULT expected : {S_OK, S_FALSE}) {
    EXPECT_EQ(hProfile->SetValue(hFirst_.Get()), expected);
    EXPECT_EQ(hMatrix->SetValue(matrix), expected);
  }
  ASSERT_EQ(checks_.Failures().size(), 2U);
  for (const RecordedFailure& failure : checks_.Failures()) EXPECT_EQ(failure.line, 798U);
  checks_.Clear();
  EXPECT_EQ(VelDictionary::LoadFile(dictionary), S_OK);
}

TEST_F(VelRshParameterDocumentTest, LightProfile_HasNoEventsAndTellsNobody) {
  const VelIRshParameter_var hProfile = Add(hShader_, "l", "VelRmaLightProfile");
  EXPECT_FALSE(VelIModelEvents_var(hProfile));
  EXPECT_FALSE(VelIRshParameterPublisher_var(hProfile));
  EXPECT_EQ(hProfile->SetValue(hFirst_.Get()), S_OK);
  EXPECT_EQ(images_.projectionCalls, 0);
}

}  // namespace
