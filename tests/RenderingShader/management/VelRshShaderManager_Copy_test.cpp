// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshShaderManager_Copy_test.cpp Copies a shader with its parameters, their values and connections, and its
/// nodes.
#include <algorithm>
#include <functional>

#include "platform/configuration/VelRbaConfiguration.h"
#include "tests/RenderingShader/fixtures/FakeDocument.h"
#include "tests/RenderingShader/fixtures/FakeRepLifeCycle.h"
#include "tests/RenderingShader/management/fixtures/ManagementTest.h"
#include "tests/RenderingShader/management/fixtures/VelTestOddities.h"

namespace {

class VelRshShaderManagerCopyTest : public ManagementTest {
 protected:
  void SetUp() override {
    ManagementTest::SetUp();
    hTarget_ = MakeContainer();
    hSource_ = MakeShader();
  }
  void TearDown() override {
    hSource_ = nullptr;
    hCopy_ = nullptr;
    CloseContainer();
    hTarget_ = nullptr;
    odd_.reset();
    ManagementTest::TearDown();
  }

  HRESULT Copy() { return Manager().CreateShaderCopy(hTarget_, hSource_.Get(), hCopy_.Receive()); }

  /// Has the classes of VelTestOddities answer from now on.
  VelTestParameterScript& Odd(const char* iParameter) {
    if (!odd_) odd_.emplace(VEL_TEST_LIBRARY_FOLDER);
    return odd_->parameters[iParameter];
  }

  /// @return a parameter of VelTestManagementCatalog, which the target does not know, at the end of the source
  VelISpecObject_var AddForeign() {
    EXPECT_EQ(VelICatalogManager_var(hContainer_)->LoadCatalog(VEL_TEST_MANAGEMENT_CATALOG), S_OK);
    VelBaseUnknown_var hStartUp;
    EXPECT_EQ(FindStartUp("VelISpecObject", "", "VelTestForeignValue", *hContainer_, hStartUp.Receive()), S_OK);
    VelBaseUnknown_var hFeature;
    EXPECT_EQ(VelISpecObject_var(hStartUp)->Instanciate("", hContainer_.Get(), VelIRshParameter::InterfaceId(),
                                                        hFeature.Receive()),
              S_OK);
    EXPECT_EQ(VelIRshParameter_var(hFeature)->SetName("foreign"), S_OK);
    EXPECT_EQ(hSource_->AppendParameter(VelIRshParameter_var(hFeature).Get()), S_OK);
    return VelISpecObject_var(hFeature);
  }

  /// Connects a new parameter of the source to a shader.
  void Connect(const char* iName, const VelIRshShader_var& iShader) {
    EXPECT_EQ(Add(hSource_, iName, "VelRmaVoid")->SetConnection(iShader.Get()), S_OK);
  }

  VelIContainer_var hTarget_;
  VelIRshShader_var hSource_;
  VelIRshShader_var hCopy_;
  std::optional<VelTestOddities> odd_;
};

TEST_F(VelRshShaderManagerCopyTest, MissingArguments_AreFailuresWithoutACopy) {
  VelIRshShader* copy = hSource_.Get();
  EXPECT_EQ(Manager().CreateShaderCopy(VelIContainer_var(), hSource_.Get(), &copy), E_FAIL);
  EXPECT_EQ(copy, nullptr);
  copy = hSource_.Get();
  EXPECT_EQ(Manager().CreateShaderCopy(hTarget_, nullptr, &copy), E_FAIL);
  EXPECT_EQ(copy, nullptr);
  EXPECT_EQ(Manager().CreateShaderCopy(hTarget_, hSource_.Get(), nullptr), E_FAIL);
  EXPECT_EQ(hTarget_->CountFeatures(), 0);
}

TEST_F(VelRshShaderManagerCopyTest, ATypeThatCannotBeRead_IsAnsweredWithItsCode) {
  static_cast<void>(Odd(""));
  odd_->shader.type.code = E_INVALIDARG;
  const VelIRshShader_var hOdd = VelTestOddities::CreateObject();
  EXPECT_EQ(Manager().CreateShaderCopy(hTarget_, hOdd.Get(), hCopy_.Receive()), E_INVALIDARG);
  EXPECT_FALSE(hCopy_);
  EXPECT_EQ(hTarget_->CountFeatures(), 0);
}

TEST_F(VelRshShaderManagerCopyTest, AShaderThatCannotBeMade_IsNoInterface) {
  hTarget_ = MakeBarrenContainer();
  EXPECT_EQ(Copy(), E_NOINTERFACE);
  EXPECT_FALSE(hCopy_);
}

TEST_F(VelRshShaderManagerCopyTest, AnEmptyShader_IsCopiedWithItsTypeAndNothingElse) {
  EXPECT_EQ(hSource_->SetVersion(4), S_OK);
  EXPECT_EQ(hSource_->SetUsage(2), S_OK);
  EXPECT_EQ(hSource_->SetOutputType("VelRmaColor"), S_OK);
  EXPECT_EQ(Copy(), S_OK);
  EXPECT_EQ(TypeOfShader(hCopy_.Get()), "BasicMaterial");
  EXPECT_FALSE(IsSameObject(hCopy_.Get(), hSource_.Get()));
  std::uint32_t number = 0;
  VelString output;
  EXPECT_EQ(hCopy_->GetVersion(number), E_FAIL);
  EXPECT_EQ(hCopy_->GetUsage(number), E_FAIL);
  EXPECT_EQ(hCopy_->GetOutputType(output), E_FAIL);
  EXPECT_EQ(hTarget_->CountFeatures(), 1);
}

TEST_F(VelRshShaderManagerCopyTest, TheOldMaterial_BecomesTheNewOneAndNoOtherTypeChanges) {
  const struct {
    const char* type;
    const char* expected;
  } cases[] = {{"mia_material", "mia_phen_material"},
               {"mia_phen_material", "mia_phen_material"},
               {"mia_material_x", "mia_material_x"},
               {"Mia_material", "Mia_material"}};
  for (const auto& row : cases) {
    hSource_ = MakeShader(row.type);
    EXPECT_EQ(Copy(), S_OK);
    EXPECT_EQ(TypeOfShader(hCopy_.Get()), row.expected);
    EXPECT_EQ(TypeOfShader(hSource_.Get()), row.type);
  }
}

TEST_F(VelRshShaderManagerCopyTest, TheCopy_IsMadeWithoutAnyFactory) {
  First().Add("BasicMaterial");
  EXPECT_EQ(Copy(), S_OK);
  EXPECT_EQ(First().calls, Texts{});
}

TEST_F(VelRshShaderManagerCopyTest, PlainValues_AreCopiedInOrder) {
  const bool boolean = false;
  const std::int32_t integer = -7;
  const float scalar = 0.5F;
  const float vector[] = {1.0F, 2.0F, 3.0F};
  const float color[] = {0.1F, 0.2F, 0.3F, 0.4F};
  EXPECT_EQ(Add(hSource_, "color", "VelRmaColor")->SetValue(color), S_OK);
  EXPECT_EQ(Add(hSource_, "boolean", "VelRmaBoolean")->SetValue(&boolean), S_OK);
  EXPECT_EQ(Add(hSource_, "integer", "VelRmaInteger")->SetValue(&integer), S_OK);
  EXPECT_EQ(Add(hSource_, "scalar", "VelRmaScalar")->SetValue(&scalar), S_OK);
  EXPECT_EQ(Add(hSource_, "vector", "VelRmaVector")->SetValue(vector), S_OK);
  EXPECT_EQ(Add(hSource_, "scalar", "VelRmaScalar")->SetValue(&vector[1]), S_OK);

  EXPECT_EQ(Copy(), S_OK);
  EXPECT_EQ(ParameterNames(hCopy_), (Texts{"color", "boolean", "integer", "scalar", "vector", "scalar"}));
  bool booleanRead = true;
  std::int32_t integerRead = 0;
  float vectorRead[3]{};
  float colorRead[4]{};
  EXPECT_EQ(Find(hCopy_, "boolean")->GetValue(&booleanRead), S_OK);
  EXPECT_EQ(Find(hCopy_, "integer")->GetValue(&integerRead), S_OK);
  EXPECT_EQ(Find(hCopy_, "vector")->GetValue(vectorRead), S_OK);
  EXPECT_EQ(Find(hCopy_, "color")->GetValue(colorRead), S_OK);
  EXPECT_FALSE(booleanRead);
  EXPECT_EQ(integerRead, -7);
  EXPECT_EQ(ScalarOf(ParametersOf(hCopy_)[3]), 0.5F);
  EXPECT_EQ(ScalarOf(ParametersOf(hCopy_)[5]), 2.0F);
  EXPECT_TRUE(std::equal(vector, vector + 3, vectorRead));
  EXPECT_TRUE(std::equal(color, color + 4, colorRead));
}

TEST_F(VelRshShaderManagerCopyTest, TextsMatricesAndSubShaders_KeepTheDefaultsOfTheirCreation) {
  float matrix[16]{};
  matrix[3] = 4.0F;
  AddText(hSource_, "text", "hello");
  EXPECT_EQ(Add(hSource_, "matrix", "VelRmaMatrix")->SetValue(matrix), S_OK);
  static_cast<void>(Add(hSource_, "void", "VelRmaVoid"));
  static_cast<void>(Add(hSource_, "bare", "VelRmaParameter"));
  EXPECT_EQ(Copy(), S_OK);
  EXPECT_EQ(ParameterNames(hCopy_), (Texts{"text", "matrix", "void", "bare"}));
  VelUnicodeString text("untouched");
  EXPECT_EQ(Find(hCopy_, "text")->GetValue(&text), E_FAIL);
  EXPECT_EQ(text, VelUnicodeString()) << "nobody set it";
  EXPECT_EQ(Find(hCopy_, "matrix")->GetValue(matrix), E_FAIL);
}

TEST_F(VelRshShaderManagerCopyTest, Documents_AreSharedAndCountedAndMayBeMissing) {
  const FakeDocumentBindings bindings;
  const FakeRepLifeCycle references;
  const VelIPLMDmtDocument_var hImage = FakeDocument::Create("image");
  for (const char* startUp : {"VelRmaTexture", "VelRmaLightProfile"}) {
    EXPECT_EQ(Add(hSource_, startUp, startUp)->SetValue(hImage.Get()), S_OK);
    static_cast<void>(Add(hSource_, "none", startUp));
  }
  EXPECT_EQ(Copy(), S_OK);
  for (const VelIRshParameter_var& hParameter : ParametersOf(hCopy_)) {
    VelBaseUnknown_var hDocument;
    EXPECT_EQ(hParameter->GetValue(hDocument.Receive()), S_OK);
    EXPECT_TRUE(IsSameObject(hDocument.Get(), NameOfParameter(hParameter.Get()) == "none" ? nullptr : hImage.Get()));
  }
  EXPECT_EQ(references.Of(hImage.Get()).added, 4);
  EXPECT_EQ(references.calls, 4) << "nothing is written where there is no document";
}

TEST_F(VelRshShaderManagerCopyTest, APlainValueThatNobodySet_StopsThePassAndTheCopyIsHandedOut) {
  for (const char* startUp : {"VelRmaBoolean", "VelRmaColor", "VelRmaInteger", "VelRmaScalar", "VelRmaVector"}) {
    hSource_ = MakeShader();
    AddScalar(hSource_, "before", 1.0F);
    static_cast<void>(Add(hSource_, "stops", startUp));
    AddScalar(hSource_, "after", 2.0F);
    EXPECT_EQ(Copy(), E_FAIL) << startUp;
    ASSERT_TRUE(hCopy_) << startUp;
    EXPECT_EQ(ParameterNames(hCopy_), (Texts{"before", "stops"})) << startUp;
    EXPECT_EQ(ScalarOf(Find(hCopy_, "before")), 1.0F) << startUp;
  }
}

TEST_F(VelRshShaderManagerCopyTest, AValueThatCannotBeReadOrWritten_StopsThePassWithItsCode) {
  const struct {
    const char* startUp;
    HRESULT get;
    HRESULT set;
    HRESULT expected;
    Texts names;
  } cases[] = {{"VelRmaScalar", S_OK, S_OK, S_OK, {"odd", "after"}},
               {"VelRmaScalar", S_FALSE, S_FALSE, S_OK, {"odd", "after"}},
               {"VelRmaScalar", E_INVALIDARG, S_OK, E_INVALIDARG, {"odd"}},
               {"VelRmaScalar", S_OK, E_NOINTERFACE, E_NOINTERFACE, {"odd"}},
               {"VelRmaTexture", S_OK, S_OK, S_OK, {"odd", "after"}},
               {"VelRmaTexture", E_INVALIDARG, E_NOINTERFACE, S_OK, {"odd", "after"}},
               {"VelRmaTexture", S_OK, E_NOINTERFACE, E_NOINTERFACE, {"odd"}}};
  static_cast<void>(Odd("odd"));
  for (const auto& row : cases) {
    hSource_ = MakeShader();
    static_cast<void>(Add(hSource_, "odd", row.startUp));
    static_cast<void>(Add(hSource_, "after", "VelRmaVoid"));
    Odd("odd").getCode = row.get;
    Odd("odd").setCode = row.set;
    Odd("odd").document = hSource_.Get();
    EXPECT_EQ(Copy(), row.expected) << row.startUp << row.get << ' ' << row.set;
    EXPECT_EQ(ParameterNames(hCopy_), row.names) << row.startUp << row.get << ' ' << row.set;
  }
}

TEST_F(VelRshShaderManagerCopyTest, ADocumentThatIsMissingOrUnreadable_IsNotWritten) {
  Odd("none").document = nullptr;
  Odd("unreadable").document = hSource_.Get();
  Odd("unreadable").getCode = E_FAIL;
  for (const char* name : {"none", "unreadable"}) static_cast<void>(Add(hSource_, name, "VelRmaTexture"));
  EXPECT_EQ(Copy(), S_OK);
  EXPECT_EQ(odd_->notes, (Texts{"get none", "get unreadable"}));
}

TEST_F(VelRshShaderManagerCopyTest, ANameOrTypeThatCannotBeRead_StopsThePass) {
  const struct {
    HRESULT name;
    HRESULT type;
  } cases[] = {{E_FAIL, S_OK}, {S_OK, E_INVALIDARG}};
  static_cast<void>(Odd("odd"));
  for (const auto& row : cases) {
    hSource_ = MakeShader();
    Odd("odd") = {};
    static_cast<void>(Add(hSource_, "before", "VelRmaVoid"));
    static_cast<void>(Add(hSource_, "odd", "VelRmaScalar"));
    static_cast<void>(Add(hSource_, "after", "VelRmaVoid"));
    Odd("odd").nameCode = row.name;
    if (FAILED(row.type)) Odd("odd").onGetType = [&](VelString&) { return row.type; };
    EXPECT_EQ(Copy(), E_UNEXPECTED);
    EXPECT_EQ(ParameterNames(hCopy_), Texts{"before"});
  }
}

TEST_F(VelRshShaderManagerCopyTest, AParameterThatCannotBeMade_IsSkippedAndTheCountsDiffer) {
  const VelIRshShader_var hNode = AddNode(hSource_);
  AddScalar(hSource_, "before", 1.0F);
  static_cast<void>(AddForeign());
  AddScalar(hSource_, "after", 2.0F);
  Connect("connected", hNode);
  EXPECT_EQ(Copy(), E_UNEXPECTED);
  EXPECT_EQ(ParameterNames(hCopy_), (Texts{"before", "after", "connected"}));
  EXPECT_EQ(ScalarOf(Find(hCopy_, "after")), 2.0F);
  EXPECT_FALSE(ConnectionOf(Find(hCopy_, "connected")));
}

TEST_F(VelRshShaderManagerCopyTest, CountsThatDiffer_StopBeforeTheFirstConnection) {
  const VelIRshShader_var hNode = AddNode(hSource_);
  Connect("connected", hNode);
  static_cast<void>(AddForeign());
  EXPECT_EQ(Copy(), E_UNEXPECTED);
  EXPECT_EQ(ParameterNames(hCopy_), Texts{"connected"});
  EXPECT_FALSE(ConnectionOf(Find(hCopy_, "connected")));
}

TEST_F(VelRshShaderManagerCopyTest, NamesOrTypesThatDiffer_StopTheConnections) {
  const struct {
    const char* what;
    std::function<void(VelTestParameterScript&)> script;
  } cases[] = {{"name",
                [](VelTestParameterScript& ioScript) {
                  ioScript.onSetName = [](VelBaseUnknown* ioParameter) {
                    const VelISpecAttrAccess_var hAccess(ioParameter);
                    EXPECT_EQ(hAccess->SetText(Key("Name", VelSpecAttrKind::Text), "other"), S_OK);
                  };
                }},
               {"type",
                [](VelTestParameterScript& ioScript) {
                  ioScript.onGetType = [calls = 0](VelString& oType) mutable {
                    // Read for the value, then of both for the connection.
                    oType = ++calls == 3 ? "VelRmaInteger" : "VelRmaScalar";
                    return S_OK;
                  };
                }},
               {"name unreadable", [this](VelTestParameterScript& ioScript) {
                  ioScript.onSetName = [this](VelBaseUnknown*) { Odd("odd").nameCode = E_FAIL; };
                }}};
  static_cast<void>(Odd("odd"));
  for (const auto& row : cases) {
    hSource_ = MakeShader();
    Odd("odd") = {};
    const VelIRshShader_var hNode = AddNode(hSource_);
    Connect("before", hNode);
    static_cast<void>(Add(hSource_, "odd", "VelRmaScalar"));
    Connect("after", hNode);
    row.script(Odd("odd"));
    EXPECT_EQ(Copy(), E_UNEXPECTED) << row.what;
    ASSERT_EQ(ParametersOf(hCopy_).size(), 3U) << row.what;
    EXPECT_TRUE(ConnectionOf(ParametersOf(hCopy_)[0])) << row.what;
    EXPECT_FALSE(ConnectionOf(ParametersOf(hCopy_)[2])) << row.what;
  }
}

TEST_F(VelRshShaderManagerCopyTest, Nodes_AreCopiedInOrderAndConnectedLikeTheirOriginals) {
  const VelIRshShader_var hFirst = AddNode(hSource_, "first");
  const VelIRshShader_var hSecond = AddNode(hSource_, "mia_material");
  const VelIRshShader_var hThird = AddNode(hSource_, "third");
  const VelIRshShader_var hBelow = AddNode(hSecond, "below");
  EXPECT_EQ(Add(hSecond, "down", "VelRmaVoid")->SetConnection(hBelow.Get()), S_OK);
  AddScalar(hBelow, "depth", 2.0F);
  Connect("a", hSecond);
  Connect("b", hFirst);
  Connect("c", hSecond);

  EXPECT_EQ(Copy(), S_OK);
  const std::vector<VelIRshShader_var> nodes = NodesOf(hCopy_);
  ASSERT_EQ(nodes.size(), 3U);
  EXPECT_EQ(TypeOfShader(nodes[0].Get()), "first");
  EXPECT_EQ(TypeOfShader(nodes[1].Get()), "mia_phen_material");
  EXPECT_EQ(TypeOfShader(nodes[2].Get()), "third");
  EXPECT_TRUE(IsSameObject(ConnectionOf(Find(hCopy_, "a")).Get(), nodes[1].Get()));
  EXPECT_TRUE(IsSameObject(ConnectionOf(Find(hCopy_, "b")).Get(), nodes[0].Get()));
  EXPECT_TRUE(IsSameObject(ConnectionOf(Find(hCopy_, "c")).Get(), nodes[1].Get()));
  ASSERT_EQ(NodesOf(nodes[1]).size(), 1U);
  const VelIRshShader_var hBelowCopy = NodesOf(nodes[1])[0];
  EXPECT_TRUE(IsSameObject(ConnectionOf(Find(nodes[1], "down")).Get(), hBelowCopy.Get()));
  EXPECT_EQ(ScalarOf(Find(hBelowCopy, "depth")), 2.0F);
  EXPECT_EQ(hTarget_->CountFeatures(), 10) << "five shaders and five parameters";
}

TEST_F(VelRshShaderManagerCopyTest, AConnectionToAShaderElsewhere_IsNotRestored) {
  const VelIRshShader_var hElsewhere = MakeShader("elsewhere");
  Connect("a", hElsewhere);
  EXPECT_EQ(Copy(), S_OK);
  EXPECT_FALSE(ConnectionOf(Find(hCopy_, "a"))) << "without nodes";
  const VelIRshShader_var hNode = AddNode(hSource_);
  Connect("b", hNode);
  EXPECT_EQ(Copy(), S_OK);
  EXPECT_FALSE(ConnectionOf(Find(hCopy_, "a"))) << "beside a node";
  EXPECT_TRUE(ConnectionOf(Find(hCopy_, "b")));
}

TEST_F(VelRshShaderManagerCopyTest, ANodeThatCannotBeCopied_CostsAllConnectionsButNotTheOtherNodes) {
  const VelIRshShader_var hFirst = AddNode(hSource_, "first");
  const VelIRshShader_var hBad = AddNode(hSource_, "bad");
  static_cast<void>(AddNode(hSource_, "third"));
  static_cast<void>(Add(hBad, "never set", "VelRmaScalar"));
  Connect("a", hFirst);
  AddScalar(hSource_, "value", 3.0F);
  EXPECT_EQ(Copy(), S_OK);
  const std::vector<VelIRshShader_var> nodes = NodesOf(hCopy_);
  ASSERT_EQ(nodes.size(), 2U);
  EXPECT_EQ(TypeOfShader(nodes[0].Get()), "first");
  EXPECT_EQ(TypeOfShader(nodes[1].Get()), "third");
  EXPECT_FALSE(ConnectionOf(Find(hCopy_, "a")));
  EXPECT_EQ(ScalarOf(Find(hCopy_, "value")), 3.0F);
}

TEST_F(VelRshShaderManagerCopyTest, ANodeThatIsNoShader_CostsAllConnectionsToo) {
  const VelIRshShader_var hNode = MakeShader("node");
  const VelIRshParameter_var hConnected = Add(hSource_, "a", "VelRmaVoid");
  EXPECT_EQ(hConnected->SetConnection(hNode.Get()), S_OK);
  const struct {
    const char* name;
    std::vector<VelBaseUnknown*> nodes;
    bool isConnected;
  } cases[] = {{"the node", {hNode.Get()}, true},
               {"a parameter", {hNode.Get(), hConnected.Get()}, false},
               {"nothing", {nullptr, hNode.Get()}, false}};
  static_cast<void>(Odd(""));
  odd_->shader.parameters = {hConnected.Get()};
  const VelIRshShader_var hOdd = VelTestOddities::CreateObject();
  for (const auto& row : cases) {
    odd_->shader.nodes = row.nodes;
    EXPECT_EQ(Manager().CreateShaderCopy(hTarget_, hOdd.Get(), hCopy_.Receive()), S_OK) << row.name;
    EXPECT_EQ(TypeOfShader(hCopy_.Get()), "odd") << row.name;
    EXPECT_EQ(NodesOf(hCopy_).size(), 1U) << row.name;
    EXPECT_EQ(static_cast<bool>(ConnectionOf(Find(hCopy_, "a"))), row.isConnected) << row.name;
  }
}

TEST_F(VelRshShaderManagerCopyTest, ShadersNested256Deep_AreCopiedAndDeeperOnesAreCutWithACheck) {
  VelIRshShader_var hDeepest = hSource_;
  for (int depth = 2; depth <= 256; ++depth) hDeepest = AddNode(hDeepest);
  EXPECT_EQ(Copy(), S_OK);
  EXPECT_EQ(hTarget_->CountFeatures(), 256);
  EXPECT_EQ(checks_.Messages(), Texts{});
  static_cast<void>(AddNode(hDeepest));
  EXPECT_EQ(Copy(), S_OK);
  EXPECT_EQ(hTarget_->CountFeatures(), 512);
  ASSERT_EQ(checks_.Messages(), Texts{"Shaders are nested too deep to be copied"});
  EXPECT_EQ(checks_.Failures().front().expression, "depth <= 256");
  EXPECT_EQ(checks_.Failures().front().source, "RenderingShader/VelRshModel.m/src/VelRshShaderManager");
  checks_.Clear();
}

TEST_F(VelRshShaderManagerCopyTest, TheSource_StaysAsItIs) {
  const VelIRshShader_var hNode = AddNode(hSource_, "node");
  AddScalar(hSource_, "scalar", 1.0F);
  AddScalar(hNode, "scalar", 2.0F);
  Connect("a", hNode);
  const int features = hContainer_->CountFeatures();
  EXPECT_EQ(Copy(), S_OK);
  EXPECT_EQ(hContainer_->CountFeatures(), features);
  EXPECT_EQ(ParameterNames(hSource_), (Texts{"scalar", "a"}));
  EXPECT_TRUE(IsSameObject(ConnectionOf(Find(hSource_, "a")).Get(), hNode.Get()));
  EXPECT_EQ(NodesOf(hSource_).size(), 1U);
  EXPECT_EQ(ScalarOf(Find(hNode, "scalar")), 2.0F);
}

TEST_F(VelRshShaderManagerCopyTest, ANodesCopy_TakesMappingValuesOverWhenItIsConnected) {
  EXPECT_TRUE(SUCCEEDED(VelRbaConfiguration::SetValue("Default", "scale.Tag", "scale_u")));
  const float color[4]{};
  const float own = 5.0F;
  const VelIRshShader_var hNode = AddNode(hSource_);
  const VelIRshParameter_var hConnected = Add(hSource_, "a", "VelRmaColor");
  EXPECT_EQ(hConnected->SetValue(color), S_OK);
  EXPECT_EQ(hConnected->SetConnection(hNode.Get()), S_OK);
  AddScalar(hNode, "scale", 5.0F);
  AddScalar(hSource_, "scale", 1.0F);
  EXPECT_EQ(Find(hNode, "scale")->SetValue(&own), S_OK) << "the node had followed the source";
  EXPECT_EQ(Copy(), S_OK);
  EXPECT_EQ(ScalarOf(Find(hNode, "scale")), 5.0F);
  EXPECT_EQ(ScalarOf(Find(NodesOf(hCopy_)[0], "scale")), 1.0F) << "though it comes after the connection";
}

/// Counts the copies that go through its virtual entry.
class CountingManager final : public VelRshShaderManager {
 public:
  HRESULT CreateShaderCopy(const VelIContainer_var& iContainer, VelIRshShader* iShader,
                           VelIRshShader** oCopy) override {
    ++count;
    return VelRshShaderManager::CreateShaderCopy(iContainer, iShader, oCopy);
  }
  int count = 0;
};

TEST_F(VelRshShaderManagerCopyTest, Nodes_GoThroughTheVirtualEntry) {
  static_cast<void>(AddNode(AddNode(hSource_)));
  auto* const manager = new CountingManager;
  EXPECT_EQ(manager->CreateShaderCopy(hTarget_, hSource_.Get(), hCopy_.Receive()), S_OK);
  EXPECT_EQ(manager->count, 3);
  manager->EndLife();
  manager->Release();
}

TEST_F(VelRshShaderManagerCopyTest, AShadersOwnCopy_IsTheManagersAndTheCodeTellsNothing) {
  AddScalar(hSource_, "scalar", 1.0F);
  EXPECT_EQ(hSource_->CreateCopy(hTarget_.Get(), hCopy_.Receive()), E_FAIL);
  ASSERT_TRUE(hCopy_);
  EXPECT_EQ(ScalarOf(Find(hCopy_, "scalar")), 1.0F);
  EXPECT_EQ(hTarget_->CountFeatures(), 2);
  VelIRshShader* copy = hSource_.Get();
  EXPECT_EQ(hSource_->CreateCopy(nullptr, &copy), E_FAIL);
  EXPECT_EQ(copy, nullptr);
  EXPECT_EQ(hSource_->CreateCopy(hTarget_.Get(), nullptr), E_FAIL);
  EXPECT_EQ(hTarget_->CountFeatures(), 2);
}

TEST_F(VelRshShaderManagerCopyTest, AShadersOwnCopy_KeepsWhatTheManagerHandedOutOnAFailure) {
  static_cast<void>(Add(hSource_, "never set", "VelRmaScalar"));
  EXPECT_EQ(hSource_->CreateCopy(hTarget_.Get(), hCopy_.Receive()), E_FAIL);
  ASSERT_TRUE(hCopy_);
  EXPECT_EQ(ParameterNames(hCopy_), Texts{"never set"});
}

TEST_F(VelRshShaderManagerCopyTest, TheCopy_IsHandedOutWithOneReference) {
  VelIRshShader* copy = nullptr;
  ASSERT_EQ(Manager().CreateShaderCopy(hTarget_, hSource_.Get(), &copy), S_OK);
  EXPECT_EQ(copy->AddRef(), 2U);
  EXPECT_EQ(copy->Release(), 1U);
  copy->Release();
}

}  // namespace
