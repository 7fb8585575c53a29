// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshShaderManager_RandomUpgrades_test.cpp Upgrades a shader through random versions of its type, and
/// compares every parameter with a simple model.
//
// VEL_RANDOM_OPERATIONS and VEL_RANDOM_SEED in the environment make longer and other runs.
#include <cstdlib>
#include <random>
#include <set>

#include "tests/RenderingShader/fixtures/FakeDocument.h"
#include "tests/RenderingShader/management/fixtures/ManagementTest.h"

namespace {

constexpr int nodeCount = 3;
constexpr int documentCount = 3;
constexpr int noValue = -1;
constexpr int noConnection = -1;

enum class Kind { Plain, Document, Left };

struct StartUp {
  const char* name;
  Kind kind;
};
constexpr StartUp startUps[] = {
    {"VelRmaScalar", Kind::Plain}, {"VelRmaInteger", Kind::Plain}, {"VelRmaBoolean", Kind::Plain},
    {"VelRmaColor", Kind::Plain},  {"VelRmaVector", Kind::Plain},  {"VelRmaTexture", Kind::Document},
    {"VelRmaString", Kind::Left},  {"VelRmaMatrix", Kind::Left},   {"VelRmaVoid", Kind::Left}};

/// A parameter as it should be; values are numbers, of which each type makes its own.
struct Parameter {
  std::string name;
  const StartUp* startUp;
  int value;
  int connection = noConnection;
};
using Parameters = std::vector<Parameter>;

unsigned FromEnvironment(const char* iName, unsigned iElse) {
  const char* text = std::getenv(iName);
  return text != nullptr ? static_cast<unsigned>(std::strtoul(text, nullptr, 10)) : iElse;
}

class VelRshShaderManagerRandomUpgradesTest : public ManagementTest {
 protected:
  void SetUp() override {
    ManagementTest::SetUp();
    for (int i = 0; i < documentCount; ++i) documents_.push_back(FakeDocument::Create("document"));
    hShader_ = MakeShader("mine");
    EXPECT_EQ(hShader_->SetVersion(1), S_OK);
    for (int i = 0; i < nodeCount; ++i) nodes_.push_back(AddNode(hShader_));
    First().Add("mine").version.value = 1;
    First().onInitialize = [this](VelIRshShader& ioShader, unsigned char) {
      EXPECT_EQ(ioShader.SetVersion(First().types[0].version.value), S_OK);
      for (const Parameter& parameter : today_) AddParameter(VelIRshShader_var(&ioShader), parameter);
      return S_OK;
    };
  }
  void TearDown() override {
    hShader_ = nullptr;
    nodes_.clear();
    CloseContainer();
    documents_.clear();
    ManagementTest::TearDown();
  }

  int Random(int iBound) { return static_cast<int>(random_() % static_cast<unsigned>(iBound)); }

  Parameter AnyParameter() {
    const StartUp& startUp = startUps[Random(static_cast<int>(std::size(startUps)))];
    return {std::string(1, static_cast<char>('a' + Random(4))), &startUp, AnyValue(startUp)};
  }

  int AnyValue(const StartUp& iStartUp) {
    if (iStartUp.kind == Kind::Document) return Random(documentCount + 1) - 1;
    if (iStartUp.name == std::string("VelRmaVoid")) return noValue;
    // A version that forgets a default is rare.
    return Random(25) == 0 ? noValue : Random(1000);
  }

  /// Drops, adds, re-types and moves some of the parameters, and changes the defaults.
  Parameters NextVersion(const Parameters& iBefore) {
    Parameters next;
    for (const Parameter& before : iBefore) {
      const int chance = Random(10);
      if (chance == 0) continue;
      Parameter kept{before.name, before.startUp, AnyValue(*before.startUp)};
      if (chance == 1) kept.startUp = AnyParameter().startUp;
      if (chance == 1) kept.value = AnyValue(*kept.startUp);
      next.insert(next.begin() + Random(chance < 4 ? static_cast<int>(next.size()) + 1 : 1), kept);
    }
    while (next.size() < 4 || (next.size() < 8 && Random(3) == 0)) next.push_back(AnyParameter());
    return next;
  }

  static void SetReals(const VelIRshParameter_var& ioParameter, int iValue, std::size_t iCount) {
    std::vector<float> reals(iCount);
    for (std::size_t i = 0; i < iCount; ++i) reals[i] = static_cast<float>(iValue) + static_cast<float>(i);
    EXPECT_TRUE(SUCCEEDED(ioParameter->SetValue(VelRshValueSource(reals.data(), iCount))));
  }

  void SetValue(const VelIRshParameter_var& ioParameter, const Parameter& iModel) {
    if (iModel.value == noValue) return;
    const std::string startUp = iModel.startUp->name;
    const std::int32_t integer = iModel.value;
    const bool boolean = iModel.value % 2 == 0;
    const VelUnicodeString text(std::to_string(iModel.value).c_str());
    HRESULT set = S_OK;
    if (startUp == "VelRmaInteger") set = ioParameter->SetValue(&integer);
    if (startUp == "VelRmaBoolean") set = ioParameter->SetValue(&boolean);
    if (startUp == "VelRmaString") set = ioParameter->SetValue(&text);
    if (startUp == "VelRmaTexture") {
      set = ioParameter->SetValue(documents_[static_cast<std::size_t>(iModel.value)].Get());
    }
    EXPECT_TRUE(SUCCEEDED(set));
    if (const std::size_t count = CountReals(startUp); count != 0) SetReals(ioParameter, iModel.value, count);
  }

  static std::size_t CountReals(const std::string& iStartUp) {
    if (iStartUp == "VelRmaScalar") return 1;
    if (iStartUp == "VelRmaVector") return 3;
    if (iStartUp == "VelRmaColor") return 4;
    return iStartUp == "VelRmaMatrix" ? 16 : 0;
  }

  void AddParameter(const VelIRshShader_var& ioShader, const Parameter& iModel) {
    SetValue(Add(ioShader, iModel.name.c_str(), iModel.startUp->name), iModel);
  }

  /// Edits some values and makes some connections, of the shader and of the model alike.
  void Edit() {
    const std::vector<VelIRshParameter_var> parameters = ParametersOf(hShader_);
    for (std::size_t i = 0; i < parameters.size(); ++i) {
      Parameter& model = model_[i];
      if (const int value = Random(2) == 0 ? AnyValue(*model.startUp) : noValue; value != noValue) {
        model.value = value;
        SetValue(parameters[i], model);
      }
      if (model.connection != noConnection || Random(3) != 0) continue;
      model.connection = Random(nodeCount);
      ASSERT_EQ(parameters[i]->SetConnection(nodes_[static_cast<std::size_t>(model.connection)].Get()), S_OK);
    }
  }

  /// @return what the upgrade to today's version should answer; the model is as it should be then
  HRESULT UpgradeModel() {
    const Parameters before = std::exchange(model_, today_);
    std::vector<Parameter*> successors;
    std::set<Parameter*> used;
    for (const Parameter& old : before) {
      Parameter* successor = nullptr;
      for (Parameter& next : model_) {
        const bool fits = next.name == old.name && next.startUp == old.startUp && !used.contains(&next);
        if (successor == nullptr && fits) successor = &next;
      }
      used.insert(successor);
      successors.push_back(successor);
    }
    for (std::size_t i = 0; i < before.size(); ++i) {
      if (successors[i] == nullptr || before[i].startUp->kind == Kind::Left) continue;
      if (before[i].value == noValue && before[i].startUp->kind == Kind::Plain) return E_FAIL;
      if (before[i].value != noValue) successors[i]->value = before[i].value;
    }
    for (std::size_t i = 0; i < before.size(); ++i) {
      if (successors[i] != nullptr) successors[i]->connection = before[i].connection;
    }
    return S_OK;
  }

  void CheckReals(const VelIRshParameter_var& iParameter, int iValue, std::size_t iCount) {
    std::vector<float> reals(iCount, -1.0F);
    ASSERT_EQ(iParameter->GetValue(VelRshValueTarget(reals.data(), iCount)), iValue == noValue ? E_FAIL : S_OK);
    if (iValue == noValue) return;
    for (std::size_t i = 0; i < iCount; ++i) ASSERT_EQ(reals[i], static_cast<float>(iValue) + static_cast<float>(i));
  }

  void CheckValue(const VelIRshParameter_var& iParameter, const Parameter& iModel) {
    const std::string startUp = iModel.startUp->name;
    const HRESULT read = iModel.value == noValue ? E_FAIL : S_OK;
    std::int32_t integer = 0;
    bool boolean = true;
    VelUnicodeString text;
    VelBaseUnknown_var hDocument;
    if (startUp == "VelRmaInteger") {
      ASSERT_EQ(iParameter->GetValue(&integer), read);
      ASSERT_EQ(integer, iModel.value == noValue ? 0 : iModel.value);
    } else if (startUp == "VelRmaBoolean") {
      ASSERT_EQ(iParameter->GetValue(&boolean), read);
      ASSERT_EQ(boolean, iModel.value == noValue || iModel.value % 2 == 0);
    } else if (startUp == "VelRmaString") {
      ASSERT_EQ(iParameter->GetValue(&text), read);
      ASSERT_EQ(text, VelUnicodeString(iModel.value == noValue ? "" : std::to_string(iModel.value).c_str()));
    } else if (startUp == "VelRmaTexture") {
      ASSERT_EQ(iParameter->GetValue(hDocument.Receive()), S_OK);
      const auto number = static_cast<std::size_t>(iModel.value);
      ASSERT_TRUE(IsSameObject(hDocument.Get(), iModel.value == noValue ? nullptr : documents_[number].Get()));
    } else if (const std::size_t count = CountReals(startUp); count != 0) {
      CheckReals(iParameter, iModel.value, count);
    }
  }

  void CheckShader() {
    const std::vector<VelIRshParameter_var> parameters = ParametersOf(hShader_);
    ASSERT_EQ(parameters.size(), model_.size());
    for (std::size_t i = 0; i < parameters.size(); ++i) {
      VelString name;
      VelString startUp;
      ASSERT_EQ(parameters[i]->GetName(name), S_OK);
      ASSERT_EQ(parameters[i]->GetType(startUp), S_OK);
      ASSERT_EQ(name, VelString(std::string_view(model_[i].name)));
      ASSERT_EQ(startUp, model_[i].startUp->name);
      ASSERT_NO_FATAL_FAILURE(CheckValue(parameters[i], model_[i]));
      const int connection = model_[i].connection;
      VelBaseUnknown* const node =
          connection == noConnection ? nullptr : nodes_[static_cast<std::size_t>(connection)].Get();
      ASSERT_TRUE(IsSameObject(ConnectionOf(parameters[i]).Get(), node));
    }
    ASSERT_EQ(NodesOf(hShader_).size(), nodes_.size());
    ASSERT_EQ(hContainer_->CountFeatures(), 1 + nodeCount + static_cast<int>(model_.size()));
  }

  const FakeDocumentBindings bindings_;
  std::vector<VelIPLMDmtDocument_var> documents_;
  std::vector<VelIRshShader_var> nodes_;
  VelIRshShader_var hShader_;
  Parameters model_;
  Parameters today_;
  const unsigned seed_ = FromEnvironment("VEL_RANDOM_SEED", 8);
  std::mt19937 random_{seed_};
};

TEST_F(VelRshShaderManagerRandomUpgradesTest, RandomVersions_KeepWhatTheModelKeeps) {
  const unsigned count = FromEnvironment("VEL_RANDOM_OPERATIONS", 2500);
  unsigned stopped = 0;
  for (unsigned done = 0; done < count; ++done) {
    SCOPED_TRACE("seed " + std::to_string(seed_) + ", upgrade " + std::to_string(done));
    ASSERT_NO_FATAL_FAILURE(Edit());
    today_ = NextVersion(model_);
    ++First().types[0].version.value;
    First().calls.clear();
    const HRESULT expected = UpgradeModel();
    ASSERT_EQ(Manager().UpgradeShader(hShader_.Get()), expected);
    ASSERT_NO_FATAL_FAILURE(CheckShader());
    if (expected != S_OK) ++stopped;
  }
  EXPECT_GT(stopped, count / 100) << "the run has to meet upgrades that stop";
  EXPECT_LT(stopped, count / 4) << "and mostly others";
}

}  // namespace
