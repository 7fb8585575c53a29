// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file main.cpp A host that lists the shader types there are, and creates, copies and upgrades a shader of one.
#include <cstdint>
#include <cstdio>

#include "RenderingShader/VelRshModel.m/include/VelRshModelFactoryFeature.h"
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterCollection.h"
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterValue.h"
#include "RenderingShader/VelRshModel.m/include/VelRshShaderManager.h"
#include "platform/base/VelEnvironment.h"
#include "platform/session/VelPlatformSession.h"
#include "platform/trace/VelTraceService.h"

namespace {

constexpr unsigned int shownUsage = 2;
constexpr const char* newType = "ExTwillWeave";
constexpr const char* grownType = "ExPearlCoat";

void PrintHead(VelIRshShader& iShader) {
  VelString output;
  std::uint32_t usage = 0;
  std::uint32_t version = 0;
  if (FAILED(iShader.GetOutputType(output)) || FAILED(iShader.GetUsage(usage)) || FAILED(iShader.GetVersion(version))) {
    std::printf("   no output type, usage and version\n");
    return;
  }
  std::printf("   output type %s, usage %u, version %u\n", output.CString(), usage, version);
}

void PrintParameter(VelIRshParameter& iParameter) {
  const VelRshReaderParameterValue read;
  VelString name;
  VelString startUp;
  if (FAILED(iParameter.GetName(name)) || FAILED(iParameter.GetType(startUp))) return;
  std::printf("   %-22s %-13s", name.CString(), startUp.CString());
  if (startUp == "VelRmaBoolean") {
    std::printf(" %s\n", read.asBoolean(iParameter) ? "true" : "false");
  } else if (startUp == "VelRmaInteger") {
    std::printf(" %d\n", read.asIntegral(iParameter));
  } else if (startUp == "VelRmaScalar") {
    std::printf(" %.2f\n", static_cast<double>(read.asScalar(iParameter)));
  } else {
    const auto value = read.asPackedScalar3(iParameter);
    std::printf(" %.2f %.2f %.2f\n", static_cast<double>(value[0]), static_cast<double>(value[1]),
                static_cast<double>(value[2]));
  }
}

void Print(VelIRshShader& iShader) {
  PrintHead(iShader);
  for (const VelIRshParameter_var& hParameter : VelRshReaderParameterCollection()(iShader)) PrintParameter(*hParameter);
}

/// @return whether the parameter was there and took the number
bool Edit(VelIRshShader& ioShader, const char* iName, float iValue) {
  const VelRshReaderParameterCollection collection;
  const VelIRshParameter_var hParameter = collection(collection(ioShader), iName);
  return hParameter && SUCCEEDED(hParameter->SetValue(&iValue));
}

bool ListTypes(VelRshShaderManager& ioManager) {
  std::printf("1. The types for usage %u, of whatever output\n", shownUsage);
  VelListValVelString types;
  VelListValVelUnicodeString names;
  const HRESULT listed = ioManager.ListAvailableShaders(shownUsage, "", types, names);
  for (int i = 1; i <= types.Size(); ++i) {
    std::printf("   %-13s \"%s\"\n", types[i].CString(), names[i].ToVelString().CString());
  }
  return SUCCEEDED(listed);
}

bool CreateAndCopy(VelRshShaderManager& ioManager, const VelIContainer_var& iContainer) {
  std::printf("2. A new shader of type %s\n", newType);
  VelIRshShader_var hShader;
  if (FAILED(ioManager.CreateShader(iContainer, newType, hShader.Receive(), 0))) return false;
  Print(*hShader);

  std::printf("3. Its copy, in a container of its own, after an edit of fuzz\n");
  const VelIContainer_var hOther = VelIContainer::Create();
  VelIRshShader_var hCopy;
  if (!Edit(*hShader, "fuzz", 0.25F)) return false;
  if (FAILED(ioManager.CreateShaderCopy(hOther, hShader.Get(), hCopy.Receive()))) return false;
  Print(*hCopy);
  return true;
}

/// A shader with the parameters of version 1, as an old document holds it.
VelIRshShader_var MakeOldShader(VelIContainer& ioContainer) {
  VelIRshShader_var hShader = VelRshModelFactoryFeature(ioContainer).CreateShader(grownType);
  if (!hShader || FAILED(hShader->SetVersion(1)) || FAILED(hShader->SetUsage(6))) return nullptr;
  if (FAILED(hShader->SetOutputType("VelRmaColor"))) return nullptr;
  const float face[] = {0.60F, 0.10F, 0.05F, 1.0F};
  const float amount = 0.9F;
  VelIRshParameter_var hFace;
  VelIRshParameter_var hAmount;
  if (FAILED(hShader->AddParameter("face_color", "VelRmaColor", hFace.Receive()))) return nullptr;
  if (FAILED(hShader->AddParameter("pearl_amount", "VelRmaScalar", hAmount.Receive()))) return nullptr;
  if (FAILED(hFace->SetValue(face)) || FAILED(hAmount->SetValue(&amount))) return nullptr;
  return hShader;
}

bool Upgrade(VelRshShaderManager& ioManager, VelIContainer& ioContainer) {
  std::printf("4. A shader of type %s, version 1\n", grownType);
  const VelIRshShader_var hShader = MakeOldShader(ioContainer);
  if (!hShader) return false;
  Print(*hShader);
  std::printf("5. The same shader, upgraded\n");
  if (FAILED(ioManager.UpgradeShader(hShader.Get()))) return false;
  Print(*hShader);
  return true;
}

}  // namespace

/// The dictionaries are those of VEL_DICTIONARY_PATH, the catalog is that of the installation.
int main() {
  std::setvbuf(stdout, nullptr, _IOLBF, 0);
  VelPlatformSession session;
  if (FAILED(session.Start())) return 1;
  VelString switches;
  if (!VelEnvironment::Get("VEL_TRACE", switches) || switches.IsEmpty()) {
    // Below no material there is no appearance to bring up to date, which would be told for each parameter.
    VelTraceService::SetSwitches("VelRshAppearanceUpdater=error");
  }
  {
    VelRshShaderManager& manager = *VelRshShaderManager::GetManager();
    const VelIContainer_var hContainer = VelIContainer::Create();
    if (!ListTypes(manager) || !CreateAndCopy(manager, hContainer) || !Upgrade(manager, *hContainer)) {
      std::printf("   The traces above say why, or those of VEL_TRACE=VelDictionary. See docs/plugins.md.\n");
      return 1;
    }
  }
  std::printf("6. The end of the session: %s\n", session.End() == S_OK ? "done" : "failed");
  return 0;
}
