// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTestGridClasses.h The classes of the module VelTestGrid.
#ifndef TESTS_PLATFORM_OBJECTMODELER_MODULES_VELTESTGRIDCLASSES_H
#define TESTS_PLATFORM_OBJECTMODELER_MODULES_VELTESTGRIDCLASSES_H

#include "platform/objectmodeler/VelBoa.h"
#include "platform/objectmodeler/VelImplementation.h"
#include "tests/platform/objectmodeler/modules/VelITestNumber.h"
#include "tests/platform/objectmodeler/modules/VelITestText.h"

/// Lives with its component.
class VelTestGridMain final : public VelImplementation {
 public:
  using VelImplementation::VelImplementation;

  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  HRESULT SetNumber(int iNumber) {
    number_ = iNumber;
    return S_OK;
  }
  HRESULT GetNumber(int& oNumber) {
    oNumber = number_;
    return S_OK;
  }

 private:
  int number_ = 0;
};

/// Lives with its forwarder.
class VelTestGridSpeaker final : public VelImplementation {
 public:
  using VelImplementation::VelImplementation;

  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  HRESULT GetText(VelString& oText) {
    oText = "spoken";
    return S_OK;
  }
};

/// Answers without a forwarder.
class VelTestGridLabel final : public VelBoa<VelITestText> {
 public:
  using VelBoa::VelBoa;

  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  HRESULT GetText(VelString& oText) override {
    oText = "labelled";
    return S_OK;
  }
};

/// Is there for a component only while its number is positive.
class VelTestGridChoice final : public VelImplementation {
 public:
  static VelTestGridChoice* Create(VelComponent& ioComponent) {
    int number = 0;
    const VelITestNumber_var hNumber(&ioComponent);
    return FAILED(hNumber->GetNumber(number)) || number <= 0 ? nullptr : new VelTestGridChoice(ioComponent);
  }

  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  HRESULT GetText(VelString& oText) {
    oText = "chosen";
    return S_OK;
  }

 private:
  using VelImplementation::VelImplementation;
};

#endif  // TESTS_PLATFORM_OBJECTMODELER_MODULES_VELTESTGRIDCLASSES_H
