// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file FeatureModelerTest.h The fixture of the feature modeler's tests: a container that knows the shipped catalog.
#ifndef TESTS_PLATFORM_FEATUREMODELER_FEATUREMODELERTEST_H
#define TESTS_PLATFORM_FEATUREMODELER_FEATUREMODELERTEST_H

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/featuremodeler/FindStartUp.h"
#include "platform/featuremodeler/LifeCycleObject.h"
#include "platform/featuremodeler/VelCatalog.h"
#include "platform/featuremodeler/VelICatalogManager.h"
#include "platform/featuremodeler/VelISpecAttrAccess.h"
#include "platform/featuremodeler/VelISpecObject.h"
#include "platform/featuremodeler/VelOsmSUHandler.h"

class FeatureModelerTest : public ::testing::Test {
 protected:
  /// @return the folder of the shipped catalogs
  static const char* CatalogFolder();

  void SetUp() override {
    VelCatalog::SetFolders({CatalogFolder()});
    hContainer_ = VelIContainer::Create();
    ASSERT_TRUE(hContainer_);
    ASSERT_EQ(VelICatalogManager_var(hContainer_)->LoadCatalog("VelRmaCatalog.feat"), S_OK);
  }
  void TearDown() override {
    hContainer_ = nullptr;
    VelCatalog::SetFolders({});
  }

  VelISpecObject_var Make(const char* iType, const char* iName = "") { return MakeIn(hContainer_, iType, iName); }

  static VelISpecObject_var MakeIn(const VelIContainer_var& iContainer, const char* iType, const char* iName = "") {
    VelBaseUnknown_var hFeature;
    const VelOsmSUHandler handler(iType, "", "VelRmaCatalog.feat");
    EXPECT_EQ(handler.Instanciate(*iContainer, iName, VelISpecObject::InterfaceId(), hFeature.Receive()), S_OK)
        << iType;
    return VelISpecObject_var(hFeature);
  }

  static const VelISpecAttrKey* Key(const char* iName, VelSpecAttrKind iKind) {
    return &VelISpecAttrKey::Of(iName, iKind);
  }
  static VelISpecAttrAccess_var Access(const VelISpecObject_var& iFeature) { return VelISpecAttrAccess_var(iFeature); }

  static std::string NameOf(VelBaseUnknown* iObject) {
    const VelISpecObject_var hObject(iObject);
    VelUnicodeString name;
    return hObject && SUCCEEDED(hObject->GetName(name)) ? std::string(name.View()) : "?";
  }

  /// The names of the features of a list, which is released.
  static std::vector<std::string> Names(const VelListPtrVelBaseUnknown& iList) {
    std::vector<std::string> names;
    for (VelBaseUnknown* element : iList) {
      names.push_back(NameOf(element));
      element->Release();
    }
    return names;
  }

  const VelISpecAttrKey* const parameters_ = Key("Parameters", VelSpecAttrKind::Components);
  const VelISpecAttrKey* const nodes_ = Key("Nodes", VelSpecAttrKind::Components);
  const VelISpecAttrKey* const node_ = Key("Node", VelSpecAttrKind::Reference);
  const VelISpecAttrKey* const type_ = Key("Type", VelSpecAttrKind::Text);
  VelIContainer_var hContainer_;
};

#endif  // TESTS_PLATFORM_FEATUREMODELER_FEATUREMODELERTEST_H
