#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "objc/class_builder.h"
#include "tests/support/caught_log.h"

namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;

struct ClassPairs : testing::Test {
  host::test::CaughtLog log;
};

TEST_F(ClassPairs, AnExistingNameIsLogged) {
  const objc::Class first = objc::ClassBuilder("TestTwice", "NSObject").finish();
  ASSERT_TRUE(first);
  EXPECT_THAT(log.take(), IsEmpty());
  EXPECT_EQ(objc::ClassBuilder("TestTwice", "NSObject").finish(), nullptr);
  EXPECT_THAT(log.take(), HasSubstr("class TestTwice is not created: the name is taken"));
  EXPECT_EQ(objc_getClass("TestTwice"), first);
}

TEST_F(ClassPairs, AMissingBaseIsNotLogged) {
  EXPECT_EQ(objc::ClassBuilder("TestWithoutBase", "NobodysClass").finish(), nullptr);
  EXPECT_THAT(log.take(), IsEmpty());
}

}  // namespace
