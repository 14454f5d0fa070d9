#include <gtest/gtest.h>

#include "objc/class_builder.h"
#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/Foundation/NSString.h"
#include "tests/macho/loader/messages.h"

// What is specific to calls on this processor: a register for the address of a result, and callers
// that read the whole word of a small result, as the phone's compiler generates them.

namespace {

using objc::Id;
using objc::Object;
using objc::Sel;
using objc::SuperReceiver;

long rubbish_over_no(Id, Sel) {
  return 0x5a5a'5a00;
}

long rubbish_over_minus_two(Id, Sel) {
  return 0x5a5a'fffe;
}

long whole_word(Id, Sel) {
  return 0x5a5a'fffe;
}

/// The last three are passed on the stack.
long sum_is_nine(Id, Sel, double a, double b, double c, double d, double e, double f, double g,
                 double h, double i, double j, double k) {
  const bool is_right = a + b + c + d + e + f + g + h + i + j + k == 9;
  return 0x5a5a'5a00 | static_cast<long>(is_right);
}

CGAffineTransform transform_of(Object, double a, CGPoint move) {
  return {a, 2, 3, 4, move.x, move.y};
}

long raise(Id, Sel) {
  throw 7;
}

objc::Class answers() {
  static const objc::Class made = [] {
    const objc::Class cls = objc::ClassBuilder("Answers", "NSObject")
                                .method<&transform_of>("transformOf:move:")
                                .finish();
    const auto add = [cls](const char* selector, auto* method, const char* types) {
      class_addMethod(cls, sel_registerName(selector), reinterpret_cast<objc::Imp>(method), types);
    };
    add("signedByte", &rubbish_over_no, "c@:");
    add("half", &rubbish_over_minus_two, "S@:");
    add("word", &whole_word, "i@:");
    add("a:b:c:d:e:f:g:h:i:j:k:", &sum_is_nine, "C@:ddddddddddd");
    add("raise", &raise, "c@:");
    return cls;
  }();
  return made;
}

const auto send = reinterpret_cast<int (*)(Id, Sel)>(&phone_message);

class Answers : public testing::Test {
 protected:
  Answers() : made_(objc::send<Object>(Object(answers()), "new"_sel)) {}
  ~Answers() override { objc::send<>(made_, "release"_sel); }

  int answer(Sel selector) const { return send(made_.id(), selector); }

  Object made_;
};

TEST_F(Answers, SmallerThanAWordAreSignOrZeroExtended) {
  EXPECT_EQ(answer("signedByte"_sel), 0);
  EXPECT_EQ(answer("half"_sel), 0xfffe);
  EXPECT_EQ(answer("word"_sel), 0x5a5a'fffe);
}

TEST_F(Answers, OfTheSuperclassAreExtendedToo) {
  const SuperReceiver above{made_.id(), answers()};
  const auto send_super =
      reinterpret_cast<int (*)(const SuperReceiver*, Sel)>(&phone_super_message);
  EXPECT_EQ(send_super(&above, "signedByte"_sel), 0);
}

TEST_F(Answers, GetTheArgumentsOnTheStack) {
  using Function = int (*)(Id, Sel, double, double, double, double, double, double, double, double,
                           double, double, double);
  const auto send_sum = reinterpret_cast<Function>(&phone_message);
  const Sel sum = "a:b:c:d:e:f:g:h:i:j:k:"_sel;
  EXPECT_EQ(send_sum(made_.id(), sum, 0, 0, 0, 0, 0, 0, 0, 0, 2, 3, 4), 1);
  EXPECT_EQ(send_sum(made_.id(), sum, 0, 0, 0, 0, 0, 0, 0, 0, 2, 3, 5), 0);
}

TEST_F(Answers, OfFoundationAreExtendedToWords) {
  const auto is_equal = reinterpret_cast<int (*)(Id, Sel, Id)>(&phone_message);
  EXPECT_EQ(is_equal(("an owl"_ns).id(), "isEqual:"_sel, ("an owl"_ns).id()), 1);
  EXPECT_EQ(is_equal(("an owl"_ns).id(), "isEqual:"_sel, ("a fox"_ns).id()), 0);
}

TEST_F(Answers, TooLargeForRegistersAreReturnedInMemory) {
  using Function = CGAffineTransform (*)(Id, Sel, double, CGPoint);
  const auto send_transform = reinterpret_cast<Function>(&phone_message);
  EXPECT_EQ(send_transform(made_.id(), "transformOf:move:"_sel, 1, {5, 6}),
            (CGAffineTransform{1, 2, 3, 4, 5, 6}));
}

TEST_F(Answers, MayBeExceptions) {
  EXPECT_THROW(answer("raise"_sel), int);
}

}  // namespace
