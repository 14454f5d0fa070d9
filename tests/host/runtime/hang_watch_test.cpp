#include "host/runtime/hang_watch.h"

#include <gmock/gmock.h>

#include <future>

namespace host::test {
namespace {

using namespace std::chrono_literals;

// Each hanging call ends when it has been named, so the test does not depend on the time that
// takes.
TEST(HangWatches, NameAHangingCallWhileItStillHangs) {
  std::promise<std::string> named;
  HangWatch watch(1ms, [&](const std::string& name) { named.set_value(name); });
  std::string seen;
  watch.during("slow", [&] { seen = named.get_future().get(); });
  EXPECT_EQ(seen, "slow");
}

TEST(HangWatches, NameEachCallThatHangs) {
  std::vector<std::string> names;
  std::promise<void> named;
  HangWatch watch(1ms, [&](const std::string& name) {
    names.push_back(name);
    named.set_value();
  });
  const auto wait = [&] {
    named.get_future().wait();
    named = {};
  };
  watch.during("one", wait);
  watch.during("two", wait);
  EXPECT_THAT(names, testing::ElementsAre("one", "two"));
}

TEST(HangWatches, WatchTheOuterOfTwoCalls) {
  std::promise<std::string> named;
  HangWatch watch(1ms, [&](const std::string& name) { named.set_value(name); });
  std::string seen;
  watch.during("outer", [&] {
    watch.during("inner", [] {});
    seen = named.get_future().get();
  });
  EXPECT_EQ(seen, "outer");
}

TEST(HangWatches, IgnoreCallsThatReturnInTime) {
  int reports = 0;
  {
    HangWatch watch(1h, [&](const std::string&) { ++reports; });
    for (int i = 0; i < 100; ++i)
      watch.during("quick", [] {});
  }
  EXPECT_EQ(reports, 0);
}

}  // namespace
}  // namespace host::test
