// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file main.cpp A host program that asks a component for interfaces which a library, opened on demand, answers.
#include <cstdio>
#include <filesystem>
#include <string>

#include "examples/first_component/interfaces/VelIExColor.h"
#include "examples/first_component/interfaces/VelIExReport.h"
#include "platform/base/VelEnvironment.h"
#include "platform/objectmodeler/VelBaseUnknown_WR.h"
#include "platform/objectmodeler/VelComponent.h"
#include "platform/objectmodeler/VelDictionary.h"
#include "platform/objectmodeler/VelMetaClass.h"
#include "platform/objectmodeler/VelModule.h"
#include "platform/objectmodeler/VelObject.h"
#include "platform/session/VelPlatformSession.h"
#include "platform/trace/VelTraceService.h"

namespace {

const char* NameOf(HRESULT iCode) {
  switch (iCode) {
    case S_OK:
      return "S_OK";
    case S_FALSE:
      return "S_FALSE";
    case E_NOINTERFACE:
      return "E_NOINTERFACE";
    case E_FAIL:
      return "E_FAIL";
    case E_UNEXPECTED:
      return "E_UNEXPECTED";
    case E_INVALIDARG:
      return "E_INVALIDARG";
  }
  return "another code";
}

const char* LibraryState() { return VelModuleRegistration::Find("VelExSwatch") != nullptr ? "open" : "not open"; }

/// The dictionaries of the build or of an installation lie beside the program's folder.
std::string FindDictionaries(const char* iProgram) {
  const auto root = std::filesystem::absolute(iProgram).parent_path().parent_path();
  return (root / "lib" / "dictionaries").string();
}

void ShowDictionary(VelComponent& iSwatch) {
  std::printf("2. A component of late type \"VelExSwatch\", and what the dictionary says of it\n");
  std::printf("   VelIExColor: framework \"%s\", offered: %s, library %s\n",
              std::string(VelQueryFramework("VelExSwatch", "VelIExColor")).c_str(),
              iSwatch.OffersInterface(IID_VelIExColor) ? "yes" : "no", LibraryState());
}

/// @return false when something is not answered; the trace then says why
bool ShowQueries(VelComponent& ioSwatch) {
  std::printf("3. The first query opens the library\n");
  const VelIExColor_var hColor(&ioSwatch);
  std::printf("   query for VelIExColor: %s, library %s\n", hColor ? "answered" : "not answered", LibraryState());
  if (!hColor) return false;
  std::printf("4. Calls through the forwarder\n");
  std::printf("   SetColor (0.9, 0.4, 0.1): %s\n", NameOf(hColor->SetColor({0.9F, 0.4F, 0.1F})));
  std::printf("   SetColor (0.9, 0.4, 0.1): %s\n", NameOf(hColor->SetColor({0.9F, 0.4F, 0.1F})));
  std::printf("   SetColor (7.0, 0.0, 0.0): %s\n", NameOf(hColor->SetColor({7.0F, 0.0F, 0.0F})));
  std::printf("5. The other extension, asked for by name\n");
  VelBaseUnknown_var hAnswer;
  const HRESULT byName = hColor->QueryInterfaceByName("VelIExReport", hAnswer.Receive());
  const VelIExReport_var hReport(hAnswer);
  std::printf("   query for \"VelIExReport\": %s\n", NameOf(byName));
  if (!hReport) return false;
  VelString text;
  const HRESULT described = hReport->Describe(text);
  std::printf("   Describe: %s: %s\n", NameOf(described), text.CString());
  std::printf("   the same component behind both: %s\n", hReport->IsEqual(hColor.Get()) ? "yes" : "no");
  std::printf("   query for \"VelINothing\": %s\n",
              NameOf(hColor->QueryInterfaceByName("VelINothing", hAnswer.Receive())));
  return true;
}

void ShowEnd(VelBaseUnknown_var& ioSwatch) {
  std::printf("6. The end of the component\n");
  VelIExColor_var hColor(ioSwatch);
  const VelBaseUnknown_WR weak(ioSwatch.Get());
  if (VelObject* swatch = VelObject::From(ioSwatch.Get())) swatch->EndLife();
  VelExRgb color{};
  std::printf("   GetColor through a forwarder that is still held: %s\n", NameOf(hColor->GetColor(color)));
  std::printf("   the weak reference: %s\n", weak.Get() == nullptr ? "empty" : "alive");
  ioSwatch = nullptr;
}

}  // namespace

int main(int argc, char** argv) {
  std::setvbuf(stdout, nullptr, _IOLBF, 0);
  VelPlatformSession session;
  VelPlatformOptions options;
  options.dictionaries.push_back(argc > 1 ? argv[1] : FindDictionaries(argv[0]));
  std::printf(
      "1. A platform session with the dictionaries of %s\n",
      std::filesystem::path(options.dictionaries.front()).lexically_relative(std::filesystem::current_path()).c_str());
  if (FAILED(session.Start(options))) return 1;
  // What the environment switches on (VEL_TRACE) is kept; without it the demonstration shows the example's channels.
  VelString switches;
  if (!VelEnvironment::Get("VEL_TRACE", switches) || switches.IsEmpty()) {
    VelTraceService::SetSwitches("VelDictionary=info, VelExSwatch*=9");
  }

  VelBaseUnknown_var hSwatch = VelObject::Create("VelExSwatch", "VelExSwatchObject");
  ShowDictionary(*hSwatch->GetComponent());
  if (!ShowQueries(*hSwatch->GetComponent())) {
    std::printf("   The lines of the channel \"VelDictionary\" say why. See docs/dictionary.md.\n");
    return 1;
  }
  ShowEnd(hSwatch);
  std::printf("7. The end of the session: %s\n", NameOf(session.End()));
  return 0;
}
