#include "host/runtime/hooking.h"

#include <gtest/gtest.h>

#include <string>

#include "objc/class_builder.h"
#include "platform/Foundation/NSObject.h"

namespace {

struct HookBase : objc::Bound<HookBase, "HookBase", NSObject> {
  int number() const { return call<"number", int>(); }
  static int common() { return call_class<"common", int>(); }
};
struct HookLeaf : objc::Bound<HookLeaf, "HookLeaf", HookBase> {};

int base_number(HookBase) {
  return 1;
}
int class_number(objc::Object) {
  return 10;
}

using Body = int (*)(objc::Id, objc::Sel);
objc::Imp original = nullptr;

int hundred_more(objc::Object self) {
  return reinterpret_cast<Body>(original)(self.id(), "number"_sel) + 100;
}
objc::Imp as_imp() {
  return reinterpret_cast<objc::Imp>(&objc::MethodOf<&hundred_more>::call);
}

struct HookingTest : ::testing::Test {
  HookingTest() {
    // Classes cannot be unregistered, so all tests of a process share this pair.
    static bool made = false;
    if (made) return;
    made = true;
    objc::ClassBuilder("HookBase", "NSObject")
        .method<&base_number>("number")
        .class_method<&class_number>("common")
        .finish();
    objc::ClassBuilder("HookLeaf", "HookBase").finish();
  }
};

TEST_F(HookingTest, AnInheritedMethodIsAddedToTheClassAndTheOriginalIsTheInheritedOne) {
  HookBase base = HookBase::alloc().init();
  HookLeaf leaf = HookLeaf::alloc().init();
  MSHookMessageEx(HookLeaf::cls(), "number"_sel, as_imp(), &original);
  EXPECT_EQ(leaf.number(), 101);
  EXPECT_EQ(base.number(), 1) << "the base class keeps its own";
  base.release();
  leaf.release();
}

TEST_F(HookingTest, AMethodOfTheClassIsReplacedForSubclassesToo) {
  struct Own : objc::Bound<Own, "HookOwn", NSObject> {
    int number() const { return call<"number", int>(); }
  };
  objc::ClassBuilder("HookOwn", "NSObject").method<&base_number>("number").finish();
  objc::ClassBuilder("HookOwnChild", "HookOwn").finish();
  MSHookMessageEx(Own::cls(), "number"_sel, as_imp(), &original);
  const auto child = objc::send<Own>(
      objc::send<objc::Object>(objc::Object(objc_getClass("HookOwnChild")), "alloc"_sel),
      "init"_sel);
  EXPECT_EQ(child.number(), 101);
  child.release();
}

TEST_F(HookingTest, AClassMethodIsReplacedOnTheMetaclass) {
  static objc::Imp original_common = nullptr;
  MSHookMessageEx(objc_getMetaClass("HookBase"), "common"_sel, as_imp(), &original_common);
  EXPECT_EQ(reinterpret_cast<Body>(original_common)(nullptr, nullptr), 10);
}

TEST_F(HookingTest, ANilClassOrAnUnansweredSelectorChangesNothing) {
  objc::Imp untouched = as_imp();
  MSHookMessageEx(nullptr, "number"_sel, as_imp(), &untouched);
  EXPECT_EQ(untouched, as_imp());
  MSHookMessageEx(HookBase::cls(), "neverHeardOf"_sel, as_imp(), &untouched);
  EXPECT_EQ(untouched, as_imp());
  EXPECT_EQ(class_getInstanceMethod(HookBase::cls(), "neverHeardOf"_sel), nullptr);
}

TEST_F(HookingTest, TheOriginalIsOptional) {
  objc::ClassBuilder("HookNoOriginal", "HookBase").finish();
  MSHookMessageEx(objc_getClass("HookNoOriginal"), "number"_sel, as_imp(), nullptr);
  EXPECT_NE(method_getImplementation(
                class_getInstanceMethod(objc_getClass("HookNoOriginal"), "number"_sel)),
            method_getImplementation(class_getInstanceMethod(HookBase::cls(), "number"_sel)));
}

/// The selector is registered between many others. A subclass that implements those does not share
/// its base's part of the dispatch table.
struct HookCrowded : ::testing::Test {
  static constexpr int kNeighbours = 96;
  static objc::Sel neighbour(int index) {
    return sel_registerName(("neighbour" + std::to_string(index)).c_str());
  }

  HookCrowded() {
    if (objc_getClass("HookCrowd")) return;
    for (int i = 0; i < kNeighbours; ++i) {
      if (i == kNeighbours / 2) sel_registerName("crowded");
      neighbour(i);
    }
    objc::ClassBuilder("HookAlone", "NSObject")
        .method<&base_number>("crowded")
        .class_method<&class_number>("crowded")
        .finish();
    const objc::Class crowd = objc::ClassBuilder("HookCrowd", "HookAlone").finish();
    const objc::Class of_crowd = objc::class_of(reinterpret_cast<objc::Id>(crowd));
    for (int i = 0; i < kNeighbours; ++i)
      for (const objc::Class cls : {crowd, of_crowd})
        class_addMethod(cls, neighbour(i), reinterpret_cast<objc::Imp>(&nothing), "i@:");
    objc::ClassBuilder("HookCrowdLeaf", "HookCrowd").finish();
  }

  static int nothing(objc::Id, objc::Sel) { return 0; }
  static int ask(objc::Object object) {
    return objc::send<int>(object, sel_registerName("crowded"));
  }
};

TEST_F(HookCrowded, AReplacedMethodReachesEverySubclass) {
  const objc::Object leaf = objc::send<objc::Object>(objc::Object(objc_getClass("HookCrowdLeaf")),
                                                     sel_registerName("new"));
  ASSERT_EQ(ask(leaf), 1);
  MSHookMessageEx(objc_getClass("HookAlone"), sel_registerName("crowded"), as_imp(), nullptr);
  const objc::Object later =
      objc::send<objc::Object>(objc::Object(objc_getClass("HookCrowd")), sel_registerName("new"));
  original = reinterpret_cast<objc::Imp>(&nothing);
  EXPECT_EQ(ask(leaf), 100);
  EXPECT_EQ(ask(later), 100);
}

TEST_F(HookCrowded, AReplacedClassMethodReachesEverySubclass) {
  const objc::Object leaf(objc_getClass("HookCrowdLeaf"));
  ASSERT_EQ(ask(leaf), 10);
  MSHookMessageEx(objc_getMetaClass("HookAlone"), sel_registerName("crowded"), as_imp(), nullptr);
  original = reinterpret_cast<objc::Imp>(&nothing);
  EXPECT_EQ(ask(leaf), 100);
}

}  // namespace
