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

TEST(WorkerProgram, Scratch) {
  WorkerProgram program;
  const char* texts[] = {
      "<svg xmlns='http://www.w3.org/2000/svg' width='80' height='40'><text y='30' font-size='30' "
      "font-family='serif'>Agx</text></svg>",
      "<svg xmlns='http://www.w3.org/2000/svg' width='80' height='40'><text y='30' font-size='30' font-style='italic' "
      "font-weight='bold' font-family='Helvetica Neue'>Agx</text></svg>",
      "<svg xmlns='http://www.w3.org/2000/svg' width='80' height='40'><text y='30' font-size='21' font-weight='100' "
      "font-family='monospace'>A\xe4\xbd\xa0</text></svg>",
      "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' width='8' height='4'><image "
      "width='8' height='4' "
      "xlink:href='data:image/"
      "png;base64,iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAYAAAAfFcSJAAAADUlEQVR42mNk+M9QDwADhgGAWjR9awAAAABJRU5ErkJggg=='/></"
      "svg>",
      "<svg xmlns='http://www.w3.org/2000/svg' width='80' height='40'><filter id='f'><feTurbulence "
      "baseFrequency='0.1'/><feGaussianBlur "
      "stdDeviation='3'/><feDiffuseLighting><feDistantLight/></feDiffuseLighting></filter><rect width='80' height='40' "
      "filter='url(#f)'/></svg>",
      "<?xml version='1.0' encoding='windows-1252'?><svg xmlns='http://www.w3.org/2000/svg' width='80' "
      "height='40'><text y='30' font-size='30'>\xe4</text></svg>",
  };
  for (const char* text : texts) {
    const WorkerAnswer answer = program.Ask(VelImageKind::Svg, text, 96);
    int count = 0;
    double a = 0;
    for (int y = 0; y < answer.picture.Height(); ++y)
      for (int x = 0; x < answer.picture.Width(); ++x) {
        count += answer.picture.At(x, y).alpha > 0;
        a += answer.picture.At(x, y).alpha;
      }
    std::printf("%s: %d %g %s\n", std::string(text).substr(60, 60).c_str(), count, a, answer.text.c_str());
  }
}

}  // namespace
