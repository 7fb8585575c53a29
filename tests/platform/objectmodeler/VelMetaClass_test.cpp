// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelMetaClass_test.cpp Meta-classes, their registry, and the interfaces that the dictionary lists for them.
#include "platform/objectmodeler/VelMetaClass.h"

#include <string>

#include "platform/objectmodeler/VelDictionary.h"
#include "platform/objectmodeler/VelModule.h"
#include "tests/platform/objectmodeler/DictionaryScope.h"
#include "tests/platform/objectmodeler/modules/VelITestNumber.h"
#include "tests/platform/objectmodeler/modules/VelITestText.h"
#include "tests/support/VelFailureRecorder.h"

namespace {

using VelMetaClassTest = DictionaryTest;

const VelMetaClass& Make(const char* iName, const VelMetaClass* iBase = nullptr) {
  return fct_RetrieveMetaObject(iName, iBase, VelTypeOfClass::Implementation);
}

Texts InterfacesOf(const VelMetaClass& iClass) {
  Texts names;
  const VelListValVelString list = iClass.ListOfSupportedInterface();
  for (int i = 1; i <= list.Size(); ++i) names.emplace_back(list[i].View());
  return names;
}

TEST_F(VelMetaClassTest, MetaClass_IsMadeOnce_FromTextsThatNeedNotLive) {
  std::string name = "VelTestMetaOnce";
  std::string identifier = "VelITestMetaOnce";
  std::string framework = "MetaFramework";
  const VelMetaClass& made =
      fct_RetrieveMetaObject(name.c_str(), nullptr, VelTypeOfClass::Extension, identifier.c_str(), framework.c_str());
  name.assign(name.size(), 'x');
  identifier.assign(identifier.size(), 'x');
  framework.assign(framework.size(), 'x');
  EXPECT_STREQ(made.Name(), "VelTestMetaOnce");
  EXPECT_STREQ(made.IdentifierName(), "VelITestMetaOnce");
  EXPECT_STREQ(made.Framework(), "MetaFramework");
  EXPECT_EQ(made.TypeOfClass(), VelTypeOfClass::Extension);
  EXPECT_EQ(made.Base(), nullptr);
  EXPECT_EQ(VelMetaClass::Find("VelTestMetaOnce"), &made);
  EXPECT_EQ(&fct_RetrieveMetaObject("VelTestMetaOnce", nullptr, VelTypeOfClass::Extension, "VelNull", "MetaFramework"),
            &made);
  EXPECT_EQ(VelMetaClass::Find("VelTestMetaThatNobodyMade"), nullptr);
}

TEST_F(VelMetaClassTest, Defaults_AreNoIdentifierAndNoFramework) {
  EXPECT_STREQ(Make("VelTestMetaPlain").IdentifierName(), "VelNull");
  EXPECT_STREQ(Make("VelTestMetaPlain").Framework(), "");
}

TEST_F(VelMetaClassTest, DeclaringAClassDifferently_IsReported_AndTheFirstCounts) {
  const VelMetaClass& base = Make("VelTestMetaBase");
  const VelMetaClass& first =
      fct_RetrieveMetaObject("VelTestMetaTwice", &base, VelTypeOfClass::Implementation, "VelNull", "F");
  struct Case {
    const char* name;
    const VelMetaClass* base;
    VelTypeOfClass kind;
    const char* framework;
  };
  const Case cases[] = {{"base", nullptr, VelTypeOfClass::Implementation, "F"},
                        {"kind", &base, VelTypeOfClass::Extension, "F"},
                        {"framework", &base, VelTypeOfClass::Implementation, "G"}};
  for (const Case& each : cases) {
    SCOPED_TRACE(each.name);
    const RecordingFailureObserver observer;
    EXPECT_EQ(&fct_RetrieveMetaObject("VelTestMetaTwice", each.base, each.kind, "VelNull", each.framework), &first);
    ASSERT_EQ(observer.Messages(), Texts{"A meta-class is declared again with another base, kind or framework"});
    EXPECT_EQ(observer.Failures().front().kind, VelFailureKind::Check);
    EXPECT_EQ(observer.Failures().front().detail, "VelTestMetaTwice");
    EXPECT_EQ(first.Base(), &base);
  }
}

TEST_F(VelMetaClassTest, IsAKindOf_KnowsTheClassAndItsBases) {
  const VelMetaClass& derived = Make("VelTestMetaDerived", &Make("VelTestMetaBase"));
  EXPECT_TRUE(derived.IsAKindOf("VelTestMetaDerived"));
  EXPECT_TRUE(derived.IsAKindOf("VelTestMetaBase"));
  EXPECT_FALSE(derived.Base()->IsAKindOf("VelTestMetaDerived"));
  EXPECT_FALSE(derived.IsAKindOf("VelTestMeta"));
  EXPECT_FALSE(derived.IsAKindOf(""));
}

TEST_F(VelMetaClassTest, ListOfSupportedInterface_FollowsTheDeclarations_OwnClassFirst_EachOnce) {
  const VelMetaClass& base = Make("VelTestListBase");
  const VelMetaClass& derived = Make("VelTestListDerived", &Make("VelTestListBetween", &base));
  EXPECT_EQ(InterfacesOf(derived), Texts{});
  ASSERT_EQ(scope_.LoadModule("a.dictionary", "VelTestOne",
                              "class C Implementation\n"
                              "bind VelTestListBase VelITestZ TIE Component C\n"
                              "bind VelTestListDerived VelITestM TIE Component C\n"
                              "bind VelTestListBase VelITestA TIE Component C\n"
                              "bind VelTestListDerived VelITestB TIE Component C\n"),
            S_OK);
  ASSERT_EQ(scope_.LoadModule("b.dictionary", "VelTestTwo",
                              "class D Extension\n"
                              "bind VelTestListDerived VelITestA TIE Reference D\n"
                              "bind VelTestListBase VelITestC TIE Reference D\n"),
            S_OK);
  EXPECT_EQ(InterfacesOf(derived), (Texts{"VelITestM", "VelITestB", "VelITestA", "VelITestZ", "VelITestC"}));
  EXPECT_EQ(InterfacesOf(base), (Texts{"VelITestZ", "VelITestA", "VelITestC"}));
  ASSERT_EQ(scope_.Unload("a.dictionary"), S_OK);
  EXPECT_EQ(InterfacesOf(derived), (Texts{"VelITestA", "VelITestC"}));
}

TEST_F(VelMetaClassTest, ListOfSupportedInterface_FollowsDeclaredBasesToo) {
  ASSERT_EQ(scope_.LoadModule("a.dictionary", "VelTestOne",
                              "type VelTestListTyped VelTestListTypedBase\n"
                              "class C Implementation\n"
                              "bind VelTestListTypedBase VelITestB TIE Component C\n"
                              "bind VelTestListTyped VelITestA TIE Component C\n"),
            S_OK);
  EXPECT_EQ(InterfacesOf(Make("VelTestListTyped")), (Texts{"VelITestA", "VelITestB"}));
}

TEST_F(VelMetaClassTest, LateType_ClimbsToTheBasesOfTheMetaClassOfItsName) {
  ASSERT_EQ(scope_.LoadModule("a.dictionary", "VelTestOne",
                              "class C Implementation\nbind VelTestClimbBase VelITestNumber TIE Component C\n"),
            S_OK);
  const bool madeBefore = VelMetaClass::Find("VelTestClimbDerived") != nullptr;
  EXPECT_EQ(Offers("VelTestClimbDerived", IID_VelITestNumber), madeBefore) << "not before the class is known";
  Make("VelTestClimbDerived", &Make("VelTestClimbBetween", &Make("VelTestClimbBase")));
  EXPECT_TRUE(Offers("VelTestClimbDerived", IID_VelITestNumber));
  ASSERT_EQ(scope_.LoadModule("b.dictionary", "VelTestTwo", "type VelTestClimbDerived VelTestClimbOther\n"), S_OK);
  EXPECT_FALSE(Offers("VelTestClimbDerived", IID_VelITestNumber)) << "a declared base counts before the class";
  ASSERT_EQ(scope_.Unload("b.dictionary"), S_OK);
  EXPECT_TRUE(Offers("VelTestClimbDerived", IID_VelITestNumber));
}

// A dictionary says that the base derives from the derived one; the classes, which are known only later, say the
// opposite.
TEST(VelMetaClassAloneTest, ClimbThroughClassesThatContradictTheDictionary_Ends) {
  RunAlone([] {
    DictionaryScope scope;
    ASSERT_EQ(scope.LoadModule("a.dictionary", "VelTestOne",
                               "type VelTestLoopBase VelTestLoopDerived\nclass C Implementation\n"
                               "bind VelTestLoopDerived VelITestNumber TIE Component C\n"),
              S_OK);
    const VelMetaClass& derived = Make("VelTestLoopDerived", &Make("VelTestLoopBase"));
    for (const char* lateType : {"VelTestLoopBase", "VelTestLoopDerived"}) {
      SCOPED_TRACE(lateType);
      EXPECT_TRUE(Offers(lateType, IID_VelITestNumber));
      EXPECT_FALSE(Offers(lateType, IID_VelITestText));
      EXPECT_EQ(Ask(lateType, IID_VelITestText), E_NOINTERFACE);
    }
    EXPECT_EQ(InterfacesOf(derived), Texts{"VelITestNumber"});
  });
}

TEST(VelMetaClassAloneTest, ListOfSupportedInterface_OpensNoLibrary) {
  RunAlone([] {
    ASSERT_EQ(VelDictionary::LoadFile(BuiltDictionary("VelTestGrid")), S_OK);
    EXPECT_EQ(InterfacesOf(Make("VelTestGridThing")), (Texts{"VelITestNumber", "VelITestText"}));
    EXPECT_EQ(VelModuleRegistration::Find("VelTestGrid"), nullptr);
  });
}

TEST(VelMetaClassAloneTest, MetaClassMadeAfterAQuery_MakesTheLateTypeLookAgain) {
  RunAlone([] {
    const DictionaryScope scope;
    ASSERT_EQ(VelDictionary::LoadFile(BuiltDictionary("VelTestGrid")), S_OK);
    EXPECT_EQ(Ask("VelTestGridByClass", IID_VelITestNumber), E_NOINTERFACE);
    Make("VelTestGridByClass", &Make("VelTestGridThing"));
    EXPECT_EQ(Ask("VelTestGridByClass", IID_VelITestNumber), S_OK);
  });
}

}  // namespace
