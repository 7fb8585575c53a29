// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file GraphTest.h The fixture of tests on whole graphs: a material-like graph, made by its interfaces or as if
/// loaded.
#ifndef TESTS_RENDERINGSHADER_GRAPHS_GRAPHTEST_H
#define TESTS_RENDERINGSHADER_GRAPHS_GRAPHTEST_H

#include <functional>
#include <map>
#include <string>

#include "platform/objectmodeler/VelInstanceCounts.h"
#include "tests/RenderingShader/RshModelTest.h"
#include "tests/RenderingShader/graphs/fixtures/DeliveryRecorder.h"

/// The graph: a root "R" with the parameters "P", a scalar, and "Q", which is connected to the root's node "N"; the
/// node has the scalars "n1" and "n2" and the texture "t".
class GraphTest : public RshModelTest {
 protected:
  void TearDown() override {
    features_.clear();
    RshModelTest::TearDown();
  }

  /// Makes the graph in session: the parameters one after the other, then the connection.
  void MakeInSession(const char* iStartUpOfQ) {
    const VelIRshShader_var hRoot = MakeShader();
    Know("R", hRoot.Get());
    Know("P", Add(hRoot, "P", "VelRmaScalar").Get());
    Know("Q", Add(hRoot, "Q", iStartUpOfQ).Get());
    const VelIRshShader_var hNode = AddNode(hRoot);
    Know("N", hNode.Get());
    Know("n1", Add(hNode, "n1", "VelRmaScalar").Get());
    Know("n2", Add(hNode, "n2", "VelRmaScalar").Get());
    Know("t", Add(hNode, "t", "VelRmaTexture").Get());
    EXPECT_EQ(Parameter("Q")->SetConnection(hNode.Get()), S_OK);
    EXPECT_FALSE(recorder_.Take().empty()) << "the connection itself is heard";
  }

  /// Makes the features of the graph as a load does, which asks nothing of them.
  void MakeAsLoaded(const char* iStartUpOfQ) {
    for (const char* shader : {"R", "N"}) Know(shader, Make("VelRmaShader", shader).Get());
    for (const char* scalar : {"P", "n1", "n2"}) Know(scalar, Make("VelRmaScalar", scalar).Get());
    Know("Q", Make(iStartUpOfQ, "Q").Get());
    Know("t", Make("VelRmaTexture", "t").Get());
    for (const char* parameter : {"P", "Q"}) AppendParameter("R", parameter);
    for (const char* parameter : {"n1", "n2", "t"}) AppendParameter("N", parameter);
    Append("R", nodes_, "N");
    EXPECT_EQ(Access(features_["Q"])->SetReference(node_, features_["N"].Get()), S_OK);
    EXPECT_EQ(VelInstanceCounts::Now().implementations, 0);
  }

  void Know(const char* iName, VelBaseUnknown* iObject) {
    features_[iName] = VelISpecObject_var(iObject);
    recorder_.Name(iObject, iName);
    if (onKnown_) onKnown_(iObject);
  }

  void Append(const char* iShader, const VelISpecAttrKey* iList, const char* iElement) {
    EXPECT_EQ(Access(features_[iShader])->AppendComponent(iList, features_[iElement].Get()), S_OK);
  }

  void AppendParameter(const char* iShader, const char* iParameter) {
    const VelISpecAttrKey* name = Key("Name", VelSpecAttrKind::Text);
    EXPECT_EQ(Access(features_[iParameter])->SetText(name, iParameter), S_OK);
    Append(iShader, parameters_, iParameter);
  }

  VelIRshParameter_var Parameter(const char* iName) { return VelIRshParameter_var(features_[iName]); }
  VelIRshShader_var Shader(const char* iName) { return VelIRshShader_var(features_[iName]); }

  /// @return the code of writing a value to a scalar
  HRESULT Write(const char* iName, float iValue) { return Parameter(iName)->SetValue(&iValue); }

  DeliveryRecorder recorder_;
  std::function<void(VelBaseUnknown*)> onKnown_;  ///< Called with each object as soon as it is made.
  std::map<std::string, VelISpecObject_var> features_;
};

#endif  // TESTS_RENDERINGSHADER_GRAPHS_GRAPHTEST_H
