// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file main.cpp A host program that makes a shader with two parameters, listens to it, and edits it.
#include <cstdio>
#include <filesystem>
#include <string>

#include "RenderingShader/VelRshModel.m/include/VelRshModelFactoryFeature.h"
#include "platform/base/VelEnvironment.h"
#include "platform/events/VelModelEventsListener.h"
#include "platform/featuremodeler/VelISpecObject.h"
#include "platform/materials/VelRbaFloatShaderModifyNotification.h"
#include "platform/session/VelPlatformSession.h"
#include "platform/trace/VelTraceService.h"

namespace {

/// What a host hears of a parameter of numbers: its name, the value before and the value now.
class Editor final : public VelModelEventsListener {
 public:
  ~Editor() override = default;

  void Receive(VelNotification& ioNotification) override {
    const auto* changed = VelNotificationCast<VelRbaFloatShaderModifyNotification>(&ioNotification);
    if (changed == nullptr) return;
    std::printf("   heard: \"%s\" changed from %.2f to %.2f\n", changed->GetName().CString(), changed->GetPrevious(),
                changed->GetNext());
  }
};

std::string TypeOf(VelISpecObject& iFeature) {
  VelString type;
  return SUCCEEDED(iFeature.GetType(type)) ? type.CString() : "?";
}

/// Prints what a feature is to a material: the type of a shader, the name of a parameter, and where it stands.
void PrintFeature(VelBaseUnknown& iFeature) {
  const VelISpecObject_var hFeature(&iFeature);
  const VelIRshShader_var hShader(&iFeature);
  const VelIRshParameter_var hParameter(&iFeature);
  VelString label;
  if (hShader) static_cast<void>(hShader->GetType(label));
  if (hParameter) static_cast<void>(hParameter->GetName(label));
  VelISpecObject_var hFather;
  const bool hasFather = SUCCEEDED(hFeature->GetFather(hFather.Receive()));
  std::printf("   %-14s \"%s\"%s%s\n", TypeOf(*hFeature).c_str(), label.CString(),
              hasFather ? ", a parameter of a " : "", hasFather ? TypeOf(*hFather).c_str() : "");
}

void PrintFeatures(VelIContainer& iContainer) {
  VelListPtrVelBaseUnknown features;
  for (const char* startUp : {"VelRmaShader", "VelRmaParameter"}) {
    static_cast<void>(iContainer.ListFeatures(startUp, features));
  }
  for (VelBaseUnknown* feature : features) {
    PrintFeature(*feature);
    feature->Release();
  }
}

/// @return false when something could not be made; the traces then say why
bool ShowShader(VelIContainer& ioContainer) {
  std::printf("2. A shader and two parameters, made by the factory, which tells what it makes\n");
  const VelRshModelFactoryFeature factory(ioContainer);
  const VelIRshShader_var hShader = factory.CreateShader("BasicMaterial");
  const VelIRshParameter_var hColor = factory.CreateShaderParameter("base_color", "VelRmaColor");
  const VelIRshParameter_var hRoughness = factory.CreateShaderParameter("roughness", "VelRmaScalar");
  if (!hShader || !hColor || !hRoughness) return false;
  for (VelIRshParameter* parameter : {hColor.Get(), hRoughness.Get()}) {
    if (FAILED(hShader->AppendParameter(parameter))) return false;
  }
  std::printf("3. The features of the container\n");
  PrintFeatures(ioContainer);

  std::printf("4. An edit, and who hears of it\n");
  Editor editor;
  if (FAILED(editor.ConnectTo(hRoughness.Get()))) return false;
  for (const float value : {0.25F, 0.25F, 0.75F}) {
    const HRESULT set = hRoughness->SetValue(&value);
    std::printf("   SetValue %.2f: %s\n", static_cast<double>(value),
                set == S_OK ? "done" : (set == S_FALSE ? "nothing to change" : "failed"));
  }
  return true;
}

/// The dictionaries of the build or of an installation lie beside the program's folder.
std::string FindDictionaries(const char* iProgram) {
  const auto root = std::filesystem::absolute(iProgram).parent_path().parent_path();
  return (root / "lib" / "dictionaries").string();
}

}  // namespace

int main(int argc, char** argv) {
  std::setvbuf(stdout, nullptr, _IOLBF, 0);
  VelPlatformSession session;
  VelPlatformOptions options;
  options.dictionaries.push_back(argc > 1 ? argv[1] : FindDictionaries(argv[0]));
  options.catalogs.emplace_back(VEL_EXAMPLE_CATALOG);
  std::printf("1. A platform session, a catalog of start-ups and an empty container\n");
  if (FAILED(session.Start(options))) return 1;
  // What the environment switches on (VEL_TRACE) is kept; without it the demonstration shows the factory's channel.
  VelString switches;
  if (!VelEnvironment::Get("VEL_TRACE", switches) || switches.IsEmpty()) {
    // Below no material there is no appearance to bring up to date, which would be told for each parameter.
    VelTraceService::SetSwitches("VelRshModelFactoryFeature,VelRshAppearanceUpdater=error");
  }
  {
    const VelIContainer_var hContainer = VelIContainer::Create();
    if (!ShowShader(*hContainer)) {
      std::printf("   The traces above say why. See docs/dictionary.md and docs/catalog.md.\n");
      return 1;
    }
  }
  std::printf("5. The end of the session: %s\n", session.End() == S_OK ? "done" : "failed");
  return 0;
}
