// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelDictionaryReader.cpp The line-by-line reader of dictionary files.
#include "platform/objectmodeler/VelDictionaryReader.h"

#include <algorithm>
#include <array>
#include <optional>
#include <unordered_map>
#include <utility>

#include "platform/base/VelLineReader.h"

namespace {

constexpr std::string_view header = "velrsh-dictionary";
constexpr std::string_view version = "1";
constexpr std::size_t rowLimit = 16384;
constexpr std::size_t statementLimit = 32768;

/// Reads one file; each Take function handles one keyword and says what is wrong with its line, or nothing.
class Reading {
 public:
  explicit Reading(std::vector<VelDictionaryModule>& oModules) : modules_(oModules) {}

  std::optional<std::string> TakeLine(const VelWords& iWords, unsigned iLine) {
    line_ = iLine;
    if (!headerSeen_) return TakeHeader(iWords);
    for (const Keyword& keyword : keywords) {
      if (keyword.word == iWords.front()) return TakeStatement(keyword, iWords);
    }
    return "unknown word '" + std::string(iWords.front()) +
           "', expected module, framework, library, type, class, bind or extend";
  }

  std::optional<std::string> Finish() const {
    if (!headerSeen_) return "the file is empty, expected the line 'velrsh-dictionary 1'";
    if (modules_.empty()) return "the file declares no module, expected a 'module' line";
    return FindIncomplete(modules_.back());
  }

 private:
  struct Keyword {
    std::string_view word;
    std::string_view operands;  ///< As an error message lists them.
    std::size_t operandCount;
    std::optional<std::string> (Reading::*take)(const VelWords&);
  };
  static const std::array<Keyword, 7> keywords;

  /// What later lines have to agree with.
  struct ClassFacts {
    VelTypeOfClass kind;
    std::optional<VelLifetime> lifetime;  ///< That of its rows, which all have the same.
  };

  std::optional<std::string> TakeHeader(const VelWords& iWords) {
    if (iWords.size() != 2 || iWords[0] != header)
      return "expected the line 'velrsh-dictionary 1' before anything else";
    if (iWords[1] != version) {
      return "dictionary version '" + std::string(iWords[1]) + "' is unknown, expected '" + std::string(version) + "'";
    }
    headerSeen_ = true;
    return std::nullopt;
  }

  std::optional<std::string> TakeStatement(const Keyword& iKeyword, const VelWords& iWords) {
    if (iWords.size() != iKeyword.operandCount + 1) {
      return "'" + std::string(iKeyword.word) + "' takes " + std::string(iKeyword.operands) + ", found " +
             std::to_string(iWords.size() - 1) + " words";
    }
    for (std::size_t i = 1; i < iWords.size() && iKeyword.word != "library"; ++i) {
      if (!VelIsName(iWords[i])) return "'" + std::string(iWords[i]) + "' is no name, expected letters, digits and '_'";
    }
    if (modules_.empty() && iKeyword.word != "module") return "expected a 'module' line before this one";
    if (++statementCount_ > statementLimit) {
      return "a dictionary holds at most " + std::to_string(statementLimit) + " statements";
    }
    return (this->*iKeyword.take)(iWords);
  }

  static std::optional<std::string> FindIncomplete(const VelDictionaryModule& iModule) {
    if (iModule.framework.empty()) return "the module '" + iModule.name + "' names no framework";
    if (iModule.library.empty()) return "the module '" + iModule.name + "' names no library";
    return std::nullopt;
  }

  std::optional<std::string> TakeModule(const VelWords& iWords) {
    if (!modules_.empty()) {
      if (auto fault = FindIncomplete(modules_.back())) return fault;
    }
    for (const VelDictionaryModule& module : modules_) {
      if (module.name == iWords[1]) {
        return "the module '" + module.name + "' stands already at line " + std::to_string(module.line);
      }
    }
    modules_.push_back({std::string(iWords[1]), {}, {}, line_, {}, {}, {}});
    classes_.clear();
    return std::nullopt;
  }

  std::optional<std::string> TakeOnce(std::string& oField, const VelWords& iWords) {
    if (!oField.empty()) return "'" + std::string(iWords[0]) + "' stands twice for the module '" + Module().name + "'";
    oField = iWords[1];
    return std::nullopt;
  }
  std::optional<std::string> TakeFramework(const VelWords& iWords) { return TakeOnce(Module().framework, iWords); }
  std::optional<std::string> TakeLibrary(const VelWords& iWords) { return TakeOnce(Module().library, iWords); }

  std::optional<std::string> TakeType(const VelWords& iWords) {
    Module().types.push_back({std::string(iWords[1]), std::string(iWords[2]), line_});
    return std::nullopt;
  }

  std::optional<std::string> TakeClass(const VelWords& iWords) {
    constexpr std::array<std::pair<std::string_view, VelTypeOfClass>, 3> kinds{
        {{"Implementation", VelTypeOfClass::Implementation},
         {"Extension", VelTypeOfClass::Extension},
         {"DelegatingExtension", VelTypeOfClass::DelegatingExtension}}};
    if (FindClass(iWords[1]) != nullptr) return "the class '" + std::string(iWords[1]) + "' stands twice";
    for (const auto& [word, kind] : kinds) {
      if (word != iWords[2]) continue;
      Module().classes.push_back({std::string(iWords[1]), kind, line_});
      classes_.emplace(iWords[1], ClassFacts{kind, std::nullopt});
      return std::nullopt;
    }
    return "unknown kind '" + std::string(iWords[2]) + "', expected Implementation, Extension or DelegatingExtension";
  }

  std::optional<std::string> TakeBind(const VelWords& iWords) {
    ClassFacts* owner = FindClass(iWords[5]);
    if (owner == nullptr) return "the class '" + std::string(iWords[5]) + "' has no 'class' line before this one";
    const bool isTie = iWords[3] == "TIE";
    if (!isTie && iWords[3] != "BOA") return "unknown mechanism '" + std::string(iWords[3]) + "', expected TIE or BOA";
    const bool livesAlong = iWords[4] == "Component";
    if (!livesAlong && iWords[4] != "Reference") {
      return "unknown lifetime '" + std::string(iWords[4]) + "', expected Component or Reference";
    }
    if (isTie == (owner->kind == VelTypeOfClass::DelegatingExtension)) {
      return "a DelegatingExtension answers by BOA and every other class by TIE";
    }
    if (!isTie && livesAlong) return "a BOA row lives by Reference, found Component";
    const VelLifetime lifetime = livesAlong ? VelLifetime::Component : VelLifetime::Reference;
    if (owner->lifetime.value_or(lifetime) != lifetime) {
      return "the class '" + std::string(iWords[5]) + "' has the other lifetime in a row before this one";
    }
    owner->lifetime = lifetime;
    return AddRow({std::string(iWords[1]), std::string(iWords[2]), isTie ? VelMechanism::TIE : VelMechanism::BOA,
                   lifetime, std::string(iWords[5]), line_});
  }

  std::optional<std::string> TakeExtend(const VelWords& iWords) {
    std::vector<VelDictionaryRow> copies;
    for (const VelDictionaryRow& row : Module().rows) {
      if (row.className != iWords[2]) continue;
      if (copies.empty() || row.lateType == copies.front().lateType) copies.push_back(row);
    }
    if (copies.empty()) return "the class '" + std::string(iWords[2]) + "' has no 'bind' line before this one";
    for (VelDictionaryRow& copy : copies) {
      copy.lateType = iWords[1];
      copy.line = line_;
      if (auto fault = AddRow(std::move(copy))) return fault;
    }
    return std::nullopt;
  }

  std::optional<std::string> AddRow(VelDictionaryRow iRow) {
    if (boundAt_.size() >= rowLimit) return "a dictionary holds at most " + std::to_string(rowLimit) + " rows";
    const auto [place, isNew] = boundAt_.emplace(iRow.lateType + ' ' + iRow.interfaceName, line_);
    if (!isNew) {
      return "'" + iRow.interfaceName + "' is bound to '" + iRow.lateType + "' already at line " +
             std::to_string(place->second);
    }
    Module().rows.push_back(std::move(iRow));
    return std::nullopt;
  }

  VelDictionaryModule& Module() { return modules_.back(); }

  ClassFacts* FindClass(std::string_view iName) {
    const auto known = classes_.find(std::string(iName));
    return known != classes_.end() ? &known->second : nullptr;
  }

  std::vector<VelDictionaryModule>& modules_;
  std::unordered_map<std::string, ClassFacts> classes_;  ///< Those of the module that is being read.
  std::unordered_map<std::string, unsigned> boundAt_;    ///< The line of each late type and interface.
  unsigned line_ = 0;
  std::size_t statementCount_ = 0;
  bool headerSeen_ = false;
};

const std::array<Reading::Keyword, 7> Reading::keywords{
    {{"module", "a name", 1, &Reading::TakeModule},
     {"framework", "a name", 1, &Reading::TakeFramework},
     {"library", "a file", 1, &Reading::TakeLibrary},
     {"type", "a late type and its base", 2, &Reading::TakeType},
     {"class", "a name and a kind", 2, &Reading::TakeClass},
     {"bind", "a late type, an interface, a mechanism, a lifetime and a class", 5, &Reading::TakeBind},
     {"extend", "a late type and a class", 2, &Reading::TakeExtend}}};

}  // namespace

bool VelDictionaryReader::Read(std::string_view iText, std::vector<VelDictionaryModule>& oModules,
                               VelDictionaryFault& oFault) {
  oModules.clear();
  Reading reading(oModules);
  VelLineReader lines(iText);
  while (lines.Next()) {
    if (auto fault = reading.TakeLine(lines.Words(), lines.Line())) {
      oFault = {lines.Line(), *std::move(fault)};
      return false;
    }
  }
  if (auto fault = reading.Finish()) {
    oFault = {std::max(lines.Line(), 1U), *std::move(fault)};
    return false;
  }
  return true;
}
