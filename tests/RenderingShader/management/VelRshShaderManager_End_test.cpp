// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshShaderManager_End_test.cpp What the manager tells and lets go of at its end, and that it begins anew.
#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "platform/base/VelCallOnExit.h"
#include "tests/RenderingShader/management/fixtures/ManagementTest.h"

namespace {

using VelRshShaderManagerEndTest = ManagementTest;

constexpr const char* destructor = "5 (VelRshShaderManager::~VelRshShaderManager) Destructor\n";
constexpr const char* cleanUp = "4 (VelRshShaderManager::CleanUp) \n";
constexpr const char* cleanUpDone = "4 (VelRshShaderManager::CleanUp) Done\n";
constexpr const char* done = "5 (VelRshShaderManager::~VelRshShaderManager) Done\n";

std::vector<int> order;

TEST_F(VelRshShaderManagerEndTest, TheEnd_TellsItsStepsInOrder) {
  static_cast<void>(Manager());
  StartTraces();
  VelPlatformTerminate();
  EXPECT_EQ(Told(), (Texts{destructor, cleanUp, cleanUpDone, done}));
}

TEST_F(VelRshShaderManagerEndTest, TheFactories_AreLetGoOfOnceWithinTheCleanUp) {
  factories_->DeclareHost();
  static_cast<void>(Manager());
  StartTraces();
  Texts atEnd;
  for (VelTestFactoryScript* script : {&First(), &Second(), &Host()}) {
    const std::string name = script == &First() ? "first" : script == &Second() ? "second" : "host";
    script->onEnd = [this, name, &atEnd] { atEnd.push_back(name + " after " + Told().back()); };
  }
  VelPlatformTerminate();
  ASSERT_EQ(atEnd.size(), 3U);
  EXPECT_EQ(atEnd[0], std::string("first after ") + cleanUp) << "it lives as long as its reference";
  std::sort(atEnd.begin() + 1, atEnd.end());
  EXPECT_EQ(atEnd[1], std::string("host after ") + cleanUpDone) << "with the manager";
  EXPECT_EQ(atEnd[2], std::string("second after ") + cleanUpDone);
}

TEST_F(VelRshShaderManagerEndTest, EndedTwice_ItEndsOnce) {
  static_cast<void>(Manager());
  StartTraces();
  EXPECT_EQ(VelRshShaderManager::CleanUp(0), 0);
  EXPECT_EQ(Told().size(), 4U);
  EXPECT_EQ(VelRshShaderManager::CleanUp(17), 0);
  VelPlatformTerminate();
  EXPECT_EQ(Told().size(), 4U);
}

TEST_F(VelRshShaderManagerEndTest, WithoutAManager_ThereIsNothingToEnd) {
  StartTraces();
  EXPECT_EQ(VelRshShaderManager::CleanUp(0), 0);
  VelPlatformTerminate();
  EXPECT_EQ(Told(), Texts{});
}

TEST_F(VelRshShaderManagerEndTest, ALaterManager_BeginsAnewAndEndsToo) {
  First().Add("f");
  EXPECT_EQ(List().types, Texts{"f"});
  VelPlatformTerminate();
  First().types.clear();
  factories_->DeclareHost();
  Host().Add("h");
  StartTraces();
  EXPECT_EQ(List().types, Texts{"h"}) << "types and factories of before are forgotten";
  traces_.Clear();
  VelPlatformTerminate();
  EXPECT_EQ(Told(), (Texts{destructor, cleanUp, cleanUpDone, done}));
}

TEST_F(VelRshShaderManagerEndTest, TheManager_EndsAtPriorityThree) {
  order.clear();
  First().onEnd = [] { order.push_back(3); };
  // Of equal priorities the youngest comes first, so each neighbour is registered where it would trade places.
  VelCallOnExit([](int) { return order.push_back(2), 0; }, 2);
  static_cast<void>(Manager());
  VelCallOnExit([](int) { return order.push_back(4), 0; }, 4);
  VelPlatformTerminate();
  EXPECT_EQ(order, (std::vector<int>{2, 3, 4}));
}

TEST_F(VelRshShaderManagerEndTest, SomebodyWhoStillHoldsAFactory_IsSafe) {
  First().Add("f");
  VelBaseUnknown_var hFactory;
  ASSERT_EQ(Manager().QueryInterfaceByName("VelITestFirstFactory", hFactory.Receive()), S_OK);
  StartTraces();
  VelPlatformTerminate();
  EXPECT_EQ(Told(), (Texts{destructor, cleanUp, cleanUpDone})) << "it goes with its last reference";
  VelListValVelString types;
  EXPECT_EQ(VelIRshShaderFactory_var(hFactory) ? S_OK : E_FAIL, E_FAIL);
  EXPECT_EQ(static_cast<VelITestFirstFactory*>(hFactory.Get())->ListShaderTypes(types), E_FAIL);
  hFactory = nullptr;
  EXPECT_EQ(Told().back(), done);
}

TEST_F(VelRshShaderManagerEndTest, AProcessThatEndsWithoutMore_EndsTheManager) {
  EXPECT_EXIT(
      {
        First().onEnd = [] { std::fputs("the factory ends\n", stderr); };
        static_cast<void>(Manager());
        std::exit(0);
      },
      ::testing::ExitedWithCode(0), "^the factory ends\n$");
}

}  // namespace
