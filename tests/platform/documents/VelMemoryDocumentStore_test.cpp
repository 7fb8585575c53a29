// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelMemoryDocumentStore_test.cpp Documents made of bytes and files, and the links that are counted on them.
#include <optional>

#include "platform/documents/VelIPLMDmtDocument.h"
#include "platform/documents/VelRbaDocumentServices.h"
#include "platform/documents/VelRbaRepLifeCycle.h"
#include "platform/featuremodeler/VelSpecDocumentLinkHooks.h"
#include "platform/objectmodeler/VelDictionary.h"
#include "platform/session/VelPlatformSession.h"
#include "platform/trace/VelDiagnostics.h"
#include "tests/platform/base/system/VelTemporaryFolder.h"
#include "tests/platform/featuremodeler/FeatureModelerTest.h"

namespace {

constexpr const char* dictionary = VEL_TEST_LIBRARY_FOLDER "/dictionaries/VelPlatformDocuments.dictionary";

class VelMemoryDocumentStoreTest : public FeatureModelerTest {
 protected:
  void SetUp() override {
    FeatureModelerTest::SetUp();
    ASSERT_EQ(VelDictionary::LoadFile(dictionary), S_OK);
  }
  void TearDown() override {
    FeatureModelerTest::TearDown();
    EXPECT_EQ(VelDictionary::Unload(dictionary), S_OK);
  }

  static std::string IdentifierOf(const VelIPLMDmtDocument_var& iDocument) {
    VelString identifier;
    EXPECT_EQ(iDocument->GetIdentifier(identifier), S_OK);
    return std::string(identifier.View());
  }

  /// How many links the store counts on a document, which it counts no more afterwards.
  static int TakeLinksOf(const VelIPLMDmtDocument_var& iDocument) {
    int links = 0;
    while (SUCCEEDED(VelRbaRepLifeCycle::RemoveReference(iDocument.Get()))) ++links;
    return links;
  }
};

TEST_F(VelMemoryDocumentStoreTest, DocumentOfBytes_GivesBackWhatItWasMadeOf) {
  const std::string bytes("\0\x89PNG", 5);
  const auto hDocument = VelRbaDocumentServices::CreateFromBytes("wood grain.png", "PnG", bytes);
  ASSERT_TRUE(hDocument);
  VelUnicodeString name;
  VelString format;
  std::string content;
  EXPECT_EQ(hDocument->GetName(name), S_OK);
  EXPECT_EQ(hDocument->GetFormatName(format), S_OK);
  EXPECT_EQ(hDocument->GetContent(content), S_OK);
  EXPECT_EQ(name, "wood grain.png");
  EXPECT_EQ(format, "PnG") << "as it was given";
  EXPECT_EQ(content, bytes);
}

TEST_F(VelMemoryDocumentStoreTest, Identifiers_AreNeverTheSame) {
  const auto hOne = VelRbaDocumentServices::CreateFromBytes("a", "png", "x");
  const auto hTwo = VelRbaDocumentServices::CreateFromBytes("a", "png", "x");
  EXPECT_NE(IdentifierOf(hOne), IdentifierOf(hTwo));
  EXPECT_EQ(IdentifierOf(hOne), IdentifierOf(hOne));
}

struct FileCase {
  const char* file;
  const char* format;
};

TEST_F(VelMemoryDocumentStoreTest, DocumentOfAFile_IsNamedAfterIt) {
  const VelTemporaryFolder folder;
  for (const FileCase& each : {FileCase{"tile.SVG", "SVG"}, {"archive.tar.gz", "gz"}, {"plain", ""}, {".hidden", ""}}) {
    const std::string path = folder.Write(each.file, "content");
    const auto hDocument = VelRbaDocumentServices::CreateFromFile(VelUnicodeString(std::string_view(path)));
    ASSERT_TRUE(hDocument) << each.file;
    VelUnicodeString name;
    VelString format;
    std::string content;
    EXPECT_EQ(hDocument->GetName(name), S_OK);
    EXPECT_EQ(hDocument->GetFormatName(format), S_OK);
    EXPECT_EQ(hDocument->GetContent(content), S_OK);
    EXPECT_EQ(name, each.file);
    EXPECT_EQ(format, each.format) << each.file;
    EXPECT_EQ(content, "content");
  }
}

TEST_F(VelMemoryDocumentStoreTest, FileThatCannotBeRead_IsAnErrorWithPathAndCause) {
  const VelDiagnostics diagnostics;
  EXPECT_FALSE(VelRbaDocumentServices::CreateFromFile("/nowhere/tile.png"));
  ASSERT_EQ(diagnostics.Entries().size(), 1U);
  EXPECT_NE(diagnostics.Entries()[0].text.find("'/nowhere/tile.png' does not become a document: "), std::string::npos)
      << diagnostics.Entries()[0].text;
}

TEST_F(VelMemoryDocumentStoreTest, Links_AreCountedDownToNone) {
  const auto hDocument = VelRbaDocumentServices::CreateFromBytes("a", "png", "x");
  EXPECT_EQ(VelRbaRepLifeCycle::RemoveReference(hDocument.Get()), E_FAIL);
  EXPECT_EQ(VelRbaRepLifeCycle::AddReference(hDocument.Get()), S_OK);
  EXPECT_EQ(VelRbaRepLifeCycle::AddReference(hDocument.Get()), S_OK);
  EXPECT_EQ(VelRbaRepLifeCycle::RemoveReference(hDocument.Get()), S_OK);
  EXPECT_EQ(VelRbaRepLifeCycle::RemoveReference(hDocument.Get()), S_OK);
  EXPECT_EQ(VelRbaRepLifeCycle::RemoveReference(hDocument.Get()), E_FAIL);
}

TEST_F(VelMemoryDocumentStoreTest, ObjectOfNoStore_IsNotCounted) {
  const VelISpecObject_var hFeature = Make("VelRmaShader");
  EXPECT_EQ(VelRbaRepLifeCycle::AddReference(hFeature.Get()), E_FAIL);
  EXPECT_EQ(VelRbaRepLifeCycle::RemoveReference(hFeature.Get()), E_FAIL);
}

TEST_F(VelMemoryDocumentStoreTest, WithoutAStore_ThereAreNoDocumentsAndOneWarning) {
  ASSERT_EQ(VelDictionary::Unload(dictionary), S_OK);
  VelRbaDocumentServices::ResetWarning();
  const VelDiagnostics diagnostics;
  EXPECT_FALSE(VelRbaDocumentServices::CreateFromBytes("a", "png", "x"));
  EXPECT_FALSE(VelRbaDocumentServices::CreateFromBytes("a", "png", "x"));
  EXPECT_EQ(diagnostics.Entries().size(), 1U);
  ASSERT_EQ(VelDictionary::LoadFile(dictionary), S_OK);
}

TEST_F(VelMemoryDocumentStoreTest, InASession_CopyingCountsAndRemovingGivesBack) {
  hContainer_ = nullptr;
  VelPlatformSession session;
  ASSERT_EQ(session.Start({.catalogs = {std::string(CatalogFolder()) + "/VelRmaCatalog.feat"}}), S_OK);
  hContainer_ = VelIContainer::Create();
  const auto hDocument = VelRbaDocumentServices::CreateFromBytes("a", "png", "x");
  const VelISpecAttrKey* const value = Key("Value", VelSpecAttrKind::Document);
  const VelISpecObject_var hTexture = Make("VelRmaTexture");
  ASSERT_EQ(Access(hTexture)->SetDocument(value, hDocument.Get()), S_OK);
  VelBaseUnknown_var hCopy;
  ASSERT_EQ(hTexture->InstanciateForCopy("", nullptr, VelISpecObject::InterfaceId(), hCopy.Receive()), S_OK);
  EXPECT_EQ(TakeLinksOf(hDocument), 1) << "the setter counts for itself, the copy is counted here";
  EXPECT_EQ(VelRbaRepLifeCycle::AddReference(hDocument.Get()), S_OK);
  EXPECT_EQ(LifeCycleObject_var(hCopy)->remove(), S_OK);
  EXPECT_EQ(TakeLinksOf(hDocument), 0);
  EXPECT_NE(VelSpecDocumentLinkHooks::Installed(), nullptr);
  hContainer_ = nullptr;
  EXPECT_EQ(session.End(), S_OK);
  EXPECT_EQ(VelSpecDocumentLinkHooks::Installed(), nullptr);
}

class HooksOfTheHost final : public VelSpecDocumentLinkHooks {
 public:
  void OnCopied(VelBaseUnknown&) override {}
  void OnDropped(VelBaseUnknown&) override {}
};

TEST_F(VelMemoryDocumentStoreTest, HooksOfTheHost_StayThroughASession) {
  HooksOfTheHost hooks;
  EXPECT_EQ(VelSpecDocumentLinkHooks::Install(&hooks), nullptr);
  VelPlatformSession session;
  ASSERT_EQ(session.Start({}), S_OK);
  EXPECT_EQ(VelSpecDocumentLinkHooks::Installed(), &hooks);
  EXPECT_EQ(session.End(), S_OK);
  EXPECT_EQ(VelSpecDocumentLinkHooks::Install(nullptr), &hooks);
}

}  // namespace
