#include "objc/class_builder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "objc/bound.h"
#include "platform/Foundation/NSObject.h"

namespace {

std::vector<std::string> events;

struct TestAnimal : objc::Bound<TestAnimal, "TestAnimal", NSObject> {
  int legs() const { return call<"legs", int>(); }
  void setLegs(int legs) const { call<"setLegs:">(legs); }
  int sound(int volume) const { return call<"sound:", int>(volume); }
};
struct TestDog : objc::Bound<TestDog, "TestDog", TestAnimal> {
  int tricks() const { return call<"tricks", int>(); }
  void setTricks(int tricks) const { call<"setTricks:">(tricks); }
};

class Animal : public objc::Implementation<Animal, TestAnimal> {
 public:
  explicit Animal(TestAnimal owner) : Implementation(owner) { events.push_back("animal made"); }
  ~Animal() { events.push_back("animal gone"); }
  int legs() const { return legs_; }
  void set_legs(int legs) { legs_ = legs; }
  int sound(int volume) { return volume; }

 private:
  int legs_ = 4;
};

class Dog : public objc::Implementation<Dog, TestDog> {
 public:
  explicit Dog(TestDog owner) : Implementation(owner) { events.push_back("dog made"); }
  ~Dog() { events.push_back("dog gone"); }
  int sound(int volume) { return super<int>("sound:"_sel, volume) + 100; }
  int tricks() const { return tricks_; }
  void set_tricks(int tricks) { tricks_ = tricks; }

 private:
  int tricks_ = 1;
};

int sound_twice_as_loud(objc::Object self, int volume) {
  return objc::send_super<int>(self, objc_getClass("TestLoudDog"), "sound:"_sel, volume) * 2;
}

objc::Object make_default_dog(objc::Object cls) {
  return objc::send<objc::Object>(objc::send<objc::Object>(cls, "alloc"_sel), "init"_sel);
}

void make_classes() {
  if (objc_getClass("TestAnimal")) return;
  objc::ClassBuilder("TestAnimal", "NSObject")
      .state<Animal>()
      .method<&Animal::legs>("legs")
      .method<&Animal::set_legs>("setLegs:")
      .method<&Animal::sound>("sound:")
      .finish();
  objc::ClassBuilder("TestDog", "TestAnimal")
      .state<Dog>()
      .method<&Dog::sound>("sound:")
      .method<&Dog::tricks>("tricks")
      .method<&Dog::set_tricks>("setTricks:")
      .class_method<&make_default_dog>("defaultDog")
      .finish();
}

TEST(ClassBuilder, StateIsConstructedBaseFirstAndDestroyedBaseLast) {
  make_classes();
  events.clear();
  TestDog dog = TestDog::alloc().init();
  EXPECT_EQ(events, (std::vector<std::string>{"animal made", "dog made"}));
  dog.release();
  EXPECT_EQ(events,
            (std::vector<std::string>{"animal made", "dog made", "dog gone", "animal gone"}));
}

TEST(ClassBuilder, EachObjectHasItsOwnState) {
  make_classes();
  TestDog first = TestDog::alloc().init();
  TestDog second = TestDog::alloc().init();
  first.setLegs(3);
  EXPECT_EQ(first.legs(), 3);
  EXPECT_EQ(second.legs(), 4);
  first.release();
  second.release();
}

TEST(ClassBuilder, TheStatesOfAClassAndItsBaseAreSeparate) {
  make_classes();
  TestDog dog = TestDog::alloc().init();
  dog.setTricks(70);
  EXPECT_EQ(dog.legs(), 4);
  dog.setLegs(3);
  EXPECT_EQ(dog.tricks(), 70);
  dog.release();
}

TEST(ClassBuilder, SuperSendReachesTheBaseImplementation) {
  make_classes();
  TestDog dog = TestDog::alloc().init();
  EXPECT_EQ(dog.sound(7), 107);
  dog.release();
}

TEST(ClassBuilder, ASubclassMadeElsewhereIsCalled) {
  make_classes();
  objc::ClassBuilder("TestLoudDog", "TestDog").method<&sound_twice_as_loud>("sound:").finish();
  TestDog dog = objc::cast<TestDog>(objc::send<objc::Object>(
      objc::send<objc::Object>(objc::Object(objc_getClass("TestLoudDog")), "alloc"_sel),
      "init"_sel));
  EXPECT_EQ(dog.sound(1), 202);
  EXPECT_EQ(dog.legs(), 4);
  dog.release();
}

TEST(ClassBuilder, ClassMethodsAreSentToTheClass) {
  make_classes();
  auto dog = objc::send<TestDog>(objc::Object(TestDog::cls()), "defaultDog"_sel);
  EXPECT_EQ(dog.legs(), 4);
  dog.release();
}

TEST(ClassBuilder, AClassWhoseBaseIsMissingIsNotMade) {
  const objc::Class made = objc::ClassBuilder("TestOrphan", "NoSuchBaseAnywhere")
                               .method<&make_default_dog>("anything")
                               .finish();
  EXPECT_EQ(made, nullptr);
  EXPECT_EQ(objc_getClass("TestOrphan"), nullptr);
}

TEST(Bound, AMissingClassIsNilUntilItExists) {
  struct TestLate : objc::Bound<TestLate, "TestLate", NSObject> {};
  EXPECT_FALSE(TestLate::alloc().init());
  objc::ClassBuilder("TestLate", "NSObject").finish();
  TestLate late = TestLate::alloc().init();
  EXPECT_TRUE(late);
  late.release();
}

}  // namespace
