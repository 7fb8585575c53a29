// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file UpdatesTest.h The fixture of updates: a material whose shaders are set up in silence, and what is told then.
#ifndef TESTS_RENDERINGSHADER_UPDATES_UPDATESTEST_H
#define TESTS_RENDERINGSHADER_UPDATES_UPDATESTEST_H

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterCollection.h"
#include "platform/configuration/VelRbaConfiguration.h"
#include "platform/materials/VelIRmaEditionMode.h"
#include "platform/trace/VelTraceService.h"
#include "tests/RenderingShader/RshModelTest.h"
#include "tests/RenderingShader/fixtures/FakeDocument.h"
#include "tests/RenderingShader/fixtures/FakeImageServices.h"
#include "tests/RenderingShader/fixtures/FakeRenderingMaterial.h"

/// Acts once, when a line that begins in a certain way is told.
class ActOnLine final : public VelTraceSink {
 public:
  ActOnLine(std::string iBeginning, std::function<void()> iAct)
      : beginning_(std::move(iBeginning)), act_(std::move(iAct)) {
    VelTraceService::AddSink(*this);
  }
  ~ActOnLine() { VelTraceService::RemoveSink(*this); }
  ActOnLine(const ActOnLine&) = delete;
  ActOnLine& operator=(const ActOnLine&) = delete;

  void Write(const VelTraceRecord& iRecord) override {
    if (iRecord.text.starts_with(beginning_)) std::exchange(act_, [] {})();
  }
  void Flush() override {}

 private:
  std::string beginning_;
  std::function<void()> act_;
};

/// A root shader "Top" below a material with a cache and with the propagation control. The parameter "slotted" of the
/// root feeds the channel 5, "slotted2" the channel 6. Sub-shaders are of the type "Sub".
class UpdatesTest : public RshModelTest {
 protected:
  static constexpr auto silent = VelIRmaEditionMode::Mode::SilentPropagation;

  void SetUp() override {
    RshModelTest::SetUp();
    VelIRmaEditionMode::SetActivation(silent, true);
    Configure("Top", "slotted.SlotIdentifier", "reflectance.diffuse.color");
    Configure("Top", "slotted2.SlotIdentifier", "reflectance.specular.color");
    hRoot_ = MakeShader("Top");
    hMaterial_ = FakeRenderingMaterial::Create(*hContainer_);
    EXPECT_EQ(VelIRenderingMaterial_var(hMaterial_)->SetShader(hRoot_.Get()), S_OK);
    Material().cache.isOffered = true;
    Material().offersPropagation = true;
  }
  void TearDown() override {
    VelIRmaEditionMode::SetActivation(silent, false);
    hRoot_ = nullptr;
    hMaterial_ = nullptr;
    RshModelTest::TearDown();
  }

  FakeRenderingMaterial& Material() { return FakeRenderingMaterial::Of(*hMaterial_); }
  FakeAppearanceCache& Cache() { return Material().cache; }

  static void Configure(const char* iShader, const std::string& iKey, const char* iText) {
    EXPECT_TRUE(SUCCEEDED(VelRbaConfiguration::SetValue(iShader, VelString(iKey), iText)));
  }

  /// Gives a parameter of the root its tags.
  static void Tag(const char* iParameter, const char* iWords) {
    Configure("Top", std::string(iParameter) + ".Tag", iWords);
  }

  static void Set(const VelIRshParameter_var& iParameter, float iValue) {
    EXPECT_TRUE(SUCCEEDED(iParameter->SetValue(&iValue)));
  }
  static void Set(const VelIRshParameter_var& iParameter, std::int32_t iValue) {
    EXPECT_TRUE(SUCCEEDED(iParameter->SetValue(&iValue)));
  }
  static void Set(const VelIRshParameter_var& iParameter, bool iValue) {
    EXPECT_TRUE(SUCCEEDED(iParameter->SetValue(&iValue)));
  }
  static void Set(const VelIRshParameter_var& iParameter, const char* iText) {
    const VelUnicodeString text(iText);
    EXPECT_TRUE(SUCCEEDED(iParameter->SetValue(&text)));
  }

  static VelIRshParameter_var AddScalar(const VelIRshShader_var& iShader, const char* iName, float iValue) {
    VelIRshParameter_var hParameter = Add(iShader, iName, "VelRmaScalar");
    Set(hParameter, iValue);
    return hParameter;
  }
  static VelIRshParameter_var AddInteger(const VelIRshShader_var& iShader, const char* iName, std::int32_t iValue) {
    VelIRshParameter_var hParameter = Add(iShader, iName, "VelRmaInteger");
    Set(hParameter, iValue);
    return hParameter;
  }
  static VelIRshParameter_var AddText(const VelIRshShader_var& iShader, const char* iName, const char* iText) {
    VelIRshParameter_var hParameter = Add(iShader, iName, "VelRmaString");
    Set(hParameter, iText);
    return hParameter;
  }
  static VelIRshParameter_var AddColor(const VelIRshShader_var& iShader, const char* iName, float iRed, float iGreen,
                                       float iBlue) {
    VelIRshParameter_var hParameter = Add(iShader, iName, "VelRmaColor");
    const float color[4] = {iRed, iGreen, iBlue, 1.0F};
    EXPECT_TRUE(SUCCEEDED(hParameter->SetValue(color)));
    return hParameter;
  }

  /// Adds a texture whose document is of a format, and has a file of its own.
  VelIRshParameter_var AddTexture(const VelIRshShader_var& iShader, const char* iFormat, const char* iPath) {
    VelIRshParameter_var hParameter = Add(iShader, "tex", "VelRmaTexture");
    const VelIPLMDmtDocument_var hDocument = FakeDocument::Create(iPath);
    FakeDocument::Of(*hDocument).format.value = iFormat;
    images_.SetProjectionPathOf(*hDocument, iPath);
    EXPECT_EQ(hParameter->SetValue(hDocument.Get()), S_OK);
    return hParameter;
  }

  /// Adds a texture of SVG with what it is drawn by.
  VelIRshParameter_var AddSvg(const VelIRshShader_var& iShader, const char* iPath, std::int32_t iDpi,
                              const char* iGroups) {
    AddInteger(iShader, "dpi", iDpi);
    AddText(iShader, "group_names", iGroups);
    return AddTexture(iShader, "svg", iPath);
  }

  /// Connects a new sub-shader to a new parameter of the root.
  VelIRshShader_var Connect(const char* iParameter, const char* iType = "Sub") {
    VelIRshShader_var hNode = AddNode(hRoot_, iType);
    EXPECT_EQ(Add(hRoot_, iParameter, "VelRmaColor")->SetConnection(hNode.Get()), S_OK);
    return hNode;
  }

  /// @return the first parameter of a name, empty when there is none
  static VelIRshParameter_var Find(const VelIRshShader_var& iShader, const char* iName) {
    const VelRshReaderParameterCollection collection;
    return collection(collection(*iShader), iName);
  }

  static float ScalarOf(const VelIRshParameter_var& iParameter) {
    float value = -1.0F;
    EXPECT_EQ(iParameter->GetValue(&value), S_OK);
    return value;
  }
  static std::int32_t IntegerOf(const VelIRshParameter_var& iParameter) {
    std::int32_t value = -1;
    EXPECT_EQ(iParameter->GetValue(&value), S_OK);
    return value;
  }

  /// Takes a parameter out of the model while others may still hold it.
  static void Remove(const VelIRshParameter_var& iParameter) {
    EXPECT_EQ(LifeCycleObject_var(iParameter)->remove(), S_OK);
  }

  /// Ends the silence, and forgets what was told and called so far.
  void Listen() {
    VelIRmaEditionMode::SetActivation(silent, false);
    VelTraceService::SetSwitches("VelRshAppearanceUpdater*=info");
    traces_.Clear();
    static_cast<void>(images_.Take());
    static_cast<void>(Cache().Take());
  }

  void UpdateValue(const VelIRshParameter_var& iParameter) {
    Listen();
    EXPECT_EQ(VelIRshParameterPrivate_var(iParameter)->UpdateValue(), S_OK);
  }
  void UpdateConnection(const VelIRshParameter_var& iParameter) {
    Listen();
    EXPECT_EQ(VelIRshParameterPrivate_var(iParameter)->UpdateConnection(), S_OK);
  }

  /// @return what was told since Listen, in order, each with its kind in front; of times only what was timed
  Texts Told() const {
    constexpr const char* kinds[] = {"info: ", "warning: ", "error: ", "class: "};
    Texts told;
    for (const VelTraceRecorder::Entry& entry : traces_.Entries()) {
      const bool isTime = entry.channel == "VelRshAppearanceUpdaterPerformanceTime";
      const bool isError = entry.kind == VelTraceKind::Error;
      EXPECT_TRUE(isTime || entry.channel == "VelRshAppearanceUpdater") << entry.channel;
      EXPECT_EQ(entry.source, isError ? "RenderingShader/VelRshModel.m/src/VelRshAppearanceUpdater" : "");
      EXPECT_EQ(entry.line != 0, isError) << entry.text;
      EXPECT_TRUE(!isTime || entry.kind == VelTraceKind::Information) << entry.text;
      told.push_back(isTime ? "time: " + entry.text.substr(0, entry.text.find(" finished in "))
                            : kinds[static_cast<int>(entry.kind)] + entry.text);
    }
    return told;
  }

  const FakeDocumentBindings documents_;
  const FakeRenderingMaterialBindings materials_;
  FakeImageServices images_;
  VelIRshShader_var hRoot_;
  VelISpecObject_var hMaterial_;
};

#endif  // TESTS_RENDERINGSHADER_UPDATES_UPDATESTEST_H
