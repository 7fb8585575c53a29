// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshFeatureModelerCopier_RandomGraphs_test.cpp Copies random graphs and compares every value: as they are,
/// and with mapping values that connected shaders take over, by a simple model.
//
// VEL_RANDOM_OPERATIONS and VEL_RANDOM_SEED in the environment make longer and other runs.
#include <algorithm>
#include <cstdlib>
#include <random>

#include "RenderingShader/VelRshModel.m/include/VelRshFeatureModelerCopier.h"
#include "platform/configuration/VelRbaConfiguration.h"
#include "tests/RenderingShader/bindings/fixtures/VelTestGraphOutput.h"
#include "tests/RenderingShader/fixtures/FakeDocument.h"
#include "tests/RenderingShader/management/fixtures/ManagementTest.h"

namespace {

constexpr int shaderCount = 8;
constexpr int output = shaderCount;  ///< Stands for the output of a graph, as a connection.
constexpr int noConnection = -1;

struct StartUp {
  const char* name;
  std::size_t reals;  ///< How many its value has, 0 for another one.
  bool handsDown;     ///< Whether changes of mapping values reach the shader that is connected here.
};
constexpr StartUp startUps[] = {{"VelRmaScalar", 1, true},        {"VelRmaVector", 3, true},
                                {"VelRmaColor", 4, true},         {"VelRmaMatrix", 16, false},
                                {"VelRmaInteger", 0, true},       {"VelRmaBoolean", 0, true},
                                {"VelRmaString", 0, true},        {"VelRmaTexture", 0, true},
                                {"VelRmaLightProfile", 0, false}, {"VelRmaVoid", 0, false}};

/// The parameters that mapping is handed down by, where the configuration tags them.
struct Mapping {
  const char* name;
  const char* tag;
  const StartUp* startUp;
};
constexpr Mapping mappings[] = {{"scaling", "scale_u", &startUps[0]},
                                {"turn", "angle", &startUps[0]},
                                {"behavior", "mapping-behavior", &startUps[4]},
                                {"flipping", "flip_v", &startUps[5]}};

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

class VelRshFeatureModelerCopierRandomGraphsTest : public ManagementTest {
 protected:
  void SetUp() override {
    ManagementTest::SetUp();
    hDocument_ = FakeDocument::Create("document");
  }
  void TearDown() override {
    CloseContainer();
    hDocument_ = nullptr;
    ManagementTest::TearDown();
  }

  int Random(int iBound) { return static_cast<int>(random_() % static_cast<unsigned>(iBound)); }

  /// Makes shaders of random parameters, each connected only to later shaders, and sets the values last, so that what
  /// connections hand down does not matter.
  void MakeGraph() {
    for (int shader = 0; shader < shaderCount; ++shader) {
      shaders_.push_back(MakeShader("BasicMaterial"));
      Parameters parameters;
      for (const Mapping& mapping : mappings) {
        if (Random(3) != 0) parameters.push_back({mapping.name, mapping.startUp, Random(1000)});
      }
      for (int left = Random(6); left > 0; --left) {
        const StartUp& startUp = startUps[Random(static_cast<int>(std::size(startUps)))];
        const auto place = parameters.begin() + Random(static_cast<int>(parameters.size()) + 1);
        parameters.insert(place, {"p" + std::to_string(left), &startUp, Random(1000), AnyConnection(shader)});
      }
      model_.push_back(parameters);
    }
    shaders_.emplace_back(VelTestGraphOutputSide::Create(*hContainer_));
    for (int shader = 0; shader < shaderCount; ++shader) AddParameters(shader);
    for (int shader = 0; shader < shaderCount; ++shader) {
      const std::vector<VelIRshParameter_var> parameters = ParametersOf(ShaderOf(shader));
      for (std::size_t i = 0; i < parameters.size(); ++i) SetValue(parameters[i], ModelOf(shader)[i]);
    }
    // Values are handed down as they are set; what is below is set later, and so has its own in the end.
  }

  int AnyConnection(int iShader) {
    if (Random(2) == 0) return noConnection;
    return iShader + 1 + Random(std::min(3, output - iShader));
  }

  const VelIRshShader_var& ShaderOf(int iNumber) const { return shaders_[static_cast<std::size_t>(iNumber)]; }
  const Parameters& ModelOf(int iNumber) const { return model_[static_cast<std::size_t>(iNumber)]; }

  void AddParameters(int iShader) {
    for (const Parameter& model : ModelOf(iShader)) {
      const VelIRshParameter_var hParameter = Add(ShaderOf(iShader), model.name.c_str(), model.startUp->name);
      if (model.connection == noConnection) continue;
      EXPECT_EQ(hParameter->SetConnection(ShaderOf(model.connection).Get()), S_OK);
    }
  }

  void SetValue(const VelIRshParameter_var& ioParameter, const Parameter& iModel) {
    const std::string startUp = iModel.startUp->name;
    const std::int32_t integer = iModel.value;
    const bool boolean = iModel.value % 2 == 0;
    const VelUnicodeString text(std::to_string(iModel.value).c_str());
    const std::vector<float> reals = RealsOf(iModel);
    HRESULT set = S_OK;
    if (!reals.empty()) set = ioParameter->SetValue(VelRshValueSource(reals.data(), reals.size()));
    if (startUp == "VelRmaInteger") set = ioParameter->SetValue(&integer);
    if (startUp == "VelRmaBoolean") set = ioParameter->SetValue(&boolean);
    if (startUp == "VelRmaString") set = ioParameter->SetValue(&text);
    if (IsDocument(iModel) && iModel.value % 2 == 0) set = ioParameter->SetValue(hDocument_.Get());
    EXPECT_TRUE(SUCCEEDED(set));
  }

  static bool IsDocument(const Parameter& iModel) {
    return iModel.startUp->name == std::string("VelRmaTexture") ||
           iModel.startUp->name == std::string("VelRmaLightProfile");
  }

  static std::vector<float> RealsOf(const Parameter& iModel) {
    std::vector<float> reals(iModel.startUp->reals);
    for (std::size_t i = 0; i < reals.size(); ++i) reals[i] = static_cast<float>(iModel.value) + static_cast<float>(i);
    return reals;
  }

  void CheckValue(const VelIRshParameter_var& iParameter, const Parameter& iModel) {
    const std::string startUp = iModel.startUp->name;
    std::int32_t integer = 0;
    bool boolean = true;
    VelUnicodeString text;
    VelBaseUnknown_var hDocument;
    std::vector<float> reals(iModel.startUp->reals);
    if (!reals.empty()) {
      ASSERT_EQ(iParameter->GetValue(VelRshValueTarget(reals.data(), reals.size())), S_OK);
      ASSERT_EQ(reals, RealsOf(iModel));
    } else if (startUp == "VelRmaInteger") {
      ASSERT_EQ(iParameter->GetValue(&integer), S_OK);
      ASSERT_EQ(integer, iModel.value);
    } else if (startUp == "VelRmaBoolean") {
      ASSERT_EQ(iParameter->GetValue(&boolean), S_OK);
      ASSERT_EQ(boolean, iModel.value % 2 == 0);
    } else if (startUp == "VelRmaString") {
      ASSERT_EQ(iParameter->GetValue(&text), S_OK);
      ASSERT_EQ(text, VelUnicodeString(std::to_string(iModel.value).c_str()));
    } else if (IsDocument(iModel)) {
      ASSERT_EQ(iParameter->GetValue(hDocument.Receive()), S_OK);
      ASSERT_TRUE(IsSameObject(hDocument.Get(), iModel.value % 2 == 0 ? hDocument_.Get() : nullptr));
    }
  }

  /// Compares a shader's own parameters, and counts it.
  void CheckParameters(const VelIRshShader_var& iShader, const Parameters& iExpected) {
    ++checked_;
    const std::vector<VelIRshParameter_var> parameters = ParametersOf(iShader);
    ASSERT_EQ(parameters.size(), iExpected.size());
    for (std::size_t i = 0; i < parameters.size(); ++i) {
      VelString startUp;
      ASSERT_EQ(NameOfParameter(parameters[i].Get()), iExpected[i].name);
      ASSERT_EQ(parameters[i]->GetType(startUp), S_OK);
      ASSERT_EQ(startUp, iExpected[i].startUp->name);
      ASSERT_NO_FATAL_FAILURE(CheckValue(parameters[i], iExpected[i])) << iExpected[i].name;
    }
  }

  /// Compares a copy with all below it, of which each connection has one of its own.
  void CheckCopy(const VelIRshShader_var& iCopy, int iNumber, const Parameters& iExpected) {
    ASSERT_FALSE(IsSameObject(iCopy.Get(), ShaderOf(iNumber).Get()));
    ASSERT_NO_FATAL_FAILURE(CheckParameters(iCopy, iExpected));
    const std::vector<VelIRshParameter_var> parameters = ParametersOf(iCopy);
    for (std::size_t i = 0; i < parameters.size(); ++i) {
      const VelIRshShader_var hConnected = ConnectionOf(parameters[i]);
      ASSERT_NO_FATAL_FAILURE(CheckConnection(hConnected, iNumber, i, iExpected)) << iExpected[i].name;
    }
  }

  /// Compares what the parameter at a place of a shader's copy is connected to.
  void CheckConnection(const VelIRshShader_var& iConnected, int iNumber, std::size_t iPlace,
                       const Parameters& iExpected) {
    const int connection = iExpected[iPlace].connection;
    ASSERT_EQ(static_cast<bool>(iConnected), connection != noConnection);
    if (connection == noConnection) return;
    if (connection == output) {
      ASSERT_TRUE(IsSameObject(iConnected.Get(), ShaderOf(output).Get()));
      return;
    }
    CheckCopy(iConnected, connection, areTagged_ ? ConnectedAt(iNumber, iPlace, iExpected) : ModelOf(connection));
  }

  /// What a shader has once it is connected. It takes over what the copy above has by then, before that one is
  /// connected itself, and later changes as well where the connection hands them down.
  Parameters ConnectedAt(int iAbove, std::size_t iPlace, const Parameters& iAboveInTheEnd) const {
    const Parameters& above = ModelOf(iAbove);
    const Parameters before(above.begin(), above.begin() + static_cast<std::ptrdiff_t>(iPlace));
    return TakenOver(ModelOf(above[iPlace].connection), above[iPlace].startUp->handsDown ? iAboveInTheEnd : before);
  }

  /// Gives a shader the mapping values of another one.
  static Parameters TakenOver(Parameters iOwn, const Parameters& iAbove) {
    for (Parameter& own : iOwn) {
      for (const Parameter& above : iAbove) {
        if (above.name == own.name && own.name.front() != 'p') own.value = above.value;
      }
    }
    return iOwn;
  }

  void CopyRandomGraph() {
    hContainer_ = MakeContainer();
    MakeGraph();
    const int features = hContainer_->CountFeatures();
    const VelIContainer_var hTarget = MakeContainer();
    const VelIRshShader_var hCopy = VelRshFeatureModelerCopier(*hTarget).Copy(ShaderOf(0));
    ASSERT_TRUE(hCopy);
    checked_ = 0;
    ASSERT_NO_FATAL_FAILURE(CheckCopy(hCopy, 0, ModelOf(0)));
    mostChecked_ = std::max(mostChecked_, checked_);
    for (int shader = 0; shader < shaderCount; ++shader) {
      ASSERT_NO_FATAL_FAILURE(CheckParameters(ShaderOf(shader), ModelOf(shader))) << "the source changed";
    }
    ASSERT_EQ(hContainer_->CountFeatures(), features);
    shaders_.clear();
    model_.clear();
    CloseContainer();
  }

  void CopyRandomGraphs() {
    const VelTestGraphOutputBindings outputs;
    const unsigned count = FromEnvironment("VEL_RANDOM_OPERATIONS", 200);
    for (unsigned done = 0; done < count; ++done) {
      SCOPED_TRACE("seed " + std::to_string(seed_) + ", graph " + std::to_string(done));
      ASSERT_NO_FATAL_FAILURE(CopyRandomGraph());
    }
    EXPECT_GT(mostChecked_, 2 * shaderCount) << "the run has to meet shaders that are connected more than once";
  }

  const FakeDocumentBindings bindings_;
  VelIPLMDmtDocument_var hDocument_;
  std::vector<VelIRshShader_var> shaders_;
  std::vector<Parameters> model_;
  bool areTagged_ = false;
  int checked_ = 0;
  int mostChecked_ = 0;
  const unsigned seed_ = FromEnvironment("VEL_RANDOM_SEED", 32);
  std::mt19937 random_{seed_};
};

TEST_F(VelRshFeatureModelerCopierRandomGraphsTest, WithoutTags_EveryValueIsTheSources) { CopyRandomGraphs(); }

TEST_F(VelRshFeatureModelerCopierRandomGraphsTest, WithTags_MappingValuesAreThoseOfTheShaderAbove) {
  areTagged_ = true;
  for (const Mapping& mapping : mappings) {
    const VelString key = VelString(mapping.name) + ".Tag";
    EXPECT_TRUE(SUCCEEDED(VelRbaConfiguration::SetValue("Default", key, mapping.tag)));
  }
  CopyRandomGraphs();
}

}  // namespace
