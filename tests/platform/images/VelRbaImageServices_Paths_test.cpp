// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRbaImageServices_Paths_test.cpp What the image services do with paths alone: no file and no provider.
#include "platform/images/VelRbaImageServices.h"

#include <string>
#include <string_view>

#include "tests/platform/documents/MissingProviderTest.h"

namespace {

/// Nobody is there to be asked, and nobody is missed.
class VelRbaImageServicesPathsTest : public MissingProviderTest {
 protected:
  void SetUp() override {
    MissingProviderTest::SetUp();
    VelRbaImageServices::ResetWarning();
  }
  void TearDown() override {
    EXPECT_EQ(Take(), Texts{});
    MissingProviderTest::TearDown();
  }

  static Texts ItemsOf(const VelListValVelUnicodeString& iList) {
    Texts items;
    for (const VelUnicodeString& item : iList) items.emplace_back(item.View());
    return items;
  }
};

TEST_F(VelRbaImageServicesPathsTest, SplitPath_GivesFolderNameAndExtension) {
  struct Case {
    const char* name;
    const char* path;
    VelPathParts expected;
  };
  const Case cases[] = {
      {"a whole path", "/textures/wood.svg", {"/textures/", "wood", "svg"}},
      {"a relative path", "textures/wood.svg", {"textures/", "wood", "svg"}},
      {"a name alone", "wood.svg", {"", "wood", "svg"}},
      {"nothing", "", {"", "", ""}},
      {"letters as they are", "/a.SVG", {"/", "a", "SVG"}},
      {"no extension", "/textures/wood", {"/textures/", "wood", ""}},
      {"a dot in the folder only", "/textures.old/wood", {"/textures.old/", "wood", ""}},
      {"several dots", "/wood.oak.tar.gz", {"/", "wood.oak.tar", "gz"}},
      {"two dots in a row", "/wood..svg", {"/", "wood.", "svg"}},
      {"a dot at the end", "/wood.", {"/", "wood.", ""}},
      {"a hidden file", "/home/.svg", {"/home/", ".svg", ""}},
      {"a hidden file with extension", "/home/.wood.svg", {"/home/", ".wood", "svg"}},
      {"dots only", "/home/..", {"/home/", "..", ""}},
      {"many dots only", "...", {"", "...", ""}},
      {"dots, then letters", "..svg", {"", "..svg", ""}},
      {"a slash at the end", "/textures/wood.svg/", {"/textures/wood.svg/", "", ""}},
      {"the root", "/", {"/", "", ""}},
      {"backslashes", R"(C:\textures\wood.svg)", {R"(C:\textures\)", "wood", "svg"}},
      {"a backslash behind a slash", R"(/mnt/textures.d\wood)", {R"(/mnt/textures.d\)", "wood", ""}},
      {"a slash behind a backslash", R"(C:\textures/wood.png)", {R"(C:\textures/)", "wood", "png"}},
      {"the long form of a path", R"(\\?\C:\wood.svg)", {R"(\\?\C:\)", "wood", "svg"}},
      {"blanks", "/my textures/wood oak.s v g", {"/my textures/", "wood oak", "s v g"}},
      {"other scripts", "/\xC3\xA9/\xE6\x9C\xA8.svg", {"/\xC3\xA9/", "\xE6\x9C\xA8", "svg"}},
      {"ill-formed bytes", "/\xFF.\xFE", {"/", "\xFF", "\xFE"}},
  };
  for (const Case& row : cases) {
    SCOPED_TRACE(row.name);
    const VelPathParts parts = VelRbaImageServices::SplitPath(row.path);
    EXPECT_STREQ(parts.folder.CString(), row.expected.folder.CString());
    EXPECT_STREQ(parts.name.CString(), row.expected.name.CString());
    EXPECT_STREQ(parts.extension.CString(), row.expected.extension.CString());
    const VelUnicodeString dot(parts.extension.IsEmpty() ? "" : ".");
    EXPECT_STREQ((parts.folder + parts.name + dot + parts.extension).CString(), row.path) << "nothing is lost";
  }
}

TEST_F(VelRbaImageServicesPathsTest, SplitPath_KeepsBytesBehindANul) {
  const VelPathParts parts = VelRbaImageServices::SplitPath(VelUnicodeString(std::string_view("/a\0b.s\0g", 8)));
  EXPECT_EQ(parts.name.View(), std::string_view("a\0b", 3));
  EXPECT_EQ(parts.extension.View(), std::string_view("s\0g", 3));
}

TEST_F(VelRbaImageServicesPathsTest, ExtractPathList_SeparatesAtEverySemicolon) {
  struct Case {
    const char* text;
    Texts expected;
  };
  const Case cases[] = {
      {"", {}},
      {"a", {"a"}},
      {"a;b;c", {"a", "b", "c"}},
      {";", {"", ""}},
      {"a;", {"a", ""}},
      {";a", {"", "a"}},
      {"a;;b", {"a", "", "b"}},
      {" a ; b ", {" a ", " b "}},
      {"a,b|c", {"a,b|c"}},
      {"\\;", {"\\", ""}},
      {"\xE6\x9C\xA8;\xFF", {"\xE6\x9C\xA8", "\xFF"}},
  };
  for (const Case& row : cases) {
    SCOPED_TRACE(std::string("'") + row.text + "'");
    VelListValVelUnicodeString list;
    VelRbaImageServices::ExtractPathList(row.text, list);
    EXPECT_EQ(ItemsOf(list), row.expected);
  }
}

TEST_F(VelRbaImageServicesPathsTest, ExtractPathList_ComesBehindWhatTheListHolds) {
  VelListValVelUnicodeString list;
  list.Append("first");
  VelRbaImageServices::ExtractPathList("", list);
  EXPECT_EQ(ItemsOf(list), Texts{"first"});
  VelRbaImageServices::ExtractPathList("a;b", list);
  EXPECT_EQ(ItemsOf(list), (Texts{"first", "a", "b"}));
}

TEST_F(VelRbaImageServicesPathsTest, ExtractPathList_OfAnElementOfTheListItself_IsSafe) {
  // The list moves while it grows; a short text lies inside of it, a long one elsewhere.
  for (const std::string& item : {std::string("x"), std::string(64, 'x')}) {
    SCOPED_TRACE(item);
    VelListValVelUnicodeString list;
    list.Append(VelUnicodeString(item + ";" + item + ";" + item + ";" + item + ";" + item));
    VelRbaImageServices::ExtractPathList(list[1], list);
    ASSERT_EQ(list.Size(), 6);
    for (int position = 2; position <= 6; ++position) EXPECT_EQ(list[position].View(), item);
  }
}

}  // namespace
