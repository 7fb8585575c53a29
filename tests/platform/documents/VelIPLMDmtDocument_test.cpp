// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIPLMDmtDocument_test.cpp Documents through their forwarder.
#include "platform/documents/VelIPLMDmtDocument.h"

#include <gtest/gtest.h>

#include "platform/objectmodeler/VelObject.h"
#include "tests/RenderingShader/fixtures/FakeDocument.h"

namespace {

class VelIPLMDmtDocumentTest : public ::testing::Test {
 protected:
  /// Every text of the document, each "(untouched)" where its operation failed with a code.
  std::string Read(VelIPLMDmtDocument& ioDocument, HRESULT iExpected) const {
    VelString format("(untouched)");
    VelUnicodeString name("(untouched)");
    VelString identifier("(untouched)");
    std::string content("(untouched)");
    EXPECT_EQ(ioDocument.GetFormatName(format), iExpected);
    EXPECT_EQ(ioDocument.GetName(name), iExpected);
    EXPECT_EQ(ioDocument.GetIdentifier(identifier), iExpected);
    EXPECT_EQ(ioDocument.GetContent(content), iExpected);
    return std::string(format.View()) + '|' + name.CString() + '|' + identifier.CString() + '|' + content;
  }

  FakeDocumentBindings bindings_;
};

TEST_F(VelIPLMDmtDocumentTest, EachOperation_GivesItsOwnText) {
  const VelIPLMDmtDocument_var hDocument = FakeDocument::Create("17");
  EXPECT_EQ(Read(*hDocument, S_OK), "png|wood.png|17|\x89PNG");
}

TEST_F(VelIPLMDmtDocumentTest, Content_IsBytesWithWhateverIsAmongThem) {
  const VelIPLMDmtDocument_var hDocument = FakeDocument::Create();
  const std::string bytes("a\0\xFF\n", 4);
  FakeDocument::Of(*hDocument).content.value = bytes;
  std::string content;
  EXPECT_EQ(hDocument->GetContent(content), S_OK);
  EXPECT_EQ(content, bytes);
  FakeDocument::Of(*hDocument).content.value.clear();
  EXPECT_EQ(hDocument->GetContent(content), S_OK);
  EXPECT_EQ(content, "");
}

TEST_F(VelIPLMDmtDocumentTest, AFailure_LeavesTheArgumentAlone) {
  const VelIPLMDmtDocument_var hDocument = FakeDocument::Create();
  FakeDocument& document = FakeDocument::Of(*hDocument);
  document.format.code = document.name.code = document.identifier.code = document.content.code = E_UNEXPECTED;
  EXPECT_EQ(Read(*hDocument, E_UNEXPECTED), "(untouched)|(untouched)|(untouched)|(untouched)");
}

TEST_F(VelIPLMDmtDocumentTest, AClosedDocument_FailsWithoutBeingAsked) {
  const VelIPLMDmtDocument_var hDocument = FakeDocument::Create();
  VelObject::From(hDocument.Get())->EndLife();
  EXPECT_EQ(Read(*hDocument, E_FAIL), "(untouched)|(untouched)|(untouched)|(untouched)");
}

TEST_F(VelIPLMDmtDocumentTest, TwoDocuments_AnswerEachForItself) {
  const VelIPLMDmtDocument_var hFirst = FakeDocument::Create("1");
  const VelIPLMDmtDocument_var hSecond = FakeDocument::Create("2");
  FakeDocument::Of(*hSecond).format.value = "svg";
  EXPECT_FALSE(hFirst->IsEqual(hSecond.Get()));
  EXPECT_EQ(Read(*hFirst, S_OK), "png|wood.png|1|\x89PNG");
  EXPECT_EQ(Read(*hSecond, S_OK), "svg|wood.png|2|\x89PNG");
}

}  // namespace
