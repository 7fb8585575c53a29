// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file WorkerProgram_Hostile_test.cpp Files that are made to do harm, given to the helper program.
#include <zlib.h>

#include <chrono>
#include <string>
#include <vector>

#include "tests/platform/images/worker/RareFiles.h"
#include "tests/platform/images/worker/SvgPicture.h"
#include "tests/platform/images/worker/WorkerProgram.h"

namespace {

using namespace std::string_literals;
using Clock = std::chrono::steady_clock;

constexpr auto mostSeconds = std::chrono::seconds(10);

std::string Repeat(std::string_view iText, std::size_t iCount) {
  std::string text;
  for (std::size_t i = 0; i < iCount; ++i) text += iText;
  return text;
}

/// Asks, and expects an answer of whatever kind in time.
WorkerAnswer AskInTime(WorkerProgram& ioProgram, const char* iName, std::string_view iFile, int iDpi = 96,
                       VelImageKind iKind = VelImageKind::Svg) {
  const auto begin = Clock::now();
  const WorkerAnswer answer = ioProgram.Ask(iKind, iFile, iDpi);
  EXPECT_LT(Clock::now() - begin, mostSeconds) << iName;
  return answer;
}

void ExpectAlive(WorkerProgram& ioProgram) {
  const WorkerAnswer answer =
      ioProgram.Ask(VelImageKind::Svg, SvgPicture::TextOf("<rect width='4' height='4' fill='red'/>"), 96);
  EXPECT_EQ(Painting::Difference(Painting(16, 16).Rectangle(0, 0, 4, 4, red), answer.picture), "") << answer.text;
}

std::string NestedUse() {
  std::string text = "<g id='a0'><rect width='1' height='1'/></g>";
  for (int i = 1; i < 12; ++i) {
    text += "<g id='a" + std::to_string(i) + "'>" + Repeat("<use xlink:href='#a" + std::to_string(i - 1) + "'/>", 10) +
            "</g>";
  }
  return SvgPicture::TextOf(text);
}

std::string NestedPatterns() {
  std::string text;
  for (int i = 1; i < 24; ++i) {
    const std::string number = std::to_string(i);
    text += "<pattern id='p" + number + "' width='0.3' height='0.3'><rect width='9' height='9' fill='url(#p" +
            std::to_string(i - 1) + ")'/><rect x='2' width='9' height='9' fill='url(#p" + std::to_string(i - 1) +
            ")'/></pattern>";
  }
  return SvgPicture::TextOf(text + "<rect width='16' height='16' fill='url(#p23)'/>");
}

std::string Attributes(int iCount) {
  std::string text;
  for (int i = 0; i < iCount; ++i) text += " a" + std::to_string(i) + "='1'";
  return text;
}

std::string GrowingEntities() {
  std::string text = "<!DOCTYPE svg [<!ENTITY a0 'ha'>";
  for (int i = 1; i < 10; ++i) {
    text += "<!ENTITY a" + std::to_string(i) + " '" + Repeat("&a" + std::to_string(i - 1) + ";", 10) + "'>";
  }
  return text + "]><svg><title>&a9;</title></svg>";
}

std::string PackedBlanks() {
  constexpr int asGzip = 16;
  constexpr int pieces = 100;
  z_stream stream{};
  EXPECT_EQ(deflateInit2(&stream, Z_BEST_SPEED, Z_DEFLATED, MAX_WBITS + asGzip, 9, Z_DEFAULT_STRATEGY), Z_OK);
  std::string blanks(std::size_t{1} << 20, ' ');
  std::string packed(std::size_t{64} << 20, '\0');
  stream.next_out = reinterpret_cast<Bytef*>(packed.data());
  stream.avail_out = static_cast<uInt>(packed.size());
  for (int i = 0; i < pieces; ++i) {
    stream.next_in = reinterpret_cast<Bytef*>(blanks.data());
    stream.avail_in = static_cast<uInt>(blanks.size());
    EXPECT_EQ(deflate(&stream, i < pieces - 1 ? Z_NO_FLUSH : Z_FINISH), i < pieces - 1 ? Z_OK : Z_STREAM_END);
  }
  packed.resize(packed.size() - stream.avail_out);
  deflateEnd(&stream);
  return packed;
}

/// Filters over filters, each over a picture of the largest size.
std::string HugeFilters() {
  return "<svg xmlns='http://www.w3.org/2000/svg' width='8192' height='8192'><filter id='f'>" +
         Repeat("<feTurbulence baseFrequency='0.01' numOctaves='16'/><feGaussianBlur stdDeviation='99'/>", 50) +
         "</filter><rect width='8192' height='8192' filter='url(#f)'/></svg>";
}

/// Groups that each need a picture of the largest size of their own.
std::string HugeGroups() {
  return "<svg xmlns='http://www.w3.org/2000/svg' width='8192' height='8192'>" + Repeat("<g opacity='0.9'>", 40) +
         "<rect width='8192' height='8192'/>" + Repeat("</g>", 40) + "</svg>";
}

TEST(WorkerProgramHostile, FilesThatTakeTooMuch_AreRefusedInTime) {
  const struct {
    const char* name;
    std::string file;
    const char* cause;
  } cases[] = {
      {"huge filters", HugeFilters(), ""},
      {"huge groups", HugeGroups(), ""},
      {"huge size", "<svg xmlns='http://www.w3.org/2000/svg' width='100000' height='100000'/>",
       "has 100000 x 100000 pixels at 96 dpi; expected at most 16384 a side and 67108864 in all"},
      {"a million elements", SvgPicture::TextOf(Repeat("<g/>", 1'000'000)),
       "has too many elements; expected at most 200000"},
      {"many rectangles", SvgPicture::TextOf(Repeat("<rect width='16' height='16'/>", 900'000)),
       "has too many elements; expected at most 200000"},
      {"deep", SvgPicture::TextOf(Repeat("<g>", 100'000)),
       "has too many elements inside each other; expected at most 200"},
      {"order 50",
       SvgPicture::TextOf("<filter id='f'><feConvolveMatrix order='50' kernelMatrix='" + Repeat("1 ", 2500) +
                          "'/></filter><rect width='16' height='16' filter='url(#f)'/>"),
       "has a filter feConvolveMatrix whose order is too large; expected at most 16"},
      {"nothing", "", "is no SVG file: line 1, column 1: no element found"},
      {"attributes", SvgPicture::TextOf("<g" + Attributes(200'000) + "/>"),
       "has an element with too many attributes; expected at most 4096"},
      {"packed blanks", PackedBlanks(), "unpacks to more than 33554432 bytes"},
      {"growing entities", GrowingEntities(), "limit on input amplification factor (from DTD and entities) breached"},
      {"a file that names another",
       "<!DOCTYPE svg [<!ENTITY e SYSTEM 'file:///etc/passwd'>]>" + SvgPicture::TextOf("&e;"), ""},
  };
  WorkerProgram program;
  for (const auto& one : cases) {
    const WorkerAnswer answer = AskInTime(program, one.name, one.file);
    EXPECT_TRUE(answer.IsRefused()) << one.name;
    EXPECT_TRUE(answer.text.ends_with(one.cause)) << one.name << ": " << answer.text;
    ExpectAlive(program);
  }
}

TEST(WorkerProgramHostile, FilesThatGrowWhileTheyAreDrawn_AreAnsweredInTime) {
  WorkerProgram program;
  const struct {
    const char* name;
    std::string file;
  } cases[] = {
      {"nested use", NestedUse()},
      {"nested patterns", NestedPatterns()},
      {"a file in the file, which nobody checks",
       SvgPicture::TextOf(
           "<image width='16' height='16' xlink:href=\"data:image/svg+xml,%3Csvg xmlns='http://www.w3.org/2000/svg' "
           "width='16' height='16'%3E%3Cfilter id='f'%3E%3CfeConvolveMatrix order='50' kernelMatrix='" +
           Repeat("1 ", 2500) +
           "'/%3E%3C/filter%3E%3Crect width='16' height='16' filter='url(%23f)'/%3E%3C/svg%3E\"/>")},
      {"itself", SvgPicture::TextOf("<xi:include xmlns:xi='http://www.w3.org/2001/XInclude' href=''/>"
                                    "<use xlink:href='#u' id='u'/>")},
      {"a huge image in the file",
       SvgPicture::TextOf(
           "<image width='16' height='16' xlink:href='data:image/png;base64,"
           "iVBORw0KGgoAAAANSUhEUgABhqAAAYagCAYAAAAfFcSJAAAADUlEQVR42mNk+M9QDwADhgGAWjR9awAAAABJRU5ErkJggg=='/>")},
  };
  for (const auto& one : cases) {
    const WorkerAnswer answer = AskInTime(program, one.name, one.file);
    EXPECT_TRUE(answer.isThere) << one.name;
    EXPECT_EQ(answer.IsRefused(), !answer.text.empty()) << one.name;
    ExpectAlive(program);
  }
}

TEST(WorkerProgramHostile, CutFiles_AreRefusedAtEveryKilobyte) {
  WorkerProgram program;
  std::string elements;
  for (int i = 0; i < 400; ++i) {
    elements +=
        "<g id='g" + std::to_string(i) + "'><path d='M0 0L" + std::to_string(i) + " 4z' style='fill:red'/></g>\n";
  }
  const std::string text = SvgPicture::TextOf(elements);
  ASSERT_GT(text.size(), 20'000U);
  EXPECT_TRUE(AskInTime(program, "whole", text).IsDone());
  for (std::size_t length = 0; length < text.size(); length += 1024) {
    const WorkerAnswer answer = AskInTime(program, "cut", std::string_view(text).substr(0, length));
    EXPECT_TRUE(answer.IsRefused()) << length;
    EXPECT_TRUE(answer.text.starts_with("is no SVG file: line ")) << answer.text;
  }
}

TEST(WorkerProgramHostile, FilesOfNoKind_AreRefused) {
  WorkerProgram program;
  std::string noise;
  std::uint32_t state = 12345;
  for (int i = 0; i < 100'000; ++i) {
    state = state * 1'664'525 + 1'013'904'223;
    noise.push_back(static_cast<char>(state >> 24));
  }
  noise[2] = '\x7F';  // Not the beginning of a TGA file by chance.
  for (const VelImageKind kind : {VelImageKind::Svg, VelImageKind::Bmp, VelImageKind::Gif, VelImageKind::Tga,
                                  VelImageKind::Pnm, VelImageKind::Ico, VelImageKind::Hdr, VelImageKind::WebP}) {
    for (const std::string& file : {noise, std::string(), "x"s, std::string(5000, '\0')}) {
      EXPECT_TRUE(AskInTime(program, NameOfImageKind(kind), file, 96, kind).IsRefused()) << NameOfImageKind(kind);
    }
  }
  ExpectAlive(program);
}

/// The side of the largest square picture. A program with the sanitizers is so slow that a quarter of it has to do.
constexpr int LargestSide() {
#if defined(__SANITIZE_ADDRESS__)
  return 4096;
#elif defined(__has_feature)
  return __has_feature(address_sanitizer) ? 4096 : 8192;
#else
  return 8192;
#endif
}

TEST(WorkerProgramHostile, LargePictures_AreMadeWithinTheMemory) {
  constexpr int side = LargestSide();
  constexpr auto count = static_cast<std::size_t>(side) * side;
  const std::string length = std::to_string(side);
  WorkerProgram program;
  const WorkerAnswer drawn =
      AskInTime(program, "drawn",
                "<svg xmlns='http://www.w3.org/2000/svg' width='" + length + "' height='" + length +
                    "'><g opacity='0.5'><rect width='100%' height='100%' fill='red'/></g></svg>");
  EXPECT_TRUE(drawn.IsDone()) << drawn.text;
  EXPECT_EQ(drawn.bytes.size(), 4 * count);
  const std::string pixels(3 * count, '\x80');
  const WorkerAnswer read =
      AskInTime(program, "read", "P6 " + length + " " + length + " 255\n" + pixels, 0, VelImageKind::Pnm);
  EXPECT_TRUE(read.IsDone()) << read.text;
  const std::string floats(2 * count, '\x80');
  const WorkerAnswer linear =
      AskInTime(program, "floats", RareFiles::Hdr(side, side / 2, floats), 0, VelImageKind::Hdr);
  EXPECT_TRUE(linear.IsDone()) << linear.text;
  const std::string tooMany(std::size_t{4} << 26, '\x80');
  const WorkerAnswer refused =
      AskInTime(program, "too many", RareFiles::Hdr(8192, 8192, tooMany), 0, VelImageKind::Hdr);
  EXPECT_TRUE(refused.IsRefused());
  EXPECT_NE(refused.text.find("memory"), std::string::npos) << refused.text;
  ExpectAlive(program);
}

}  // namespace
