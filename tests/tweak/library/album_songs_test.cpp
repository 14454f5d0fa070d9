#include "platform/UIKit/UITapGestureRecognizer.h"
#include "tests/tweak/library/album_page.h"
#include "tests/tweak/method_spy.h"

namespace host::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;

/// The songs of a zoomed album.
class AlbumSongs : public AlbumPage {
 protected:
  using Player = MPMusicPlayerController;

  CGFloat song_side() const { return (zoomed_side() - 30) * 0.5; }
  static std::vector<std::string> song_titles(UIView tile) {
    std::vector<std::string> found;
    for (const UIView one : songs_of(tile))
      found.push_back(text(title_of(one).text()));
    return found;
  }
};

TEST_F(AlbumSongs, ThreeSongsTakeTwoRows) {
  open_while_playing();
  zoom_in("One");
  const auto songs = songs_of(tile("One"));
  ASSERT_EQ(songs.size(), 3u);
  const CGFloat side = song_side();
  EXPECT_THAT(songs[0].frame(), IsNear(CGRect{10, 10, side, side}));
  EXPECT_THAT(songs[1].frame(), IsNear(CGRect{20 + side, 10, side, side}));
  EXPECT_THAT(songs[2].frame(), IsNear(CGRect{10, 20 + side, side, side}));
  EXPECT_THAT(song_titles(tile("One")), ElementsAre("Alpha", "Bravo", "Charlie"));
  const UIScrollView grid = grid_of(tile("One"));
  EXPECT_EQ(grid.frame(), (CGRect{0, 0, zoomed_side(), zoomed_side()}));
  EXPECT_FALSE(grid.showsHorizontalScrollIndicator());
  EXPECT_FALSE(grid.showsVerticalScrollIndicator());
  EXPECT_EQ(rgba(grid.backgroundColor()).alpha, 0);
}

TEST_F(AlbumSongs, TheGridEndsJustBeyondItsLastSong) {
  for (int song = 0; song < 7; ++song)
    add_album("Seven");
  for (int song = 0; song < 4; ++song)
    add_album("Four");
  for (int song = 0; song < 2; ++song)
    add_album("Pair");
  launch();
  const CGFloat side = zoomed_side(), step = song_side() + 10;
  const auto content = [&](const char* album) {
    global<UIScrollView>("albums").setScrollEnabled(YES);
    objc::send<>(application, "zoomInAlbum:"_sel, tile(album).gestureRecognizers().firstObject());
    return grid_of(tile(album)).contentSize();
  };
  // One point larger than the grid if the songs do not fill it.
  EXPECT_THAT(content("Two"), IsNear(CGSize{side + 1, side + 1}));
  EXPECT_THAT(content("Pair"), IsNear(CGSize{side, side + 1}));
  EXPECT_THAT(content("One"), IsNear(CGSize{side + 1, side}));
  EXPECT_THAT(content("Four"), IsNear(CGSize{side, side}));
  EXPECT_THAT(content("Seven"), IsNear(CGSize{side + 1, 10 + 4 * step}));
}

TEST_F(AlbumSongs, ASongIsAPictureWithATitleBelow) {
  open_while_playing();
  zoom_in("One");
  const CGFloat side = song_side();
  for (const UIView one : songs_of(tile("One"))) {
    const UIImageView picture = cover_of(one);
    EXPECT_THAT(picture.frame(), IsNear(CGRect{side / 6, side / 6, 2 * side / 3, 2 * side / 3}));
    EXPECT_TRUE(picture.layer().masksToBounds());
    EXPECT_EQ(picture.layer().cornerRadius(), 10);
    EXPECT_EQ(picture.layer().borderWidth(), 1.5);
    const UILabel title = title_of(one);
    EXPECT_THAT(title.frame(), IsNear(CGRect{0, 5 * side / 6, side, side / 6}));
    EXPECT_EQ(title.numberOfLines(), 1);
    EXPECT_EQ(title.textAlignment(), NSTextAlignmentCenter);
    EXPECT_EQ(text(title.font().fontName()), "HelveticaNeue");
    EXPECT_EQ(title.font().pointSize(), 12);
    EXPECT_TRUE(one.isUserInteractionEnabled());
    ASSERT_EQ(one.gestureRecognizers().count(), 1u);
    const auto tap = objc::cast<UITapGestureRecognizer>(one.gestureRecognizers().firstObject());
    EXPECT_EQ(tap.numberOfTapsRequired(), 1u);
  }
}

TEST_F(AlbumSongs, FadeInWhenTheAlbumIsZoomed) {
  open_while_playing();
  tap_on(tile("One"));
  const auto opacity = [&] {
    return static_cast<CGFloat>(songs_of(tile("One"))[2].layer().presentationLayer().opacity());
  };
  EXPECT_LT(opacity(), 0.2);
  EXPECT_THAT(seconds_until([&] { return is_near(opacity(), 1); }), IsSoonAfter(0.3));
}

TEST_F(AlbumSongs, ShowTheirArtworkOrTheTiles) {
  open_while_playing();
  const MethodSpy<"imageWithSize:", UIImage(MPMediaItemArtwork, CGSize)> drawn(
      MPMediaItemArtwork::cls());
  zoom_in("One");
  const CGFloat side = song_side();
  EXPECT_THAT(drawn.calls(), Contains(std::tuple(CGSize{side, side})));
  EXPECT_NE(cover_of(song("One", "Alpha")).image(), cover_of(tile("One")).image());
  EXPECT_EQ(cover_of(song("One", "Bravo")).image(), cover_of(tile("One")).image());
}

TEST_F(AlbumSongs, WithoutAnyPictureShowTheEmptyCover) {
  open_while_playing();
  cover_of(tile("Two")).setImage(nil);
  const MethodSpy<"imageWithContentsOfFile:", UIImage(NSObject, NSString)> loaded(
      objc::class_of(reinterpret_cast<objc::Id>(UIImage::cls())));
  zoom_in("Two");
  EXPECT_THAT(loaded.calls(),
              Contains(::testing::ResultOf(
                  [](const auto& call) { return text(std::get<0>(call)); },
                  std::string("/Library/Application Support/Sonavue/empty_cover.png"))));
  EXPECT_TRUE(cover_of(song("Two", "Delta")).image());
}

TEST_F(AlbumSongs, HaveTheChosenColours) {
  write_preferences(text_entry("tint", "red") + text_entry("font_tint", "blue") +
                    "<key>checked</key><true/>");
  open_while_playing();
  zoom_in("One");
  for (const UIView one : songs_of(tile("One"))) {
    EXPECT_EQ(rgba(cover_of(one).layer().borderColor()), (Rgba{1, 0, 0, 1}));
    EXPECT_EQ(rgba(title_of(one).textColor()), (Rgba{0, 0, 1, 1}));
  }
}

TEST_F(AlbumSongs, HaveTheLegibilityColourWhenThatIsOn) {
  write_preferences(text_entry("tint", "red") + text_entry("font_tint", "blue") +
                    switch_entry("legibility", true) + "<key>checked</key><true/>");
  // Alpha's red cover is dark.
  open_while_playing();
  zoom_in("One");
  for (const UIView one : songs_of(tile("One"))) {
    EXPECT_EQ(rgba(cover_of(one).layer().borderColor()), kWhite);
    EXPECT_EQ(rgba(title_of(one).textColor()), kWhite);
  }
}

TEST_F(AlbumSongs, ATapPlaysTheSongAndZoomsOut) {
  open_while_playing();
  zoom_in("One");
  std::vector<std::string> heard;
  const MethodSpy<"zoomOutAlbum:", void(SpringBoard, objc::Object)> out(SpringBoard::cls(), &heard);
  const MethodSpy<"setQueueWithQuery:", void(Player, objc::Object)> queued(Player::cls(), &heard);
  const MethodSpy<"setNowPlayingItem:", void(Player, MPMediaItem)> chosen(Player::cls(), &heard);
  const MethodSpy<"prepareToPlay", void(Player)> prepared(Player::cls(), &heard);
  const MethodSpy<"play", void(Player)> played(Player::cls(), &heard);
  tap_on(song("One", "Charlie"));
  settle();
  EXPECT_THAT(heard, ElementsAre("zoomOutAlbum:", "setQueueWithQuery:", "setNowPlayingItem:",
                                 "prepareToPlay", "play"));
  EXPECT_EQ(std::get<0>(out.last()), view("albums").gestureRecognizers().firstObject());
  EXPECT_EQ(std::get<0>(queued.last()), global<MPMediaQuery>("fullList"));
  EXPECT_EQ(sounding(), "Charlie");
  EXPECT_TRUE(strip().isScrollEnabled());
  EXPECT_FALSE(backdrop_of(tile("One")));
  media().changeTrack(1);
  EXPECT_EQ(sounding(), "Delta");
}

TEST_F(AlbumSongs, ATapWhileNothingIsLoadedZoomsOutAndStartsTheSystemsPlayer) {
  launch();
  open_album_page();
  ASSERT_FALSE(global<UIImageView>("art").image());
  zoom_in("Two");
  const MethodSpy<"togglePlayPause", BOOL(SBMediaController)> toggled(SBMediaController::cls());
  const MethodSpy<"setNowPlayingItem:", void(Player, MPMediaItem)> chosen(Player::cls());
  tap_on(song("Two", "Delta"));
  settle();
  EXPECT_EQ(toggled.count(), 1);
  EXPECT_EQ(chosen.count(), 0);
  EXPECT_TRUE(strip().isScrollEnabled());
  EXPECT_NE(sounding(), "Delta");
}

// The panel concludes from the artwork whether a song is loaded.
TEST_F(AlbumSongs, ATapWhileASongWithoutArtworkPlaysOnlyPauses) {
  launch();
  play("Delta");
  open_album_page();
  zoom_in("One");
  tap_on(song("One", "Bravo"));
  settle();
  EXPECT_EQ(sounding(), "Delta");
  EXPECT_TRUE(is_engine_paused());
  EXPECT_TRUE(strip().isScrollEnabled());
}

TEST_F(AlbumSongs, ATapOnAHiddenSongLeavesTheAlbumZoomed) {
  add_cloud_song("bea", "title = 'Bea'\nartist = 'Xenia'\nalbum = 'One'\nduration = 60.0\n");
  open_while_playing();
  ASSERT_THAT(titles("songItems"), ::testing::Not(Contains("Bea")));
  zoom_in("One");
  ASSERT_THAT(song_titles(tile("One")), Contains("Bea"));
  const MethodSpy<"setNowPlayingItem:", void(Player, MPMediaItem)> chosen(Player::cls());
  const MethodSpy<"togglePlayPause", BOOL(SBMediaController)> toggled(SBMediaController::cls());
  tap_on(song("One", "Bea"));
  settle();
  EXPECT_EQ(chosen.count() + toggled.count(), 0);
  EXPECT_EQ(sounding(), "Alpha");
  EXPECT_FALSE(is_engine_paused());
  EXPECT_FALSE(strip().isScrollEnabled());
  // Another song of the album can still be tapped.
  tap_on(song("One", "Bravo"));
  settle();
  EXPECT_EQ(sounding(), "Bravo");
  EXPECT_TRUE(strip().isScrollEnabled());
}

}  // namespace
}  // namespace host::test
