#include <gmock/gmock.h>

#include <filesystem>

#include "tests/host/media_player/media_player_test.h"
#include "tests/support/told_user.h"

namespace {

namespace fs = std::filesystem;

using host::media_player::MediaService;
using host::test::titles;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;

/// Files that the user names, in the library and outside of it.
class PlayedFiles : public host::test::MediaPlayerTest {
 protected:
  PlayedFiles() {
    fs::create_directories(folder_ / "downloads/album");
    write(outside("x.flac"), "X-ray");
    write(outside("album/2.flac"), "Zulu");
    write(outside("album/1.flac"), "Yankee");
    media_tests::write_bytes(outside("letter.txt"), "hello");
    media_tests::write_bytes(outside("broken.flac"), "no music");
    start();
  }

  std::string outside(const std::string& name) const { return folder_ / ("downloads/" + name); }
  static void write(const std::string& path, const char* title) {
    host::media::SongTags tags;
    tags.title = title;
    media_tests::write_song(path, tags, {}, 2);
  }
  static void play_files(std::vector<std::string> paths) {
    MediaService::current()->play_files(std::move(paths));
  }
  std::vector<std::string> songs() const {
    const auto query = objc::Ref<MPMediaQuery>::adopt(MPMediaQuery::alloc().init());
    return titles(query->items());
  }
  std::string title() const { return playing(MPMediaItemPropertyTitle); }
  std::string after_next() {
    media().changeTrack(1);
    return title();
  }
};

TEST_F(PlayedFiles, ArePlayedOneAfterAnother) {
  play_files({song_path("d.flac"), song_path("a.flac")});
  EXPECT_EQ(title(), "Delta");
  EXPECT_NE(media().isPlaying(), NO);
  EXPECT_EQ(after_next(), "Alpha");
  EXPECT_EQ(after_next(), "");
}

TEST_F(PlayedFiles, AreInTheLibraryUntilTheProcessEnds) {
  play_files({outside("x.flac"), song_path("a.flac")});
  EXPECT_EQ(title(), "X-ray");
  EXPECT_EQ(engine_path(), outside("x.flac"));
  EXPECT_THAT(songs(), ElementsAre("Alpha", "Bravo", "Charlie", "Delta", "X-ray"));
  EXPECT_EQ(after_next(), "Alpha");
  start();
  EXPECT_THAT(songs(), ElementsAre("Alpha", "Bravo", "Charlie", "Delta"));
}

TEST_F(PlayedFiles, AFolderIsItsSongsByTheirNames) {
  play_files({outside("album")});
  EXPECT_EQ(title(), "Yankee");
  EXPECT_EQ(after_next(), "Zulu");
  EXPECT_EQ(after_next(), "");
  EXPECT_THAT(songs(), Not(Contains("X-ray")));
}

TEST_F(PlayedFiles, ASongAndThenItsFolderAreInTheLibraryOnce) {
  play_files({outside("album/2.flac")});
  EXPECT_EQ(title(), "Zulu");
  play_files({outside("album")});
  EXPECT_EQ(title(), "Yankee");
  EXPECT_THAT(songs(), ElementsAre("Alpha", "Bravo", "Charlie", "Delta", "Yankee", "Zulu"));
}

TEST_F(PlayedFiles, TheUserIsToldWhatIsNotPlayed) {
  const host::test::ToldUser user;
  play_files({outside("letter.txt")});
  play_files({outside("broken.flac"), song_path("a.flac")});
  play_files({outside("letter.txt"), outside("gone.flac")});
  EXPECT_THAT(user.words(), ElementsAre("Cannot play letter.txt", "Cannot play broken.flac",
                                        "Cannot play 2 files"));
}

TEST_F(PlayedFiles, WhatIsNoMusicIsNamedInALineEachAndTheOthersPlay) {
  const media_tests::CapturedLog log;
  fs::create_directories(outside("empty"));
  play_files({"https://example.org/song.mp3", outside("gone.flac"), outside("letter.txt"),
              outside("broken.flac"), outside("empty"), "/dev/null", outside("x.flac")});
  EXPECT_EQ(title(), "X-ray");
  EXPECT_EQ(log.count("song.mp3 is an address; only files can be played"), 1);
  EXPECT_EQ(log.count("gone.flac cannot be found"), 1);
  EXPECT_EQ(log.count("letter.txt is not music of a kind that can be played"), 1);
  EXPECT_EQ(log.count("broken.flac"), 1);
  EXPECT_EQ(log.count("broken.flac holds no music that can be played"), 1);
  EXPECT_EQ(log.count("empty holds no music that can be played"), 1);
  EXPECT_EQ(log.count("/dev/null is not a file"), 1);
}

TEST_F(PlayedFiles, WhenNoneIsMusicTheSongThatPlaysGoesOn) {
  play("Bravo");
  const media_tests::CapturedLog log;
  std::vector<std::string> letters;
  for (int i = 0; i < 50; ++i)
    letters.push_back(outside("letter.txt"));
  play_files(letters);
  play_files({});
  EXPECT_EQ(title(), "Bravo");
  EXPECT_EQ(log.count("is not music"), 20);
  EXPECT_EQ(log.count("30 more files cannot be played"), 1);
}

}  // namespace
