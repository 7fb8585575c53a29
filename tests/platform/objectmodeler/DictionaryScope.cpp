// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file DictionaryScope.cpp Keeps the tests of the dictionary apart from each other.
#include "tests/platform/objectmodeler/DictionaryScope.h"

#include <cstdlib>
#include <filesystem>
#include <utility>

#include "platform/objectmodeler/VelDictionary.h"
#include "platform/objectmodeler/VelObject.h"
#include "platform/trace/VelTraceService.h"

DictionaryScope::DictionaryScope() : path_(std::filesystem::canonical(folder_.Path()).string()), folders_{path_} {
  VelTraceService::Reset();
  VelTraceService::RemoveSink(VelTraceService::StandardErrorSink());
}

DictionaryScope::~DictionaryScope() {
  for (const std::string& folder : folders_) EXPECT_TRUE(SUCCEEDED(VelDictionary::Unload(folder)));
  VelDictionary::SetLibraryFolders({});
  VelTraceService::Reset();
}

std::string DictionaryScope::Path(std::string_view iName) const {
  return iName.empty() ? path_ : path_ + '/' + std::string(iName);
}

void DictionaryScope::MakeFolder(std::string_view iName) {
  std::filesystem::create_directory(Path(iName));
  folders_.push_back(Path(iName));
}

HRESULT DictionaryScope::Load(std::string_view iName, std::string_view iText) {
  return VelDictionary::LoadFile(Write(iName, iText));
}

HRESULT DictionaryScope::LoadModule(std::string_view iName, std::string_view iModule, std::string_view iLines,
                                    std::string_view iLibrary) {
  return Load(iName, ModuleText(iModule, iLines, iLibrary));
}

HRESULT DictionaryScope::Unload(std::string_view iName) const { return VelDictionary::Unload(Path(iName)); }

std::vector<std::string> DictionaryScope::TakeWarnings() {
  std::vector<std::string> texts;
  for (const VelDiagnosticEntry& entry : diagnostics_.Entries()) {
    if (entry.kind == VelTraceKind::Warning) texts.emplace_back(entry.text);
  }
  diagnostics_.Clear();
  return texts;
}

std::vector<std::string> DictionaryScope::TakeErrors() {
  std::vector<std::string> texts;
  for (const VelDiagnosticEntry& entry : diagnostics_.Entries()) {
    EXPECT_EQ(entry.channel, "VelDictionary");
    EXPECT_EQ(entry.kind, VelTraceKind::Error);
    EXPECT_EQ(entry.source, "platform/objectmodeler/VelDictionary");
    std::string text = entry.text;
    const std::string prefix = path_ + '/';
    for (auto at = text.find(prefix); at != std::string::npos; at = text.find(prefix)) text.erase(at, prefix.size());
    texts.push_back(std::move(text));
  }
  diagnostics_.Clear();
  return texts;
}

std::string ModuleText(std::string_view iModule, std::string_view iLines, std::string_view iLibrary) {
  const std::string module(iModule);
  return "velrsh-dictionary 1\nmodule " + module + "\nframework FrameworkOf" + module + "\nlibrary " +
         std::string(iLibrary) + '\n' + std::string(iLines);
}

HRESULT Ask(std::string_view iLateType, const VelInterfaceId& iInterface) {
  const VelBaseUnknown_var hObject = VelObject::Create(iLateType, "VelTestDictionaryObject");
  // What no query may leave behind when it fails.
  VelBaseUnknown* answer = hObject.Get();
  const HRESULT code = hObject->QueryInterface(iInterface, &answer);
  EXPECT_EQ(answer == nullptr, FAILED(code));
  if (answer != nullptr) answer->Release();
  return code;
}

std::string AnsweringClass(std::string_view iLateType, const VelInterfaceId& iInterface) {
  const VelBaseUnknown_var hObject = VelObject::Create(iLateType, "VelTestDictionaryObject");
  VelBaseUnknown_var hAnswer;
  if (FAILED(hObject->QueryInterface(iInterface, hAnswer.Receive()))) return {};
  return hAnswer->GetImpl()->ClassName();
}

bool Offers(std::string_view iLateType, const VelInterfaceId& iInterface) {
  const VelBaseUnknown_var hObject = VelObject::Create(iLateType, "VelTestDictionaryObject");
  return hObject->GetComponent()->OffersInterface(iInterface);
}

std::string BuiltLibrary(std::string_view iModule) {
  return std::string(VEL_TEST_LIBRARY_FOLDER) + "/lib" + std::string(iModule) + ".so";
}

std::string BuiltDictionary(std::string_view iModule) {
  return std::string(VEL_TEST_LIBRARY_FOLDER) + "/dictionaries/" + std::string(iModule) + ".dictionary";
}

// The macro is most of what the function is.
void RunAlone(void (*iBody)()) {  // NOLINT(readability-function-size)
  EXPECT_EXIT(
      {
        iBody();
        std::exit(::testing::Test::HasFailure() ? 1 : 0);
      },
      ::testing::ExitedWithCode(0), "");
}
