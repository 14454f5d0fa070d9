#include "objc/own_class.h"

#include <gtest/gtest.h>

#include "platform/Foundation/NSObject.h"

namespace {

struct TestPicker : objc::Own<TestPicker, "TestPicker", NSObject> {
  int rows() const { return call<"rows", int>(); }
};
struct TestTakenPicker : objc::Own<TestTakenPicker, "TestTakenPicker", NSObject> {
  int rows() const { return call<"rows", int>(); }
};
struct TestPickerOfTaken : objc::Own<TestPickerOfTaken, "TestPickerOfTaken", TestTakenPicker> {};
struct TestSmallPicker : objc::Own<TestSmallPicker, "TestSmallPicker", TestPicker> {};

int messages_to_stranger = 0;

void stranger_is_sent_something(objc::Object) {
  ++messages_to_stranger;
}

int three(objc::Object) {
  return 3;
}

void describe(objc::ClassBuilder& builder) {
  builder.method<&three>("rows");
}

/// Makes a foreign class that takes the name first.
void make_stranger() {
  if (objc_getClass("TestTakenPicker")) return;
  objc::ClassBuilder("TestTakenPicker", "NSObject")
      .class_method<&stranger_is_sent_something>("initialize")
      .finish();
}

TEST(OwnClass, IsTheOneThatWasMade) {
  objc::make_own_class<TestPicker>(&describe);
  EXPECT_EQ(TestPicker::cls(), objc_getClass("TestPicker"));
  const TestPicker made = TestPicker::alloc().init();
  EXPECT_EQ(made.rows(), 3);
  made.release();
  objc::make_own_class<TestSmallPicker>([](objc::ClassBuilder&) {});
  EXPECT_EQ(class_getSuperclass(TestSmallPicker::cls()), TestPicker::cls());
}

TEST(OwnClass, IsNilIfTheNameIsTaken) {
  make_stranger();
  messages_to_stranger = 0;
  objc::make_own_class<TestTakenPicker>(&describe);
  EXPECT_EQ(TestTakenPicker::cls(), nullptr);
  EXPECT_EQ(TestTakenPicker::alloc().init().rows(), 0);
  EXPECT_EQ(messages_to_stranger, 0);
}

TEST(OwnClass, IsNotMadeFromAForeignClassWithTheNameOfItsBase) {
  make_stranger();
  messages_to_stranger = 0;
  objc::make_own_class<TestTakenPicker>(&describe);
  objc::make_own_class<TestPickerOfTaken>([](objc::ClassBuilder&) {});
  EXPECT_EQ(TestPickerOfTaken::cls(), nullptr);
  EXPECT_FALSE(TestPickerOfTaken::alloc());
  EXPECT_EQ(objc_getClass("TestPickerOfTaken"), nullptr);
  EXPECT_EQ(messages_to_stranger, 0);
  objc::send<objc::Object>(objc::Object(objc_getClass("TestTakenPicker")), "self"_sel);
  EXPECT_EQ(messages_to_stranger, 1) << "the foreign class records messages";
}

struct TestCrate : objc::Own<TestCrate, "TestCrate", NSObject> {};
struct TestLabel : objc::Own<TestLabel, "TestLabel", TestCrate> {};

class Label : public objc::Implementation<Label, TestLabel> {
 public:
  using Implementation::Implementation;
};

// The state's instance variable would have the name of one that the base already has.
TEST(OwnClass, IsNotMadeIfItCannotHoldItsState) {
  objc::make_own_class<TestCrate>(
      [](objc::ClassBuilder& builder) { builder.field<objc::Object>("TestLabel"); });
  ASSERT_TRUE(TestCrate::cls());
  objc::make_own_class<TestLabel>(
      [](objc::ClassBuilder& builder) { builder.state<Label>().method<&three>("rows"); });
  EXPECT_EQ(TestLabel::cls(), nullptr);
  EXPECT_EQ(objc_getClass("TestLabel"), nullptr);
  EXPECT_FALSE(TestLabel::alloc().init());
}

}  // namespace
