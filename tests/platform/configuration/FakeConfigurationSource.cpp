// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file FakeConfigurationSource.cpp A source of configurations that says what a test tells it.
#include "tests/platform/configuration/FakeConfigurationSource.h"

#include <array>

#include <gtest/gtest.h>

#include "platform/configuration/TIEVelIConfigurationSource.h"
#include "platform/objectmodeler/VelDictionary.h"
#include "platform/objectmodeler/VelImplementation.h"

namespace {

FakeConfigurationSource* current = nullptr;

class Source final : public VelImplementation {
 public:
  explicit Source(VelComponent& ioComponent) : VelImplementation(ioComponent) { ++current->live; }
  ~Source() override { --current->live; }

  static HRESULT AddPath(const std::string& iPath) {
    current->calls.push_back("add " + iPath);
    return current->addCode;
  }
  static HRESULT ListConfigurations(std::vector<VelString>& oNames) {
    current->calls.emplace_back("list");
    oNames = current->alsoListed;
    for (const auto& [name, content] : current->configurations) oNames.push_back(name);
    return current->listCode;
  }
  static HRESULT ReadConfiguration(const VelString& iName, VelSourcedConfiguration& oContent) {
    current->calls.push_back(std::string("read ") + iName.CString());
    if (current->onRead) current->onRead();
    const auto found = current->configurations.find(iName);
    if (found == current->configurations.end()) return E_FAIL;
    oContent = found->second;
    return S_OK;
  }
};

VelImplementation* CreateSource(VelComponent& ioComponent) { return new Source(ioComponent); }

VelBaseUnknown* CreateForwarder(void* iBlock, VelImplementation& iImplementation, VelComponent& ioComponent,
                                bool iOwns) {
  return new (iBlock) TIEVelIConfigurationSource<Source>(iImplementation, ioComponent, iOwns);
}

constexpr std::array classes{VelModuleClass{"FakeSource", VelTypeOfClass::Implementation, &CreateSource}};
constexpr std::array rows{VelModuleRow{"VelRbaConfiguration", "VelIConfigurationSource", VelMechanism::TIE,
                                       VelLifetime::Component, "FakeSource", &CreateForwarder, nullptr}};
constexpr VelModuleTable table{"FakeConfigurations", "Tests", {}, classes, rows, {}};

}  // namespace

FakeConfigurationSource::FakeConfigurationSource() {
  current = this;
  EXPECT_EQ(VelDictionary::Declare(table), S_OK);
}

FakeConfigurationSource::~FakeConfigurationSource() {
  EXPECT_EQ(VelDictionary::Undeclare(table), S_OK);
  EXPECT_EQ(live, 0);
  current = nullptr;
}
