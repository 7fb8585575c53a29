// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRbaRepLifeCycle_test.cpp The references on documents: whom they are handed to, and what is said when there
/// is nobody.
#include "platform/documents/VelRbaRepLifeCycle.h"

#include "tests/RenderingShader/fixtures/FakeDocument.h"
#include "tests/RenderingShader/fixtures/FakeRepLifeCycle.h"
#include "tests/platform/documents/MissingProviderTest.h"

namespace {

using Counts = FakeRepLifeCycle::Counts;

class VelRbaRepLifeCycleTest : public MissingProviderTest {
 protected:
  void SetUp() override {
    MissingProviderTest::SetUp();
    VelRbaRepLifeCycle::ResetWarning();
  }

  FakeDocumentBindings documents_;
};

TEST_F(VelRbaRepLifeCycleTest, References_AreHandedToTheProvider_EachForItsDocument) {
  const FakeRepLifeCycle provider;
  const VelIPLMDmtDocument_var hFirst = FakeDocument::Create();
  const VelIPLMDmtDocument_var hSecond = FakeDocument::Create();
  EXPECT_EQ(VelRbaRepLifeCycle::AddReference(hFirst.Get()), S_OK);
  EXPECT_EQ(VelRbaRepLifeCycle::AddReference(hFirst->GetComponent()), S_OK) << "the same document";
  EXPECT_EQ(VelRbaRepLifeCycle::AddReference(hSecond.Get()), S_OK);
  EXPECT_EQ(VelRbaRepLifeCycle::RemoveReference(hFirst.Get()), S_OK);
  EXPECT_EQ(provider.Of(hFirst.Get()), (Counts{2, 1}));
  EXPECT_EQ(provider.Of(hSecond.Get()), (Counts{1, 0}));
  EXPECT_EQ(provider.Held(), 2);
  EXPECT_EQ(provider.calls, 4);
  EXPECT_EQ(Take(), Texts{});
}

TEST_F(VelRbaRepLifeCycleTest, RemoveReference_OfADocumentWithoutAny_Fails) {
  const FakeRepLifeCycle provider;
  const VelIPLMDmtDocument_var hDocument = FakeDocument::Create();
  EXPECT_EQ(VelRbaRepLifeCycle::RemoveReference(hDocument.Get()), E_FAIL);
  EXPECT_EQ(provider.Of(hDocument.Get()), Counts{});
}

TEST_F(VelRbaRepLifeCycleTest, TheProvidersCode_IsTheCallersAndCountsNothing) {
  FakeRepLifeCycle provider;
  const VelIPLMDmtDocument_var hDocument = FakeDocument::Create();
  provider.addCode = E_UNEXPECTED;
  EXPECT_EQ(VelRbaRepLifeCycle::AddReference(hDocument.Get()), E_UNEXPECTED);
  provider.addCode = S_OK;
  EXPECT_EQ(VelRbaRepLifeCycle::AddReference(hDocument.Get()), S_OK);
  provider.removeCode = E_NOINTERFACE;
  EXPECT_EQ(VelRbaRepLifeCycle::RemoveReference(hDocument.Get()), E_NOINTERFACE);
  EXPECT_EQ(provider.Of(hDocument.Get()), (Counts{1, 0}));
  EXPECT_EQ(Take(), Texts{});
}

TEST_F(VelRbaRepLifeCycleTest, NoDocument_IsRefusedBeforeAnybodyIsAsked) {
  EXPECT_EQ(VelRbaRepLifeCycle::AddReference(nullptr), E_INVALIDARG) << "without provider";
  EXPECT_EQ(VelRbaRepLifeCycle::RemoveReference(nullptr), E_INVALIDARG);
  const FakeRepLifeCycle provider;
  EXPECT_EQ(VelRbaRepLifeCycle::AddReference(nullptr), E_INVALIDARG);
  EXPECT_EQ(VelRbaRepLifeCycle::RemoveReference(nullptr), E_INVALIDARG);
  EXPECT_EQ(provider.calls, 0);
  EXPECT_EQ(Take(), Texts{});
}

TEST_F(VelRbaRepLifeCycleTest, WithoutProvider_EveryCallFailsAndTheFirstWarns) {
  const VelIPLMDmtDocument_var hDocument = FakeDocument::Create();
  EXPECT_EQ(VelRbaRepLifeCycle::AddReference(hDocument.Get()), E_FAIL);
  EXPECT_EQ(Take(),
            Texts{"VelRbaRepLifeCycle: The service is not available: the library VelPlatformDocuments is missing, "
                  "or no dictionary names it"});
  EXPECT_EQ(VelRbaRepLifeCycle::AddReference(hDocument.Get()), E_FAIL);
  EXPECT_EQ(VelRbaRepLifeCycle::RemoveReference(hDocument.Get()), E_FAIL);
  EXPECT_EQ(Take(), Texts{});
  VelRbaRepLifeCycle::ResetWarning();
  EXPECT_EQ(VelRbaRepLifeCycle::RemoveReference(hDocument.Get()), E_FAIL);
  EXPECT_EQ(Take().size(), 1U);
}

TEST_F(VelRbaRepLifeCycleTest, AProviderThatComesLater_IsFound_AndOneThatLeft_IsMissed) {
  const VelIPLMDmtDocument_var hDocument = FakeDocument::Create();
  EXPECT_EQ(VelRbaRepLifeCycle::AddReference(hDocument.Get()), E_FAIL);
  {
    const FakeRepLifeCycle provider;
    EXPECT_EQ(VelRbaRepLifeCycle::AddReference(hDocument.Get()), S_OK);
  }
  EXPECT_EQ(VelRbaRepLifeCycle::AddReference(hDocument.Get()), E_FAIL);
  EXPECT_EQ(Take().size(), 1U);
}

}  // namespace
