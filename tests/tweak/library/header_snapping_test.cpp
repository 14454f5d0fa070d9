#include "tests/tweak/song_page.h"

namespace host::test {
namespace {

/// The search field above the first row, released while it is partly hidden.
class HeaderSnapping : public SongPage {
 protected:
  void SetUp() override {
    for (int song = 0; song < 40; ++song)
      add_title("Song " + std::to_string(song));
    list_cloud_songs();
    launch();
    open_song_page();
  }
  CGFloat offset() const { return list().contentOffset().y; }
  /// Drags the list to the offset `wanted`, rests there and releases it. Returns the final offset.
  CGFloat release_at(CGFloat wanted) {
    hold(middle_of(list()));
    // The first points only start the drag.
    const CGFloat away = wanted < offset() ? 12 : -12;
    move_by(0, away);
    for (int step = 0; step < 100 && offset() != wanted; ++step)
      move_by(0, offset() - wanted);
    EXPECT_EQ(offset(), wanted);
    advance(0.5);
    lift();
    settle();
    return offset();
  }
};

TEST_F(HeaderSnapping, HidesWhenMoreThanHalfIsHidden) {
  EXPECT_EQ(release_at(16), kHeader);
  EXPECT_EQ(release_at(30.5), kHeader);
}

TEST_F(HeaderSnapping, AppearsWhenLessThanHalfIsHidden) {
  EXPECT_EQ(release_at(15), 0);
  EXPECT_EQ(release_at(1), 0);
}

TEST_F(HeaderSnapping, AppearsWhenExactlyHalfIsHidden) {
  EXPECT_EQ(release_at(15.5), 0);
}

TEST_F(HeaderSnapping, BeyondTheHeaderTheListStaysInPlace) {
  EXPECT_EQ(release_at(31), 31);
  EXPECT_EQ(release_at(50), 50);
  EXPECT_EQ(release_at(300), 300);
}

TEST_F(HeaderSnapping, GlidesIntoPlace) {
  const auto source = objc::cast<NSObject>(list().delegate());
  const auto let_go = [&](BOOL decelerates) {
    objc::send<>(source, "scrollViewDidEndDragging:willDecelerate:"_sel, list(), decelerates);
  };
  // With and without deceleration.
  for (const BOOL decelerates : {YES, NO}) {
    list().setContentOffset({0, 16});
    let_go(decelerates);
    EXPECT_LT(offset(), kHeader);
    settle();
    EXPECT_EQ(offset(), kHeader);
    list().setContentOffset({0, 15});
    let_go(decelerates);
    EXPECT_GT(offset(), 0);
    settle();
    EXPECT_EQ(offset(), 0);
    list().setContentOffset({0, 31});
    let_go(decelerates);
    settle();
    EXPECT_EQ(offset(), 31);
  }
}

}  // namespace
}  // namespace host::test
