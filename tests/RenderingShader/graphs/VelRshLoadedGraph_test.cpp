// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshLoadedGraph_test.cpp A loaded graph of which a client takes one object only: every event is delivered.
//
// Asking one parameter for an interface builds the shaders above it first, outermost first, then the parameter; when
// all are constructed, they bind in that order. The root binds its parameters and so builds them, the node its own;
// a connected parameter binds last, after everything that was queued before it. A loaded connection lets the node hear
// what is forwarded to it, but not what the parameter itself tells: that only comes with a connection made in session.
#include "tests/RenderingShader/graphs/GraphTest.h"

namespace {

using VelRshLoadedGraphTest = GraphTest;

TEST_F(VelRshLoadedGraphTest, EditOfTheOnlyParameterTaken_IsHeardAllTheWayUp) {
  MakeAsLoaded("VelRmaScalar");
  EXPECT_EQ(Write("n1", 0.5F), S_OK);
  EXPECT_EQ(recorder_.Take(), (Texts{
                                  "VALUE_UPDATED n1->N 0", "PARAMETER_VALUE_UPDATED N->n1 1",
                                  "PARAMETER_VALUE_UPDATED N->n2 1", "PARAMETER_VALUE_UPDATED N->t 1",
                                  "PARAMETER_VALUE_UPDATED N->Q 1",  // queued after the node
                              }));
  EXPECT_EQ(Write("P", 0.5F), S_OK);
  EXPECT_EQ(recorder_.Take(), (Texts{
                                  "VALUE_UPDATED P->R 0",
                                  "PARAMETER_VALUE_UPDATED R->P 1",
                                  "PARAMETER_VALUE_UPDATED R->Q 1",
                                  "FORWARD_PARAMETER_VALUE_UPDATED Q->N 2",
                                  "FORWARDED_PARAMETER_VALUE_UPDATED N->n1 3",
                                  "FORWARDED_PARAMETER_VALUE_UPDATED N->n2 3",
                                  "FORWARDED_PARAMETER_VALUE_UPDATED N->t 3",
                              }));
  EXPECT_EQ(Write("Q", 0.5F), S_OK);
  EXPECT_EQ(recorder_.Take(), (Texts{
                                  "VALUE_UPDATED Q->R 0",
                                  "PARAMETER_VALUE_UPDATED R->P 1",
                                  "PARAMETER_VALUE_UPDATED R->Q 1",
                              }));
  EXPECT_EQ(Parameter("Q")->SetConnection(nullptr), S_OK);
  EXPECT_EQ(recorder_.Take(), (Texts{
                                  "CONNECTION_UPDATED Q->R 0",
                                  "PARAMETER_CONNECTION_UPDATED R->P 1",
                                  "PARAMETER_CONNECTION_UPDATED R->Q 1",
                              }));
}

TEST_F(VelRshLoadedGraphTest, EditBelowASubShadersParameter_IsHeardByIt) {
  MakeAsLoaded("VelRmaVoid");
  EXPECT_EQ(Write("n1", 0.5F), S_OK);
  EXPECT_EQ(recorder_.Take(), (Texts{
                                  "VALUE_UPDATED n1->N 0",
                                  "PARAMETER_VALUE_UPDATED N->n1 1",
                                  "PARAMETER_VALUE_UPDATED N->n2 1",
                                  "PARAMETER_VALUE_UPDATED N->t 1",
                              }))
      << "nobody has asked the root's sub-shader parameter, which does not publish, for anything";
  ASSERT_TRUE(Parameter("Q"));
  EXPECT_EQ(Write("n1", 0.75F), S_OK);
  EXPECT_EQ(recorder_.Take(), (Texts{
                                  "VALUE_UPDATED n1->N 0",
                                  "PARAMETER_VALUE_UPDATED N->n1 1",
                                  "PARAMETER_VALUE_UPDATED N->n2 1",
                                  "PARAMETER_VALUE_UPDATED N->t 1",
                                  "PARAMETER_VALUE_UPDATED N->Q 1",
                              }));
}

/// Whichever object is taken first, the same subscriptions come about; only the order among the subscribers of the node
/// goes by it.
TEST_F(VelRshLoadedGraphTest, EachObjectTakenFirst_GivesTheSameSubscriptions) {
  for (const char* first : {"R", "P", "Q", "N", "n1", "n2", "t"}) {
    SCOPED_TRACE(first);
    MakeAsLoaded("VelRmaScalar");
    VelBaseUnknown_var hFirst;
    ASSERT_EQ(features_[first]->QueryInterfaceByName("VelIAlias", hFirst.Receive()), S_OK);
    EXPECT_EQ(VelInstanceCounts::Now().implementations, 7) << "the whole graph is built";
    EXPECT_EQ(recorder_.Take(), Texts{}) << "nothing happened yet";
    EXPECT_EQ(Write("n2", 0.5F), S_OK);
    EXPECT_EQ(recorder_.TakeSorted(),
              (Texts{"PARAMETER_VALUE_UPDATED N->Q", "PARAMETER_VALUE_UPDATED N->n1", "PARAMETER_VALUE_UPDATED N->n2",
                     "PARAMETER_VALUE_UPDATED N->t", "VALUE_UPDATED n2->N"}));
    EXPECT_EQ(Write("P", 0.5F), S_OK);
    EXPECT_EQ(recorder_.TakeSorted(),
              (Texts{"FORWARDED_PARAMETER_VALUE_UPDATED N->n1", "FORWARDED_PARAMETER_VALUE_UPDATED N->n2",
                     "FORWARDED_PARAMETER_VALUE_UPDATED N->t", "FORWARD_PARAMETER_VALUE_UPDATED Q->N",
                     "PARAMETER_VALUE_UPDATED R->P", "PARAMETER_VALUE_UPDATED R->Q", "VALUE_UPDATED P->R"}));
    hFirst = nullptr;
    features_.clear();
    hContainer_ = VelIContainer::Create();
  }
}

}  // namespace
