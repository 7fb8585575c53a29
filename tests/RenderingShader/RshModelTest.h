// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file RshModelTest.h The fixture of the component's tests: its dictionary, a container, and what tests ask of it.
#ifndef TESTS_RENDERINGSHADER_RSHMODELTEST_H
#define TESTS_RENDERINGSHADER_RSHMODELTEST_H

#include <string>
#include <vector>

#include "RenderingShader/interfaces/VelIRshParameter.h"
#include "RenderingShader/interfaces/VelIRshParameterPrivate.h"
#include "RenderingShader/interfaces/VelIRshParameterPublisher.h"
#include "RenderingShader/interfaces/VelIRshShader.h"
#include "RenderingShader/interfaces/VelIRshShaderPublisher.h"
#include "platform/events/VelCallbackManager.h"
#include "platform/trace/VelTraceRecorder.h"
#include "tests/platform/featuremodeler/FeatureModelerTest.h"
#include "tests/support/VelFailureRecorder.h"

using Texts = std::vector<std::string>;

/// The component's classes answer, every trace that a test switches on is recorded, and so is every check.
class RshModelTest : public FeatureModelerTest {
 protected:
  void SetUp() override;
  void TearDown() override;

  /// @return a new shader of a type, made by the factory
  VelIRshShader_var MakeShader(const char* iType = "BasicMaterial");

  /// @return a new parameter at the end of a shader's list
  static VelIRshParameter_var Add(const VelIRshShader_var& iShader, const char* iName, const char* iStartUp);

  /// @return a new shader that is a node of another one
  VelIRshShader_var AddNode(const VelIRshShader_var& iShader, const char* iType = "vel_phen_texture");

  /// @return the names of a shader's parameters, in order; "?" for what is no parameter or has no name
  static Texts ParameterNames(const VelIRshShader_var& iShader);

  static std::string NameOfParameter(VelBaseUnknown* iParameter);
  static std::string TypeOfShader(VelBaseUnknown* iShader);

  static VelIRshShader_var ConnectionOf(const VelIRshParameter_var& iParameter);

  static VelCallbackManager& ManagerOf(const VelIRshShader_var& iShader);
  static VelCallbackManager& ManagerOf(const VelIRshParameter_var& iParameter);

  /// @return true when an object hears an event of a manager
  static bool Hears(const VelCallbackManager& iManager, VelEventName iEvent, VelBaseUnknown* iSubscriber) {
    return iManager.IsSubscribed(iEvent, iSubscriber);
  }

  /// Lets go of all features at once, as the end of a document does.
  void CloseContainer() { hContainer_ = nullptr; }

  VelTraceRecorder traces_;
  RecordingFailureObserver checks_;
};

/// @return the same object behind two pointers, or none behind both
bool IsSameObject(VelBaseUnknown* iLeft, VelBaseUnknown* iRight);

#endif  // TESTS_RENDERINGSHADER_RSHMODELTEST_H
