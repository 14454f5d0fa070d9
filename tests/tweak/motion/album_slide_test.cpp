#include "tests/tweak/library/artwork_page.h"

namespace host::test {
namespace {

/// The blurred table slides over the artwork and out again.
class AlbumSlide : public ArtworkPage {
 protected:
  CGFloat x() const { return frame("blurTable").origin.x; }
  CGFloat shown_x() const { return view("blurTable").layer().presentationLayer().frame().origin.x; }
  /// One target position, with the time at which the movement to it starts.
  struct Leg {
    CGFloat x;
    double at;
  };
  std::vector<Leg> legs_of(const std::function<void()>& act, double seconds) {
    const double start = clock.now();
    act();
    std::vector<Leg> legs = {{x(), 0}};
    while (clock.now() < start + seconds) {
      advance(1.0 / 240);
      if (x() != legs.back().x) legs.push_back({x(), clock.now() - start});
    }
    return legs;
  }
  void switch_table() { objc::send<>(application, "showTable"_sel); }
};

TEST_F(AlbumSlide, ComesInWithADampedBounce) {
  const CGRect before = frame("blurTable");
  const auto legs = legs_of([this] { switch_table(); }, 1.5);
  const Leg expected[] = {{-20, 0}, {15, 0.2}, {-10, 0.35}, {5, 0.5}, {0, 0.65}};
  ASSERT_EQ(legs.size(), std::size(expected));
  for (std::size_t i = 0; i < legs.size(); ++i) {
    EXPECT_EQ(legs[i].x, expected[i].x);
    // A leg starts at the frame that sees the end of the previous one.
    EXPECT_NEAR(legs[i].at, expected[i].at, 0.02 * static_cast<double>(i) + 1e-9);
  }
  EXPECT_EQ(frame("blurTable"), (CGRect{{0, before.origin.y}, before.size}));
}

TEST_F(AlbumSlide, TheLastLegHasItsDuration) {
  switch_table();
  seconds_until([this] { return x() == 0; });
  EXPECT_THAT(seconds_until([this] { return std::abs(shown_x()) < 1e-6; }), ::testing::Lt(0.17));
  EXPECT_THAT(shown_x(), IsNear(0.0));
}

TEST_F(AlbumSlide, SlidesOutDirectlyInAFifthOfASecond) {
  show_table();
  const CGFloat width = frame("blurTable").size.width;
  const auto legs = legs_of([this] { switch_table(); }, 0);
  EXPECT_EQ(legs.back().x, width);
  CGFloat last = 0;
  EXPECT_THAT(seconds_until([&] {
                EXPECT_GE(shown_x(), last);
                last = shown_x();
                return is_near(shown_x(), width);
              }),
              IsSoonAfter(0.2));
  EXPECT_EQ(x(), width);
}

TEST_F(AlbumSlide, ADoubleTapSlidesItInAndOut) {
  double_tap_on_artwork();
  EXPECT_EQ(x(), -20);
  settle();
  EXPECT_EQ(x(), 0);
  // A tap on the table also counts for the artwork.
  const CGPoint below_rows{middle_of(view("art")).x, middle_of(view("art")).y + 80};
  tap(below_rows);
  advance(0.1);
  tap(below_rows);
  EXPECT_EQ(x(), frame("blurTable").size.width);
}

TEST_F(AlbumSlide, MovingItAsideEndsTheBounce) {
  const std::function<void()> ways[] = {
      [this] { objc::send<>(application, "playStop"_sel); },
      [this] { objc::send<>(application, "dismisWithNoAction"_sel); },
  };
  for (const auto& send_aside : ways) {
    switch_table();
    advance(0.3);
    send_aside();
    settle();
    EXPECT_EQ(x(), frame("blurTable").size.width);
  }
}

TEST_F(AlbumSlide, TwoCallsDuringTheBounceGiveOneBounce) {
  switch_table();
  advance(0.3);
  const auto legs = legs_of([this] { switch_table(); }, 1.5);
  EXPECT_EQ(legs.size(), 5u);
  EXPECT_EQ(x(), 0);
}

}  // namespace
}  // namespace host::test
