// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshFeatureModelerCopier_test.cpp Copies whole graphs, and reports what cannot be copied.
#include "RenderingShader/VelRshModel.m/include/VelRshFeatureModelerCopier.h"

#include <algorithm>

#include "tests/RenderingShader/bindings/fixtures/VelTestGraphOutput.h"
#include "tests/RenderingShader/fixtures/FakeDocument.h"
#include "tests/RenderingShader/management/fixtures/ManagementTest.h"
#include "tests/RenderingShader/management/fixtures/VelTestOddities.h"

namespace {

class VelRshFeatureModelerCopierTest : public ManagementTest {
 protected:
  void SetUp() override {
    ManagementTest::SetUp();
    hTarget_ = MakeContainer();
    hSource_ = MakeShader();
  }
  void TearDown() override {
    hSource_ = nullptr;
    CloseContainer();
    hTarget_ = nullptr;
    odd_.reset();
    ManagementTest::TearDown();
  }

  VelIRshShader_var Copy() { return VelRshFeatureModelerCopier(*hTarget_).Copy(hSource_); }

  /// Has the classes of VelTestOddities answer from now on.
  VelTestParameterScript& Odd(const char* iParameter) {
    if (!odd_) odd_.emplace(VEL_TEST_LIBRARY_FOLDER);
    return odd_->parameters[iParameter];
  }

  /// @return what was reported, as "expression: message"; forgets it
  Texts TakeChecks() {
    Texts texts;
    for (const RecordedFailure& failure : checks_.Failures()) {
      EXPECT_EQ(failure.kind, VelFailureKind::Check);
      EXPECT_EQ(failure.source, "RenderingShader/VelRshModel.m/src/VelRshFeatureModelerCopier");
      EXPECT_NE(failure.line, 0U);
      texts.push_back(failure.expression + ": " + failure.message);
    }
    checks_.Clear();
    return texts;
  }

  /// @return the names of the parameters of the shaders in the target, shader by shader
  std::vector<Texts> LeftInTarget() {
    VelListPtrVelBaseUnknown list;
    EXPECT_EQ(hTarget_->ListFeatures("VelRmaShader", list), S_OK);
    std::vector<Texts> left;
    for (VelBaseUnknown* element : list) {
      left.push_back(ParameterNames(VelIRshShader_var(VelBaseUnknown_var::Adopt(element))));
    }
    return left;
  }

  /// Connects a new parameter of a shader to another one.
  static VelIRshParameter_var Connect(const VelIRshShader_var& iShader, const char* iName,
                                      const VelIRshShader_var& iConnected) {
    const VelIRshParameter_var hParameter = Add(iShader, iName, "VelRmaVoid");
    EXPECT_EQ(hParameter->SetConnection(iConnected.Get()), S_OK);
    return hParameter;
  }

  VelIContainer_var hTarget_;
  VelIRshShader_var hSource_;
  std::optional<VelTestOddities> odd_;
};

TEST_F(VelRshFeatureModelerCopierTest, ValuesOfEveryType_AreCopiedInOrder) {
  const bool boolean = false;
  const std::int32_t integer = -7;
  const float scalar = 0.5F;
  const float vector[] = {1.0F, 2.0F, 3.0F};
  const float color[] = {0.1F, 0.2F, 0.3F, 0.4F};
  const VelUnicodeString text("gr\xC3\xBC\xC3\x9F");
  float matrix[16];
  for (int i = 0; i < 16; ++i) matrix[i] = static_cast<float>(i) + 0.25F;
  EXPECT_EQ(Add(hSource_, "matrix", "VelRmaMatrix")->SetValue(matrix), S_OK);
  EXPECT_EQ(Add(hSource_, "text", "VelRmaString")->SetValue(&text), S_OK);
  EXPECT_EQ(Add(hSource_, "boolean", "VelRmaBoolean")->SetValue(&boolean), S_OK);
  EXPECT_EQ(Add(hSource_, "integer", "VelRmaInteger")->SetValue(&integer), S_OK);
  EXPECT_EQ(Add(hSource_, "scalar", "VelRmaScalar")->SetValue(&scalar), S_OK);
  EXPECT_EQ(Add(hSource_, "vector", "VelRmaVector")->SetValue(vector), S_OK);
  EXPECT_EQ(Add(hSource_, "color", "VelRmaColor")->SetValue(color), S_OK);
  static_cast<void>(Add(hSource_, "void", "VelRmaVoid"));

  const VelIRshShader_var hCopy = Copy();
  ASSERT_TRUE(hCopy);
  EXPECT_EQ(TypeOfShader(hCopy.Get()), "BasicMaterial");
  EXPECT_EQ(ParameterNames(hCopy),
            (Texts{"matrix", "text", "boolean", "integer", "scalar", "vector", "color", "void"}));
  bool booleanRead = true;
  std::int32_t integerRead = 0;
  float vectorRead[3]{};
  float colorRead[4]{};
  float matrixRead[16]{};
  VelUnicodeString textRead;
  EXPECT_EQ(Find(hCopy, "boolean")->GetValue(&booleanRead), S_OK);
  EXPECT_EQ(Find(hCopy, "integer")->GetValue(&integerRead), S_OK);
  EXPECT_EQ(Find(hCopy, "vector")->GetValue(vectorRead), S_OK);
  EXPECT_EQ(Find(hCopy, "color")->GetValue(colorRead), S_OK);
  EXPECT_EQ(Find(hCopy, "matrix")->GetValue(matrixRead), S_OK);
  EXPECT_EQ(Find(hCopy, "text")->GetValue(&textRead), S_OK);
  EXPECT_FALSE(booleanRead);
  EXPECT_EQ(integerRead, -7);
  EXPECT_EQ(ScalarOf(Find(hCopy, "scalar")), 0.5F);
  EXPECT_TRUE(std::equal(vector, vector + 3, vectorRead));
  EXPECT_TRUE(std::equal(color, color + 4, colorRead));
  EXPECT_TRUE(std::equal(matrix, matrix + 16, matrixRead));
  EXPECT_EQ(textRead, text);
}

TEST_F(VelRshFeatureModelerCopierTest, TheOldMaterial_KeepsItsType) {
  hSource_ = MakeShader("mia_material");
  EXPECT_EQ(TypeOfShader(Copy().Get()), "mia_material");
}

TEST_F(VelRshFeatureModelerCopierTest, Documents_AreSharedAndMayBeMissing) {
  const FakeDocumentBindings bindings;
  const VelIPLMDmtDocument_var hImage = FakeDocument::Create("image");
  for (const char* startUp : {"VelRmaTexture", "VelRmaLightProfile"}) {
    EXPECT_EQ(Add(hSource_, startUp, startUp)->SetValue(hImage.Get()), S_OK);
    static_cast<void>(Add(hSource_, "none", startUp));
  }
  const VelIRshShader_var hCopy = Copy();
  ASSERT_TRUE(hCopy);
  ASSERT_EQ(ParametersOf(hCopy).size(), 4U);
  for (const VelIRshParameter_var& hParameter : ParametersOf(hCopy)) {
    VelBaseUnknown_var hDocument;
    EXPECT_EQ(hParameter->GetValue(hDocument.Receive()), S_OK);
    EXPECT_TRUE(IsSameObject(hDocument.Get(), NameOfParameter(hParameter.Get()) == "none" ? nullptr : hImage.Get()));
  }
}

TEST_F(VelRshFeatureModelerCopierTest, AShaderConnectedTwice_IsCopiedOncePerConnectionAndIsNoNode) {
  const VelIRshShader_var hNode = AddNode(hSource_, "node");
  const VelIRshShader_var hBelow = MakeShader("below");
  AddScalar(hNode, "scalar", 2.0F);
  Connect(hNode, "down", hBelow);
  Connect(hSource_, "a", hNode);
  Connect(hSource_, "b", hNode);
  const VelIRshShader_var hCopy = Copy();
  ASSERT_TRUE(hCopy);
  const VelIRshShader_var hA = ConnectionOf(Find(hCopy, "a"));
  const VelIRshShader_var hB = ConnectionOf(Find(hCopy, "b"));
  ASSERT_TRUE(hA && hB);
  EXPECT_FALSE(IsSameObject(hA.Get(), hB.Get()));
  for (const VelIRshShader_var& hNodeCopy : {hA, hB}) {
    EXPECT_FALSE(IsSameObject(hNodeCopy.Get(), hNode.Get()));
    EXPECT_EQ(TypeOfShader(hNodeCopy.Get()), "node");
    EXPECT_EQ(ScalarOf(Find(hNodeCopy, "scalar")), 2.0F);
    EXPECT_EQ(TypeOfShader(ConnectionOf(Find(hNodeCopy, "down")).Get()), "below");
  }
  EXPECT_FALSE(IsSameObject(ConnectionOf(Find(hA, "down")).Get(), ConnectionOf(Find(hB, "down")).Get()));
  EXPECT_TRUE(NodesOf(hCopy).empty());
  VelISpecObject_var hFather;
  EXPECT_EQ(VelISpecObject_var(hA)->GetFather(hFather.Receive()), E_FAIL);
  EXPECT_EQ(LeftInTarget().size(), 5U);
}

TEST_F(VelRshFeatureModelerCopierTest, NodesThatNothingIsConnectedTo_AreNotCopied) {
  static_cast<void>(AddNode(hSource_, "node"));
  EXPECT_TRUE(Copy());
  EXPECT_EQ(hTarget_->CountFeatures(), 1);
}

TEST_F(VelRshFeatureModelerCopierTest, TheOutputOfAGraph_IsShared) {
  const VelTestGraphOutputBindings bindings;
  const VelISpecObject_var hOutput = VelTestGraphOutputSide::Create(*hContainer_);
  const VelIRshShader_var hOutputShader(hOutput);
  const VelIRshShader_var hNode = MakeShader("node");
  Connect(hSource_, "a", hOutputShader);
  Connect(hSource_, "n", hNode);
  Connect(hNode, "b", hOutputShader);
  const VelIRshShader_var hCopy = Copy();
  ASSERT_TRUE(hCopy);
  EXPECT_TRUE(IsSameObject(ConnectionOf(Find(hCopy, "a")).Get(), hOutput.Get()));
  const VelIRshShader_var hNodeCopy = ConnectionOf(Find(hCopy, "n"));
  EXPECT_FALSE(IsSameObject(hNodeCopy.Get(), hNode.Get()));
  EXPECT_TRUE(IsSameObject(ConnectionOf(Find(hNodeCopy, "b")).Get(), hOutput.Get()));
  EXPECT_EQ(LeftInTarget().size(), 2U) << "no copy of the output";
  CloseContainer();
}

TEST_F(VelRshFeatureModelerCopierTest, VersionUsageAndOutputType_AreNotCopied) {
  EXPECT_EQ(hSource_->SetVersion(4), S_OK);
  EXPECT_EQ(hSource_->SetUsage(2), S_OK);
  EXPECT_EQ(hSource_->SetOutputType("VelRmaColor"), S_OK);
  const VelIRshShader_var hCopy = Copy();
  std::uint32_t number = 0;
  VelString output;
  EXPECT_EQ(hCopy->GetVersion(number), E_FAIL);
  EXPECT_EQ(hCopy->GetUsage(number), E_FAIL);
  EXPECT_EQ(hCopy->GetOutputType(output), E_FAIL);
}

TEST_F(VelRshFeatureModelerCopierTest, NoShader_IsReportedAndGivesNone) {
  EXPECT_FALSE(VelRshFeatureModelerCopier(*hTarget_).Copy(VelIRshShader_var()));
  EXPECT_EQ(TakeChecks(), Texts{"SUCCEEDED( result_read_type ): Could not read type"});
}

TEST_F(VelRshFeatureModelerCopierTest, ATypeThatCannotBeRead_IsReported) {
  static_cast<void>(Odd(""));
  odd_->shader.type.code = E_FAIL;
  hSource_ = VelTestOddities::CreateObject();
  EXPECT_FALSE(Copy());
  EXPECT_EQ(TakeChecks(), Texts{"SUCCEEDED( result_read_type ): Could not read type"});
  EXPECT_EQ(hTarget_->CountFeatures(), 0);
}

TEST_F(VelRshFeatureModelerCopierTest, AShaderThatCannotBeMade_IsReported) {
  hTarget_ = MakeBarrenContainer();
  EXPECT_FALSE(Copy());
  EXPECT_EQ(TakeChecks(), Texts{"hCopiedShader: Could not create shader"});
}

TEST_F(VelRshFeatureModelerCopierTest, AParameterThatFails_IsReportedAndEndsTheCopyWhichStays) {
  const struct {
    const char* name;
    std::function<void(VelTestParameterScript&)> script;
    std::string expected;
    Texts left;
  } cases[] = {{"name",
                [](auto& ioScript) { ioScript.nameCode = E_FAIL; },
                "SUCCEEDED( result_read_name ): Could not read name",
                {"before"}},
               {"type",
                [](auto& ioScript) { ioScript.onGetType = [](VelString&) { return E_FAIL; }; },
                "SUCCEEDED( result_read_type ): Could not read type",
                {"before"}},
               {"start-up",
                [](auto& ioScript) {
                  ioScript.onGetType = [](VelString& oType) {
                    oType = "VelTestNoStartUp";
                    return S_OK;
                  };
                },
                "hCopiedParameter: Could not create parameter",
                {"before"}},
               {"father",
                [this](auto& ioScript) {
                  ioScript.onSetName = [this](VelBaseUnknown* ioParameter) {
                    const VelIRshShader_var hOther = VelRshModelFactoryFeature(*hTarget_).CreateShader("other");
                    EXPECT_EQ(hOther->AppendParameter(VelIRshParameter_var(ioParameter).Get()), S_OK);
                  };
                },
                "SUCCEEDED( result_write_parameter ): Could not write parameter",
                {"before"}},
               {"kind",
                [](auto& ioScript) {
                  ioScript.onGetType = [](VelString& oType) {
                    oType = "VelRmaParameter";
                    return S_OK;
                  };
                },
                "Copy: Unknown type",
                {"before", "odd"}},
               {"read",
                [](auto& ioScript) { ioScript.getCode = E_FAIL; },
                "SUCCEEDED( result_read_value ): Could not read value",
                {"before", "odd"}},
               {"write",
                [](auto& ioScript) { ioScript.setCode = E_FAIL; },
                "SUCCEEDED( result_write_value ): Could not write value",
                {"before", "odd"}}};
  static_cast<void>(Odd("odd"));
  for (const auto& row : cases) {
    hTarget_ = MakeContainer();
    hSource_ = MakeShader();
    Odd("odd") = {};
    static_cast<void>(Add(hSource_, "before", "VelRmaVoid"));
    static_cast<void>(Add(hSource_, "odd", "VelRmaScalar"));
    static_cast<void>(Add(hSource_, "after", "VelRmaVoid"));
    row.script(Odd("odd"));
    EXPECT_FALSE(Copy()) << row.name;
    EXPECT_EQ(TakeChecks(), Texts{row.expected}) << row.name;
    EXPECT_EQ(LeftInTarget().front(), row.left) << row.name;
  }
}

TEST_F(VelRshFeatureModelerCopierTest, ADocumentThatCannotBeReadOrWritten_IsReported) {
  const struct {
    HRESULT get;
    HRESULT set;
    Texts expected;
  } cases[] = {{S_OK, S_OK, {}},
               {E_FAIL, S_OK, {"SUCCEEDED( result_read_value ): Could not read value"}},
               {S_OK, E_FAIL, {"SUCCEEDED( result_write_value ): Could not write value"}}};
  Odd("odd").document = hTarget_.Get();
  static_cast<void>(Add(hSource_, "odd", "VelRmaTexture"));
  for (const auto& row : cases) {
    Odd("odd").getCode = row.get;
    Odd("odd").setCode = row.set;
    EXPECT_EQ(static_cast<bool>(Copy()), row.expected.empty());
    EXPECT_EQ(TakeChecks(), row.expected);
  }
  Odd("odd") = {};
  Odd("odd").setCode = E_FAIL;
  EXPECT_TRUE(Copy()) << "no document is not written";
}

TEST_F(VelRshFeatureModelerCopierTest, AValueThatNobodySet_IsReported) {
  for (const char* startUp : {"VelRmaBoolean", "VelRmaColor", "VelRmaInteger", "VelRmaScalar", "VelRmaVector",
                              "VelRmaString", "VelRmaMatrix"}) {
    hSource_ = MakeShader();
    static_cast<void>(Add(hSource_, "never set", startUp));
    EXPECT_FALSE(Copy()) << startUp;
    EXPECT_EQ(TakeChecks(), Texts{"SUCCEEDED( result_read_value ): Could not read value"}) << startUp;
  }
}

TEST_F(VelRshFeatureModelerCopierTest, WhatIsNoParameter_IsNotCopied) {
  const VelIRshParameter_var hParameter = Add(hSource_, "a", "VelRmaVoid");
  static_cast<void>(Odd(""));
  odd_->shader.parameters = {nullptr, hContainer_.Get(), hParameter.Get()};
  hSource_ = VelTestOddities::CreateObject();
  EXPECT_EQ(ParameterNames(Copy()), Texts{"a"});
}

TEST_F(VelRshFeatureModelerCopierTest, AConnectedShaderThatFails_EndsTheCopyOfAllAboveIt) {
  const VelIRshShader_var hNode = MakeShader("node");
  const VelIRshShader_var hBelow = MakeShader("below");
  static_cast<void>(Add(hBelow, "never set", "VelRmaScalar"));
  Connect(hNode, "down", hBelow);
  Connect(hSource_, "a", hNode);
  AddScalar(hSource_, "after", 1.0F);
  EXPECT_FALSE(Copy());
  EXPECT_EQ(TakeChecks(), (Texts{"SUCCEEDED( result_read_value ): Could not read value",
                                 "hCopiedConnection: Could not create connection",
                                 "hCopiedConnection: Could not create connection"}));
  std::vector<Texts> left = LeftInTarget();
  std::sort(left.begin(), left.end());
  EXPECT_EQ(left, (std::vector<Texts>{{"a"}, {"down"}, {"never set"}}));
}

TEST_F(VelRshFeatureModelerCopierTest, ACycle_IsReportedAndGivesNone) {
  const VelIRshShader_var hNode = MakeShader("node");
  Connect(hNode, "up", hSource_);
  Connect(hSource_, "a", hNode);
  EXPECT_FALSE(Copy());
  EXPECT_EQ(TakeChecks(), (Texts{"hCopiedConnection: Could not create connection",
                                 "hCopiedConnection: Could not create connection"}));
  hSource_ = MakeShader();
  Connect(hSource_, "self", hSource_);
  EXPECT_FALSE(Copy());
  EXPECT_EQ(TakeChecks(), Texts{"hCopiedConnection: Could not create connection"});
}

TEST_F(VelRshFeatureModelerCopierTest, ADiamond_IsNoCycle) {
  const VelIRshShader_var hLeft = MakeShader("left");
  const VelIRshShader_var hRight = MakeShader("right");
  const VelIRshShader_var hBottom = MakeShader("bottom");
  Connect(hSource_, "l", hLeft);
  Connect(hSource_, "r", hRight);
  Connect(hLeft, "b", hBottom);
  Connect(hRight, "b", hBottom);
  EXPECT_TRUE(Copy());
  EXPECT_EQ(LeftInTarget().size(), 5U);
}

TEST_F(VelRshFeatureModelerCopierTest, ShadersConnected256Deep_AreCopiedAndNoneOfADeeperGraph) {
  VelIRshShader_var hDeepest = hSource_;
  for (int depth = 2; depth <= 256; ++depth) {
    const VelIRshShader_var hNext = MakeShader("next");
    Connect(hDeepest, "down", hNext);
    hDeepest = hNext;
  }
  EXPECT_TRUE(Copy());
  EXPECT_EQ(TakeChecks(), Texts{});
  EXPECT_EQ(LeftInTarget().size(), 256U);
  Connect(hDeepest, "down", MakeShader("too deep"));
  EXPECT_FALSE(Copy());
  const Texts checks = TakeChecks();
  ASSERT_EQ(checks.size(), 257U);
  EXPECT_EQ(checks.front(), "depth <= 256: Shaders are nested too deep to be copied");
  EXPECT_EQ(checks[1], "hCopiedConnection: Could not create connection");
  EXPECT_FALSE(Copy());
  EXPECT_EQ(TakeChecks().size(), 257U) << "the depth is counted from anew";
}

TEST_F(VelRshFeatureModelerCopierTest, OneCopier_CopiesAgainAndAgainAlsoIntoTheSourcesContainer) {
  AddScalar(hSource_, "scalar", 1.0F);
  const VelRshFeatureModelerCopier copier(*hContainer_);
  const VelIRshShader_var hFirst = copier.Copy(hSource_);
  const VelIRshShader_var hSecond = copier.Copy(hFirst);
  EXPECT_EQ(ScalarOf(Find(hSecond, "scalar")), 1.0F);
  EXPECT_EQ(hContainer_->CountFeatures(), 6);
  EXPECT_EQ(hTarget_->CountFeatures(), 0);
}

TEST_F(VelRshFeatureModelerCopierTest, AConnectionThatCannotBeMade_IsNoFailure) {
  const VelIRshShader_var hNode = MakeShader("node");
  Odd("odd").connection = hNode.Get();
  static_cast<void>(Add(hSource_, "odd", "VelRmaScalar"));
  Connect(hSource_, "after", hNode);
  const VelIRshShader_var hCopy = Copy();
  ASSERT_TRUE(hCopy);
  EXPECT_EQ(std::count(odd_->notes.begin(), odd_->notes.end(), "connect odd"), 1);
  EXPECT_TRUE(ConnectionOf(Find(hCopy, "after")));
  EXPECT_EQ(TakeChecks(), Texts{});
}

}  // namespace
