#include "tests/tweak/panel_test.h"

namespace host::test {
namespace {

/// Previous and next count from the row that is selected in the list of all songs. The panel
/// selects the one whose title, artist and album are those of the playing song, as the user knows
/// them: not every song can be told from the others by these.
class UnfindableSongs : public PanelTest {
 protected:
  void add_song_of(const char* artist, const char* album, const char* title,
                   const char* file) const {
    media::SongTags tags;
    tags.title = title;
    tags.artist = artist;
    tags.album = album;
    add_song(file, tags);
  }
  void open_with(const char* title) {
    launch();
    play(title);
    open_panel();
    ASSERT_EQ(sounding(), title);
  }
  /// What sounds after a tap, when the panel has caught up with it.
  std::string after_tap_on(const char* control) {
    tap_on(view(control));
    advance(2.1);
    return sounding();
  }
  double elapsed() const { return global<double>("elapsed"); }
};

/// Delta, Echo, which is on no album, and Foxtrot.
class SongOfNoAlbum : public UnfindableSongs {
 protected:
  void SetUp() override { add_song_of("Yves", "Two", "Foxtrot", "Foxtrot"); }
};

TEST_F(SongOfNoAlbum, IsWhereNextGoesAgainAndAgain) {
  open_with("Delta");
  EXPECT_EQ(after_tap_on("next"), "Echo");
  advance(10);
  ASSERT_GT(elapsed(), 10);
  EXPECT_EQ(after_tap_on("next"), "Echo");
  EXPECT_LT(elapsed(), 5);
  // Delta's row is still the selected one.
  EXPECT_EQ(after_tap_on("back"), "Charlie");
}

TEST_F(SongOfNoAlbum, IsWhereBackGoesAgainAndAgain) {
  open_with("Foxtrot");
  EXPECT_EQ(after_tap_on("back"), "Echo");
  EXPECT_EQ(after_tap_on("back"), "Echo");
}

/// Alpha, Bravo, the same Bravo from another file, and Charlie.
class SongTwice : public UnfindableSongs {
 protected:
  void SetUp() override { add_song_of("Xenia", "One", "Bravo", "Bravo again"); }
};

TEST_F(SongTwice, IsPassedOverByNext) {
  open_with("Alpha");
  EXPECT_EQ(after_tap_on("next").substr(0, 5), "Bravo");
  EXPECT_EQ(after_tap_on("next"), "Charlie");
}

TEST_F(SongTwice, IsWhereBackStops) {
  open_with("Charlie");
  EXPECT_EQ(after_tap_on("back").substr(0, 5), "Bravo");
  const std::string first = after_tap_on("back");
  EXPECT_EQ(first.substr(0, 5), "Bravo");
  EXPECT_EQ(after_tap_on("back"), first);
}

}  // namespace
}  // namespace host::test
