#include "tests/tweak/panel_test.h"

namespace host::test {
namespace {

/// Previous and next start from the selected row in the list of all songs. The panel selects the
/// row with the title, artist and album of the playing song, but these do not identify every song.
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
  /// The song that plays after the tap, once the panel has caught up.
  std::string after_tap_on(const char* control) {
    tap_on(view(control));
    advance(2.1);
    return sounding();
  }
  double elapsed() const { return global<double>("elapsed"); }
};

/// Delta, then Echo, which is on no album, then Foxtrot.
class SongOfNoAlbum : public UnfindableSongs {
 protected:
  void SetUp() override { add_song_of("Yves", "Two", "Foxtrot", "Foxtrot"); }
};

TEST_F(SongOfNoAlbum, NextReturnsToItAgainAndAgain) {
  open_with("Delta");
  EXPECT_EQ(after_tap_on("next"), "Echo");
  advance(10);
  ASSERT_GT(elapsed(), 10);
  EXPECT_EQ(after_tap_on("next"), "Echo");
  EXPECT_LT(elapsed(), 5);
  // Delta's row is still selected.
  EXPECT_EQ(after_tap_on("back"), "Charlie");
}

TEST_F(SongOfNoAlbum, BackReturnsToItAgainAndAgain) {
  open_with("Foxtrot");
  EXPECT_EQ(after_tap_on("back"), "Echo");
  EXPECT_EQ(after_tap_on("back"), "Echo");
}

/// Alpha, Bravo, Bravo again from another file, and Charlie.
class SongTwice : public UnfindableSongs {
 protected:
  void SetUp() override { add_song_of("Xenia", "One", "Bravo", "Bravo again"); }
};

TEST_F(SongTwice, IsSkippedByNext) {
  open_with("Alpha");
  EXPECT_EQ(after_tap_on("next").substr(0, 5), "Bravo");
  EXPECT_EQ(after_tap_on("next"), "Charlie");
}

TEST_F(SongTwice, StopsBack) {
  open_with("Charlie");
  EXPECT_EQ(after_tap_on("back").substr(0, 5), "Bravo");
  const std::string first = after_tap_on("back");
  EXPECT_EQ(first.substr(0, 5), "Bravo");
  EXPECT_EQ(after_tap_on("back"), first);
}

}  // namespace
}  // namespace host::test
