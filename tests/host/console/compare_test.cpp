#include "host/console/compare.h"

#include <gtest/gtest.h>

#include "objc/autorelease_pool.h"
#include "platform/Foundation/NSString.h"
#include "platform/Foundation/NSValue.h"

namespace {

using namespace host::console;

Value point(double x, double y) {
  return {Structure{number_value(x), number_value(y)}};
}

class Compare : public testing::Test {
 protected:
  std::optional<bool> compare(const Value& left, std::string_view symbol, const Value& right) {
    return holds(left, comparison_named(symbol).value(), right);
  }
  objc::AutoreleasePool pool_;
};

TEST_F(Compare, NumbersCompareByValueWhateverTheirForm) {
  EXPECT_EQ(compare(boolean_value(true), "==", number_value(1)), true);
  EXPECT_EQ(compare(number_value(2), "!=", number_value(3)), true);
  EXPECT_EQ(compare(number_value(2), "<", number_value(3)), true);
  EXPECT_EQ(compare(number_value(3), "<", number_value(3)), false);
  EXPECT_EQ(compare(number_value(3), "<=", number_value(3)), true);
  EXPECT_EQ(compare(number_value(3), ">", number_value(2)), true);
  EXPECT_EQ(compare(number_value(2), ">=", number_value(3)), false);
}

TEST_F(Compare, NearMeansWithinAHundredthInEveryElement) {
  EXPECT_EQ(compare(number_value(1), "~=", number_value(1.0099)), true);
  EXPECT_EQ(compare(number_value(1), "~=", number_value(1.011)), false);
  EXPECT_EQ(compare(point(1, 2), "~=", point(1.005, 1.995)), true);
  EXPECT_EQ(compare(point(1, 2), "~=", point(1.005, 2.02)), false);
}

TEST_F(Compare, NumbersInObjectsCountAsNumbers) {
  const Value boxed = object_value(NSNumber::numberWithDouble(2.5));
  EXPECT_EQ(compare(boxed, "==", number_value(2.5)), true);
  EXPECT_EQ(compare(boxed, ">", number_value(2)), true);
  EXPECT_EQ(compare(boxed, "~=", number_value(2.505)), true);
  EXPECT_EQ(compare(object_value(NSNumber::numberWithBool(NO)), "==", boolean_value(false)), true);
}

TEST_F(Compare, TextsAreEqualByContent) {
  const Value left = object_value(NSString::stringWithUTF8String("owl"));
  const Value right = object_value("an owl"_ns.substringFromIndex(3));
  EXPECT_EQ(compare(left, "==", right), true);
  EXPECT_EQ(compare(left, "!=", right), false);
}

TEST_F(Compare, NilEqualsNothingButNil) {
  const Value nothing{NilValue{}};
  EXPECT_EQ(compare(nothing, "==", nothing), true);
  EXPECT_EQ(compare(nothing, "==", number_value(0)), false);
  EXPECT_EQ(compare(nothing, "==", boolean_value(false)), false);
  EXPECT_EQ(compare(nothing, "==", point(0, 0)), false);
}

TEST_F(Compare, StructuresOfDifferentShapesDiffer) {
  EXPECT_EQ(compare(point(1, 2), "==", point(1, 2)), true);
  EXPECT_EQ(compare(point(1, 2), "==", Value{Structure{number_value(1)}}), false);
}

TEST_F(Compare, OnlyNumbersHaveAnOrder) {
  const Value text = object_value(NSString::stringWithUTF8String("owl"));
  EXPECT_EQ(compare(text, "<", number_value(1)), std::nullopt);
  EXPECT_EQ(compare(point(1, 2), ">", point(0, 0)), std::nullopt);
  EXPECT_EQ(compare(text, "~=", text), std::nullopt);
  EXPECT_EQ(compare(point(1, 2), "~=", number_value(1)), std::nullopt);
}

}  // namespace
