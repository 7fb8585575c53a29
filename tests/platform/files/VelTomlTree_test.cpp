// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTomlTree_test.cpp The tables, arrays and values of TOML texts, and where they stand.
#include "platform/files/VelTomlTree.h"

#include <array>
#include <string>

#include <gtest/gtest.h>

namespace {

constexpr std::array kinds{"table", "array", "text", "integer", "real", "boolean", "moment"};

/// @return a line a node, "place of the one around it, kind name=text key position", or "line:column: cause"
std::string Read(const std::string& iText) {
  std::vector<VelConfigurationNode> nodes{{}};
  VelConfigurationFault fault;
  if (!VelTomlTree::Read(iText, nodes, fault)) {
    EXPECT_EQ(nodes.size(), 1U) << "untouched";
    return std::to_string(fault.line) + ':' + std::to_string(fault.column) + ": " + fault.cause;
  }
  std::string text;
  for (const VelConfigurationNode& node : nodes) {
    text += node.parent == VelConfigurationNode::noParent ? "-" : std::to_string(node.parent);
    text += std::string(" ") + kinds[static_cast<std::size_t>(node.kind)] + ' ' + node.name + '=' + node.text;
    text += ' ' + std::to_string(node.key.line) + ':' + std::to_string(node.key.column);
    text += ' ' + std::to_string(node.position.line) + ':' + std::to_string(node.position.column) + '\n';
  }
  return text;
}

struct Case {
  const char* name;
  std::string text;
  std::string expected;
};

TEST(VelTomlTreeTest, Nodes_StandBehindTheOneAroundThemInTheOrderOfTheText) {
  const Case cases[] = {
      {"nothing", "# only this\n", ""},
      {"values", "z = 'x'\ny = -1\nx = 1.50\nw = true\nv = 2026-01-01\nu = 10:00:00\n",
       "- text z=x 1:1 1:5\n- integer y=-1 2:1 2:5\n- real x=1.5 3:1 3:5\n- boolean w=true 4:1 4:5\n"
       "- moment v=a date 5:1 5:5\n- moment u=a time 6:1 6:5\n"},
      {"reals", "a = inf\nb = -inf\nc = nan\nd = 1e300\n",
       "- real a=inf 1:1 1:5\n- real b=-inf 2:1 2:5\n- real c=nan 3:1 3:5\n- real d=1e+300 4:1 4:5\n"},
      {"array", "a = [1, ['x'], {}]\n",
       "- array a= 1:1 1:5\n0 integer =1 1:6 1:6\n0 array = 1:9 1:9\n2 text =x 1:10 1:10\n0 table = 1:16 1:16\n"},
      {"arrays of tables", "[[p]]\nb = 1\na = 2\n[[p]]\n[p.t]\nc = 3\n",
       "- array p= 1:3 1:1\n0 table = 1:1 1:1\n1 integer b=1 2:1 2:5\n1 integer a=2 3:1 3:5\n0 table = 4:1 4:1\n"
       "4 table t= 5:4 5:1\n5 integer c=3 6:1 6:5\n"},
      {"dotted keys and inline tables", "a.b = 1\nc = { d = 2 }\n",
       "- table a= 1:1 1:1\n0 integer b=1 1:3 1:7\n- table c= 2:1 2:5\n2 integer d=2 2:7 2:11\n"},
      {"a table opened again", "[b.x]\nk = 1\n[a]\n[b.w]\nk = 2\n",
       "- table b= 1:2 1:1\n0 table x= 1:4 1:1\n1 integer k=1 2:1 2:5\n0 table w= 4:4 4:1\n3 integer k=2 5:1 5:5\n"
       "- table a= 3:2 3:1\n"},
      {"columns in characters", "\"\xC3\xA4\" = { k = 1 }\n", "- table \xC3\xA4= 1:1 1:7\n0 integer k=1 1:9 1:13\n"},
      {"empty names", "\"\" = 1\n", "- integer =1 1:1 1:6\n"},
  };
  for (const Case& test : cases) EXPECT_EQ(Read(test.text), test.expected) << test.name;
}

TEST(VelTomlTreeTest, FaultyTexts_AreRefusedWithThePlace) {
  const Case cases[] = {
      {"no text", "a = \n", "1:5: Error while parsing key-value pair: expected value, saw '\\n'"},
      {"parts", "\n a" + std::string(2 * 32, '.') + "\n", "2:34: a key has more than 32 parts"},
      {"depth", "a = " + std::string(33, '['), "1:37: tables and arrays stand more than 32 deep in each other"},
  };
  for (const Case& test : cases) EXPECT_EQ(Read(test.text), test.expected) << test.name;
}

TEST(VelTomlTreeTest, ManyValues_AreReadOneByOne) {
  std::string text = "a = [";
  for (int i = 0; i < 100000; ++i) text += "1,";
  std::vector<VelConfigurationNode> nodes;
  VelConfigurationFault fault;
  ASSERT_TRUE(VelTomlTree::Read(text + "]\n", nodes, fault)) << fault.cause;
  EXPECT_EQ(nodes.size(), 100001U);
  EXPECT_EQ(nodes.back().position.column, 200004U);
}

}  // namespace
