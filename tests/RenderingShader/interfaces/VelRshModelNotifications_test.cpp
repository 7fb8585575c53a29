// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshModelNotifications_test.cpp The notifications of parameters and shaders: what they carry, and that each
/// is told from every other.
#include <memory>

#include "RenderingShader/interfaces/VelRshModelNotificationConnectedParameterChanged.h"
#include "RenderingShader/interfaces/VelRshModelNotificationParameterConnectionChanged.h"
#include "RenderingShader/interfaces/VelRshModelNotificationParameterShaderChanged.h"
#include "RenderingShader/interfaces/VelRshModelNotificationShaderParameterChanged.h"
#include "RenderingShader/interfaces/VelRshModelNotificationValueChanged.h"
#include "RenderingShader/interfaces/VelRshShaderPublisherEvents.h"
#include "tests/RenderingShader/RshModelTest.h"

namespace {

using ConnectedParameterChanged = VelRshModelNotificationConnectedParameterChanged;
using ConnectionChanged = VelRshModelNotificationParameterConnectionChanged;
using ParameterChanged = VelRshModelNotificationShaderParameterChanged;
using ShaderChanged = VelRshModelNotificationParameterShaderChanged;

using VelRshModelNotificationsTest = RshModelTest;

/// A class of notifications by its name, and the cast to it.
struct Class {
  const char* name;
  bool (*isOne)(const VelNotification&);
};

template <class N>
bool IsOne(const VelNotification& iNotification) {
  return VelNotificationCast<N>(&iNotification) == &iNotification;
}

constexpr Class classes[] = {
#define VEL_RSH_VALUE_NOTIFICATION(Name, ...) {#Name, &IsOne<Name>},
    VEL_RSH_VALUE_NOTIFICATION(VelRshModelNotificationConnectedParameterChanged)
        VEL_RSH_VALUE_NOTIFICATION(VelRshModelNotificationParameterConnectionChanged)
            VEL_RSH_VALUE_NOTIFICATION(VelRshModelNotificationParameterShaderChanged)
                VEL_RSH_VALUE_NOTIFICATION(VelRshModelNotificationShaderParameterChanged)
#include "RenderingShader/interfaces/VelRshValueNotifications.def"
#undef VEL_RSH_VALUE_NOTIFICATION
};

TEST_F(VelRshModelNotificationsTest, EachClass_IsItselfAndNoOther) {
  const VelIRshShader_var hShader = MakeShader();
  const ConnectionChanged connection(nullptr, nullptr);
  std::vector<std::unique_ptr<VelNotification>> all;
  all.push_back(std::make_unique<ConnectedParameterChanged>(*hShader, connection));
  all.push_back(std::make_unique<ConnectionChanged>(nullptr, nullptr));
  all.push_back(std::make_unique<ShaderChanged>(nullptr, *hShader, connection));
  all.push_back(std::make_unique<ParameterChanged>(*hShader, nullptr));
  all.push_back(std::make_unique<VelRshModelNotificationParameterBoolean1Changed>(false, true));
  all.push_back(std::make_unique<VelRshModelNotificationParameterIntegral1Changed>(1, 2));
  all.push_back(std::make_unique<VelRshModelNotificationParameterScalar1Changed>(1.0F, 2.0F));
  all.push_back(
      std::make_unique<VelRshModelNotificationParameterScalar3Changed>(std::array<float, 3>{}, std::array<float, 3>{}));
  all.push_back(
      std::make_unique<VelRshModelNotificationParameterScalar4Changed>(std::array<float, 4>{}, std::array<float, 4>{}));
  all.push_back(std::make_unique<VelRshModelNotificationParameterTextChanged>("a", "b"));
  all.push_back(std::make_unique<VelRshModelNotificationParameterPLMDocumentChanged>(nullptr, nullptr));
  ASSERT_EQ(all.size(), std::size(classes));
  for (std::size_t i = 0; i < all.size(); ++i) {
    EXPECT_STREQ(all[i]->ClassName(), classes[i].name);
    EXPECT_TRUE(all[i]->IsAKindOf("VelNotification"));
    for (std::size_t other = 0; other < all.size(); ++other) {
      EXPECT_EQ(classes[other].isOne(*all[i]), i == other) << classes[i].name << " as " << classes[other].name;
    }
  }
}

TEST_F(VelRshModelNotificationsTest, Notifications_HandOutWhatTheyWereMadeOf) {
  const VelIRshShader_var hShader = MakeShader();
  const VelIRshParameter_var hParameter = Add(hShader, "a", "VelRmaScalar");
  const ConnectionChanged connection(hShader, nullptr);
  EXPECT_TRUE(IsSameObject(connection.GetPrevious().Get(), hShader.Get()));
  EXPECT_FALSE(connection.GetNext());
  const ParameterChanged parameter(*hParameter, &connection);
  EXPECT_TRUE(IsSameObject(parameter.GetParameter().Get(), hParameter.Get()));
  EXPECT_EQ(&parameter.GetPublisher(), hParameter.Get());
  EXPECT_EQ(parameter.GetInner(), &connection);
  const ShaderChanged shader(VelRshShaderPublisherEvents::PARAMETER_VALUE_UPDATED(), *hShader, parameter);
  EXPECT_EQ(shader.GetEvent(), VelRshShaderPublisherEvents::PARAMETER_VALUE_UPDATED());
  EXPECT_EQ(&shader.GetPublisher(), hShader.Get());
  EXPECT_EQ(&shader.GetInner(), &parameter);
  const ConnectedParameterChanged connected(*hShader, parameter);
  EXPECT_EQ(&connected.GetPublisher(), hShader.Get());
  EXPECT_EQ(&connected.GetInner(), &parameter);
  const VelRshModelNotificationParameterScalar1Changed value(1.0F, 2.0F);
  EXPECT_EQ(value.GetOld(), 1.0F);
  EXPECT_EQ(value.GetNew(), 2.0F);
}

TEST_F(VelRshModelNotificationsTest, Parameter_OfWhatIsNoneOrIsGone_IsEmpty) {
  const VelIRshShader_var hShader = MakeShader();
  EXPECT_FALSE(ParameterChanged(*hShader, nullptr).GetParameter());
  const VelIRshParameter_var hParameter = Add(hShader, "a", "VelRmaScalar");
  ASSERT_EQ(LifeCycleObject_var(hParameter)->remove(), S_OK);
  EXPECT_FALSE(ParameterChanged(*hParameter, nullptr).GetParameter());
}

TEST_F(VelRshModelNotificationsTest, Notifications_ThatPointAtOthers_AreNotCloned) {
  const VelIRshShader_var hShader = MakeShader();
  EXPECT_EQ(ParameterChanged(*hShader, nullptr).Clone(), nullptr);
}

}  // namespace
