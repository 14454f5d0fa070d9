#include "tests/host/springboard/support/surface_fixture.h"

namespace host::springboard {
namespace {

using namespace test;

class BannerTest : public SurfaceTest {
 protected:
  bool is_showing() const { return banners().is_showing_banner(); }
};

TEST_F(BannerTest, ItSlidesDownAndLeavesAfterFiveSeconds) {
  present_banner("Rain at noon");
  const auto seen_top = [] {
    return CGRect(banners().banner().layer().presentationLayer().frame()).min_y();
  };
  advance(0.03);
  const CGFloat from = seen_top();
  advance(1);
  EXPECT_GT(seen_top(), from + 40);
  EXPECT_TRUE(is_at_rest());
  advance(3.9);
  EXPECT_TRUE(is_showing());
  advance(1);
  EXPECT_FALSE(is_showing());
  EXPECT_FALSE(banners().banner());
}

TEST_F(BannerTest, BannersAppearOneAfterTheOther) {
  present_banner("First");
  present_banner("Second");
  advance(5.8);
  EXPECT_TRUE(is_showing());
  advance(4);
  EXPECT_TRUE(is_showing());
  advance(2);
  EXPECT_FALSE(is_showing());
}

TEST_F(BannerTest, AFingerPushesItUp) {
  present_banner("Rain at noon");
  advance(1);
  fling({180, 50}, {180, 5}, 0.15);
  advance(1);
  EXPECT_FALSE(is_showing());
  EXPECT_FALSE(notification_centre().is_presented());
}

TEST_F(BannerTest, ItStaysWhileAFingerHoldsIt) {
  present_banner("Rain at noon");
  advance(1);
  drag({180, 40}, {180, 55}, 0.3, 8);
  EXPECT_TRUE(is_showing());
  lift();
  settle();
  EXPECT_TRUE(is_showing());
  advance(4);
  EXPECT_FALSE(is_showing());
}

TEST_F(BannerTest, PulledDownItOpensTheNotificationCentre) {
  present_banner("Rain at noon");
  advance(1);
  fling({180, 40}, {180, 200}, 0.4);
  settle();
  EXPECT_FALSE(is_showing());
  EXPECT_TRUE(notification_centre().is_presented());
}

TEST_F(BannerTest, ABannerThatLeavesSendsNoMessage) {
  present_banner("Rain at noon");
  advance(7);
  EXPECT_EQ(notification_centre().store().all().size(), 1u);
  EXPECT_EQ(notification_centre().store().all().front().text, "Rain at noon");
}

}  // namespace
}  // namespace host::springboard
