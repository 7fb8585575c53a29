// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshPublisherEvents_test.cpp The events of parameters and of shaders: their texts, their identity, and the
/// end of all subscriptions of a set.
#include "RenderingShader/interfaces/VelRshParameterPublisherEvents.h"
#include "RenderingShader/interfaces/VelRshShaderPublisherEvents.h"
#include "tests/RenderingShader/RshModelTest.h"

namespace {

using ParameterEvents = VelRshParameterPublisherEvents;
using ShaderEvents = VelRshShaderPublisherEvents;
using Name = VelEventName (*)() noexcept;

struct NameCase {
  Name name;
  const char* text;
};

constexpr NameCase parameterNames[] = {
    {&ParameterEvents::VALUE_UPDATED, "VALUE_UPDATED"},
    {&ParameterEvents::CONNECTION_UPDATED, "CONNECTION_UPDATED"},
    {&ParameterEvents::FORWARD_PARAMETER_VALUE_UPDATED, "FORWARD_PARAMETER_VALUE_UPDATED"},
    {&ParameterEvents::FORWARD_PARAMETER_CONNECTION_UPDATED, "FORWARD_PARAMETER_CONNECTION_UPDATED"},
    {&ParameterEvents::CONNECTION_PARAMETER_VALUE_UPDATED, "CONNECTION_PARAMETER_VALUE_UPDATED"},
    {&ParameterEvents::CONNECTION_PARAMETER_CONNECTION_UPDATED, "CONNECTION_PARAMETER_CONNECTION_UPDATED"},
};

constexpr NameCase shaderNames[] = {
    {&ShaderEvents::PARAMETER_VALUE_UPDATED, "PARAMETER_VALUE_UPDATED"},
    {&ShaderEvents::PARAMETER_CONNECTION_UPDATED, "PARAMETER_CONNECTION_UPDATED"},
    {&ShaderEvents::FORWARDED_PARAMETER_VALUE_UPDATED, "FORWARDED_PARAMETER_VALUE_UPDATED"},
    {&ShaderEvents::FORWARDED_PARAMETER_CONNECTION_UPDATED, "FORWARDED_PARAMETER_CONNECTION_UPDATED"},
};

void Ignore(VelImplementation&, VelEventName, VelBaseUnknown*, VelNotification*) {}

/// Receives every event of both sets.
const VelReceiverTable& AllEvents() {
  static const VelReceiverRow rows[] = {{parameterNames[0].name(), &Ignore}, {parameterNames[1].name(), &Ignore},
                                        {parameterNames[2].name(), &Ignore}, {parameterNames[3].name(), &Ignore},
                                        {parameterNames[4].name(), &Ignore}, {parameterNames[5].name(), &Ignore},
                                        {shaderNames[0].name(), &Ignore},    {shaderNames[1].name(), &Ignore},
                                        {shaderNames[2].name(), &Ignore},    {shaderNames[3].name(), &Ignore}};
  static const VelReceiverTable table(rows);
  return table;
}

class VelRshPublisherEventsTest : public RshModelTest {
 protected:
  void SubscribeToAll(VelBaseUnknown* iSubscriber) {
    for (const NameCase& row : parameterNames) EXPECT_EQ(manager_.AddCallback(row.name(), iSubscriber, AllEvents()), 0);
    for (const NameCase& row : shaderNames) EXPECT_EQ(manager_.AddCallback(row.name(), iSubscriber, AllEvents()), 0);
  }

  /// Expects that a subscriber hears all or none of the events of each set.
  void ExpectHears(VelBaseUnknown* iSubscriber, bool iParameters, bool iShaders) {
    for (const NameCase& row : parameterNames) {
      EXPECT_EQ(manager_.IsSubscribed(row.name(), iSubscriber), iParameters) << row.text;
    }
    for (const NameCase& row : shaderNames) {
      EXPECT_EQ(manager_.IsSubscribed(row.name(), iSubscriber), iShaders) << row.text;
    }
  }

  VelCallbackManager manager_;
};

TEST_F(VelRshPublisherEventsTest, Names_AreOneSharedTextEach) {
  for (const NameCase& row : parameterNames) {
    EXPECT_STREQ(row.name(), row.text);
    EXPECT_EQ(row.name(), row.name()) << "the same place";
  }
  for (const NameCase& row : shaderNames) {
    EXPECT_STREQ(row.name(), row.text);
    EXPECT_EQ(row.name(), row.name()) << "the same place";
  }
}

TEST_F(VelRshPublisherEventsTest, UnbindCallback_EndsTheSubscriptionsOfItsSet_AndOfThatSubscriberAlone) {
  const VelIRshShader_var hFirst = MakeShader();
  const VelIRshShader_var hSecond = MakeShader();
  SubscribeToAll(hFirst.Get());
  SubscribeToAll(hSecond.Get());
  EXPECT_EQ(ParameterEvents::UNBIND_CALLBACK(manager_, hFirst.Get()), S_OK);
  ExpectHears(hFirst.Get(), false, true);
  EXPECT_EQ(ParameterEvents::UNBIND_CALLBACK(manager_, hFirst.Get()), S_FALSE);
  EXPECT_EQ(ShaderEvents::UNBIND_CALLBACK(manager_, hFirst.Get()), S_OK);
  ExpectHears(hFirst.Get(), false, false);
  EXPECT_EQ(ShaderEvents::UNBIND_CALLBACK(manager_, hFirst.Get()), S_FALSE);
  ExpectHears(hSecond.Get(), true, true);
}

TEST_F(VelRshPublisherEventsTest, UnbindCallback_OfNobody_IsRefused) {
  EXPECT_EQ(ParameterEvents::UNBIND_CALLBACK(manager_, nullptr), E_INVALIDARG);
  EXPECT_EQ(ShaderEvents::UNBIND_CALLBACK(manager_, nullptr), E_INVALIDARG);
}

}  // namespace
