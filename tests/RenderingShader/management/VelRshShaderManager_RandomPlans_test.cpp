// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshShaderManager_RandomPlans_test.cpp Says of random shaders what they will be like after an upgrade, from
/// the plan and the state before alone, and compares with what the upgrade makes of them.
//
// VEL_RANDOM_OPERATIONS and VEL_RANDOM_SEED in the environment make longer and other runs.
#include <cmath>
#include <cstdlib>
#include <limits>
#include <map>
#include <random>

#include "platform/configuration/VelRbaConfiguration.h"
#include "platform/events/VelCallbackProbe.h"
#include "platform/materials/VelIRmaEditionMode.h"
#include "tests/RenderingShader/fixtures/FakeDocument.h"
#include "tests/RenderingShader/management/fixtures/UpgradeTest.h"

namespace {

using Row = VelRshUpgradePlanRow;
using Kind = Row::Kind;

constexpr const char* startUps[] = {"VelRmaScalar",  "VelRmaScalar", "VelRmaScalar", "VelRmaInteger",
                                    "VelRmaBoolean", "VelRmaColor",  "VelRmaVector", "VelRmaTexture",
                                    "VelRmaString",  "VelRmaMatrix", "VelRmaVoid"};
constexpr const char* tags[] = {"",       "scale_u", "scale_v",          "scale_u scale_v",   "angle offset_u",
                                "flip_u", "dpi",     "mapping-behavior", "projector-function"};
constexpr const char* nodeTypes[] = {"first", "second", "third"};
constexpr int nodeLimit = 6;
constexpr int documentCount = 3;
constexpr int noValue = -1;
constexpr int noNumber = -2;  ///< Of a scalar, what is no number.

/// A parameter as a version has it.
struct Model {
  std::string name;
  std::string startUp;
  int value;
  bool isConnectedAnew = false;
};

/// A parameter as it is.
struct State {
  std::string name;
  std::string startUp;
  std::string value;
  std::string connection;  ///< "#" and the number of the shader; the type of one that is none of the known.

  friend bool operator==(const State&, const State&) = default;
  friend std::ostream& operator<<(std::ostream& ioStream, const State& iState) {
    return ioStream << iState.name << ": " << iState.startUp << " " << iState.value << " " << iState.connection;
  }
};
using States = std::vector<std::vector<State>>;

unsigned FromEnvironment(const char* iName, unsigned iElse) {
  const char* text = std::getenv(iName);
  return text != nullptr ? static_cast<unsigned>(std::strtoul(text, nullptr, 10)) : iElse;
}

/// Whether an event of a shader or parameter of a container is heard.
class Ears final : public VelCallbackProbe {
 public:
  explicit Ears(VelIContainer& iContainer) : container_(iContainer) { VelCallbackManager::SetProbe(this); }
  ~Ears() { VelCallbackManager::SetProbe(nullptr); }
  Ears(const Ears&) = delete;
  Ears& operator=(const Ears&) = delete;
  void OnDelivery(const VelCallbackDelivery& iDelivery) noexcept override {
    for (VelBaseUnknown* side : {iDelivery.publisher, iDelivery.subscriber}) {
      const VelISpecObject_var hFeature(side);
      VelIContainer_var hContainer;
      if (hFeature && SUCCEEDED(hFeature->GetContainer(hContainer.Receive()))) {
        if (IsSameObject(hContainer.Get(), &container_)) ++count;
      }
    }
  }

  int count = 0;

 private:
  VelIContainer& container_;
};

class VelRshShaderManagerRandomPlansTest : public UpgradeTest {
 protected:
  void SetUp() override {
    UpgradeTest::SetUp();
    for (int i = 0; i < documentCount; ++i) {
      documents_.push_back(FakeDocument::Create("document"));
      FakeDocument::Of(*documents_.back()).name.value = VelUnicodeString("d" + std::to_string(i));
    }
    First().onInitialize = [this](VelIRshShader& ioShader, unsigned char) {
      const VelIRshShader_var hShader(&ioShader);
      EXPECT_EQ(hShader->SetVersion(2), S_OK);
      for (const Model& model : version_) AddModel(hShader, model);
      return initializeCode_;
    };
  }
  void TearDown() override {
    Forget();
    CloseContainer();
    documents_.clear();
    UpgradeTest::TearDown();
  }

  void Forget() {
    hShader_ = nullptr;
    shaders_.clear();
  }

  int Random(int iBound) { return static_cast<int>(random_() % static_cast<unsigned>(iBound)); }
  bool IsRare(int iOneOf) { return Random(iOneOf) == 0; }

  Model AnyModel() {
    const std::string startUp = startUps[Random(static_cast<int>(std::size(startUps)))];
    return {std::string(1, static_cast<char>('a' + Random(5))), startUp, AnyValue(startUp)};
  }

  int AnyValue(const std::string& iStartUp) {
    if (iStartUp == "VelRmaVoid" || IsRare(30)) return noValue;
    if (iStartUp == "VelRmaTexture") return Random(documentCount + 1) - 1;
    return iStartUp == "VelRmaScalar" && IsRare(40) ? noNumber : Random(4);
  }

  std::vector<Model> AnyModels(int iMost) {
    std::vector<Model> models;
    for (int count = Random(iMost + 1); count > 0; --count) models.push_back(AnyModel());
    return models;
  }

  /// Drops, adds, re-types and moves some of the parameters, and changes the defaults.
  std::vector<Model> NextVersion(const std::vector<Model>& iBefore) {
    std::vector<Model> next;
    for (Model model : iBefore) {
      const int chance = Random(8);
      if (chance == 0) continue;
      if (chance == 1) model.startUp = AnyModel().startUp;
      if (model.name.empty()) model.name = "a";
      if (chance < 5) model.value = AnyValue(model.startUp);
      model.isConnectedAnew = IsRare(12);
      next.insert(next.begin() + Random(static_cast<int>(next.size()) + 1), model);
    }
    while (IsRare(2)) next.push_back(AnyModel());
    return next;
  }

  static std::vector<float> RealsOf(const std::string& iStartUp, int iValue) {
    const std::map<std::string, std::size_t> counts{
        {"VelRmaScalar", 1}, {"VelRmaVector", 3}, {"VelRmaColor", 4}, {"VelRmaMatrix", 16}};
    const auto count = counts.find(iStartUp);
    std::vector<float> reals(count != counts.end() ? count->second : 0, static_cast<float>(iValue));
    if (iValue == noNumber && !reals.empty()) reals[0] = std::numeric_limits<float>::quiet_NaN();
    return reals;
  }

  void SetValue(const VelIRshParameter_var& ioParameter, const std::string& iStartUp, int iValue) {
    if (iValue == noValue) return;
    const std::int32_t integer = iValue;
    const bool boolean = iValue % 2 == 0;
    const VelUnicodeString text(std::to_string(iValue));
    const std::vector<float> reals = RealsOf(iStartUp, iValue);
    HRESULT set = S_OK;
    if (iStartUp == "VelRmaInteger") set = ioParameter->SetValue(&integer);
    if (iStartUp == "VelRmaBoolean") set = ioParameter->SetValue(&boolean);
    if (iStartUp == "VelRmaString") set = ioParameter->SetValue(&text);
    if (iStartUp == "VelRmaTexture") set = ioParameter->SetValue(documents_[static_cast<std::size_t>(iValue)].Get());
    if (!reals.empty()) set = ioParameter->SetValue(VelRshValueSource(reals.data(), reals.size()));
    EXPECT_TRUE(SUCCEEDED(set));
  }

  void AddModel(const VelIRshShader_var& iShader, const Model& iModel) {
    VelIRshParameter_var hParameter;
    if (iModel.name.empty()) {
      VelIContainer_var hContainer;
      EXPECT_EQ(VelISpecObject_var(iShader)->GetContainer(hContainer.Receive()), S_OK);
      hParameter = VelIRshParameter_var(MakeIn(hContainer, iModel.startUp.c_str()));
      EXPECT_EQ(iShader->AppendParameter(hParameter.Get()), S_OK);
    } else {
      hParameter = Add(iShader, iModel.name.c_str(), iModel.startUp.c_str());
    }
    SetValue(hParameter, iModel.startUp, iModel.value);
    if (iModel.isConnectedAnew) ConnectAnew(iShader, hParameter);
  }

  /// As a version does that brings a shader of its own.
  static void ConnectAnew(const VelIRshShader_var& iShader, const VelIRshParameter_var& ioParameter) {
    const VelIRshShader_var hNode = AddNewNode(iShader, "anew");
    AddScalar(hNode, "a", 9.0F);
    EXPECT_EQ(ioParameter->SetConnection(hNode.Get()), S_OK);
  }

  /// A root and shaders connected to it and to one another, in rings too, in a container of their own.
  void MakeWorld() {
    Forget();
    hContainer_ = ManagementTest::MakeContainer();
    VelRbaConfiguration::Clear();
    for (const char* type : {"mine", "first", "second", "third", "anew"}) {
      for (const char* name : {"a", "b", "c", "d", "e"}) {
        const char* tag = tags[Random(static_cast<int>(std::size(tags)))];
        EXPECT_TRUE(SUCCEEDED(VelRbaConfiguration::SetValue(type, VelString(name) + ".Tag", tag)));
      }
    }
    former_ = AnyModels(8);
    if (IsRare(20))
      former_.insert(former_.begin() + Random(static_cast<int>(former_.size()) + 1), AnyModel())->name = "";
    hShader_ = MakeShader("mine");
    EXPECT_EQ(hShader_->SetVersion(1), S_OK);
    for (const Model& model : former_) AddModel(hShader_, model);
    shaders_.push_back(hShader_);
    for (int count = Random(nodeLimit); count > 0; --count) {
      const VelIRshShader_var& hAbove = shaders_[static_cast<std::size_t>(Random(static_cast<int>(shaders_.size())))];
      shaders_.push_back(AddNode(hAbove, nodeTypes[Random(3)]));
      for (const Model& model : AnyModels(5)) AddModel(shaders_.back(), model);
    }
    Connect();
    Edit();
  }

  void Connect() {
    for (const VelIRshShader_var& hShader : shaders_) {
      for (const VelIRshParameter_var& hParameter : ParametersOf(hShader)) {
        if (Random(2) == 0) continue;
        const auto other = static_cast<std::size_t>(Random(static_cast<int>(shaders_.size())));
        // Without a name the connection is made all the same, and then a failure: the host cannot be told.
        static_cast<void>(hParameter->SetConnection(shaders_[other].Get()));
      }
    }
  }

  /// What followed a connection is edited away again.
  void Edit() {
    VelIRmaEditionMode::SetActivation(VelIRmaEditionMode::Mode::SilentPropagation, IsRare(2));
    for (const VelIRshShader_var& hShader : shaders_) {
      for (const VelIRshParameter_var& hParameter : ParametersOf(hShader)) {
        VelString startUp;
        EXPECT_EQ(hParameter->GetType(startUp), S_OK);
        const std::string type(startUp.View());
        if (Random(2) == 0) SetValue(hParameter, type, AnyValue(type));
      }
    }
    VelIRmaEditionMode::SetActivation(VelIRmaEditionMode::Mode::SilentPropagation, IsRare(20));
  }

  std::string NumberOf(const VelIRshShader_var& iShader) const {
    if (!iShader) return {};
    for (std::size_t i = 0; i < shaders_.size(); ++i) {
      if (IsSameObject(shaders_[i].Get(), iShader.Get())) return "#" + std::to_string(i);
    }
    return TypeOfShader(iShader.Get());
  }

  static std::string Number(float iValue) {
    return std::isnan(iValue) ? "nan" : std::to_string(static_cast<int>(iValue));
  }

  static std::string ValueOf(const VelIRshParameter_var& iParameter, const std::string& iStartUp) {
    std::int32_t integer = 0;
    bool boolean = false;
    VelUnicodeString text;
    VelBaseUnknown_var hDocument;
    std::vector<float> reals = RealsOf(iStartUp, 0);
    if (iStartUp == "VelRmaInteger" && SUCCEEDED(iParameter->GetValue(&integer))) return std::to_string(integer);
    if (iStartUp == "VelRmaBoolean" && SUCCEEDED(iParameter->GetValue(&boolean))) return boolean ? "true" : "false";
    if (iStartUp == "VelRmaString" && SUCCEEDED(iParameter->GetValue(&text))) {
      return '"' + std::string(text.View()) + '"';
    }
    if (iStartUp == "VelRmaTexture" && SUCCEEDED(iParameter->GetValue(hDocument.Receive())) && hDocument) {
      return "document \"" + std::string(FakeDocument::Of(*hDocument).name.value.View()) + '"';
    }
    if (reals.empty() || FAILED(iParameter->GetValue(VelRshValueTarget(reals.data(), reals.size())))) return {};
    if (reals.size() == 1) return Number(reals[0]);
    std::string list;
    for (const float real : reals) list += (list.empty() ? "(" : ", ") + Number(real);
    return list + ")";
  }

  States Look() const {
    States states;
    for (const VelIRshShader_var& hShader : shaders_) {
      std::vector<State>& looked = states.emplace_back();
      for (const VelIRshParameter_var& hParameter : ParametersOf(hShader)) {
        VelString name;
        VelString startUp;
        static_cast<void>(hParameter->GetName(name));
        EXPECT_EQ(hParameter->GetType(startUp), S_OK);
        const std::string type(startUp.View());
        looked.push_back(
            {std::string(name.View()), type, ValueOf(hParameter, type), NumberOf(ConnectionOf(hParameter))});
      }
    }
    return states;
  }

  /// @return what the plan makes of the state before
  States Foretell(States iBefore, const VelRshUpgradePlan& iPlan) const {
    std::vector<State> root;
    for (const Row& row : iPlan.rows) {
      const auto place = static_cast<std::size_t>(row.position) - 1;
      switch (row.kind) {
        case Kind::Kept:
        case Kind::KeptOverDefault:
        case Kind::Replaced:
        case Kind::Added:
        case Kind::Retyped:
          EXPECT_EQ(place, root.size()) << "the rows follow the list";
          root.push_back(
              {std::string(row.parameter.View()), std::string(row.startUp.View()), std::string(row.after.View()), ""});
          break;
        case Kind::ConnectionKept:
          root.at(place).connection = NumberOf(row.shader);
          break;
        case Kind::ConnectionMade:
          root.at(place).connection = std::string(row.shaderType.View());
          break;
        case Kind::MappingTaken: {
          State& state = iBefore.at(std::stoul(NumberOf(row.shader).substr(1))).at(place);
          EXPECT_EQ(state.name, std::string(row.parameter.View()));
          EXPECT_EQ(state.value, std::string(row.before.View()));
          state.value = std::string(row.after.View());
          break;
        }
        case Kind::Stops:
        case Kind::Dropped:
        case Kind::ConnectionLost:
          break;
      }
    }
    iBefore[0] = root;
    return iBefore;
  }

  /// What a row says of before has to be what was there.
  void CheckBefore(const States& iBefore, const VelRshUpgradePlan& iPlan) const {
    std::map<int, int> told;
    for (const Row& row : iPlan.rows) {
      if (row.formerPosition == 0 || row.kind == Kind::MappingTaken || row.kind == Kind::Stops) continue;
      const State& state = iBefore[0].at(static_cast<std::size_t>(row.formerPosition) - 1);
      const bool isConnection = row.kind == Kind::ConnectionKept || row.kind == Kind::ConnectionLost;
      EXPECT_EQ(state.name, std::string(row.parameter.View()));
      EXPECT_EQ(state.value, std::string(row.before.View()));
      EXPECT_TRUE(!isConnection || state.connection == NumberOf(row.shader));
      if (!isConnection && row.kind != Kind::ConnectionMade) ++told[row.formerPosition];
    }
    EXPECT_EQ(told.size(), iBefore[0].size()) << "each parameter of before is told";
    for (const auto& [position, count] : told) EXPECT_EQ(count, 1) << position;
  }

  std::vector<VelIPLMDmtDocument_var> documents_;
  std::vector<VelIRshShader_var> shaders_;  ///< The root, and what is below it.
  std::vector<Model> former_;
  std::vector<Model> version_;
  const FakeDocumentBindings bindings_;
  const unsigned seed_ = FromEnvironment("VEL_RANDOM_SEED", 8);
  std::mt19937 random_{seed_};
};

TEST_F(VelRshShaderManagerRandomPlansTest, RandomVersions_DoWhatThePlanForetells) {
  const unsigned count = FromEnvironment("VEL_RANDOM_OPERATIONS", 400);
  std::map<Kind, unsigned> met;
  for (unsigned done = 0; done < count; ++done) {
    SCOPED_TRACE("seed " + std::to_string(seed_) + ", plan " + std::to_string(done));
    MakeWorld();
    version_ = NextVersion(former_);
    initializeCode_ = IsRare(40) ? E_INVALIDARG : S_OK;
    const States before = Look();
    const int features = hContainer_->CountFeatures();
    VelRshUpgradePlan plan;
    const Ears ears(*hContainer_);
    ASSERT_EQ(Manager().PlanUpgrade(hShader_.Get(), plan), S_OK);
    ASSERT_EQ(ears.count, 0);
    ASSERT_EQ(hContainer_->CountFeatures(), features);
    ASSERT_EQ(Look(), before);
    CheckBefore(before, plan);
    ASSERT_EQ(Upgrade(), plan.result);
    ASSERT_EQ(FAILED(plan.result), !plan.rows.empty() && plan.rows[0].kind == Kind::Stops);
    ASSERT_EQ(Look(), Foretell(before, plan)) << plan.Text().View();
    ASSERT_FALSE(HasFailure()) << plan.Text().View();
    for (const Row& row : plan.rows) ++met[row.kind];
    traces_.Clear();
  }
  EXPECT_EQ(met.size(), 11U) << "each kind of row has to be met";
}

}  // namespace
