// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelListenerList_test.cpp Lists that change, fail or are walked again while they are being walked.
#include "platform/base/VelListenerList.h"

#include <functional>
#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

namespace {

struct Listener {
  char name;
  std::function<void()> reaction = [] {};
};

class VelListenerListTest : public ::testing::Test {
 protected:
  bool Walk() {
    return list_.ForEach([this](Listener& ioListener) {
      called_ += ioListener.name;
      ioListener.reaction();
    });
  }

  VelListenerList<Listener> list_;
  std::string called_;
  Listener a_{'a'};
  Listener b_{'b'};
  Listener c_{'c'};
};

TEST_F(VelListenerListTest, ForEach_OnAnEmptyList_SaysThatNobodyWasCalled) { EXPECT_FALSE(Walk()); }

TEST_F(VelListenerListTest, ForEach_CallsInTheOrderOfAdding_EachOnce) {
  list_.Add(b_);
  list_.Add(a_);
  list_.Add(b_);
  EXPECT_TRUE(Walk());
  EXPECT_EQ(called_, "ba");
}

TEST_F(VelListenerListTest, Remove_OfAStranger_ChangesNothing) {
  list_.Add(a_);
  list_.Remove(b_);
  EXPECT_TRUE(list_.Contains(a_));
  EXPECT_FALSE(list_.Contains(b_));
}

TEST_F(VelListenerListTest, Listener_RemovedDuringTheWalk_IsNotCalled) {
  a_.reaction = [this] { list_.Remove(b_); };
  for (Listener* listener : {&a_, &b_, &c_}) list_.Add(*listener);
  Walk();
  EXPECT_EQ(called_, "ac");
}

TEST_F(VelListenerListTest, Listener_ThatRemovesItself_LeavesTheOthersAlone) {
  b_.reaction = [this] { list_.Remove(b_); };
  for (Listener* listener : {&a_, &b_, &c_}) list_.Add(*listener);
  Walk();
  Walk();
  EXPECT_EQ(called_, "abcac");
}

TEST_F(VelListenerListTest, Listener_AddedDuringTheWalk_WaitsForTheNext) {
  a_.reaction = [this] { list_.Add(b_); };
  list_.Add(a_);
  Walk();
  EXPECT_EQ(called_, "a");
  Walk();
  EXPECT_EQ(called_, "aab");
}

TEST_F(VelListenerListTest, Listener_TakenOutAndAddedAgainDuringTheWalk_GoesToTheEnd) {
  a_.reaction = [this] {
    list_.Remove(a_);
    list_.Add(a_);
  };
  list_.Add(a_);
  list_.Add(b_);
  Walk();
  Walk();
  EXPECT_EQ(called_, "abba");
}

TEST_F(VelListenerListTest, Listeners_ThatAllWalkTheListThemselves_ComeToAnEnd) {
  for (Listener* listener : {&a_, &b_}) {
    listener->reaction = [this] { Walk(); };
    list_.Add(*listener);
  }
  Walk();
  EXPECT_EQ(called_, "abba") << "inside of a only b is called, and inside of b only a";
}

TEST_F(VelListenerListTest, Walk_FromTheOnlyListener_SaysThatNobodyWasCalled) {
  bool heard = true;
  a_.reaction = [&] { heard = Walk(); };
  list_.Add(a_);
  EXPECT_TRUE(Walk());
  EXPECT_FALSE(heard);
}

TEST_F(VelListenerListTest, Listener_ThatThrows_KeepsNothingFromTheOthersAndIsCalledAgain) {
  a_.reaction = [] { throw std::runtime_error("listener"); };
  list_.Add(a_);
  list_.Add(b_);
  Walk();
  Walk();
  EXPECT_EQ(called_, "abab");
}

TEST_F(VelListenerListTest, Walk_WhoseOnlyListenerThrows_SaysThatNobodyHeard) {
  a_.reaction = [] { throw std::runtime_error("listener"); };
  list_.Add(a_);
  EXPECT_FALSE(Walk());
  list_.Add(b_);
  EXPECT_TRUE(Walk());
}

TEST_F(VelListenerListTest, Clear_DuringTheWalk_EndsIt) {
  a_.reaction = [this] { list_.Clear(); };
  list_.Add(a_);
  list_.Add(b_);
  Walk();
  EXPECT_EQ(called_, "a");
  EXPECT_FALSE(Walk());
}

}  // namespace
