// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelConfigurationTables.h The configurations of the process and the memory of what was looked up.
#ifndef PLATFORM_CONFIGURATION_VELCONFIGURATIONTABLES_H
#define PLATFORM_CONFIGURATION_VELCONFIGURATIONTABLES_H

#include <cstddef>
#include <cstdint>
#include <optional>
#include <unordered_map>
#include <unordered_set>

#include "platform/base/HResult.h"
#include "platform/base/VelString.h"
#include "platform/configuration/VelConfigurationContent.h"

/// Who a value belongs to.
enum class VelConfigurationOwner : std::uint8_t {
  Process,  ///< Stays until somebody takes it out.
  Session,  ///< Goes at the end of the platform session, and what it covered comes back.
};

/// The tables behind VelRbaConfiguration. Not exported.
class VelConfigurationTables {
 public:
  /// The tables of the process.
  static VelConfigurationTables& Instance();

  /// @return the value that answers, null when none does; until the next change
  const VelString* Find(const VelString& iConfiguration, const VelString& iKey);

  /// @return S_OK; S_FALSE when nothing changed
  HRESULT SetValue(const VelString& iConfiguration, const VelString& iKey, const VelString& iValue);
  HRESULT SetParent(const VelString& iConfiguration, const VelString& iParent);
  HRESULT Remove(const VelString& iConfiguration);
  void Clear();

  /// Enters all that a file says.
  void Enter(const VelConfigurationContent& iContent, VelConfigurationOwner iOwner);

  /// Lets the source of configurations be asked, whose values stand beneath all others.
  void BeginSession();

  /// Takes out what belongs to the session.
  void EndSession();

  /// Has the source asked again.
  void ForgetSources();

  std::uint64_t Generation() const noexcept { return generation_; }

 private:
  /// Answers and absences that are remembered at most; beyond it the memory starts anew, because names come from
  /// documents.
  static constexpr std::size_t memoLimit = 65536;

  /// A value, and what it covers for as long as it belongs to the session.
  struct Cell {
    VelString value;
    VelConfigurationOwner owner = VelConfigurationOwner::Process;
    std::optional<VelString> covered;
  };

  struct Configuration {
    Cell parent;  ///< Empty for none.
    std::unordered_map<VelString, Cell> values;
  };

  /// What a search has found.
  struct Answer {
    const VelString* value = nullptr;  ///< Null for nothing.
    bool isLasting = true;             ///< Whether it is the answer until the next change, and not one by language.
  };

  using Memo = std::unordered_map<VelString, std::unordered_map<VelString, const VelString*>>;

  static bool Write(Cell& ioCell, bool iIsNew, const VelString& iValue, VelConfigurationOwner iOwner);
  static bool EndSession(Configuration& ioConfiguration);

  bool WriteValue(const VelString& iConfiguration, const VelString& iKey, const VelString& iValue,
                  VelConfigurationOwner iOwner);
  bool WriteParent(const VelString& iConfiguration, const VelString& iParent, VelConfigurationOwner iOwner);
  Answer Search(const VelString& iConfiguration, const VelString& iKey);
  Answer FindIn(const VelString& iConfiguration, const VelString& iKey);
  const VelString* ParentOf(const VelString& iConfiguration) const;
  void ReportCircle(const VelString& iConfiguration);
  void OnChange();
  void ForgetAnswers();

  std::unordered_map<VelString, Configuration> configurations_;
  std::unordered_set<VelString> circles_;  ///< Whose circle was reported since the last change.
  VelString message_;                      ///< The last answer that was one by language.
  Memo memo_;
  std::size_t memoSize_ = 0;
  std::uint64_t generation_ = 1;
};

#endif  // PLATFORM_CONFIGURATION_VELCONFIGURATIONTABLES_H
