// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file main.cpp A host that asks a shader for texts which a module brings along for the shader's type.
#include <cstdio>
#include <filesystem>
#include <string>

#include "RenderingShader/VelRshModel.m/include/VelRshModelFactoryFeature.h"
#include "RenderingShader/interfaces/VelIAlias.h"
#include "RenderingShader/interfaces/VelIRshShaderResources.h"
#include "platform/base/VelEnvironment.h"
#include "platform/session/VelPlatformSession.h"
#include "platform/trace/VelTraceService.h"

namespace {

/// @return the parameter; empty when the shader could not take it in
VelIRshParameter_var Add(VelIRshShader& ioShader, const char* iName, const char* iStartUp) {
  VelIRshParameter_var hParameter;
  const HRESULT added = ioShader.AddParameter(iName, iStartUp, hParameter.Receive());
  if (FAILED(added)) return nullptr;
  return hParameter;
}

void PrintLabel(VelIRshParameter& iParameter) {
  VelString name;
  const VelIAlias_var hAlias(&iParameter);
  if (FAILED(iParameter.GetName(name)) || !hAlias) return;
  std::printf("\"%s\" is labelled \"%s\"\n", name.CString(), hAlias->GetAlias().ToVelString().CString());
}

/// @return false when something could not be made; the traces then say why
bool ShowResources(VelIContainer& ioContainer) {
  const VelRshModelFactoryFeature factory(ioContainer);
  const VelIRshShader_var hShader = factory.CreateShader("ExPaint");
  if (!hShader) return false;
  const VelIRshParameter_var hColor = Add(*hShader, "base_color", "VelRmaColor");
  const VelIRshParameter_var hGloss = Add(*hShader, "gloss", "VelRmaScalar");
  if (!hColor || !hGloss) return false;
  PrintLabel(*hColor);  // the module's
  PrintLabel(*hGloss);  // the module has none, nor has the configuration: the name

  const float gloss = 0.5F;
  if (FAILED(hGloss->SetValue(&gloss))) return false;
  const VelIRshShaderResources_var hResources(hShader);
  VelUnicodeString text;
  if (!hResources || FAILED(hResources->GetText("summary", "", text))) return false;
  std::printf("summary: %s\n", text.ToVelString().CString());
  return true;
}

/// The dictionaries of the build or of an installation lie beside the program's folder.
std::string FindDictionaries(const char* iProgram) {
  const auto root = std::filesystem::absolute(iProgram).parent_path().parent_path();
  return (root / "lib" / "dictionaries").string();
}

}  // namespace

int main(int argc, char** argv) {
  VelPlatformSession session;
  VelPlatformOptions options;
  options.dictionaries.push_back(argc > 1 ? argv[1] : FindDictionaries(argv[0]));
  options.catalogs.emplace_back(VEL_EXAMPLE_CATALOG);
  if (FAILED(session.Start(options))) return 1;
  VelString switches;
  if (!VelEnvironment::Get("VEL_TRACE", switches) || switches.IsEmpty()) {
    // Below no material there is no appearance to bring up to date, which would be told for each parameter.
    VelTraceService::SetSwitches("VelRshAppearanceUpdater=error");
  }
  {
    const VelIContainer_var hContainer = VelIContainer::Create();
    if (!ShowResources(*hContainer)) {
      std::printf("The traces above say why, or those of VEL_TRACE=VelDictionary. See docs/dictionary.md.\n");
      return 1;
    }
  }
  return session.End() == S_OK ? 0 : 1;
}
