#include "host/runtime/user_warnings.h"

#include <gmock/gmock.h>

#include <thread>

#include "host/basics/user_warning.h"

namespace {

using host::warn_user;
using testing::ElementsAre;
using testing::IsEmpty;

class UserWarnings : public testing::Test {
 protected:
  void pass(double seconds) { loop.advance_to(clock, clock.now() + seconds); }

  host::SteppedClock clock;
  host::RunLoop loop{clock};
  std::vector<std::string> told;
  std::optional<host::UserWarnings> warnings{
      std::in_place, loop, [this](const std::string& words) { told.push_back(words); }};
};

TEST_F(UserWarnings, AreToldOnceAMinute) {
  for (int i = 0; i < 100; ++i)
    warn_user("No sound");
  EXPECT_THAT(told, IsEmpty()) << "it may be the middle of anything";
  pass(0.1);
  EXPECT_THAT(told, ElementsAre("No sound"));
  pass(30);
  warn_user("No sound");
  warn_user("No disk");
  pass(1);
  EXPECT_THAT(told, ElementsAre("No sound", "No disk"));
  pass(30);
  warn_user("No sound");
  warn_user("No disk");
  pass(1);
  EXPECT_THAT(told, ElementsAre("No sound", "No disk", "No sound"));
}

TEST_F(UserWarnings, ComeFromAnyThreadAndAreToldOnTheLoops) {
  std::thread::id where;
  warnings.reset();
  warnings.emplace(loop, [&](const std::string& words) {
    told.push_back(words);
    where = std::this_thread::get_id();
  });
  std::thread([] { warn_user("No disk"); }).join();
  pass(0.1);
  EXPECT_THAT(told, ElementsAre("No disk"));
  EXPECT_EQ(where, std::this_thread::get_id());
}

TEST_F(UserWarnings, AFloodOfThemIsBounded) {
  for (int i = 0; i < 100000; ++i) {
    warn_user(std::to_string(i));
    if (i % 1000 == 0) pass(0.0001);
  }
  pass(1);
  ASSERT_EQ(told.size(), 32u);
  pass(60);
  warn_user("Another");
  pass(1);
  EXPECT_EQ(told.back(), "Another");
}

TEST_F(UserWarnings, WakeNothingAndEndWithTheirObject) {
  EXPECT_EQ(loop.next_due(), std::numeric_limits<double>::infinity());
  warn_user("No disk");
  warnings.reset();
  warn_user("No disk");
  pass(1);
  EXPECT_THAT(told, IsEmpty());
}

}  // namespace
