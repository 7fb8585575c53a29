// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelVar_test.cpp Handles and weak references.
#include "platform/objectmodeler/VelVar.h"

#include <type_traits>

#include "platform/objectmodeler/VelBaseUnknown_WR.h"
#include "platform/objectmodeler/VelIDelegation.h"
#include "platform/objectmodeler/VelInstanceCounts.h"
#include "tests/platform/objectmodeler/ObjectModelerTest.h"

namespace {

using VelVarTest = ObjectModelerTest;
using VelBaseUnknownWeakTest = ObjectModelerTest;

// What a handle must not do by itself: become another handle, a pointer, a truth value or a number, or be compared by
// address.
static_assert(!std::is_convertible_v<VelTestIValue_var, VelTestIView_var>);
static_assert(std::is_constructible_v<VelTestIView_var, const VelTestIValue_var&>);
static_assert(!std::is_assignable_v<VelTestIView_var&, const VelTestIValue_var&>);
static_assert(!std::is_convertible_v<VelTestIValue*, VelTestIValue_var>);
static_assert(!std::is_convertible_v<VelBaseUnknown*, VelTestIValue_var>);
static_assert(!std::is_assignable_v<VelTestIValue_var&, VelTestIValue*>);
static_assert(!std::is_convertible_v<VelTestIValue_var, VelTestIValue*>);
static_assert(!std::is_convertible_v<VelTestIValue_var, bool>);
static_assert(!std::is_convertible_v<VelTestIValue_var, int>);
static_assert(!std::is_constructible_v<VelTestIValue_var, int>);
static_assert(!std::is_constructible_v<VelTestIValue_var, std::string*>);
static_assert(std::is_convertible_v<std::nullptr_t, VelTestIValue_var>);
static_assert(std::is_nothrow_move_constructible_v<VelTestIValue_var>);
template <class Held>
concept HasOwnIdentifier = std::is_same_v<typename Held::VelThisInterface, Held>;
static_assert(HasOwnIdentifier<VelTestIValue> && HasOwnIdentifier<VelBaseUnknown>);
static_assert(!HasOwnIdentifier<VelComponent> && !HasOwnIdentifier<VelTestValue>, "no handle holds a class");
static_assert(sizeof(VelTestIValue_var) == sizeof(void*));

template <class Left, class Right>
concept Comparable = requires(const Left& iLeft, const Right& iRight) {
  iLeft == iRight;
};
static_assert(!Comparable<VelTestIValue_var, VelTestIValue_var>);
static_assert(!Comparable<VelTestIValue_var, VelTestIView_var>);
static_assert(Comparable<VelTestIValue_var, std::nullptr_t>);

/// The references on an object, the caller's own left out.
std::uint32_t ReferencesOn(VelBaseUnknown& ioObject) {
  ioObject.AddRef();
  return ioObject.Release();
}

TEST_F(VelVarTest, Handle_MadeFromAnything_QueriesAndIsEmptyWhenTheQueryFails) {
  const VelBaseUnknown_var hThing = MakeThing();
  EXPECT_TRUE(VelTestIValue_var(hThing));
  EXPECT_TRUE(VelTestIValue_var(hThing.Get()));
  EXPECT_TRUE(VelTestIValue_var(hThing->GetComponent()));
  EXPECT_FALSE(VelTestINode_var(hThing));
  EXPECT_FALSE(VelTestIValue_var(static_cast<VelBaseUnknown*>(nullptr)));
  EXPECT_FALSE(VelTestIValue_var(VelBaseUnknown_var()));
  EXPECT_TRUE(VelTestIValue_var() == nullptr);
}

TEST_F(VelVarTest, Handle_HoldsOneReference) {
  const VelBaseUnknown_var hThing = MakeThing();
  const VelTestIValue_var hValue(hThing);
  EXPECT_EQ(ReferencesOn(*hValue.Get()), 1U);
  {
    const VelTestIValue_var hCopy = hValue;
    const VelTestIValue_var hFromPointer(hValue.Get());
    EXPECT_EQ(ReferencesOn(*hValue.Get()), 3U);
  }
  EXPECT_EQ(ReferencesOn(*hValue.Get()), 1U);
}

TEST_F(VelVarTest, Assignment_ToItself_KeepsTheOnlyReference) {
  VelTestIValue_var hValue{VelTestIValue_var(MakeThing())};
  const VelTestIValue_var& hSame = hValue;
  hValue = hSame;
  EXPECT_EQ(hValue->Count(), 7);
  VelTestIValue_var& hMoved = hValue;
  hValue = std::move(hMoved);
  ASSERT_TRUE(hValue) << "moving onto itself changes nothing";
  EXPECT_EQ(hValue->Count(), 7);
}

TEST_F(VelVarTest, Assignment_TakesTheNewReferenceBeforeItDropsTheOld) {
  // The thing is held by the delegation of another, which only the handle itself holds.
  VelBaseUnknown_var hHead = MakeThing();
  {
    const VelBaseUnknown_var hNext = MakeThing();
    ASSERT_EQ(VelIDelegation_var(hHead)->SetDelegate(hNext.Get()), S_OK);
  }
  const VelBaseUnknown_WR head(hHead.Get());
  VelBaseUnknown* next = nullptr;
  ASSERT_EQ(VelIDelegation_var(hHead)->GetDelegate(&next), S_OK);
  next->Release();
  hHead = VelBaseUnknown_var(next);
  EXPECT_EQ(head.Get(), nullptr) << "the old object went";
  EXPECT_TRUE(VelTestIValue_var(hHead)) << "and the new one lives";
}

TEST_F(VelVarTest, Move_LeavesTheSourceEmpty) {
  VelTestIValue_var hValue{VelTestIValue_var(MakeThing())};
  VelTestIValue_var hTaken = std::move(hValue);
  EXPECT_FALSE(hValue);  // NOLINT(bugprone-use-after-move): this is what is tested
  EXPECT_EQ(hTaken->Count(), 7);
}

TEST_F(VelVarTest, AdoptDetachAndReceive_HandReferencesOver) {
  const VelBaseUnknown_var hThing = MakeThing();
  VelTestIValue* value = nullptr;
  ASSERT_EQ(hThing->Query(&value), S_OK);
  VelTestIValue_var hValue = VelTestIValue_var::Adopt(value);
  EXPECT_EQ(ReferencesOn(*value), 1U);
  EXPECT_EQ(hValue.Detach(), value);
  EXPECT_FALSE(hValue);
  value->Release();
  EXPECT_EQ(hThing->Query(hValue.Receive()), S_OK);
  EXPECT_TRUE(hValue);
  EXPECT_EQ(hThing->Query(hValue.Receive()), S_OK) << "what it held is released first";
  EXPECT_EQ(VelInstanceCounts::Now().forwarders, 1);
}

TEST_F(VelVarTest, EmptyHandle_ThrowsTheNullHandleErrorWhereItIsUsed) {
  const VelTestIValue_var none;
  try {
    static_cast<void>(none->Count());
    FAIL() << "expected the null-handle error";
  } catch (const VelNullHandleError& error) {
    EXPECT_STREQ(error.what(), "An empty handle of VelTestIValue was used");
    EXPECT_STREQ(error.Interface(), "VelTestIValue");
  }
  EXPECT_THROW(static_cast<void>(*none), VelNullHandleError);
}

TEST_F(VelBaseUnknownWeakTest, WeakReference_NeitherKeepsNorOutlivesItsComponent) {
  VelBaseUnknown_var hThing = MakeThing();
  const VelBaseUnknown_WR weak(VelTestIValue_var(hThing)->GetImpl());
  EXPECT_EQ(weak.Get(), hThing->GetComponent());
  VelTestIValue_var hValue;
  EXPECT_EQ(weak.Query(hValue.Receive()), S_OK);
  EXPECT_EQ(weak.Query(static_cast<VelTestIValue**>(nullptr)), E_INVALIDARG);
  VelBaseUnknown* none = hThing.Get();
  EXPECT_EQ(weak.QueryInterface(IID_VelTestINode, &none), E_NOINTERFACE);
  EXPECT_EQ(none, nullptr);
  hValue = nullptr;
  hThing = nullptr;
  EXPECT_EQ(weak.Get(), nullptr);
  EXPECT_EQ(weak.Query(hValue.Receive()), E_FAIL);
  EXPECT_FALSE(hValue);
  EXPECT_EQ(VelInstanceCounts::Now().components, 0);
}

TEST_F(VelBaseUnknownWeakTest, WeakReference_IsEmptyFromTheMomentOfClosing) {
  const VelBaseUnknown_var hThing = MakeThing();
  const VelBaseUnknown_WR weak(hThing.Get());
  VelBaseUnknown_WR copy = weak;
  VelBaseUnknown_WR taken = std::move(copy);
  VelBaseUnknown_WR assigned;
  assigned = taken;
  assigned = *&assigned;
  End(hThing);
  EXPECT_EQ(weak.Get(), nullptr);
  EXPECT_EQ(taken.Get(), nullptr);
  EXPECT_EQ(assigned.Get(), nullptr);
  EXPECT_EQ(VelBaseUnknown_WR(hThing.Get()).Get(), nullptr) << "nor can a new one be made";
}

TEST_F(VelBaseUnknownWeakTest, WeakReference_ToNothing_IsEmpty) {
  EXPECT_EQ(VelBaseUnknown_WR().Get(), nullptr);
  EXPECT_EQ(VelBaseUnknown_WR(nullptr).Get(), nullptr);
}

}  // namespace
