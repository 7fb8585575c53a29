// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelEditScope_test.cpp Nested edit scopes and those who hear of their end.
#include "platform/base/VelEditScope.h"

#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/VelFailureRecorder.h"

namespace {

/// Hears the ends, and does what the test says.
class Listener final : public VelEditScopeListener {
 public:
  explicit Listener(std::function<void()> iAct = {}) : act_(std::move(iAct)) { VelEditScope::AddListener(*this); }
  ~Listener() { VelEditScope::RemoveListener(*this); }
  Listener(const Listener&) = delete;
  Listener& operator=(const Listener&) = delete;

  void OnEditsEnded() override {
    ++count;
    if (act_) act_();
  }

  int count = 0;

 private:
  std::function<void()> act_;
};

void Edit() { const VelEditScope scope; }

TEST(VelEditScope, OnlyTheOutermostEnd_IsAnnounced) {
  const Listener listener;
  {
    const VelEditScope outer;
    EXPECT_EQ(VelEditScope::Depth(), 1);
    Edit();
    {
      const VelEditScope inner;
      EXPECT_EQ(VelEditScope::Depth(), 2);
    }
    EXPECT_EQ(listener.count, 0);
  }
  EXPECT_EQ(listener.count, 1);
  EXPECT_EQ(VelEditScope::Depth(), 0);
}

TEST(VelEditScope, ScopesOpenedByAListener_NestAndAreNotAnnounced) {
  int depth = 0;
  const Listener listener([&] {
    depth = VelEditScope::Depth();
    Edit();
  });
  Edit();
  EXPECT_EQ(listener.count, 1);
  EXPECT_EQ(depth, 1) << "the outermost scope still counts as open";
}

TEST(VelEditScope, Listeners_HearInTheOrderInWhichTheyWereAdded) {
  std::string order;
  const Listener first([&] { order += 'a'; });
  const Listener second([&] { order += 'b'; });
  VelEditScope::AddListener(const_cast<Listener&>(first));
  Edit();
  EXPECT_EQ(order, "ab") << "adding twice changes nothing";
}

TEST(VelEditScope, ListenerRemovedByAnother_IsNotCalledAnyMore) {
  Listener* victim = nullptr;
  const Listener first([&] { VelEditScope::RemoveListener(*victim); });
  Listener second;
  victim = &second;
  Edit();
  EXPECT_EQ(second.count, 0);
}

TEST(VelEditScope, ListenerAddedByAnother_HearsTheNextEnd) {
  std::vector<Listener*> late;
  const Listener first([&] {
    if (late.empty()) late.push_back(new Listener);
  });
  Edit();
  ASSERT_EQ(late.size(), 1U);
  EXPECT_EQ(late[0]->count, 0);
  Edit();
  EXPECT_EQ(late[0]->count, 1);
  delete late[0];
}

TEST(VelEditScope, ListenerThatThrows_IsACheckAndTheOthersHear) {
  const Listener first([] { throw std::runtime_error("listener"); });
  const Listener second;
  const RecordingFailureObserver failures;
  Edit();
  EXPECT_EQ(second.count, 1);
  EXPECT_EQ(failures.Messages(), (std::vector<std::string>{"A listener of the end of edits threw an exception"}));
  EXPECT_EQ(VelEditScope::Depth(), 0);
}

}  // namespace
