// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file WorkerProgram_test.cpp The helper program from outside: requests, answers and its end.
#include "tests/platform/images/worker/WorkerProgram.h"

#include <fcntl.h>
#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <cstring>
#include <string>

#include "tests/platform/images/worker/RareFiles.h"
#include "tests/platform/images/worker/SvgPicture.h"

namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;
using VelImageWorkerMessage::Request;

constexpr std::string_view twoRectangles =
    "<svg xmlns='http://www.w3.org/2000/svg' width='8' height='4'><g id='a'><rect width='4' height='4' fill='red'/></g>"
    "<g id='b'><rect x='4' width='4' height='4' fill='blue'/></g></svg>";

Painting BothRectangles() { return Painting(8, 4).Rectangle(0, 0, 4, 4, red).Rectangle(4, 0, 4, 4, blue); }

void ExpectAlive(WorkerProgram& ioProgram) {
  const WorkerAnswer answer = ioProgram.Ask(VelImageKind::Svg, twoRectangles, 96);
  EXPECT_TRUE(answer.IsDone()) << answer.text;
  EXPECT_EQ(Painting::Difference(BothRectangles(), answer.picture, 0), "");
}

double InkOf(const Painting& iPicture) {
  double ink = 0;
  for (int y = 0; y < iPicture.Height(); ++y) {
    for (int x = 0; x < iPicture.Width(); ++x) ink += iPicture.At(x, y).alpha;
  }
  return ink;
}

TEST(WorkerProgram, AnSvgFile_IsAnsweredByItsPicture) {
  WorkerProgram program;
  const WorkerAnswer answer = program.Ask(VelImageKind::Svg, twoRectangles, 96);
  ASSERT_TRUE(answer.IsDone()) << answer.text;
  EXPECT_EQ(answer.text, "");
  EXPECT_EQ(answer.reply.format, 0U);
  EXPECT_EQ(answer.reply.colorSpace, 1U);
  EXPECT_EQ(Painting::Difference(BothRectangles(), answer.picture, 0), "");
}

TEST(WorkerProgram, NamesOfGroups_ChooseWhatIsDrawn) {
  WorkerProgram program;
  const WorkerAnswer part = program.Ask(VelImageKind::Svg, twoRectangles, 192, {"b", "unknown"});
  EXPECT_EQ(part.text, "");
  EXPECT_EQ(Painting::Difference(Painting(16, 8).Rectangle(8, 0, 8, 8, blue), part.picture, 0), "");
  const WorkerAnswer none = program.Ask(VelImageKind::Svg, twoRectangles, 96, {"y", "x"});
  EXPECT_TRUE(none.IsDone());
  EXPECT_EQ(none.text, "x\0y\0"s);
  EXPECT_EQ(Painting::Difference(Painting(8, 4), none.picture, 0), "");
}

TEST(WorkerProgram, UnknownNames_AreAllListedHoweverLongTheyAre) {
  WorkerProgram program;
  const std::string longest(VelImageWorkerMessage::largestText - 1, 'x');
  const WorkerAnswer one = program.Ask(VelImageKind::Svg, twoRectangles, 96, {longest});
  EXPECT_TRUE(one.IsDone());
  EXPECT_TRUE(one.text == longest + '\0');
  std::vector<std::string> names;
  std::string list;
  for (int i = 10'000; i < 30'000; ++i) {
    names.push_back(std::to_string(i));
    list.append(names.back()).push_back('\0');
  }
  const WorkerAnswer many = program.Ask(VelImageKind::Svg, twoRectangles, 96, names);
  EXPECT_TRUE(many.IsDone());
  EXPECT_TRUE(many.text == list);
}

TEST(WorkerProgram, TheRarerFormats_AreDecodedInTheConfinedProcess) {
  using namespace RareFiles;
  WorkerProgram program;
  const Painting expected = Painting(2, 1).Rectangle(0, 0, 1, 1, red).Rectangle(1, 0, 1, 1, blue);
  const struct {
    VelImageKind kind;
    std::string file;
  } cases[] = {
      {VelImageKind::Bmp, Bmp(2, 1, 32, "", "\0\0\xFF\0\xFF\0\0\0"sv)},
      {VelImageKind::Tga, Tga(2, 2, 1, 24, 0, "", "\0\0\xFF\xFF\0\0"sv)},
      {VelImageKind::Pnm, "P6 2 1 255\n\xFF\0\0\0\0\xFF"s},
      {VelImageKind::Gif, Gif(2, 1, GifFrame(0, 0, 2, 1, {1, 3}))},
      {VelImageKind::Ico, Ico({Icon32(2, 1, "\0\0\xFF\xFF\xFF\0\0\xFF"sv)})},
  };
  for (const auto& one : cases) {
    const WorkerAnswer answer = program.Ask(one.kind, one.file);
    EXPECT_TRUE(answer.IsDone()) << NameOfImageKind(one.kind) << answer.text;
    EXPECT_EQ(Painting::Difference(expected, answer.picture, 0), "") << NameOfImageKind(one.kind);
  }
  const WorkerAnswer floats = program.Ask(VelImageKind::Hdr, Hdr(1, 1, "\x80\x40\x20\x81"sv));
  ASSERT_TRUE(floats.IsDone()) << floats.text;
  EXPECT_EQ(floats.reply.format, 1U);
  EXPECT_EQ(floats.reply.colorSpace, 2U);
  std::array<float, 4> pixel{};
  ASSERT_EQ(floats.bytes.size(), sizeof pixel);
  std::memcpy(pixel.data(), floats.bytes.data(), sizeof pixel);
  EXPECT_EQ(pixel, (std::array<float, 4>{1, 0.5F, 0.25F, 1}));
}

// How letters look depends on the machine. That they are letters, and thicker ones where bold is asked for, does not.
TEST(WorkerProgram, Text_IsDrawnInTheConfinedProcess) {
  WorkerProgram program;
  const auto inkOf = [&](const std::string& iAttributes, const std::string& iLetters) {
    const std::string text = "<text x='1' y='12' font-size='12' " + iAttributes + ">" + iLetters + "</text>";
    const WorkerAnswer answer = program.Ask(VelImageKind::Svg, SvgPicture::TextOf(text), 300);
    EXPECT_TRUE(answer.IsDone()) << answer.text;
    return InkOf(answer.picture);
  };
  for (const char* family : {"sans-serif", "serif", "monospace", "No Such Family", "DejaVu Sans"}) {
    const std::string attribute = "font-family='" + std::string(family) + "'";
    const double regular = inkOf(attribute, "W");
    EXPECT_GT(regular, 100) << family;
    EXPECT_LT(inkOf(attribute, "i"), 0.7 * regular) << family;
    EXPECT_GT(inkOf(attribute + " font-weight='bold'", "W"), 1.1 * regular) << family;
    EXPECT_GT(inkOf(attribute + " font-style='italic'", "W"), 0.5 * regular) << family;
  }
}

TEST(WorkerProgram, FiltersAndImagesInTheFile_AreDrawnInTheConfinedProcess) {
  WorkerProgram program;
  const WorkerAnswer filtered = program.Ask(
      VelImageKind::Svg,
      SvgPicture::TextOf("<filter id='f'><feTurbulence baseFrequency='0.1'/><feGaussianBlur stdDeviation='3'/>"
                         "<feDiffuseLighting><feDistantLight/></feDiffuseLighting></filter>"
                         "<rect width='16' height='16' filter='url(#f)'/>"),
      96);
  ASSERT_TRUE(filtered.IsDone()) << filtered.text;
  EXPECT_DOUBLE_EQ(InkOf(filtered.picture), 256);
  // One half transparent red pixel as a PNG file.
  const WorkerAnswer image =
      program.Ask(VelImageKind::Svg,
                  SvgPicture::TextOf(
                      "<image width='4' height='4' xlink:href='data:image/png;base64,iVBORw0KGgoAAAANSUhEUgAAAAEAAAAB"
                      "CAYAAAAfFcSJAAAADUlEQVR42mNk+M9QDwADhgGAWjR9awAAAABJRU5ErkJggg=='/>"),
                  96);
  ASSERT_TRUE(image.IsDone()) << image.text;
  EXPECT_GT(InkOf(image.picture), 0);
}

TEST(WorkerProgram, WrongRequests_AreRefusedAndTheNextOneIsAnswered) {
  WorkerProgram program;
  const VelSystemDescriptor file = WorkerProgram::FileOf(twoRectangles);
  Request right;
  right.kind = static_cast<std::uint32_t>(VelImageKind::Svg);
  right.identifier = 77;
  right.dpi = 96;
  const auto refuses = [&](const Request& iRequest, std::string_view iText, int iFile, std::string_view iCause) {
    program.Send(std::as_bytes(std::span(&iRequest, 1)), iText, iFile);
    const WorkerAnswer answer = program.Receive();
    EXPECT_TRUE(answer.IsRefused());
    EXPECT_EQ(answer.reply.identifier, 77U);
    EXPECT_EQ(answer.text, iCause);
  };
  Request wrong = right;
  wrong.version = 2;
  refuses(wrong, "", file.Get(), "was asked for in another version of the messages");
  wrong = right;
  wrong.textLength = 3;
  refuses(wrong, "", file.Get(), "was asked for by a message of a wrong length");
  refuses(wrong, "abc", file.Get(), "was asked for with a name that has no end");
  refuses(right, "a\0"sv, file.Get(), "was asked for by a message of a wrong length");
  refuses(right, "", -1, "was asked for without the open file");
  wrong = right;
  wrong.kind = static_cast<std::uint32_t>(VelImageKind::Png);
  refuses(wrong, "", file.Get(), "is a file of kind PNG, which is not read here");
  wrong.kind = 4'000'000'000;
  refuses(wrong, "", file.Get(), "is a file of kind unknown, which is not read here");
  wrong = right;
  wrong.dpi = 0;
  refuses(wrong, "", file.Get(), "is asked for at 0 dpi; expected 1 to 4800");
  ExpectAlive(program);
}

TEST(WorkerProgram, MessagesThatAreNoRequests_AreRefusedWithoutANumber) {
  WorkerProgram program;
  for (const std::size_t length : {std::size_t{1}, sizeof(Request) - 1, VelSystemChannel::largestMessage + 1}) {
    program.Send({}, std::string(length, 'x'), -1);
    const WorkerAnswer answer = program.Receive();
    EXPECT_TRUE(answer.IsRefused());
    EXPECT_EQ(answer.reply.identifier, 0U);
  }
  ExpectAlive(program);
}

TEST(WorkerProgram, WhatIsNoRegularFile_IsRefused) {
  WorkerProgram program;
  for (const char* path : {"/dev/zero", "/"}) {
    const VelSystemDescriptor file(::open(path, O_RDONLY | O_CLOEXEC));
    program.SendRequest(VelImageKind::Svg, 5, 96, "", file.Get());
    EXPECT_TRUE(program.Receive().IsRefused()) << path;
  }
  ExpectAlive(program);
}

TEST(WorkerProgram, ItsEnd_FollowsTheEndOfTheLine) {
  WorkerProgram program;
  ExpectAlive(program);
  program.Channel().Close();
  EXPECT_TRUE(program.Child().AwaitEnd(5000));
  EXPECT_EQ(program.Child().GetEnd(), "ended with code 0");
}

TEST(WorkerProgram, StartedByHand_ItSaysWhatItIsFor) {
  FILE* output = ::popen(VEL_TEST_WORKER " 2>&1 3<&-", "r");
  ASSERT_NE(output, nullptr);
  std::array<char, 1000> words{};
  const std::size_t length = std::fread(words.data(), 1, words.size(), output);
  const int status = ::pclose(output);
  EXPECT_TRUE(WIFEXITED(status));
  EXPECT_EQ(WEXITSTATUS(status), 2);
  EXPECT_EQ(std::string_view(words.data(), length),
            "velrsh-image-worker draws images for a program of VelRshModel, which starts it; it is not for use by hand "
            "(its descriptor 3 is not a sequenced-packet socket).\n");
}

}  // namespace
