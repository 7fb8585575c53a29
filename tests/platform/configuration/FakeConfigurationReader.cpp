// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file FakeConfigurationReader.cpp A reader of configuration files that needs no library.
#include "tests/platform/configuration/FakeConfigurationReader.h"

#include <array>
#include <sstream>
#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

#include "platform/configuration/TIEVelIConfigurationReader.h"
#include "platform/objectmodeler/VelDictionary.h"
#include "platform/objectmodeler/VelImplementation.h"

namespace {

int count = 0;

VelString WordOf(const std::string& iWord) { return iWord == "-" ? VelString() : VelString(iWord); }

class Reader final : public VelImplementation {
 public:
  using VelImplementation::VelImplementation;

  static HRESULT ReadConfigurations(std::string_view iText, VelConfigurationContent& oContent,
                                    VelConfigurationFault& oFault) {
    ++count;
    VelConfigurationContent content;
    std::istringstream lines{std::string(iText)};
    for (std::string line; std::getline(lines, line);) {
      if (line == "throw") throw std::runtime_error("as written");
      if (line == "fail") return E_FAIL;
      std::istringstream words(line);
      std::array<std::string, 3> word;
      words >> word[0] >> word[1] >> word[2];
      if (word[0] == "fault") {
        oFault = {static_cast<unsigned>(std::stoul(word[1])), static_cast<unsigned>(std::stoul(word[2])), "as written"};
        return E_FAIL;
      }
      if (word[1] == "<") {
        content.parents.push_back({WordOf(word[0]), WordOf(word[2])});
      } else {
        content.entries.push_back({WordOf(word[0]), WordOf(word[1]), WordOf(word[2])});
      }
    }
    oContent = content;
    return S_OK;
  }

  static HRESULT ReadMessages(std::string_view iText, VelConfigurationContent& oContent,
                              VelConfigurationFault& oFault) {
    return ReadConfigurations(iText, oContent, oFault);
  }
};

VelImplementation* CreateReader(VelComponent& ioComponent) { return new Reader(ioComponent); }

VelBaseUnknown* CreateForwarder(void* iBlock, VelImplementation& iImplementation, VelComponent& ioComponent,
                                bool iOwns) {
  return new (iBlock) TIEVelIConfigurationReader<Reader>(iImplementation, ioComponent, iOwns);
}

constexpr std::array classes{VelModuleClass{"FakeReader", VelTypeOfClass::Implementation, &CreateReader}};
constexpr std::array rows{VelModuleRow{"VelPlatformFiles", "VelIConfigurationReader", VelMechanism::TIE,
                                       VelLifetime::Component, "FakeReader", &CreateForwarder, nullptr}};
constexpr VelModuleTable table{"FakeFiles", "Tests", {}, classes, rows, {}};

}  // namespace

FakeConfigurationReader::FakeConfigurationReader() {
  count = 0;
  EXPECT_EQ(VelDictionary::Declare(table), S_OK);
}

FakeConfigurationReader::~FakeConfigurationReader() { EXPECT_EQ(VelDictionary::Undeclare(table), S_OK); }

int FakeConfigurationReader::Count() { return count; }
