// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIdentity_test.cpp Things of which the process has one each, seen from the host and from two plug-ins.
#include "platform/objectmodeler/VelDictionary.h"
#include "platform/objectmodeler/VelNullHandleError.h"
#include "platform/objectmodeler/VelObject.h"
#include "tests/platform/objectmodeler/DictionaryScope.h"
#include "tests/platform/objectmodeler/modules/VelITestIdentity.h"
#include "tests/platform/objectmodeler/modules/VelTestShared.h"
#include "tests/support/VelFailureRecorder.h"

namespace {

/// One object of each of two plug-ins.
class VelIdentityTest : public DictionaryTest {
 protected:
  void SetUp() override {
    for (const char* plugin : {"VelTestPluginA", "VelTestPluginB"}) {
      ASSERT_EQ(VelDictionary::LoadFile(BuiltDictionary(plugin)), S_OK);
    }
    hA_ = VelITestIdentity_var(VelObject::Create("VelTestPlugA", "VelTestDictionaryObject"));
    hB_ = VelITestIdentity_var(VelObject::Create("VelTestPlugB", "VelTestDictionaryObject"));
    ASSERT_TRUE(hA_);
    ASSERT_TRUE(hB_);
    ASSERT_STREQ(hA_->GetImpl()->ClassName(), "VelTestAnswerA");
    ASSERT_STREQ(hB_->GetImpl()->ClassName(), "VelTestAnswerB");
  }
  void TearDown() override {
    for (const char* plugin : {"VelTestPluginA", "VelTestPluginB"}) {
      EXPECT_EQ(VelDictionary::Unload(BuiltDictionary(plugin)), S_OK);
    }
  }

  VelITestIdentity_var hA_;
  VelITestIdentity_var hB_;
};

TEST_F(VelIdentityTest, IdentifiersEventNamesAndMetaClasses_HaveOneAddressInTheWholeProcess) {
  const VelTestAddresses own{&IID_VelITestIdentity, &IID_VelBaseUnknown, VelTestShared::EventName(),
                             &VelTestShared::MetaObject(), &IID_VelITestIdentity.MetaObject()};
  const VelTestAddresses fromA = hA_->Addresses();
  const VelTestAddresses fromB = hB_->Addresses();
  EXPECT_EQ(fromA.identifier, own.identifier);
  EXPECT_EQ(fromA.rootIdentifier, own.rootIdentifier);
  EXPECT_EQ(fromA.eventName, own.eventName);
  EXPECT_EQ(fromA.metaClass, own.metaClass);
  EXPECT_EQ(fromA.interfaceMetaClass, own.interfaceMetaClass);
  EXPECT_TRUE(fromB == fromA);
  EXPECT_NE(own.identifier, nullptr);
  EXPECT_NE(own.eventName, nullptr);
}

TEST_F(VelIdentityTest, IdentifierDefinedASecondTimeInAPlugin_IsTheSameIdentifier) {
  for (const VelITestIdentity_var& hPlugin : {hA_, hB_}) {
    const VelInterfaceId* second = hPlugin->SecondIdentifier();
    ASSERT_NE(second, nullptr);
    EXPECT_NE(second, &IID_VelITestIdentity) << "the plug-in does define its own";
    EXPECT_EQ(second->Index(), IID_VelITestIdentity.Index());
    EXPECT_TRUE(*second == IID_VelITestIdentity);
    EXPECT_EQ(&second->MetaObject(), &IID_VelITestIdentity.MetaObject());
    VelBaseUnknown_var hAnswer;
    EXPECT_EQ(hPlugin->QueryInterface(*second, hAnswer.Receive()), S_OK);
    EXPECT_EQ(hAnswer->GetImpl(), hPlugin->GetImpl());
  }
  EXPECT_NE(hA_->SecondIdentifier(), hB_->SecondIdentifier());
}

TEST_F(VelIdentityTest, NullHandleErrorInAPlugin_EndsAtTheForwarder_AsACheckAndEFail) {
  struct Case {
    const VelITestIdentity_var& hPlugin;
    const char* className;
  };
  const Case cases[] = {{hA_, "VelTestAnswerA"}, {hB_, "VelTestAnswerB"}};
  for (const Case& each : cases) {
    SCOPED_TRACE(each.className);
    const RecordingFailureObserver observer;
    EXPECT_EQ(each.hPlugin->UseEmptyHandle(), E_FAIL);
    ASSERT_EQ(observer.Messages(), Texts{"An operation of an interface threw an exception"});
    EXPECT_EQ(observer.Failures().front().kind, VelFailureKind::Check);
    EXPECT_EQ(observer.Failures().front().expression, "VelITestIdentity");
    EXPECT_EQ(observer.Failures().front().detail,
              std::string(each.className) + ": An empty handle of VelITestIdentity was used");
  }
}

TEST_F(VelIdentityTest, NullHandleErrorThrownInAPlugin_IsCaughtByItsTypeInTheHost) {
  for (const VelITestIdentity_var& hPlugin : {hA_, hB_}) {
    const VelTestThrower thrower = hPlugin->Thrower();
    ASSERT_NE(thrower, nullptr);
    std::string interfaceName;
    try {
      thrower();
    } catch (const VelNullHandleError& error) {
      interfaceName = error.Interface();
    } catch (...) {
      ADD_FAILURE() << "caught as something else";
    }
    EXPECT_EQ(interfaceName, "VelITestIdentity");
  }
}

TEST_F(VelIdentityTest, PluginsOwnObject_ClosedByTheHost_AnswersEFailAndZeros) {
  static_cast<VelObject*>(hA_->GetComponent())->EndLife();
  EXPECT_EQ(hA_->UseEmptyHandle(), E_FAIL);
  EXPECT_TRUE(hA_->Addresses() == VelTestAddresses{});
  EXPECT_EQ(hA_->SecondIdentifier(), nullptr);
  EXPECT_EQ(hA_->Thrower(), nullptr);
}

}  // namespace
