#include "objc/encoding.h"

#include <gtest/gtest.h>

#include "objc/block.h"
#include "objc/class_builder.h"
#include "platform/Foundation/NSString.h"

namespace {

enum class Colour : long { kRed };

int an_int(objc::Object, float, objc::Sel, Colour, BOOL, const char*) {
  return 0;
}

TEST(Encoding, IsDeducedFromTheSignature) {
  EXPECT_STREQ(objc::MethodOf<&an_int>::encoding.c_str(), "i@:f:qc*");
  EXPECT_STREQ((objc::MethodEncoding<void, NSString, objc::Class>::text.c_str()), "v@:@#");
  EXPECT_STREQ((objc::MethodEncoding<void, objc::Block<void(BOOL)>>::text.c_str()), "v@:@?");
}

TEST(Encoding, OffsetsAndQualifiersAreIgnored) {
  EXPECT_TRUE(objc::same_encoding("v24@0:8@16", "v@:@"));
  EXPECT_TRUE(objc::same_encoding("r*16@0:8", "^c@:"));
  EXPECT_TRUE(objc::same_encoding("Vv@:@\"NSString\"", "v@:@"));
}

TEST(Encoding, TheBooleansOfBothRuntimesAreOneType) {
  EXPECT_TRUE(objc::same_encoding("C@:", "c@:"));
  EXPECT_TRUE(objc::same_encoding("B16@0:8", "c@:"));
}

TEST(Encoding, StructureNamesAreIgnoredButFieldsAreNot) {
  EXPECT_TRUE(objc::same_encoding("{_NSPoint=dd}@:", "{CGPoint=dd}@:"));
  EXPECT_FALSE(objc::same_encoding("{CGPoint=ff}@:", "{CGPoint=dd}@:"));
  EXPECT_FALSE(objc::same_encoding("dd@:", "{CGPoint=dd}@:"));
}

TEST(Encoding, AllPointersAreOneType) {
  EXPECT_TRUE(objc::same_encoding("v@:^{CGColor=}", "v@:^v"));
  EXPECT_TRUE(objc::same_encoding("v@:^^{_NSZone=^?}i", "v@:^vi"));
}

TEST(Encoding, OtherTypesAndCountsDiffer) {
  EXPECT_FALSE(objc::same_encoding("v@:i", "v@:q"));
  EXPECT_FALSE(objc::same_encoding("v@:@", "v@:"));
  EXPECT_FALSE(objc::same_encoding("f@:", "d@:"));
}

}  // namespace
