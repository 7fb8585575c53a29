// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelLateType.h A late type: the rows that bind classes to it, and the memory of the answers given for it.
#ifndef PLATFORM_OBJECTMODELER_VELLATETYPE_H
#define PLATFORM_OBJECTMODELER_VELLATETYPE_H

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/objectmodeler/VelInterfaceId.h"
#include "platform/objectmodeler/VelModule.h"

class VelFeatureLayout;
struct VelDictionarySource;
class VelLateType;

/// A class as the dictionary knows it, by name; one per name and process.
struct VelClassRecord {
  std::string name;
};

/// One row of the dictionary.
struct VelBinding {
  /// Whether the creation functions are at hand.
  enum class Status : std::uint8_t { Closed, Open, Failed };

  VelDictionarySource* source;  ///< The module that declares the row.
  VelLateType* lateType;        ///< The late type on which it stands.
  unsigned line;                ///< Its line in the dictionary file, 0 for a linked module.
  std::uint32_t interfaceIndex;
  VelMechanism mechanism;
  VelLifetime lifetime;
  VelTypeOfClass kind;
  const VelClassRecord* record;
  Status status = Status::Closed;  ///< Failed is final until the dictionary is loaded anew.
  VelCreateImplementation createImplementation = nullptr;
  VelCreateTie createTie = nullptr;
  VelCreateBoa createBoa = nullptr;
};

/// A late type, interned by name and kept to the end of the process. Not exported: components name it, the dictionary
/// fills it.
class VelLateType {
 public:
  /// @return the late type of a name, made on first use
  static VelLateType& Of(std::string_view iName);

  /// @return the late type of a name, null when nobody used the name yet
  static VelLateType* Find(std::string_view iName) noexcept;

  /// @return the root that every late type derives from in the end
  static VelLateType& Root();

  /// @return the late type of the nearest base class of the meta-class of a name, the root when there is none
  static VelLateType& BaseByClass(std::string_view iName) noexcept;

  /// Makes every late type forget its answers; called once after rows, bases or meta-classes have changed.
  static void ForgetAnswers() noexcept;

  const std::string& Name() const noexcept { return name_; }

  /// @return the declared base, else the late type of the base of the meta-class of the same name, else the root; null
  ///         for the root itself
  VelLateType* Base() const noexcept;

  /// @return the declared base alone, null where none is declared
  VelLateType* DeclaredBase() const noexcept { return base_; }

  /// Declares the base; null takes the declaration back.
  void DeclareBase(VelLateType* iBase, const VelDictionarySource* iSource) noexcept;

  const VelDictionarySource* BaseSource() const noexcept { return baseSource_; }

  /// The rows on this very type, in the order of declaration; owned by their sources.
  const std::vector<VelBinding*>& Rows() const noexcept { return rows_; }
  void Add(VelBinding& ioRow);
  void RemoveRowsOf(const VelDictionarySource& iSource) noexcept;

  /// The compiled start-up of a late type whose components are features; null for any other. Set once by the catalogs.
  const VelFeatureLayout* Layout() const noexcept { return layout_; }
  void SetLayout(const VelFeatureLayout& iLayout) noexcept { layout_ = &iLayout; }

  /// @return the row that answers an interface, this type's own before its bases'; null when there is none. The row's
  ///         library may not be open.
  VelBinding* Declared(std::uint32_t iInterfaceIndex) const noexcept;

  /// @return the row that answers an interface, its creation functions at hand; null when there is none or its library
  ///         or symbols are missing. Remembered until the dictionary changes.
  VelBinding* Answer(std::uint32_t iInterfaceIndex) {
    if (iInterfaceIndex < answerCount_) {
      VelBinding* known = answers_[iInterfaceIndex];
      if (known != &unanswered) return known;
    }
    return FindAnswer(iInterfaceIndex);
  }

  /// @return the first row whose class is a main implementation, this type's own before its bases'; null when there is
  /// none
  VelBinding* MainImplementation();

 private:
  explicit VelLateType(std::string_view iName) : name_(iName) {}

  /// A dictionary cannot declare a cycle, but a meta-class that is made later can close one with declared bases.
  bool LeadsBackToThis(const VelLateType& iBase) const noexcept;

  VelBinding* FindAnswer(std::uint32_t iInterfaceIndex);

  void TraceAbsence(std::uint32_t iInterfaceIndex) const;

  static VelBinding unanswered;
  static std::uint64_t forgettings;  ///< How often everything was forgotten.

  VelBinding** answers_ = nullptr;  ///< By interface number; points into answerStorage_.
  std::size_t answerCount_ = 0;     ///< 0 while everything is forgotten.
  std::vector<VelBinding*> answerStorage_;
  std::vector<VelBinding*> rows_;
  std::string name_;
  VelLateType* base_ = nullptr;
  const VelDictionarySource* baseSource_ = nullptr;
  const VelFeatureLayout* layout_ = nullptr;
};

#endif  // PLATFORM_OBJECTMODELER_VELLATETYPE_H
