#include "platform/Foundation/NSValue.h"
#include "platform/QuartzCore/CABasicAnimation.h"
#include "tests/tweak/library/album_page.h"

namespace host::test {
namespace {

/// Taps next to the zoomed album.
class AlbumZoomOut : public AlbumPage {
 protected:
  void SetUp() override {
    launch();
    open_album_page();
    for (const UIView one : tiles())
      frames_.push_back(one.frame());
    two_ = tile("Two");
    cover_frame_ = cover_of(two_).frame();
    title_frame_ = title_of(two_).frame();
    zoom_in("Two");
  }

  std::vector<CGRect> frames_;
  UIView two_;
  CGRect cover_frame_;
  CGRect title_frame_;
};

TEST_F(AlbumZoomOut, EverythingIsRestoredAfterSevenTenthsOfASecond) {
  tap_beside();
  EXPECT_TRUE(strip().isScrollEnabled());
  const auto gone = [this] { return !backdrop_of(two_); };
  EXPECT_NEAR(seconds_until(gone), 0.2 + 0.3 + 0.2, 4 * RunLoop::kFrame);
  std::vector<CGRect> frames;
  for (const UIView one : tiles()) {
    frames.push_back(one.frame());
    EXPECT_EQ(one.alpha(), 1);
  }
  EXPECT_THAT(frames, ::testing::UnorderedElementsAreArray(frames_));
  EXPECT_EQ(cover_of(two_).frame(), cover_frame_);
  EXPECT_EQ(title_of(two_).frame(), title_frame_);
  EXPECT_EQ(title_of(two_).alpha(), 1);
  EXPECT_EQ(text(title_of(two_).font().fontName()), "HelveticaNeue");
  EXPECT_EQ(title_of(two_).font().pointSize(), 12);
  EXPECT_EQ(cover_of(two_).layer().cornerRadius(), 15);
}

TEST_F(AlbumZoomOut, TheHeadingGoesFirstThenTheTileThenTheBackdrop) {
  const CGRect zoomed = two_.frame();
  const CALayer cover = cover_of(two_).layer();
  tap_beside();
  EXPECT_EQ(title_of(two_).alpha(), 0);
  EXPECT_EQ(two_.frame(), zoomed);
  EXPECT_EQ(title_of(two_).font().pointSize(), 28);
  EXPECT_EQ(tile("One").alpha(), 0);
  EXPECT_THAT(seconds_until([&] { return !(two_.frame() == zoomed); }), IsSoonAfter(0.2));
  EXPECT_EQ(title_of(two_).font().pointSize(), 12);
  EXPECT_EQ(tile("One").alpha(), 1);
  EXPECT_EQ(backdrop_of(two_).alpha(), 1);
  const auto corner = objc::cast<CABasicAnimation>(cover.animationForKey("cornerRadius"_ns));
  ASSERT_TRUE(corner);
  EXPECT_EQ(corner.duration(), 0.3);
  EXPECT_EQ(objc::cast<NSNumber>(corner.fromValue()).doubleValue(), 30);
  EXPECT_EQ(objc::cast<NSNumber>(corner.toValue()).doubleValue(), 15);
  EXPECT_EQ(cover.cornerRadius(), 15);
  EXPECT_THAT(seconds_until([&] { return backdrop_of(two_).alpha() == 0; }), IsSoonAfter(0.3));
  EXPECT_EQ(title_of(two_).alpha(), 1);
  EXPECT_THAT(seconds_until([&] { return !backdrop_of(two_); }), IsSoonAfter(0.2));
}

TEST_F(AlbumZoomOut, AnotherAlbumCanBeZoomedAfterwards) {
  tap_beside();
  settle();
  zoom_in("One");
  EXPECT_EQ(songs_of(tile("One")).size(), 3u);
  tap_beside();
  settle();
  EXPECT_TRUE(strip().isScrollEnabled());
  EXPECT_FALSE(backdrop_of(tile("One")));
}

TEST_F(AlbumZoomOut, ATapOnTheShrinkingTileChangesNothing) {
  for (const double moment : {0.1, 0.3, 0.6}) {
    tap_beside();
    advance(moment);
    objc::send<>(application, "zoomInAlbum:"_sel, two_.gestureRecognizers().firstObject());
    settle();
    std::vector<CGRect> frames;
    for (const UIView one : tiles())
      frames.push_back(one.frame());
    EXPECT_THAT(frames, ::testing::UnorderedElementsAreArray(frames_)) << moment;
    EXPECT_FALSE(backdrop_of(two_));
    EXPECT_TRUE(strip().isScrollEnabled());
    zoom_in("Two");
  }
}

TEST_F(AlbumZoomOut, WithoutAZoomedAlbumNothingHappens) {
  tap_beside();
  settle();
  tap_beside();
  EXPECT_TRUE(strip().isScrollEnabled());
  for (const UIView one : tiles()) {
    EXPECT_EQ(one.alpha(), 1);
    EXPECT_EQ(title_of(one).alpha(), 1);
  }
}

}  // namespace
}  // namespace host::test
