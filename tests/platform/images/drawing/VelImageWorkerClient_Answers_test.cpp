// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageWorkerClient_Answers_test.cpp What is asked, and every way in which an answer can be wrong.
#include <algorithm>

#include "platform/images/drawing/VelImageWorkerMessage.h"
#include "tests/platform/images/drawing/VelImageWorkerTest.h"

namespace {

class VelImageWorkerClientAnswersTest : public VelImageWorkerTest {};

TEST_F(VelImageWorkerClientAnswersTest, ASoundAnswer_IsThePicture) {
  ExpectPicture();
  EXPECT_GT(client_->GetProcess(), 0) << "the program is kept";
}

TEST_F(VelImageWorkerClientAnswersTest, APictureOfFloats_KeepsItsFormatAndColourSpace) {
  EXPECT_EQ(Draw("floats", {}, VelImageKind::Hdr), S_OK) << cause_;
  EXPECT_EQ(image_.GetFormat(), VelPixelImage::Format::Rgba32F);
  EXPECT_EQ(image_.GetColorSpace(), VelPixelImage::ColorSpace::Linear);
  EXPECT_EQ(image_.Bytes().size(), 96U);
}

TEST_F(VelImageWorkerClientAnswersTest, TheRequest_TellsKindAndDpi_AndGroupsOfDrawingsAlone) {
  EXPECT_EQ(Draw("echo-request", {"a", "bc"}, VelImageKind::Svg, 300), E_FAIL);
  EXPECT_EQ(cause_, "1 1 300 5");
  EXPECT_EQ(Draw("echo-request", {"a", "bc"}, VelImageKind::WebP, 72), E_FAIL);
  EXPECT_EQ(cause_, "1 12 72 0");
}

TEST_F(VelImageWorkerClientAnswersTest, UnknownGroups_AreThoseThatWereAskedFor) {
  EXPECT_EQ(Draw("echo-names", {"one", "", "zw\xc3\xb6lf", "one"}), S_OK) << cause_;
  EXPECT_EQ(unknown_, (std::vector<std::string>{"one", "", "zw\xc3\xb6lf"}));
  EXPECT_EQ(Draw("other-names", {"one"}), S_OK) << cause_;
  EXPECT_EQ(unknown_, std::vector<std::string>{"one"});
}

TEST_F(VelImageWorkerClientAnswersTest, ARefusal_IsTheCause_AndTheProgramIsKept) {
  ExpectPicture();
  const int process = client_->GetProcess();
  EXPECT_EQ(Draw("refuse"), E_FAIL);
  EXPECT_EQ(cause_, "is a bad picture");
  EXPECT_EQ(Draw("refuse-in-lines"), E_FAIL);
  EXPECT_EQ(cause_, "is  [1mloud .");
  EXPECT_EQ(Draw("refuse-silently"), E_FAIL);
  EXPECT_EQ(cause_, "is refused without a reason");
  EXPECT_EQ(unknown_, std::vector<std::string>{"untouched"});
  ExpectPicture();
  EXPECT_EQ(client_->GetProcess(), process);
}

TEST_F(VelImageWorkerClientAnswersTest, AnswersToOtherRequests_AreSkipped) {
  ExpectPicture();
  const int process = client_->GetProcess();
  EXPECT_EQ(Draw("another-first"), S_OK) << cause_;
  ExpectPicture();
  EXPECT_EQ(client_->GetProcess(), process);
}

TEST_F(VelImageWorkerClientAnswersTest, AnAnswerToWhatWasNotAskedYet_IsNeverTaken) {
  for (int i = 0; i < 20; ++i) {
    EXPECT_EQ(Draw("answer-ahead"), S_OK) << cause_;
    ExpectPicture();
  }
}

TEST_F(VelImageWorkerClientAnswersTest, TheNumberOfARequest_CannotBeGuessedFromThoseBefore) {
  std::vector<std::uint64_t> numbers;
  for (int i = 0; i < 8; ++i) {
    EXPECT_EQ(Draw("identifier"), E_FAIL);
    const std::uint64_t number = std::stoull(cause_);
    for (const std::uint64_t earlier : numbers) EXPECT_GT(std::max(number, earlier) - std::min(number, earlier), 1000U);
    numbers.push_back(number);
  }
}

TEST_F(VelImageWorkerClientAnswersTest, AWrongAnswer_FailsWithItsCause_AndTheProgramIsStartedAnew) {
  struct Case {
    const char* word;
    const char* cause;
  };
  const Case cases[] = {
      {"wrong-version", "speaks version 2 where 1 is spoken here"},
      {"wrong-status", "sent the unknown status 2"},
      {"wrong-format", "sent the unknown format 2"},
      {"wrong-color-space", "sent the unknown colour space 3"},
      {"no-size", "sent a picture of 0 x 0 pixels, which is no size of an image"},
      {"negative-size", "sent a picture of -3 x -2 pixels, which is no size of an image"},
      {"huge-size", "sent a picture of 100000 x 100000 pixels, which is no size of an image"},
      {"large-size", "sent a picture of 16384 x 16384 pixels, which is no size of an image"},
      {"other-size", "sent a picture whose shared memory has 24 bytes where 32 were expected"},
      {"small-memory", "sent a picture whose shared memory has 23 bytes where 24 were expected"},
      {"unsealed", "sent a picture whose shared memory is not sealed against writing, growing and shrinking"},
      {"half-sealed", "sent a picture whose shared memory is not sealed against writing, growing and shrinking"},
      {"regular-file", "sent a picture whose shared memory is not memory"},
      {"endless-zeros", "sent a picture whose shared memory is not memory"},
      {"its-own-end", "sent a picture whose shared memory is not memory"},
      {"no-descriptor", "sent no memory with its picture"},
      {"two-descriptors", "sent more descriptors than one, or than there is room for"},
      {"five-descriptors", "sent more descriptors than one, or than there is room for"},
      {"refuse-with-picture", "sent a descriptor with a refusal"},
      {"trailing-junk", "sent a text of 4 bytes where it told 0, and at most 131072 are expected"},
      {"missing-text", "sent a text of 0 bytes where it told 4, and at most 131072 are expected"},
      {"long-text", "sent a text of 131073 bytes where it told 131073, and at most 131072 are expected"},
      {"long-cause", "sent a text of 16385 bytes where it told 16385, and at most 16384 are expected"},
      {"unended-names", "sent names of groups whose last one has no end"},
      {"garbage", "sent 9 bytes, where a reply has at least 40"},
      {"empty", "sent an empty message"},
      {"too-long", "sent a message of more than 163840 bytes"},
      {"others-only", "answers other requests than this one"},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.word);
    ExpectPicture();
    const std::size_t open = CountOpenDescriptors();
    const int process = client_->GetProcess();
    EXPECT_EQ(Draw(each.word), E_FAIL);
    EXPECT_EQ(cause_, std::string("the helper program velrsh-image-worker ") + each.cause);
    EXPECT_LT(taken_.count(), patient);
    EXPECT_EQ(unknown_, std::vector<std::string>{"untouched"});
    EXPECT_TRUE(image_.IsEmpty());
    EXPECT_EQ(client_->GetProcess(), 0);
    ExpectNoChild();
    ExpectPicture();
    EXPECT_NE(client_->GetProcess(), process);
    EXPECT_EQ(CountOpenDescriptors(), open);
  }
}

TEST_F(VelImageWorkerClientAnswersTest, NamesThatCannotBeSent_AreRefusedBeforeAnythingIs) {
  EXPECT_EQ(Draw("draw", {"fine", std::string("a\0b", 3)}), E_FAIL);
  EXPECT_EQ(cause_, "cannot be drawn in groups of which one has a NUL byte in its name");
  const std::vector<std::string> tooLong(2, std::string(VelImageWorkerMessage::largestText / 2, 'x'));
  EXPECT_EQ(Draw("draw", tooLong), E_FAIL);
  EXPECT_EQ(cause_, "cannot be drawn in groups whose names have more than 131072 bytes together");
  EXPECT_EQ(client_->GetProcess(), 0) << "the program is not even started";
}

TEST_F(VelImageWorkerClientAnswersTest, TheLongestNames_AreSent) {
  const std::vector<std::string> longest(2, std::string(VelImageWorkerMessage::largestText / 2 - 1, 'x'));
  EXPECT_EQ(Draw("echo-request", longest), E_FAIL);
  EXPECT_EQ(cause_, "1 1 96 131072");
}

TEST_F(VelImageWorkerClientAnswersTest, AFileThatIsNotOpen_IsRefused) {
  const VelSystemInputFile closed;
  EXPECT_EQ(client_->Draw(VelImageKind::Svg, closed, {}, 96, image_, unknown_, cause_), E_FAIL);
  EXPECT_EQ(cause_, "is not open");
}

TEST_F(VelImageWorkerClientAnswersTest, AHundredRequests_UseOneProcess) {
  ExpectPicture();
  const int process = client_->GetProcess();
  const std::size_t open = CountOpenDescriptors();
  for (int i = 0; i < 100; ++i) {
    EXPECT_EQ(Draw("process"), E_FAIL);
    EXPECT_EQ(cause_, std::to_string(process));
  }
  EXPECT_EQ(CountOpenDescriptors(), open);
}

}  // namespace
