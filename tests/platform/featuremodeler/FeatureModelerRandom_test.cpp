// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file FeatureModelerRandom_test.cpp Random operations on features, compared with a simple model of what they should
/// do.
#include <algorithm>
#include <map>
#include <optional>
#include <random>

#include "tests/platform/featuremodeler/FeatureModelerTest.h"

namespace {

/// What is expected of one feature.
struct Expected {
  int father = -1;
  std::vector<int> nodes;
  std::optional<std::string> text;
  std::vector<int> parameters;
};

/// The model: features by number, and the references (parameter, target) in the order in which they were written.
struct Model {
  std::map<int, Expected> shaders;
  std::map<int, int> parameterOf;  ///< The shader that holds a parameter.
  std::vector<std::pair<int, int>> references;

  bool IsAbove(int iShader, int iBelow) const {
    for (int next = iBelow; next != -1; next = shaders.at(next).father) {
      if (next == iShader) return true;
    }
    return false;
  }

  void Remove(int iShader) {
    const Expected gone = shaders.at(iShader);
    if (gone.father != -1) std::erase(shaders.at(gone.father).nodes, iShader);
    for (const int node : gone.nodes) Remove(node);
    for (const int parameter : gone.parameters) {
      std::erase_if(references, [&](const auto& iReference) { return iReference.first == parameter; });
      parameterOf.erase(parameter);
    }
    std::erase_if(references, [&](const auto& iReference) { return iReference.second == iShader; });
    shaders.erase(iShader);
  }
};

class FeatureModelerRandomTest : public FeatureModelerTest {
 protected:
  int Random(int iBound) { return static_cast<int>(random_() % static_cast<unsigned>(iBound)); }

  template <class Map>
  int Any(const Map& iMap) {
    return std::next(iMap.begin(), Random(static_cast<int>(iMap.size())))->first;
  }

  void Create() {
    if (model_.shaders.size() >= 40) return;
    features_[next_] = Make("VelRmaShader", std::to_string(next_).c_str());
    model_.shaders[next_++] = {};
  }

  void AddParameter() {
    const int shader = Any(model_.shaders);
    if (model_.shaders[shader].parameters.size() >= 5) return;
    features_[next_] = Make("VelRmaScalar", std::to_string(next_).c_str());
    ASSERT_EQ(Access(features_[shader])->AppendComponent(parameters_, features_[next_].Get()), S_OK);
    model_.shaders[shader].parameters.push_back(next_);
    model_.parameterOf[next_++] = shader;
  }

  void AppendNode() {
    const int shader = Any(model_.shaders);
    const int node = Any(model_.shaders);
    const bool possible = model_.shaders[node].father == -1 && !model_.IsAbove(node, shader);
    ASSERT_EQ(Access(features_[shader])->AppendComponent(nodes_, features_[node].Get()), possible ? S_OK : E_FAIL);
    if (!possible) return;
    model_.shaders[shader].nodes.push_back(node);
    model_.shaders[node].father = shader;
  }

  void TakeNodeOut() {
    const int shader = Any(model_.shaders);
    const int node = Any(model_.shaders);
    const bool possible = model_.shaders[node].father == shader;
    ASSERT_EQ(Access(features_[shader])->RemoveComponent(nodes_, features_[node].Get()), possible ? S_OK : E_FAIL);
    if (!possible) return;
    std::erase(model_.shaders[shader].nodes, node);
    model_.shaders[node].father = -1;
  }

  void Connect() {
    if (model_.parameterOf.empty()) return;
    const int parameter = Any(model_.parameterOf);
    const int target = Any(model_.shaders);
    std::erase_if(model_.references, [&](const auto& iReference) { return iReference.first == parameter; });
    if (Random(4) == 0) {
      ASSERT_TRUE(SUCCEEDED(Access(features_[parameter])->ResetReference(node_)));
      return;
    }
    ASSERT_EQ(Access(features_[parameter])->SetReference(node_, features_[target].Get()), S_OK);
    model_.references.emplace_back(parameter, target);
  }

  void WriteText() {
    const int shader = Any(model_.shaders);
    const std::string text = std::to_string(Random(10));
    ASSERT_EQ(Access(features_[shader])->SetText(type_, VelUnicodeString(std::string_view(text))), S_OK);
    model_.shaders[shader].text = text;
  }

  void RemoveOne() {
    if (model_.shaders.size() < 10 && Random(4) != 0) return;
    const int shader = Any(model_.shaders);
    ASSERT_EQ(LifeCycleObject_var(features_[shader])->remove(), S_OK);
    model_.Remove(shader);
    if (Random(2) == 0) return;  // Half of the time what is removed stays held.
    std::erase_if(features_,
                  [](const auto& iEntry) { return iEntry.second->GetComponentState() == VelComponentState::Closed; });
  }

  void CopyAndRemoveTheCopy() {
    const int shader = Any(model_.shaders);
    const int before = hContainer_->CountFeatures();
    VelBaseUnknown_var hCopy;
    ASSERT_EQ(features_[shader]->InstanciateForCopy("copy", nullptr, VelISpecObject::InterfaceId(), hCopy.Receive()),
              S_OK);
    ASSERT_EQ(LifeCycleObject_var(hCopy)->remove(), S_OK);
    ASSERT_EQ(hContainer_->CountFeatures(), before);
  }

  std::vector<int> NumbersOf(const VelISpecObject_var& iShader, const VelISpecAttrKey* iList) {
    std::vector<int> numbers;
    int size = 0;
    EXPECT_EQ(Access(iShader)->GetSize(iList, size), S_OK);
    for (int i = 1; i <= size; ++i) {
      VelBaseUnknown_var hElement;
      EXPECT_EQ(Access(iShader)->GetComponentAt(iList, i, hElement.Receive()), S_OK);
      numbers.push_back(std::stoi(NameOf(hElement.Get())));
    }
    return numbers;
  }

  void Compare() {
    ASSERT_EQ(hContainer_->CountFeatures(), static_cast<int>(model_.shaders.size() + model_.parameterOf.size()));
    for (const auto& [number, expected] : model_.shaders) {
      const VelISpecObject_var& hShader = features_.at(number);
      ASSERT_EQ(NumbersOf(hShader, nodes_), expected.nodes);
      ASSERT_EQ(NumbersOf(hShader, parameters_), expected.parameters);
      VelISpecObject_var hFather;
      ASSERT_EQ(SUCCEEDED(hShader->GetFather(hFather.Receive())), expected.father != -1);
      ASSERT_TRUE(!hFather || hFather->IsEqual(features_.at(expected.father).Get()));
      VelUnicodeString text;
      ASSERT_EQ(SUCCEEDED(Access(hShader)->GetText(type_, text)), expected.text.has_value());
      ASSERT_EQ(text.View(), expected.text.value_or(std::string()));
      std::vector<std::string> owners;
      for (const auto& [parameter, target] : model_.references) {
        if (target == number) owners.push_back(std::to_string(parameter));
      }
      VelListPtrVelBaseUnknown found;
      ASSERT_EQ(hShader->ListPointingOwners(VelISpecObject::InterfaceId(), found), S_OK);
      ASSERT_EQ(Names(found), owners);
    }
  }

  void RunOneOf(int iStep) {
    using Step = void (FeatureModelerRandomTest::*)();
    constexpr Step steps[] = {&FeatureModelerRandomTest::Create,     &FeatureModelerRandomTest::AddParameter,
                              &FeatureModelerRandomTest::AppendNode, &FeatureModelerRandomTest::TakeNodeOut,
                              &FeatureModelerRandomTest::Connect,    &FeatureModelerRandomTest::WriteText,
                              &FeatureModelerRandomTest::RemoveOne,  &FeatureModelerRandomTest::CopyAndRemoveTheCopy};
    (this->*steps[iStep])();
  }

  std::mt19937 random_{20261121};
  std::map<int, VelISpecObject_var> features_;
  Model model_;
  int next_ = 0;
};

TEST_F(FeatureModelerRandomTest, TwoHundredThousandOperations_LeaveWhatTheModelSays) {
  for (int i = 0; i < 200000; ++i) {
    if (model_.shaders.empty()) Create();
    RunOneOf(Random(8));
    if (i % 500 == 0) Compare();
    if (HasFatalFailure()) FAIL() << "at operation " << i;
  }
  Compare();
}

}  // namespace
