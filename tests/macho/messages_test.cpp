#include "tests/macho/loader/messages.h"

#include <gtest/gtest.h>

#include "objc/class_builder.h"
#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/Foundation/NSObject.h"

namespace {

using objc::Id;
using objc::Object;
using objc::Sel;
using objc::SuperReceiver;

Sel operator""_known(const char* name, std::size_t) {
  return macho_tests::phone_selector(name);
}

CGRect rect_of(Object, double x, CGRect inside, int number) {
  return {{x, inside.origin.y}, {inside.size.width, static_cast<double>(number)}};
}

CGSize size_of(Object, float width, signed char height) {
  return {width, static_cast<double>(height)};
}

float half(Object, float value) {
  return value / 2;
}

/// More arguments of both kinds than there are registers, each with a different weight.
double sum(Object, int a, long b, signed char c, unsigned d, int e, long f, double g, float h,
           double i, double j, double k, double l, double m, double n, double o, CGPoint p) {
  return a + 2.0 * static_cast<double>(b) + 3 * c + 4.0 * d + 5 * e + 6.0 * static_cast<double>(f) +
         7 * g + 8 * h + 9 * i + 10 * j + 11 * k + 12 * l + 13 * m + 14 * n + 15 * o + 16 * p.x +
         17 * p.y;
}

long answer(Object) {
  return 41;
}

long better_answer(Object) {
  return 42;
}

CGRect other_rect(Object, double x, CGRect inside, int number) {
  return {inside.origin, {x, -static_cast<double>(number)}};
}

class Messages : public testing::Test {
 protected:
  static objc::Class base() {
    static const objc::Class made = objc::ClassBuilder("MessageBase", "NSObject")
                                        .method<&rect_of>("rectOf:inside:number:")
                                        .method<&size_of>("sizeOf:height:")
                                        .method<&half>("half:")
                                        .method<&sum>("a:b:c:d:e:f:g:h:i:j:k:l:m:n:o:p:")
                                        .method<&answer>("answer")
                                        .finish();
    return made;
  }
  static objc::Class derived() {
    base();
    static const objc::Class made = objc::ClassBuilder("MessageDerived", "MessageBase")
                                        .method<&better_answer>("answer")
                                        .method<&other_rect>("rectOf:inside:number:")
                                        .finish();
    return made;
  }

  Messages() : object_(objc::send<Object>(Object(derived()), "new"_sel)) {}
  ~Messages() override { objc::send<>(object_, "release"_sel); }

  Id object() const { return object_.id(); }
  SuperReceiver super() const { return {object(), base()}; }

 private:
  Object object_;
};

template <class Function>
Function as(void (*function)()) {
  return reinterpret_cast<Function>(function);
}

const auto send_number = as<long (*)(Id, Sel)>(&phone_message);
const auto send_half = as<float (*)(Id, Sel, float)>(&phone_message);
const auto send_size = as<CGSize (*)(Id, Sel, float, signed char)>(&phone_message);
const auto send_sum =
    as<double (*)(Id, Sel, int, long, signed char, unsigned, int, long, double, float, double,
                  double, double, double, double, double, double, CGPoint)>(&phone_message);

const auto send_rect = as<CGRect (*)(Id, Sel, double, CGRect, int)>(&phone_message);
const auto send_super_rect =
    as<CGRect (*)(const SuperReceiver*, Sel, double, CGRect, int)>(&phone_super_message);

TEST_F(Messages, IntegersFloatsAndSmallStructuresAreReturnedInRegisters) {
  EXPECT_EQ(send_number(object(), "answer"_known), 42);
  EXPECT_EQ(send_half(object(), "half:"_known, 0.5f), 0.25f);
  EXPECT_EQ(send_size(object(), "sizeOf:height:"_known, 1.5f, -3), (CGSize{1.5, -3}));
}

TEST_F(Messages, ALargeStructureIsReturnedInMemory) {
  const CGRect inside{{1, 2}, {3, 4}};
  EXPECT_EQ(send_rect(object(), "rectOf:inside:number:"_known, 9, inside, 7),
            (CGRect{{1, 2}, {9, -7}}));
  const SuperReceiver above = super();
  EXPECT_EQ(send_super_rect(&above, "rectOf:inside:number:"_known, 9, inside, 7),
            (CGRect{{9, 2}, {3, 7}}));
}

TEST_F(Messages, ManyArgumentsArriveInRegistersAndOnTheStack) {
  EXPECT_EQ(
      send_sum(object(), "a:b:c:d:e:f:g:h:i:j:k:l:m:n:o:p:"_known, 1, 2, -3, 4, 5, 6, 7, 8, 9, 10,
               11, 12, 13, 14, 15, CGPoint{16, 17}),
      1 + 4 - 9 + 16 + 25 + 36 + 49 + 64 + 81 + 100 + 121 + 144 + 169 + 196 + 225 + 256 + 289);
}

TEST_F(Messages, NilReturnsZero) {
  EXPECT_EQ(send_number(nullptr, "answer"_known), 0);
  EXPECT_EQ(send_half(nullptr, "half:"_known, 0.5f), 0.0f);
  EXPECT_EQ(send_size(nullptr, "sizeOf:height:"_known, 1.5f, -3), CGSize{});
}

TEST_F(Messages, AHostSelectorIsSentWithoutAResultAddress) {
  EXPECT_EQ(send_number(object(), sel_registerName("hash")),
            static_cast<long>(objc::send<NSUInteger>(Object(object()), "hash"_sel)));
}

TEST_F(Messages, SuperStartsAtTheSuperclassAndKeepsTheReceiver) {
  const SuperReceiver above = super();
  const auto send_super = as<long (*)(const SuperReceiver*, Sel)>(&phone_super_message);
  EXPECT_EQ(send_super(&above, "answer"_known), 41);
  const auto send_super_self = as<Id (*)(const SuperReceiver*, Sel)>(&phone_super_message);
  EXPECT_EQ(send_super_self(&above, "self"_known), object());
}

}  // namespace
