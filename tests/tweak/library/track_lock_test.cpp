#include "tests/tweak/panel_test.h"

namespace host::test {
namespace {

class TrackLock : public PanelTest, public ::testing::WithParamInterface<const char*> {
 protected:
  TrackLock() : PanelTest(GetParam()) {}
  void SetUp() override {
    launch();
    play("Alpha");
    open_panel();
  }
};

std::string name_of_model(const ::testing::TestParamInfo<const char*>& info) {
  std::string name = info.param;
  name[name.find(',')] = '_';
  return name;
}

INSTANTIATE_TEST_SUITE_P(, TrackLock, ::testing::Values("iPhone3,1", "iPhone4,1", "iPhone7,2"),
                         name_of_model);

TEST_P(TrackLock, ASecondTapIsRefusedForExactlyOneInterval) {
  const double interval = global<float>("time_wait");
  tap_on(view("next"));
  ASSERT_EQ(sounding(), "Bravo");
  EXPECT_TRUE(is("changeTrack"));
  tap_on(view("next"));
  EXPECT_EQ(sounding(), "Bravo");
  // The two taps took 0.05 seconds each; the first of them was before the lock.
  EXPECT_NEAR(seconds_until([this] { return !is("changeTrack"); }), interval - 0.05,
              1.5 * RunLoop::kFrame);
  EXPECT_EQ(sounding(), "Bravo");
  tap_on(view("next"));
  EXPECT_EQ(sounding(), "Charlie");
}

TEST_P(TrackLock, BackIsIgnoredAfterNext) {
  tap_on(view("next"));
  tap_on(view("back"));
  EXPECT_EQ(sounding(), "Bravo");
}

TEST_P(TrackLock, EveryChangeLocksAgain) {
  const double interval = global<float>("time_wait");
  for (const char* title : {"Bravo", "Charlie", "Delta"}) {
    tap_on(view("next"));
    EXPECT_EQ(sounding(), title);
    advance(interval - 0.1);
    EXPECT_TRUE(is("changeTrack"));
    EXPECT_EQ(global<unsigned>("p"), 1u);
    advance(0.15);
    EXPECT_FALSE(is("changeTrack"));
    EXPECT_EQ(global<unsigned>("p"), 0u);
  }
}

}  // namespace
}  // namespace host::test
