// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelDocumentProjection_test.cpp The files in which documents can be read.
#include "platform/images/VelDocumentProjection.h"

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "platform/base/VelCallOnExit.h"
#include "platform/base/system/VelSystemFile.h"
#include "platform/trace/VelDiagnostics.h"
#include "platform/trace/VelTraceService.h"
#include "tests/RenderingShader/fixtures/FakeDocument.h"
#include "tests/platform/base/system/VelTemporaryFolder.h"

namespace {

class VelDocumentProjectionTest : public ::testing::Test {
 protected:
  void SetUp() override { VelTraceService::RemoveSink(VelTraceService::StandardErrorSink()); }
  void TearDown() override {
    VelDocumentProjection::RemoveAll();
    VelTraceService::Reset();
  }

  static VelIPLMDmtDocument_var Make(const char* iIdentifier, const char* iName, const char* iFormat,
                                     const char* iContent) {
    VelIPLMDmtDocument_var hDocument = FakeDocument::Create();
    FakeDocument& document = FakeDocument::Of(*hDocument);
    document.identifier.value = iIdentifier;
    document.name.value = iName;
    document.format.value = iFormat;
    document.content.value = iContent;
    return hDocument;
  }

  static std::string PathOf(const VelIPLMDmtDocument_var& iDocument) {
    VelUnicodeString path;
    EXPECT_EQ(VelDocumentProjection::Project(*iDocument, path), S_OK);
    return std::string(path.View());
  }

  static std::string ContentOf(const std::string& iPath) {
    std::string bytes("unreadable");
    std::string cause;
    static_cast<void>(VelSystemFile::ReadWholeFile(iPath, 1 << 20U, bytes, cause));
    return bytes;
  }

  FakeDocumentBindings bindings_;
};

TEST_F(VelDocumentProjectionTest, Document_IsWrittenUnderItsName) {
  const std::string path = PathOf(Make("1", "wood.png", "png", "pixels"));
  EXPECT_EQ(std::filesystem::path(path).filename(), "wood.png");
  EXPECT_TRUE(std::filesystem::path(path).is_absolute());
  EXPECT_EQ(ContentOf(path), "pixels");
}

TEST_F(VelDocumentProjectionTest, NameWithoutAnExtension_GetsTheFormat) {
  EXPECT_EQ(std::filesystem::path(PathOf(Make("1", "wood", "SVG", "x"))).filename(), "wood.SVG");
  EXPECT_EQ(std::filesystem::path(PathOf(Make("2", "wood", "", "x"))).filename(), "wood");
  EXPECT_EQ(std::filesystem::path(PathOf(Make("3", "", "png", "x"))).filename(), "_.png");
}

TEST_F(VelDocumentProjectionTest, UnchangedDocument_IsWrittenOnce) {
  const VelIPLMDmtDocument_var hDocument = Make("1", "wood.png", "png", "pixels");
  const std::string path = PathOf(hDocument);
  const auto written = std::filesystem::last_write_time(path) - std::chrono::hours(1);
  std::filesystem::last_write_time(path, written);
  EXPECT_EQ(PathOf(hDocument), path);
  EXPECT_EQ(std::filesystem::last_write_time(path), written);
}

TEST_F(VelDocumentProjectionTest, ChangedDocument_AndOneWhoseFileIsGone_AreWrittenAgain) {
  const VelIPLMDmtDocument_var hDocument = Make("1", "wood.png", "png", "pixels");
  const std::string path = PathOf(hDocument);
  FakeDocument::Of(*hDocument).content.value = "picsels";
  EXPECT_EQ(PathOf(hDocument), path);
  EXPECT_EQ(ContentOf(path), "picsels");
  std::filesystem::remove(path);
  EXPECT_EQ(ContentOf(PathOf(hDocument)), "picsels");
}

TEST_F(VelDocumentProjectionTest, TwoDocumentsOfOneName_HaveFilesOfTheirOwn) {
  const std::string one = PathOf(Make("1", "wood.png", "png", "one"));
  const std::string two = PathOf(Make("2", "wood.png", "png", "two"));
  EXPECT_NE(one, two);
  EXPECT_EQ(ContentOf(one), "one");
  EXPECT_EQ(ContentOf(two), "two");
}

TEST_F(VelDocumentProjectionTest, DocumentsOfSimilarIdentifiers_HaveFilesOfTheirOwn) {
  const std::string half(150, 'x');
  const std::string identifiers[] = {"a/b", "a\\b", "a_b", half + "1" + half, half + "2" + half};
  std::vector<std::string> paths;
  for (const std::string& identifier : identifiers) {
    paths.push_back(PathOf(Make(identifier.c_str(), "wood.png", "png", identifier.c_str())));
  }
  for (std::size_t i = 0; i < paths.size(); ++i) EXPECT_EQ(ContentOf(paths[i]), identifiers[i]);
}

TEST_F(VelDocumentProjectionTest, HostileNames_StayInTheFolder) {
  const std::string safe = PathOf(Make("1", "wood.png", "png", "x"));
  const auto root = std::filesystem::path(safe).parent_path().parent_path();
  for (const char* name : {"../../escape.png", "/etc/passwd", "..", ".", "a\\b.png", "a\nb.png"}) {
    const std::filesystem::path path = PathOf(Make(name, name, "../png", "x"));
    EXPECT_EQ(path.lexically_normal(), path) << name;
    EXPECT_EQ(path.parent_path().parent_path(), root) << name;
    EXPECT_EQ(ContentOf(path.string()), "x") << name;
  }
}

TEST_F(VelDocumentProjectionTest, NamesThatAreTooLong_LoseTheirMiddle) {
  const std::string name = VelDocumentProjection::FileNameOf(std::string(300, 'a') + "end.png");
  EXPECT_EQ(name.size(), 200U);
  EXPECT_TRUE(name.ends_with("aend.png"));
}

TEST_F(VelDocumentProjectionTest, DocumentThatCannotBeRead_IsAnErrorAndLeavesThePath) {
  const VelIPLMDmtDocument_var hDocument = Make("1", "wood.png", "png", "pixels");
  FakeDocument::Of(*hDocument).content.code = E_FAIL;
  const VelDiagnostics diagnostics;
  VelUnicodeString path("untouched");
  EXPECT_EQ(VelDocumentProjection::Project(*hDocument, path), E_FAIL);
  EXPECT_EQ(path, "untouched");
  EXPECT_EQ(diagnostics.Entries().size(), 1U);
}

TEST_F(VelDocumentProjectionTest, Files_LieInTheFolderForTemporaryOnes_WhereThatIsAFullPath) {
  const char* const before = std::getenv("TMPDIR");
  const std::string restored = before != nullptr ? before : "";
  const VelTemporaryFolder folder;
  const std::pair<std::string, std::string> cases[] = {{folder.Path(), folder.Path()}, {".", "/tmp"}, {"", "/tmp"}};
  for (const auto& [variable, expected] : cases) {
    VelDocumentProjection::RemoveAll();
    ::setenv("TMPDIR", variable.c_str(), 1);
    EXPECT_TRUE(PathOf(Make("1", "wood.png", "png", "x")).starts_with(expected + "/velrsh-projection-")) << variable;
  }
  if (before != nullptr) {
    ::setenv("TMPDIR", restored.c_str(), 1);
  } else {
    ::unsetenv("TMPDIR");
  }
}

TEST_F(VelDocumentProjectionTest, EndOfThePlatform_RemovesTheFiles) {
  const std::string path = PathOf(Make("1", "wood.png", "png", "pixels"));
  VelPlatformTerminate();
  EXPECT_FALSE(VelSystemFile::Exists(path));
  EXPECT_FALSE(VelSystemFile::Exists(std::filesystem::path(path).parent_path().parent_path().string()));
  EXPECT_EQ(ContentOf(PathOf(Make("1", "wood.png", "png", "again"))), "again") << "and goes on";
}

}  // namespace
