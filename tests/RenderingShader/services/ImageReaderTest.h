// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file ImageReaderTest.h The fixture of the readers of paths and images: a material with a cache, and what is told.
#ifndef TESTS_RENDERINGSHADER_SERVICES_IMAGEREADERTEST_H
#define TESTS_RENDERINGSHADER_SERVICES_IMAGEREADERTEST_H

#include <string>
#include <string_view>

#include "platform/configuration/VelRbaConfiguration.h"
#include "platform/trace/VelTraceService.h"
#include "tests/RenderingShader/RshModelTest.h"
#include "tests/RenderingShader/fixtures/FakeDocument.h"
#include "tests/RenderingShader/fixtures/FakeImageServices.h"
#include "tests/RenderingShader/fixtures/FakeRenderingMaterial.h"

/// A shader below a material, whose cache is offered. The parameter "slotted" feeds the channel 5, "p" none.
class ImageReaderTest : public RshModelTest {
 protected:
  void SetUp() override {
    RshModelTest::SetUp();
    EXPECT_EQ(VelRbaConfiguration::SetValue("BasicMaterial", "slotted.SlotIdentifier", "reflectance.diffuse.color"),
              S_OK);
    hShader_ = MakeShader();
    hMaterial_ = FakeRenderingMaterial::Create(*hContainer_);
    EXPECT_EQ(VelIRenderingMaterial_var(hMaterial_)->SetShader(hShader_.Get()), S_OK);
    Cache().isOffered = true;
    VelTraceService::SetSwitches("VelRshReaderParameter*=info");
  }
  void TearDown() override {
    hShader_ = nullptr;
    hMaterial_ = nullptr;
    RshModelTest::TearDown();
  }

  FakeAppearanceCache& Cache() { return FakeRenderingMaterial::Of(*hMaterial_).cache; }

  static VelIRshParameter_var AddText(const VelIRshShader_var& iShader, const char* iName, const char* iText) {
    VelIRshParameter_var hParameter = Add(iShader, iName, "VelRmaString");
    const VelUnicodeString text(iText);
    EXPECT_TRUE(SUCCEEDED(hParameter->SetValue(&text)));
    return hParameter;
  }

  /// Adds a texture whose document is of a format.
  static VelIRshParameter_var AddTexture(const VelIRshShader_var& iShader, const char* iName,
                                         const char* iFormat = "png") {
    VelIRshParameter_var hParameter = Add(iShader, iName, "VelRmaTexture");
    const VelIPLMDmtDocument_var hDocument = FakeDocument::Create();
    FakeDocument::Of(*hDocument).format.value = iFormat;
    EXPECT_EQ(hParameter->SetValue(hDocument.Get()), S_OK);
    return hParameter;
  }

  /// Forgets what was told and called so far.
  void Forget() {
    traces_.Clear();
    static_cast<void>(images_.Take());
    static_cast<void>(Cache().Take());
  }

  /// @return what was told, in order, each with its kind in front; of times only what was timed, with its channel
  Texts Told() const {
    constexpr const char* kinds[] = {"info: ", "warning: ", "error: ", "class: "};
    constexpr std::string_view timing = "PerformanceTime";
    Texts told;
    for (const VelTraceRecorder::Entry& entry : traces_.Entries()) {
      if (entry.channel.ends_with(timing)) {
        told.push_back(entry.channel + ": " + entry.text.substr(0, entry.text.find(" finished in ")));
      } else {
        told.push_back(kinds[static_cast<int>(entry.kind)] + entry.text);
      }
    }
    return told;
  }

  const FakeDocumentBindings documents_;
  const FakeRenderingMaterialBindings materials_;
  FakeImageServices images_;
  VelIRshShader_var hShader_;
  VelISpecObject_var hMaterial_;
};

#endif  // TESTS_RENDERINGSHADER_SERVICES_IMAGEREADERTEST_H
