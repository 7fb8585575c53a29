// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file WorkerProgram_test.cpp The helper program from outside: requests, answers and its end.
#include "tests/platform/images/worker/WorkerProgram.h"

#include <cstdio>
#include <string>

namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;

constexpr std::string_view twoRectangles =
    "<svg xmlns='http://www.w3.org/2000/svg' width='8' height='4'><g id='a'><rect width='4' height='4' fill='red'/></g>"
    "<g id='b'><rect x='4' width='4' height='4' fill='blue'/></g></svg>";

TEST(WorkerProgram, AnSvgFile_IsAnsweredByItsPicture) {
  WorkerProgram program;
  const WorkerAnswer answer = program.Ask(VelImageKind::Svg, twoRectangles, 96);
  ASSERT_TRUE(answer.IsDone()) << answer.text;
  EXPECT_EQ(answer.text, "");
  EXPECT_EQ(answer.reply.format, 0U);
  EXPECT_EQ(answer.reply.colorSpace, 1U);
  const Painting expected = Painting(8, 4).Rectangle(0, 0, 4, 4, red).Rectangle(4, 0, 4, 4, blue);
  EXPECT_EQ(Painting::Difference(expected, answer.picture, 0), "");
}

}  // namespace
