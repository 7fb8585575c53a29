// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemChannel_test.cpp Messages between two ends, and what a hostile end may try.
#include "platform/base/system/VelSystemChannel.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <cstring>
#include <vector>

#include <gtest/gtest.h>

#include "tests/platform/base/system/VelOpenDescriptors.h"

namespace {

constexpr int soon = 20;
constexpr int patient = 5000;

std::span<const std::byte> BytesOf(std::string_view iText) { return std::as_bytes(std::span(iText)); }

class VelSystemChannelTest : public ::testing::Test {
 protected:
  void SetUp() override { ASSERT_EQ(VelSystemChannel::CreatePair(one_, other_, cause_), S_OK) << cause_; }

  void TearDown() override {
    one_.Close();
    other_.Close();
    received_ = VelSystemDescriptor();
    EXPECT_EQ(CountOpenDescriptors(), openBefore_) << "a descriptor is left open";
  }

  HRESULT Receive(int iTimeout = patient) { return one_.Receive(message_, received_, iTimeout, cause_); }

  /// Sends descriptors past the channel's own operation, which sends one at the most.
  void SendDescriptors(std::size_t iCount, std::string_view iText) const {
    std::vector<int> descriptors(iCount, STDERR_FILENO);
    std::vector<char> control(CMSG_SPACE(iCount * sizeof(int)));
    iovec part{const_cast<char*>(iText.data()), iText.size()};
    msghdr message{};
    message.msg_iov = &part;
    message.msg_iovlen = 1;
    message.msg_control = control.data();
    message.msg_controllen = control.size();
    cmsghdr* head = CMSG_FIRSTHDR(&message);
    head->cmsg_level = SOL_SOCKET;
    head->cmsg_type = SCM_RIGHTS;
    head->cmsg_len = CMSG_LEN(iCount * sizeof(int));
    std::memcpy(CMSG_DATA(head), descriptors.data(), iCount * sizeof(int));
    EXPECT_GE(::sendmsg(other_.GetDescriptor(), &message, MSG_NOSIGNAL), 0);
  }

  std::size_t openBefore_ = CountOpenDescriptors();
  VelSystemChannel one_;
  VelSystemChannel other_;
  std::string message_ = "untouched";
  VelSystemDescriptor received_;
  std::string cause_ = "untouched";
};

TEST_F(VelSystemChannelTest, Send_PutsTheTextBehindTheHead_AndReceiveGivesMessagesOneByOne) {
  EXPECT_EQ(other_.Send(BytesOf("head "), std::string_view("te\0xt", 5), -1, soon, cause_), S_OK);
  EXPECT_EQ(other_.Send(BytesOf("second"), {}, -1, soon, cause_), S_OK);
  EXPECT_EQ(Receive(), S_OK);
  EXPECT_EQ(message_, std::string("head te\0xt", 10));
  EXPECT_FALSE(received_.IsOpen());
  EXPECT_EQ(Receive(), S_OK);
  EXPECT_EQ(message_, "second");
  EXPECT_EQ(cause_, "untouched");
}

TEST_F(VelSystemChannelTest, ADescriptorComesAlong_ClosedForStartedPrograms) {
  int ends[2];
  ASSERT_EQ(::pipe(ends), 0);
  const VelSystemDescriptor reading(ends[0]);
  {
    const VelSystemDescriptor writing(ends[1]);
    EXPECT_EQ(other_.Send(BytesOf("x"), {}, writing.Get(), soon, cause_), S_OK);
  }
  EXPECT_EQ(Receive(), S_OK);
  ASSERT_TRUE(received_.IsOpen());
  EXPECT_EQ(::fcntl(received_.Get(), F_GETFD), FD_CLOEXEC);
  EXPECT_EQ(::write(received_.Get(), "through", 7), 7);
  char bytes[8]{};
  EXPECT_EQ(::read(reading.Get(), bytes, 7), 7);
  EXPECT_STREQ(bytes, "through");
}

TEST_F(VelSystemChannelTest, Receive_WithoutAMessage_IsBackInTime) {
  const auto begin = std::chrono::steady_clock::now();
  EXPECT_EQ(Receive(soon), S_FALSE);
  const auto taken = std::chrono::steady_clock::now() - begin;
  EXPECT_GE(taken, std::chrono::milliseconds(soon));
  EXPECT_LT(taken, std::chrono::milliseconds(patient));
  EXPECT_EQ(message_, "untouched");
  EXPECT_EQ(cause_, "untouched");
}

TEST_F(VelSystemChannelTest, Receive_OfWhatWasSentBeforeTheEnd_ComesBeforeTheEnd) {
  EXPECT_EQ(other_.Send(BytesOf("last"), {}, -1, soon, cause_), S_OK);
  other_.Close();
  EXPECT_EQ(Receive(), S_OK);
  EXPECT_EQ(message_, "last");
  EXPECT_EQ(Receive(), E_UNEXPECTED);
  EXPECT_EQ(cause_, "has closed the channel");
  EXPECT_FALSE(one_.HasLostMessages());
}

TEST_F(VelSystemChannelTest, AnEndThatDidNotReadAll_IsToldFromOneThatDid) {
  EXPECT_EQ(one_.Send(BytesOf("unread"), {}, -1, soon, cause_), S_OK);
  other_.Close();
  EXPECT_EQ(Receive(), E_UNEXPECTED);
  EXPECT_TRUE(one_.HasLostMessages());
}

TEST_F(VelSystemChannelTest, Send_ToAClosedEnd_RaisesNoSignal) {
  other_.Close();
  EXPECT_EQ(one_.Send(BytesOf("x"), {}, -1, patient, cause_), E_UNEXPECTED);
  EXPECT_EQ(cause_, "has closed the channel");
}

TEST_F(VelSystemChannelTest, Send_ToAnEndThatNeverReads_IsBackInTime) {
  const std::string text(std::size_t{64} * 1024, 'x');
  HRESULT result = S_OK;
  for (int i = 0; i < 1000 && result == S_OK; ++i) result = other_.Send({}, text, -1, soon, cause_);
  EXPECT_EQ(result, E_FAIL);
  EXPECT_EQ(cause_, "did not read what was sent to it in time");
}

TEST_F(VelSystemChannelTest, TheLargestMessagePasses_AndAByteMoreDoesNot) {
  const std::string largest(VelSystemChannel::largestMessage, 'x');
  EXPECT_EQ(other_.Send({}, largest, -1, soon, cause_), S_OK) << cause_;
  EXPECT_EQ(Receive(), S_OK);
  EXPECT_EQ(message_, largest);
  EXPECT_EQ(other_.Send(BytesOf("y"), largest, STDERR_FILENO, soon, cause_), S_OK);
  EXPECT_EQ(Receive(), E_FAIL);
  EXPECT_EQ(cause_, "sent a message of more than 163840 bytes");
  EXPECT_FALSE(received_.IsOpen());
}

TEST_F(VelSystemChannelTest, SurplusDescriptors_AreAllClosedAndTheMessageRefused) {
  for (const std::size_t count : {2U, 3U, 5U, 253U}) {
    const std::size_t before = CountOpenDescriptors();
    SendDescriptors(count, "many");
    EXPECT_EQ(Receive(), E_FAIL) << count;
    EXPECT_EQ(cause_, "sent more descriptors than one, or than there is room for") << count;
    EXPECT_EQ(CountOpenDescriptors(), before) << count;
  }
  EXPECT_EQ(other_.Send(BytesOf("next"), {}, -1, soon, cause_), S_OK);
  EXPECT_EQ(Receive(), S_OK);
  EXPECT_EQ(message_, "next");
}

TEST_F(VelSystemChannelTest, AnEmptyMessage_IsRefusedAndNoEnd) {
  EXPECT_EQ(other_.Send({}, {}, -1, soon, cause_), S_OK);
  EXPECT_EQ(Receive(), E_FAIL);
  EXPECT_EQ(cause_, "sent an empty message");
  SendDescriptors(1, "");
  EXPECT_EQ(Receive(), E_FAIL);
  EXPECT_FALSE(received_.IsOpen());
  EXPECT_EQ(Receive(soon), S_FALSE);
}

TEST_F(VelSystemChannelTest, Receive_ClosesWhatTheCallerStillHeld) {
  received_ = VelSystemDescriptor(::dup(STDERR_FILENO));
  EXPECT_EQ(Receive(soon), S_FALSE);
  EXPECT_FALSE(received_.IsOpen());
}

TEST_F(VelSystemChannelTest, AnEndThatIsNotOpen_SendsAndReceivesNothing) {
  one_.Close();
  EXPECT_EQ(one_.Send(BytesOf("x"), {}, -1, soon, cause_), E_UNEXPECTED);
  EXPECT_EQ(Receive(), E_UNEXPECTED);
  EXPECT_EQ(one_.GetDescriptor(), -1);
}

TEST_F(VelSystemChannelTest, Adopt_TakesAnEndAndKeepsItFromStartedPrograms) {
  const int descriptor = ::dup(other_.GetDescriptor());
  VelSystemChannel adopted;
  EXPECT_EQ(adopted.Adopt(descriptor, cause_), S_OK);
  EXPECT_EQ(adopted.GetDescriptor(), descriptor);
  EXPECT_EQ(::fcntl(descriptor, F_GETFD), FD_CLOEXEC);
  EXPECT_EQ(adopted.Send(BytesOf("x"), {}, -1, soon, cause_), S_OK);
  EXPECT_EQ(Receive(), S_OK);
}

TEST_F(VelSystemChannelTest, Adopt_OfAnythingElse_ClosesIt) {
  int streams[2];
  ASSERT_EQ(::socketpair(AF_UNIX, SOCK_STREAM, 0, streams), 0);
  const int others[] = {streams[0], streams[1], ::socket(AF_INET, SOCK_DGRAM, 0), ::open("/dev/null", O_RDONLY), -1};
  for (const int descriptor : others) {
    VelSystemChannel adopted;
    EXPECT_EQ(adopted.Adopt(descriptor, cause_), E_FAIL);
    EXPECT_EQ(cause_, "is not a sequenced-packet socket");
    EXPECT_FALSE(adopted.IsOpen());
    EXPECT_EQ(::fcntl(descriptor, F_GETFD), -1) << "it is still open";
  }
}

TEST_F(VelSystemChannelTest, AnInterruptionByASignal_ChangesNothing) {
  struct sigaction handling {};
  struct sigaction before {};
  handling.sa_handler = [](int) {};
  ASSERT_EQ(::sigaction(SIGALRM, &handling, &before), 0);
  const itimerval often{{0, 1000}, {0, 1000}};
  const itimerval never{};
  ASSERT_EQ(::setitimer(ITIMER_REAL, &often, nullptr), 0);
  const auto begin = std::chrono::steady_clock::now();
  EXPECT_EQ(Receive(100), S_FALSE);
  EXPECT_GE(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(100));
  ASSERT_EQ(::setitimer(ITIMER_REAL, &never, nullptr), 0);
  ASSERT_EQ(::sigaction(SIGALRM, &before, nullptr), 0);
}

}  // namespace
