// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshEventOrder_test.cpp The whole order of events of one write and of one connection, on material-like
/// graphs.
//
// Where the orders come from. A parameter is bound when it is added: its shader subscribes to the parameter, and the
// parameter to its shader, so every list of subscribers begins with what was added, in that order. Connecting appends:
// the parameter to the list of the connected shader, that shader to the list of the parameter. Delivery is synchronous
// and in that order, so each subscriber finishes all that it causes before the next one is called, and a list reads
// like a tree by its depths.
//
// A write: the parameter tells its shader; the shader tells its parameters and whoever is connected to it; each
// parameter but the written one forwards to the shader that is connected below it; that one tells its own parameters,
// of which those without tags do nothing. A connected shader hears of the written parameter itself too, and ignores it.
//
// A connection: the same with its own events, except that a parameter that forwards finds nobody who takes it, and that
// the newly connected shader tells its parameters at once.
#include "tests/RenderingShader/graphs/GraphTest.h"
#include "tests/RenderingShader/model/fixtures/VelTestEventRecorder.h"

#include "RenderingShader/interfaces/VelRshParameterPublisherEvents.h"

namespace {

using VelRshEventOrderTest = GraphTest;

constexpr const char* fullType = "VelRmaScalar";
constexpr const char* subShaderType = "VelRmaVoid";

TEST_F(VelRshEventOrderTest, Connection_OfAFullParameter) {
  MakeInSession(fullType);
  EXPECT_EQ(Parameter("Q")->SetConnection(nullptr), S_OK);
  EXPECT_EQ(recorder_.Take(), (Texts{
                                  "CONNECTION_UPDATED Q->R 0",            // the node is unbound before it is told
                                  "PARAMETER_CONNECTION_UPDATED R->P 1",  // nobody is connected to P
                                  "PARAMETER_CONNECTION_UPDATED R->Q 1",  // its own change
                              }));
  EXPECT_EQ(Shader("R")->AddNode(Shader("N").Get()), S_OK);
  EXPECT_EQ(Parameter("Q")->SetConnection(Shader("N").Get()), S_OK);
  EXPECT_EQ(recorder_.Take(), (Texts{
                                  "CONNECTION_UPDATED Q->R 0",
                                  "PARAMETER_CONNECTION_UPDATED R->P 1",
                                  "PARAMETER_CONNECTION_UPDATED R->Q 1",
                                  "CONNECTION_UPDATED Q->N 0",  // bound last, before it is told
                                  "FORWARDED_PARAMETER_CONNECTION_UPDATED N->n1 1",
                                  "FORWARDED_PARAMETER_CONNECTION_UPDATED N->n2 1",
                                  "FORWARDED_PARAMETER_CONNECTION_UPDATED N->t 1",
                              }));
}

TEST_F(VelRshEventOrderTest, Connection_OfAnotherNode_ReachesTheNewOneAlone) {
  MakeInSession(fullType);
  const VelIRshShader_var hOther = AddNode(Shader("R"));
  Know("M", hOther.Get());
  Know("m1", Add(hOther, "m1", "VelRmaScalar").Get());
  EXPECT_EQ(Parameter("Q")->SetConnection(hOther.Get()), S_OK);
  EXPECT_EQ(recorder_.Take(), (Texts{
                                  "CONNECTION_UPDATED Q->R 0",
                                  "PARAMETER_CONNECTION_UPDATED R->P 1",
                                  "PARAMETER_CONNECTION_UPDATED R->Q 1",
                                  "CONNECTION_UPDATED Q->M 0",
                                  "FORWARDED_PARAMETER_CONNECTION_UPDATED M->m1 1",
                              }));
}

/// The parameter beside Q forwards a connection to its own node, which deliberately takes it for none.
TEST_F(VelRshEventOrderTest, Connection_BesideAConnectedParameter_EndsAtItsNode) {
  MakeInSession(fullType);
  const VelIRshShader_var hOther = AddNode(Shader("R"));
  Know("M", hOther.Get());
  EXPECT_EQ(Parameter("P")->SetConnection(hOther.Get()), S_OK);
  EXPECT_EQ(recorder_.Take(), (Texts{
                                  "CONNECTION_UPDATED P->R 0",
                                  "PARAMETER_CONNECTION_UPDATED R->P 1",
                                  "PARAMETER_CONNECTION_UPDATED R->Q 1",
                                  "FORWARD_PARAMETER_CONNECTION_UPDATED Q->N 2",
                                  "CONNECTION_UPDATED P->M 0",
                              }));
}

TEST_F(VelRshEventOrderTest, Write_BesideAConnectedParameter_ReachesTheNodesParameters) {
  MakeInSession(fullType);
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
  EXPECT_EQ(Write("P", 0.5F), S_FALSE);
  EXPECT_EQ(recorder_.Take(), Texts{});
}

TEST_F(VelRshEventOrderTest, Write_OfTheConnectedParameterItself_StaysAbove) {
  MakeInSession(fullType);
  EXPECT_EQ(Write("Q", 0.5F), S_OK);
  EXPECT_EQ(recorder_.Take(),
            (Texts{
                "VALUE_UPDATED Q->R 0", "PARAMETER_VALUE_UPDATED R->P 1", "PARAMETER_VALUE_UPDATED R->Q 1",
                "VALUE_UPDATED Q->N 0",  // not forwarded, so not taken
            }));
}

TEST_F(VelRshEventOrderTest, Write_BelowAConnectedParameter_ReachesIt) {
  MakeInSession(fullType);
  VelTestRecorder client;
  client.Hear(ManagerOf(Parameter("Q")), VelRshParameterPublisherEvents::CONNECTION_PARAMETER_VALUE_UPDATED());
  recorder_.Name(client.Subscriber(), "client");
  EXPECT_EQ(Write("n1", 0.5F), S_OK);
  EXPECT_EQ(recorder_.Take(), (Texts{
                                  "VALUE_UPDATED n1->N 0",
                                  "PARAMETER_VALUE_UPDATED N->n1 1",
                                  "PARAMETER_VALUE_UPDATED N->n2 1",
                                  "PARAMETER_VALUE_UPDATED N->t 1",
                                  "PARAMETER_VALUE_UPDATED N->Q 1",  // connected after they were added
                                  "CONNECTION_PARAMETER_VALUE_UPDATED Q->client 2",
                              }));
}

TEST_F(VelRshEventOrderTest, Connection_BelowAConnectedParameter_ReachesIt) {
  MakeInSession(fullType);
  VelTestRecorder client;
  client.Hear(ManagerOf(Parameter("Q")), VelRshParameterPublisherEvents::CONNECTION_PARAMETER_CONNECTION_UPDATED());
  recorder_.Name(client.Subscriber(), "client");
  const VelIRshShader_var hOther = AddNode(Shader("N"));
  Know("M", hOther.Get());
  EXPECT_EQ(Parameter("t")->SetConnection(hOther.Get()), S_OK);
  EXPECT_EQ(recorder_.Take(), (Texts{
                                  "CONNECTION_UPDATED t->N 0",
                                  "PARAMETER_CONNECTION_UPDATED N->n1 1",
                                  "PARAMETER_CONNECTION_UPDATED N->n2 1",
                                  "PARAMETER_CONNECTION_UPDATED N->t 1",
                                  "PARAMETER_CONNECTION_UPDATED N->Q 1",
                                  "CONNECTION_PARAMETER_CONNECTION_UPDATED Q->client 2",
                                  "CONNECTION_UPDATED t->M 0",
                              }));
}

/// A sub-shader's parameter neither publishes to its shader nor hears it: only the connection itself has events.
TEST_F(VelRshEventOrderTest, Connection_OfASubShadersParameter) {
  MakeInSession(subShaderType);
  EXPECT_EQ(Parameter("Q")->SetConnection(nullptr), S_OK);
  EXPECT_EQ(recorder_.Take(), Texts{});
  EXPECT_EQ(Shader("R")->AddNode(Shader("N").Get()), S_OK);
  EXPECT_EQ(Parameter("Q")->SetConnection(Shader("N").Get()), S_OK);
  EXPECT_EQ(recorder_.Take(), (Texts{
                                  "CONNECTION_UPDATED Q->N 0",
                                  "FORWARDED_PARAMETER_CONNECTION_UPDATED N->n1 1",
                                  "FORWARDED_PARAMETER_CONNECTION_UPDATED N->n2 1",
                                  "FORWARDED_PARAMETER_CONNECTION_UPDATED N->t 1",
                              }));
}

TEST_F(VelRshEventOrderTest, Write_BesideASubShadersParameter_StaysAbove) {
  MakeInSession(subShaderType);
  EXPECT_EQ(Write("P", 0.5F), S_OK);
  EXPECT_EQ(recorder_.Take(), (Texts{
                                  "VALUE_UPDATED P->R 0",
                                  "PARAMETER_VALUE_UPDATED R->P 1",
                              }));
}

TEST_F(VelRshEventOrderTest, Write_BelowASubShadersParameter_ReachesIt) {
  MakeInSession(subShaderType);
  EXPECT_EQ(Write("n1", 0.5F), S_OK);
  EXPECT_EQ(recorder_.Take(), (Texts{
                                  "VALUE_UPDATED n1->N 0",
                                  "PARAMETER_VALUE_UPDATED N->n1 1",
                                  "PARAMETER_VALUE_UPDATED N->n2 1",
                                  "PARAMETER_VALUE_UPDATED N->t 1",
                                  "PARAMETER_VALUE_UPDATED N->Q 1",
                              }));
}

}  // namespace
