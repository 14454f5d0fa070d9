#include "tests/tweak/panel_test.h"

namespace host::test {
namespace {

constexpr CGFloat kLift = 45;
constexpr float kLiftOfRest = 45;
constexpr double kChange = 0.3;
constexpr const char* kControls[] = {"play", "back", "next"};

class IdleLayout : public PanelTest {
 protected:
  void SetUp() override {
    launch();
    for (const char* control : kControls)
      compact_.push_back(frame(control));
  }
  void expect_controls_lowered_by(CGFloat lowered) {
    for (std::size_t i = 0; i < compact_.size(); ++i) {
      CGRect expected = compact_[i];
      expected.origin.y += lowered;
      EXPECT_THAT(frame(kControls[i]), IsNear(expected)) << kControls[i];
    }
  }
  void stop_playing() {
    media().togglePlayPause();
    advance(1.1);
  }

  std::vector<CGRect> compact_;
};

TEST_F(IdleLayout, IsUsedAtFirstAndKeptWithoutMusic) {
  advance(5);
  EXPECT_TRUE(is("hide"));
  expect_controls_lowered_by(0);
  EXPECT_EQ(alpha("container1"), 0);
}

TEST_F(IdleLayout, IsReplacedByTheTextsWhenASongPlays) {
  play("Alpha");
  EXPECT_FALSE(is("hide"));
  expect_controls_lowered_by(kLift);
  EXPECT_EQ(alpha("container1"), 1);
  // Only once, however long the song plays.
  advance(5);
  expect_controls_lowered_by(kLift);
}

TEST_F(IdleLayout, ComesBackWhenPlayingStops) {
  play("Alpha");
  stop_playing();
  EXPECT_TRUE(is("hide"));
  expect_controls_lowered_by(0);
  EXPECT_EQ(alpha("container1"), 0);
  advance(5);
  expect_controls_lowered_by(0);
}

TEST_F(IdleLayout, RestingPositionsFollowAfterTheChange) {
  for (const char* place : {"firstPlay1", "firstBack1", "firstNext1"})
    global<float>(place) = 100;
  play("Alpha");
  advance(kChange);
  for (const char* place : {"firstPlay1", "firstBack1", "firstNext1"})
    EXPECT_EQ(global<float>(place), 145) << place;
  stop_playing();
  advance(kChange);
  for (const char* place : {"firstPlay1", "firstBack1", "firstNext1"})
    EXPECT_EQ(global<float>(place), 100) << place;
}

TEST_F(IdleLayout, TheChangeHasItsDurationBothWays) {
  const auto refresh = [this] { objc::send<>(application, "infoMusic"_sel); };
  const auto resting = [this] { return global<float>("firstPlay1"); };
  play("Alpha");
  settle();
  for (const float rest : {0.0f, kLiftOfRest}) {
    media().togglePlayPause();
    refresh();
    EXPECT_THAT(seconds_until([&] { return resting() == rest; }), IsSoonAfter(kChange));
  }
}

TEST_F(IdleLayout, InAMovingWindowOnlyTheTextsChange) {
  const CGRect half_way{0, -300, screen().width, screen().height};
  view("window").setFrame(half_way);
  play("Alpha");
  EXPECT_EQ(alpha("container1"), 1);
  EXPECT_EQ(frame("window"), half_way);
  expect_controls_lowered_by(0);
  stop_playing();
  EXPECT_EQ(alpha("container1"), 0);
  EXPECT_EQ(frame("window"), half_way);
  expect_controls_lowered_by(0);
}

TEST_F(IdleLayout, AHangingBannerChangesItsHeightAndNotItsControls) {
  const CGFloat height = screen().height;
  global<BOOL>("isBanner") = YES;
  view("window").setFrame({0, -300, screen().width, height});
  play("Alpha");
  EXPECT_THAT(frame("window"),
              IsNear(CGRect{0, 50 + 25 + 15 + 60 - height, screen().width, height}));
  expect_controls_lowered_by(0);
  EXPECT_EQ(alpha("container1"), 1);
  stop_playing();
  EXPECT_EQ(alpha("container1"), 0);
  EXPECT_THAT(frame("window"), IsNear(CGRect{0, 50 + 25 + 15 - height, screen().width, height}));
  expect_controls_lowered_by(0);
}

class SmallIdleLayout : public PanelTest {
 protected:
  SmallIdleLayout() : PanelTest("iPhone4,1") {}
};

TEST_F(SmallIdleLayout, AHangingBannerIsShorterWithoutAnAllowance) {
  launch();
  global<BOOL>("isBanner") = YES;
  view("window").setFrame({0, -300, 320, 480});
  play("Alpha");
  EXPECT_THAT(frame("window"), IsNear(CGRect{0, 50 + 25 + 15 + 60 - 480 - 15, 320, 480}));
}

}  // namespace
}  // namespace host::test
