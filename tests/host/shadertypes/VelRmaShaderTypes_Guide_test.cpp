// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaShaderTypes_Guide_test.cpp That the guides tell every word which a file of a shader type may have.
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

using Words = std::vector<std::string>;

std::string TextOf(const std::filesystem::path& iPath) {
  std::ifstream file(iPath);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// @param[in] iBegin what stands before the word in each row of the table
/// @return the words of the rows that have a meaning, in order
Words RowsOf(const char* iGuide, const std::string& iHeader, const std::string& iBegin) {
  std::ifstream file(iGuide);
  const std::regex row(iBegin + "`([^`]+)` \\| [^|]+ \\|.*");
  Words words;
  std::string line;
  while (std::getline(file, line) && line != iHeader) continue;
  std::getline(file, line);
  while (std::getline(file, line) && line.starts_with('|')) {
    std::smatch parts;
    words.push_back(std::regex_match(line, parts, row) ? parts[1].str() : line);
  }
  return words;
}

TEST(VelRmaShaderTypesGuideTest, EveryTag_HasAMeaning) {
  const Words tags{
#define VEL_RSH_TAG(Enumerator, Word) Word,
#include "RenderingShader/interfaces/VelRshTags.def"
#undef VEL_RSH_TAG
  };
  EXPECT_EQ(RowsOf(VEL_TEST_GUIDE, "| tag | on | is for |", "\\| "), tags);
}

TEST(VelRmaShaderTypesGuideTest, EverySlot_HasItsNumberAndAMeaning) {
  const Words slots{
#define VEL_RSH_SLOT(Text, Number) Text,
#include "RenderingShader/VelRshModel.m/src/services/VelRshSlots.def"
#undef VEL_RSH_SLOT
  };
  const Words numbers{
#define VEL_RSH_SLOT(Text, Number) #Number,
#include "RenderingShader/VelRshModel.m/src/services/VelRshSlots.def"
#undef VEL_RSH_SLOT
  };
  const std::string header = "| number | slot | holds |";
  EXPECT_EQ(RowsOf(VEL_TEST_MATERIALS_GUIDE, header, "\\| [0-9]+ \\| "), slots);
  for (std::size_t i = 0; i < slots.size(); ++i) {
    const Words rows = RowsOf(VEL_TEST_MATERIALS_GUIDE, header, "\\| " + numbers[i] + " \\| ");
    ASSERT_GT(rows.size(), i);
    EXPECT_EQ(rows[i], slots[i]) << "the number of the row";
  }
}

TEST(VelRmaShaderTypesGuideTest, EveryKindOfAShippedLayout_IsNamed) {
  const std::string guide = TextOf(VEL_TEST_GUIDE);
  const std::regex kind("kind = \"([^\"]+)\"");
  for (const auto& entry : std::filesystem::directory_iterator(VEL_TEST_SHADER_TYPES)) {
    const std::string type = TextOf(entry.path());
    for (std::sregex_iterator found(type.begin(), type.end(), kind); found != std::sregex_iterator(); ++found) {
      EXPECT_NE(guide.find('`' + (*found)[1].str() + '`'), std::string::npos) << (*found)[1].str();
    }
  }
}

}  // namespace
