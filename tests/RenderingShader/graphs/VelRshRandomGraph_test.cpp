// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshRandomGraph_test.cpp Random operations on graphs with shared and cyclic connections, compared with a
/// simple model: values, lists, connections, and who hears whom.
//
// VEL_RANDOM_OPERATIONS and VEL_RANDOM_SEED in the environment make longer and other runs.
#include <algorithm>
#include <cstdlib>
#include <memory>
#include <random>

#include "platform/events/VelCallbackProbe.h"
#include "tests/RenderingShader/RshModelTest.h"
#include "tests/RenderingShader/graphs/fixtures/GraphModel.h"

namespace {

constexpr int containerCount = 2;
constexpr std::size_t shaderLimit = 40;
constexpr std::size_t parameterLimit = 4;

struct StartUp {
  const char* name;
  bool publishes;
};
constexpr StartUp startUps[] = {{"VelRmaScalar", true},
                                {"VelRmaScalar", true},
                                {"VelRmaTexture", true},
                                {"VelRmaVoid", false},
                                {"VelRmaMatrix", false}};

unsigned FromEnvironment(const char* iName, unsigned iElse) {
  const char* text = std::getenv(iName);
  return text != nullptr ? static_cast<unsigned>(std::strtoul(text, nullptr, 10)) : iElse;
}

/// Notes who hears of an event first-hand.
class OutermostDeliveries final : public VelCallbackProbe {
 public:
  OutermostDeliveries() { VelCallbackManager::SetProbe(this); }
  ~OutermostDeliveries() { VelCallbackManager::SetProbe(nullptr); }
  void OnDelivery(const VelCallbackDelivery& iDelivery) noexcept override {
    if (iDelivery.depth == 0) subscribers.insert(iDelivery.subscriber->GetComponent());
  }

  std::set<VelComponent*> subscribers;
};

class VelRshRandomGraphTest : public RshModelTest {
 protected:
  void SetUp() override {
    RshModelTest::SetUp();
    for (VelIContainer_var& hContainer : containers_) hContainer = MakeContainer();
  }
  void TearDown() override {
    objects_.clear();
    dead_.clear();
    for (VelIContainer_var& hContainer : containers_) hContainer = nullptr;
    RshModelTest::TearDown();
  }

  static VelIContainer_var MakeContainer() {
    VelIContainer_var hContainer = VelIContainer::Create();
    EXPECT_EQ(VelICatalogManager_var(hContainer)->LoadCatalog("VelRmaCatalog.feat"), S_OK);
    return hContainer;
  }

  int Random(std::size_t iBound) { return static_cast<int>(random_() % iBound); }

  template <class Map>
  int Any(const Map& iMap) {
    return std::next(iMap.begin(), Random(iMap.size()))->first;
  }

  VelIRshShader_var ShaderOf(int iNumber) { return VelIRshShader_var(objects_.at(iNumber)); }
  VelIRshParameter_var ParameterOf(int iNumber) { return VelIRshParameter_var(objects_.at(iNumber)); }

  void MakeShader() {
    if (model_.shaders.size() >= shaderLimit) return;
    const int container = Random(containerCount);
    objects_[next_] = MakeIn(containers_[container], "VelRmaShader");
    ASSERT_EQ(ShaderOf(next_)->SetType("BasicMaterial"), S_OK);
    model_.shaders[next_++].container = container;
  }

  void AddParameter() {
    const int shader = Any(model_.shaders);
    if (model_.shaders[shader].parameters.size() >= parameterLimit) return;
    const StartUp& startUp = startUps[Random(std::size(startUps))];
    objects_[next_] = VelISpecObject_var(Add(ShaderOf(shader), std::to_string(next_).c_str(), startUp.name));
    model_.shaders[shader].parameters.push_back(next_);
    model_.parameters[next_] = {shader, startUp.name, startUp.publishes, {}, -1};
    model_.BindToOwnShader(next_++);
  }

  void AddNode() {
    const int shader = Any(model_.shaders);
    const int node = Any(model_.shaders);
    GraphModel::Shader& below = model_.shaders[node];
    const bool possible =
        below.father == -1 && below.container == model_.shaders[shader].container && !model_.IsAtOrAbove(node, shader);
    ASSERT_EQ(ShaderOf(shader)->AddNode(ShaderOf(node).Get()), possible ? S_OK : E_FAIL);
    if (!possible) return;
    below.father = shader;
    model_.shaders[shader].nodes.push_back(node);
  }

  bool TakeNodeOut(int iShader, int iNode) {
    if (iShader == -1 || model_.shaders[iNode].father != iShader) return false;
    std::erase(model_.shaders[iShader].nodes, iNode);
    model_.shaders[iNode].father = -1;
    return true;
  }

  void RemoveNode() {
    const int shader = Any(model_.shaders);
    const int node = Any(model_.shaders);
    const HRESULT removed = ShaderOf(shader)->RemoveNode(ShaderOf(node).Get());
    ASSERT_EQ(removed, TakeNodeOut(shader, node) ? S_OK : E_FAIL);
  }

  void Connect() {
    if (model_.parameters.empty()) return;
    const int number = Any(model_.parameters);
    GraphModel::Parameter& parameter = model_.parameters[number];
    const int previous = parameter.connection;
    // Its own shader more often than chance would have it.
    const int next = Random(4) == 0 ? -1 : Random(8) == 0 ? parameter.shader : Any(model_.shaders);
    const VelIRshShader_var hNext = next != -1 ? ShaderOf(next) : nullptr;
    const HRESULT connected = ParameterOf(number)->SetConnection(hNext.Get());
    if (previous == next) {
      ASSERT_EQ(connected, S_FALSE);
      return;
    }
    if (previous != -1) model_.Unbind(number, previous);
    parameter.connection = next;
    model_.BindToConnection(number, false);
    bool isLetGo = true;
    if (previous != -1 && model_.CountConnectionsTo(previous) == 0) {
      isLetGo = TakeNodeOut(model_.shaders[previous].father, previous);
    }
    ASSERT_EQ(connected, isLetGo ? S_OK : E_FAIL);
  }

  void Write() {
    if (model_.parameters.empty()) return;
    const int number = Any(model_.parameters);
    GraphModel::Parameter& parameter = model_.parameters[number];
    const float value = static_cast<float>(Random(4));
    const OutermostDeliveries deliveries;
    const HRESULT written = ParameterOf(number)->SetValue(&value);
    std::set<VelComponent*> expected;
    if (std::string_view(parameter.startUp) != "VelRmaScalar") {
      ASSERT_EQ(written, E_FAIL);
    } else if (parameter.value == value) {
      ASSERT_EQ(written, S_FALSE);
    } else {
      ASSERT_EQ(written, S_OK);
      parameter.value = value;
      expected = ComponentsOf(model_.SubscribersOf(number, GraphModel::ParameterEvents::VALUE_UPDATED()));
    }
    ASSERT_EQ(deliveries.subscribers, expected);
  }

  void RemoveShader() {
    if (model_.shaders.size() < shaderLimit / 2 && Random(4) != 0) return;
    const int shader = Any(model_.shaders);
    ASSERT_EQ(LifeCycleObject_var(objects_.at(shader))->remove(), S_OK);
    model_.RemoveShader(shader);
    Bury();
  }

  void RemoveParameter() {
    if (model_.parameters.empty()) return;
    const int parameter = Any(model_.parameters);
    ASSERT_EQ(LifeCycleObject_var(objects_.at(parameter))->remove(), S_OK);
    model_.RemoveParameter(parameter);
    Bury();
  }

  /// Copies a shader into one of the containers; what it is connected to stays the same.
  void Copy() {
    const int original = Any(model_.shaders);
    if (model_.shaders.size() + 5 >= shaderLimit) return;
    const int container = Random(containerCount);
    VelBaseUnknown_var hCopy;
    ASSERT_EQ(objects_.at(original)->InstanciateForCopy("copy", containers_[container].Get(),
                                                        VelIRshShader::InterfaceId(), hCopy.Receive()),
              S_OK);
    AdoptCopy(original, hCopy.Get(), container, -1);
  }

  int AdoptCopy(int iOriginal, VelBaseUnknown* iCopy, int iContainer, int iFather) {
    const int copy = next_++;
    const GraphModel::Shader original = model_.shaders[iOriginal];
    objects_[copy] = VelISpecObject_var(iCopy);
    model_.shaders[copy] = {iContainer, iFather, {}, {}};
    const std::vector<VelBaseUnknown_var> parameters = ListOf(copy, &VelIRshShader::GetParameters);
    const std::vector<VelBaseUnknown_var> nodes = ListOf(copy, &VelIRshShader::GetNodes);
    EXPECT_EQ(parameters.size(), original.parameters.size());
    EXPECT_EQ(nodes.size(), original.nodes.size());
    for (std::size_t i = 0; i < parameters.size(); ++i) {
      objects_[next_] = VelISpecObject_var(parameters[i]);
      EXPECT_TRUE(ParameterOf(next_));
      model_.parameters[next_] = model_.parameters[original.parameters[i]];
      model_.parameters[next_].shader = copy;
      model_.shaders[copy].parameters.push_back(next_);
      model_.BindToOwnShader(next_);
      model_.BindToConnection(next_++, true);
    }
    for (std::size_t i = 0; i < nodes.size(); ++i) {
      model_.shaders[copy].nodes.push_back(AdoptCopy(original.nodes[i], nodes[i].Get(), iContainer, copy));
    }
    return copy;
  }

  void Close() {
    if (Random(100) != 0) return;
    const int container = Random(containerCount);
    containers_[container] = MakeContainer();
    while (true) {
      const auto inside = std::find_if(model_.shaders.begin(), model_.shaders.end(),
                                       [&](const auto& iEntry) { return iEntry.second.container == container; });
      if (inside == model_.shaders.end()) break;
      model_.RemoveShader(inside->first);
    }
    Bury();
  }

  /// Lets go of what the model has no more; half of the time it stays held for a while.
  void Bury() {
    for (auto next = objects_.begin(); next != objects_.end();) {
      if (model_.shaders.contains(next->first) || model_.parameters.contains(next->first)) {
        ++next;
        continue;
      }
      EXPECT_EQ(next->second->GetComponentState(), VelComponentState::Closed);
      if (Random(2) == 0) dead_.push_back(next->second);
      next = objects_.erase(next);
    }
    if (dead_.size() > 50) dead_.clear();
  }

  /// Nothing can be done with what is removed.
  void UseTheDead() {
    if (dead_.empty() || model_.parameters.empty()) return;
    const VelISpecObject_var& hDead = dead_[static_cast<std::size_t>(Random(dead_.size()))];
    ASSERT_FALSE(VelIRshShader_var(hDead));
    ASSERT_FALSE(VelIRshParameter_var(hDead));
    VelBaseUnknown_var hCopy;
    ASSERT_EQ(hDead->InstanciateForCopy("", nullptr, VelISpecObject::InterfaceId(), hCopy.Receive()), E_FAIL);
  }

  std::set<VelComponent*> ComponentsOf(const std::set<int>& iNumbers) {
    std::set<VelComponent*> components;
    for (const int number : iNumbers) components.insert(objects_.at(number)->GetComponent());
    return components;
  }

  std::vector<VelBaseUnknown_var> ListOf(int iShader, HRESULT (VelIRshShader::*iRead)(VelListPtrVelBaseUnknown**)) {
    VelListPtrVelBaseUnknown* list = nullptr;
    EXPECT_EQ((ShaderOf(iShader).Get()->*iRead)(&list), S_OK);
    const std::unique_ptr<VelListPtrVelBaseUnknown> owner(list);
    std::vector<VelBaseUnknown_var> elements;
    if (list == nullptr) return elements;
    for (VelBaseUnknown* element : *list) elements.push_back(VelBaseUnknown_var::Adopt(element));
    return elements;
  }

  void CheckSubscriptions(int iPublisher, const VelCallbackManager& iManager,
                          const std::vector<VelEventName>& iEvents) {
    for (VelEventName event : iEvents) {
      VelListPtrVelBaseUnknown list;
      iManager.ListSubscribers(event, list);
      std::set<VelComponent*> found;
      for (VelBaseUnknown* subscriber : list) {
        ASSERT_TRUE(found.insert(subscriber->GetComponent()).second) << event << " is heard twice";
        subscriber->Release();
      }
      ASSERT_EQ(found, ComponentsOf(model_.SubscribersOf(iPublisher, event))) << event;
    }
  }

  void CheckList(const std::vector<VelBaseUnknown_var>& iFound, const std::vector<int>& iExpected) {
    ASSERT_EQ(iFound.size(), iExpected.size());
    for (std::size_t i = 0; i < iFound.size(); ++i) {
      ASSERT_TRUE(objects_.at(iExpected[i])->IsEqual(iFound[i].Get()));
    }
  }

  void CheckShader(int iShader) {
    CheckList(ListOf(iShader, &VelIRshShader::GetParameters), model_.shaders[iShader].parameters);
    CheckList(ListOf(iShader, &VelIRshShader::GetNodes), model_.shaders[iShader].nodes);
    CheckSubscriptions(iShader, ManagerOf(ShaderOf(iShader)), GraphModel::EventsOfShaders());
  }

  void CheckParameter(int iParameter) {
    const GraphModel::Parameter& parameter = model_.parameters[iParameter];
    const VelIRshParameter_var hParameter = ParameterOf(iParameter);
    VelIRshShader_var hConnected;
    ASSERT_EQ(hParameter->GetConnection(hConnected.Receive()), parameter.connection != -1 ? S_OK : E_FAIL);
    if (hConnected) {
      ASSERT_TRUE(objects_.at(parameter.connection)->IsEqual(hConnected.Get()));
    }
    float value = -1.0F;
    ASSERT_EQ(hParameter->GetValue(&value), parameter.value ? S_OK : E_FAIL);
    if (parameter.value) {
      ASSERT_EQ(value, *parameter.value);
    }
    ASSERT_EQ(static_cast<bool>(VelIRshParameterPublisher_var(hParameter)), parameter.publishes);
    if (parameter.publishes) CheckSubscriptions(iParameter, ManagerOf(hParameter), GraphModel::EventsOfParameters());
  }

  void CheckAll() {
    for (const auto& [shader, expected] : model_.shaders) CheckShader(shader);
    for (const auto& [parameter, expected] : model_.parameters) CheckParameter(parameter);
  }

  /// Does one operation, some more often than others.
  void DoOne() {
    using Operation = void (VelRshRandomGraphTest::*)();

    constexpr Operation operations[] = {&VelRshRandomGraphTest::MakeShader,   &VelRshRandomGraphTest::AddParameter,
                                        &VelRshRandomGraphTest::AddParameter, &VelRshRandomGraphTest::AddParameter,
                                        &VelRshRandomGraphTest::AddNode,      &VelRshRandomGraphTest::AddNode,
                                        &VelRshRandomGraphTest::RemoveNode,   &VelRshRandomGraphTest::Connect,
                                        &VelRshRandomGraphTest::Connect,      &VelRshRandomGraphTest::Connect,
                                        &VelRshRandomGraphTest::Connect,      &VelRshRandomGraphTest::Write,
                                        &VelRshRandomGraphTest::Write,        &VelRshRandomGraphTest::Write,
                                        &VelRshRandomGraphTest::RemoveShader, &VelRshRandomGraphTest::RemoveParameter,
                                        &VelRshRandomGraphTest::Copy,         &VelRshRandomGraphTest::Close,
                                        &VelRshRandomGraphTest::UseTheDead};
    (this->*operations[Random(std::size(operations))])();
  }

  GraphModel model_;
  std::map<int, VelISpecObject_var> objects_;
  std::vector<VelISpecObject_var> dead_;
  VelIContainer_var containers_[containerCount];
  int next_ = 0;
  const unsigned seed_ = FromEnvironment("VEL_RANDOM_SEED", 4);
  std::mt19937 random_{seed_};
};

TEST_F(VelRshRandomGraphTest, RandomOperations_DoWhatTheModelSays) {
  const unsigned count = FromEnvironment("VEL_RANDOM_OPERATIONS", 20000);
  for (unsigned done = 0; done < count; ++done) {
    SCOPED_TRACE("seed " + std::to_string(seed_) + ", operation " + std::to_string(done));
    if (model_.shaders.empty()) MakeShader();
    DoOne();
    if (!model_.shaders.empty()) CheckShader(Any(model_.shaders));
    if (!model_.parameters.empty()) CheckParameter(Any(model_.parameters));
    if (done % 500 == 0) CheckAll();
    if (HasFailure()) break;
  }
  CheckAll();
}

}  // namespace
