#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <spdlog/sinks/ostream_sink.h>

#include <sstream>

#include "host/runtime/log.h"
#include "objc/class_builder.h"

namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;

class ClassPairs : public ::testing::Test {
 protected:
  ClassPairs() : before_(spdlog::default_logger()) {
    const auto sink = std::make_shared<spdlog::sinks::ostream_sink_mt>(log_);
    spdlog::set_default_logger(std::make_shared<spdlog::logger>("test", sink));
  }
  ~ClassPairs() override { spdlog::set_default_logger(before_); }

  std::string log() const { return log_.str(); }

 private:
  std::ostringstream log_;
  std::shared_ptr<spdlog::logger> before_;
};

TEST_F(ClassPairs, AnExistingNameIsLogged) {
  const objc::Class first = objc::ClassBuilder("TestTwice", "NSObject").finish();
  ASSERT_TRUE(first);
  EXPECT_THAT(log(), IsEmpty());
  EXPECT_EQ(objc::ClassBuilder("TestTwice", "NSObject").finish(), nullptr);
  EXPECT_THAT(log(), HasSubstr("class TestTwice is not created: the name is taken"));
  EXPECT_EQ(objc_getClass("TestTwice"), first);
}

TEST_F(ClassPairs, AMissingBaseIsNotLogged) {
  EXPECT_EQ(objc::ClassBuilder("TestWithoutBase", "NobodysClass").finish(), nullptr);
  EXPECT_THAT(log(), IsEmpty());
}

}  // namespace
